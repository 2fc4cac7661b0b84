// SPDX-License-Identifier: MIT
// A component that shows a skeletal mesh in its reference pose.
#pragma once

#include "Components/SkinnedMeshComponent.h"
#include "SkeletalMeshComponent.generated.h"

UCLASS()
class USkeletalMeshComponent : public USkinnedMeshComponent
{
	GENERATED_BODY()

public:
	/** Null without a mesh. */
	USkeletalMesh* GetSkeletalMeshAsset() const;
	void SetSkeletalMeshAsset(USkeletalMesh* NewMesh);
	void SetSkeletalMesh(USkeletalMesh* NewMesh, bool bReinitPose = true) override;
};
