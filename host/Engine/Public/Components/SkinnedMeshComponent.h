// SPDX-License-Identifier: MIT
// A component that shows a mesh that follows bones.
#pragma once

#include "Components/MeshComponent.h"
#include "SkinnedMeshComponent.generated.h"

class FSkeletalMeshRenderData;
class USkeletalMesh;
class USkinnedAsset;

UCLASS(Abstract)
class USkinnedMeshComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	USkinnedAsset* GetSkinnedAsset() const;

	/** Deprecated here: call it on a skeletal mesh component. */
	virtual void SetSkeletalMesh(USkeletalMesh* NewMesh, bool bReinitPose = true);
	/** Shows another mesh and refreshes the bounds; overridden materials stay. Null shows nothing. */
	virtual void SetSkinnedAssetAndUpdate(USkinnedAsset* NewMesh, bool bReinitPose = true);

	/** Null without a mesh, and for one that was never built. */
	FSkeletalMeshRenderData* GetSkeletalMeshRenderData() const;

	/** The larger of the asset's slots and the overrides. */
	int32 GetNumMaterials() const override;
	UMaterialInterface* GetMaterial(int32 ElementIndex) const override;
	/** Keeps the empty slots. */
	void GetUsedMaterials(TArray<UMaterialInterface*>& OutMaterials, bool bGetDebugMaterials = false) const override;

	FBoxSphereBounds CalcBounds(const FTransform& LocalToWorld) const override;

private:
	UPROPERTY(EditAnywhere, Category = "Mesh")
	TObjectPtr<USkinnedAsset> SkinnedAsset;
};
