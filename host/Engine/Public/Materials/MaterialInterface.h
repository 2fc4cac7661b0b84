// SPDX-License-Identifier: MIT
// What a mesh is shaded with: a material or an instance of one.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "MaterialTypes.h"
#include "RHIFeatureLevel.h"
#include "SceneTypes.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "MaterialInterface.generated.h"

class UMaterial;
class UTexture;

/** What a mesh is shaded with: a material or an instance of one. */
UCLASS(Abstract)
class UMaterialInterface : public UObject
{
	GENERATED_BODY()

public:
	/** The material at the end of the chain of parents; the default surface material for a chain without one. */
	ENGINE_API virtual UMaterial* GetMaterial();
	ENGINE_API virtual const UMaterial* GetMaterial() const;

	/** The same as GetMaterial. */
	ENGINE_API UMaterial* GetBaseMaterial();
	ENGINE_API const UMaterial* GetBaseMaterial() const;

	ENGINE_API virtual EBlendMode GetBlendMode() const;
	ENGINE_API virtual bool IsTwoSided() const;

	/** A masked surface is absent where its opacity is less than this. */
	ENGINE_API virtual float GetOpacityMaskClipValue() const;

	/**
	 * Lists the texture parameters of the base material, each once, in the order of declaration, whether an instance
	 * overrides them or not. Both arrays are emptied first.
	 */
	ENGINE_API void GetAllTextureParameterInfo(
		TArray<FMaterialParameterInfo>& OutParameterInfo, TArray<FGuid>& OutParameterIds) const;

	/**
	 * The value in effect: the override of the nearest instance, else the material's default.
	 *
	 * @param OutValue         untouched when the answer is false
	 * @param bOveriddenOnly   whether the material's own default does not count
	 * @return whether the base material has the parameter, or, with `bOveriddenOnly`, whether an instance overrides it
	 */
	ENGINE_API virtual bool GetTextureParameterValue(
		const FHashedMaterialParameterInfo& ParameterInfo, UTexture*& OutValue, bool bOveriddenOnly = false) const;
	ENGINE_API virtual bool GetScalarParameterValue(
		const FHashedMaterialParameterInfo& ParameterInfo, float& OutValue, bool bOveriddenOnly = false) const;
	ENGINE_API virtual bool GetVectorParameterValue(
		const FHashedMaterialParameterInfo& ParameterInfo, FLinearColor& OutValue, bool bOveriddenOnly = false) const;

	/** As above; `OutExpressionGuid` is the switch's node in the base material. */
	ENGINE_API virtual bool GetStaticSwitchParameterValue(const FHashedMaterialParameterInfo& ParameterInfo,
		bool& OutValue, FGuid& OutExpressionGuid, bool bOveriddenOnly = false) const;

	/**
	 * Collects the textures that the parameters have in effect, each once, nulls left out. The array is emptied first.
	 * Every level of quality and every feature level uses the same textures.
	 */
	ENGINE_API virtual void GetUsedTextures(TArray<UTexture*>& OutTextures, EMaterialQualityLevel::Type QualityLevel,
		bool bAllQualityLevels, ERHIFeatureLevel::Type FeatureLevel, bool bAllFeatureLevels) const;

	/** Components that use the material, or an instance that leads to it, are drawn anew. */
	ENGINE_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
};
