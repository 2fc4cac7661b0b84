// SPDX-License-Identifier: MIT
// A component that shows a mesh in material slots.
#pragma once

#include "Components/PrimitiveComponent.h"
#include "MeshComponent.generated.h"

UCLASS(Abstract)
class UMeshComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	/** By slot; null leaves the slot to the mesh's own material. */
	UPROPERTY(EditAnywhere, Category = "Rendering")
	TArray<TObjectPtr<UMaterialInterface>> OverrideMaterials;

	/** The override, else null; a class with an asset answers the asset's slot then. */
	UMaterialInterface* GetMaterial(int32 ElementIndex) const override;
	/** Overrides a slot and grows the overrides to it; a negative index changes nothing. */
	void SetMaterial(int32 ElementIndex, UMaterialInterface* Material) override;
	int32 GetNumOverrideMaterials() const { return OverrideMaterials.Num(); }
	/** Leaves out the empty slots. */
	void GetUsedMaterials(TArray<UMaterialInterface*>& OutMaterials, bool bGetDebugMaterials = false) const override;
};
