// SPDX-License-Identifier: MIT
// A component that shows a dynamic mesh.
#pragma once

#include "Components/BaseDynamicMeshComponent.h"
#include "DynamicMeshComponent.generated.h"

class UDynamicMesh;

UCLASS()
class UDynamicMeshComponent : public UBaseDynamicMeshComponent
{
	GENERATED_BODY()

public:
	UDynamicMeshComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UDynamicMesh* GetDynamicMesh() { return MeshObject; }

	UE::Geometry::FDynamicMesh3* GetMesh() override;
	const UE::Geometry::FDynamicMesh3* GetMesh() const override;
	void SetMesh(UE::Geometry::FDynamicMesh3&& MoveMesh) override;
	void ProcessMesh(TFunctionRef<void(const UE::Geometry::FDynamicMesh3&)> ProcessFunc) const override;
	void NotifyMeshUpdated() override;

	FBoxSphereBounds CalcBounds(const FTransform& LocalToWorld) const override;

private:
	UPROPERTY()
	TObjectPtr<UDynamicMesh> MeshObject;

	/** Of the mesh as of the last notification; invalid for a mesh without vertices. */
	FBox LocalBounds = FBox(ForceInit);
};
