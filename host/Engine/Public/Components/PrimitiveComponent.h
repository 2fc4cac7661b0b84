// SPDX-License-Identifier: MIT
// A component that is seen.
#pragma once

#include "Components/SceneComponent.h"
#include "Delegates/DelegateCombinations.h"
#include "PrimitiveComponent.generated.h"

class UMaterialInterface;

/** Something to see: it stands in the scene of the world that it is registered with. */
UCLASS(Abstract)
class UPrimitiveComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Lighting")
	bool CastShadow = true;

	DECLARE_DELEGATE_RetVal_OneParam(bool, FSelectionOverride, const UPrimitiveComponent*);
	/** While it is bound, it decides in place of the editor's selection whether the component looks selected. */
	FSelectionOverride SelectionOverrideDelegate;

	/** Whether the editor's selection holds this component itself. */
	bool IsComponentIndividuallySelected() const;
	/** Whether it is drawn with the line around what is selected. */
	bool ShouldRenderSelected() const;
	/** The answer of ShouldRenderSelected may have changed. */
	void PushSelectionToProxy();

	virtual int32 GetNumMaterials() const { return 0; }
	/** Null for an empty slot and outside the slots. */
	virtual UMaterialInterface* GetMaterial(int32 ElementIndex) const;
	virtual void SetMaterial(int32 ElementIndex, UMaterialInterface* Material);
	/** Appends the material of each slot, in slot order; duplicates stay. */
	virtual void GetUsedMaterials(TArray<UMaterialInterface*>& OutMaterials, bool bGetDebugMaterials = false) const;

protected:
	bool ShouldCreateRenderState() const override { return true; }
	void CreateRenderState_Concurrent(FRegisterComponentContext* Context) override;
	void DestroyRenderState_Concurrent() override;
	void SendRenderTransform_Concurrent() override;
};
