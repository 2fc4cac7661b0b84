// SPDX-License-Identifier: MIT
// A material that takes everything from its parent except what it overrides.
#pragma once

#include "CoreMinimal.h"
#include "MaterialTypes.h"
#include "Materials/MaterialInstanceBasePropertyOverrides.h"
#include "Materials/MaterialInterface.h"
#include "Math/Color.h"
#include "StaticParameterSet.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "MaterialInstance.generated.h"

namespace Host
{
struct FMaterialInstanceAccess;
} // namespace Host

/** The override of one scalar parameter. */
USTRUCT()
struct FScalarParameterValue
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = ScalarParameterValue)
	FMaterialParameterInfo ParameterInfo;

	UPROPERTY(EditAnywhere, Category = ScalarParameterValue)
	float ParameterValue = 0.0f;
};

/** The override of one vector parameter. */
USTRUCT()
struct FVectorParameterValue
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = VectorParameterValue)
	FMaterialParameterInfo ParameterInfo;

	UPROPERTY(EditAnywhere, Category = VectorParameterValue)
	FLinearColor ParameterValue = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);
};

/** The override of one texture parameter; null is an override too. */
USTRUCT()
struct FTextureParameterValue
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = TextureParameterValue)
	FMaterialParameterInfo ParameterInfo;

	UPROPERTY(EditAnywhere, Category = TextureParameterValue)
	TObjectPtr<UTexture> ParameterValue;
};

/**
 * A material that takes everything from its parent except what it overrides. Scalar, vector and texture overrides
 * count at once; static switches and base property overrides count from the next PostEditChange on.
 */
UCLASS(Abstract)
class UMaterialInstance : public UMaterialInterface
{
	GENERATED_BODY()

public:
	/** Null, a material, or an instance whose own parents do not lead back here. */
	UPROPERTY(EditAnywhere, Category = MaterialInstance)
	TObjectPtr<UMaterialInterface> Parent;

	/** A parameter stands once in its array. One that the base material lacks has no effect. */
	UPROPERTY(EditAnywhere, Category = MaterialInstance)
	TArray<FScalarParameterValue> ScalarParameterValues;

	UPROPERTY(EditAnywhere, Category = MaterialInstance)
	TArray<FVectorParameterValue> VectorParameterValues;

	UPROPERTY(EditAnywhere, Category = MaterialInstance)
	TArray<FTextureParameterValue> TextureParameterValues;

	UPROPERTY(EditAnywhere, Category = MaterialInstance)
	FMaterialInstanceBasePropertyOverrides BasePropertyOverrides;

	/** What the last PostEditChange resolved from the overrides and the parents. */
	UPROPERTY()
	TEnumAsByte<EBlendMode> BlendMode = BLEND_Opaque;

	UPROPERTY()
	float OpacityMaskClipValue = 0.3333f;

	UPROPERTY()
	uint8 TwoSided : 1 = 0;

	/** Adds the override of a static switch or replaces the one that is there. */
	ENGINE_API void SetStaticSwitchParameterValueEditorOnly(const FMaterialParameterInfo& ParameterInfo, bool Value);

	ENGINE_API virtual UMaterial* GetMaterial() override;
	ENGINE_API virtual const UMaterial* GetMaterial() const override;
	ENGINE_API virtual EBlendMode GetBlendMode() const override;
	ENGINE_API virtual bool IsTwoSided() const override;
	ENGINE_API virtual float GetOpacityMaskClipValue() const override;
	ENGINE_API virtual bool GetTextureParameterValue(const FHashedMaterialParameterInfo& ParameterInfo,
		UTexture*& OutValue, bool bOveriddenOnly = false) const override;
	ENGINE_API virtual bool GetScalarParameterValue(
		const FHashedMaterialParameterInfo& ParameterInfo, float& OutValue, bool bOveriddenOnly = false) const override;
	ENGINE_API virtual bool GetVectorParameterValue(const FHashedMaterialParameterInfo& ParameterInfo,
		FLinearColor& OutValue, bool bOveriddenOnly = false) const override;
	ENGINE_API virtual bool GetStaticSwitchParameterValue(const FHashedMaterialParameterInfo& ParameterInfo,
		bool& OutValue, FGuid& OutExpressionGuid, bool bOveriddenOnly = false) const override;

	ENGINE_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

protected:
	/** Replaces the parent unless its own parents lead back here; false, with a warning in the log, then. */
	bool SetParentInternal(UMaterialInterface* NewParent, bool bResolve);

	void SetVectorParameterValueInternal(const FMaterialParameterInfo& ParameterInfo, const FLinearColor& Value);
	void SetScalarParameterValueInternal(const FMaterialParameterInfo& ParameterInfo, float Value);
	void SetTextureParameterValueInternal(const FMaterialParameterInfo& ParameterInfo, UTexture* Value);
	void ClearParameterValuesInternal();

private:
	friend struct Host::FMaterialInstanceAccess;

	/** Puts the static switches and base property overrides as they stand now into effect. */
	void ResolveOverrides();

	/** The overrides of static switches as they were last set. */
	UPROPERTY()
	TArray<FStaticSwitchParameter> StaticSwitches;

	/** The same as of the last PostEditChange. */
	UPROPERTY()
	TArray<FStaticSwitchParameter> ResolvedStaticSwitches;

	/** The base property overrides as of the last PostEditChange. */
	UPROPERTY()
	FMaterialInstanceBasePropertyOverrides ResolvedOverrides;
};
