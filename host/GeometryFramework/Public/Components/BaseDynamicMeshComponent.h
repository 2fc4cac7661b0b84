// SPDX-License-Identifier: MIT
// Base of the components that show a dynamic mesh of their own.
#pragma once

#include "Components/MeshComponent.h"
#include "Templates/Function.h"
#include "BaseDynamicMeshComponent.generated.h"

namespace UE::Geometry
{
class FDynamicMesh3;
}

/** A triangle is drawn with the material of its material id; an id outside the slots draws the default material. */
UCLASS(Abstract)
class UBaseDynamicMeshComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	/** By material id. */
	UPROPERTY(EditAnywhere, Category = "Rendering")
	TArray<TObjectPtr<UMaterialInterface>> BaseMaterials;

	/** The mesh, for reading and writing; NotifyMeshUpdated must follow a change. */
	virtual UE::Geometry::FDynamicMesh3* GetMesh() { return nullptr; }
	virtual const UE::Geometry::FDynamicMesh3* GetMesh() const { return nullptr; }
	virtual void SetMesh(UE::Geometry::FDynamicMesh3&& MoveMesh);
	virtual void ProcessMesh(TFunctionRef<void(const UE::Geometry::FDynamicMesh3&)> ProcessFunc) const;
	/** The mesh was changed from outside: bounds and what the scene shows are made anew. */
	virtual void NotifyMeshUpdated() {}

	int32 GetNumMaterials() const override { return BaseMaterials.Num(); }
	UMaterialInterface* GetMaterial(int32 ElementIndex) const override;
	/** Grows the slots to the index, with empty ones between; a negative index changes nothing. */
	void SetMaterial(int32 ElementIndex, UMaterialInterface* Material) override;
};
