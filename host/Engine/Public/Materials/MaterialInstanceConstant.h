// SPDX-License-Identifier: MIT
// A material instance that is made in the editor and stays as it is at run time.
#pragma once

#include "CoreMinimal.h"
#include "Materials/MaterialInstance.h"
#include "UObject/ObjectMacros.h"
#include "MaterialInstanceConstant.generated.h"

/**
 * A material instance that is made in the editor. Each setter adds the override or replaces the one of an equal
 * parameter; PostEditChange must follow for whatever depends on the instance to see the change.
 */
UCLASS()
class UMaterialInstanceConstant : public UMaterialInstance
{
	GENERATED_BODY()

public:
	/**
	 * Replaces the parent; null takes it away. A parent whose own parents lead back here is refused with a warning in
	 * the log, and the parent stays as it was.
	 *
	 * @param RecacheShader  whether blend mode, sides and static switches are resolved at once
	 */
	ENGINE_API void SetParentEditorOnly(UMaterialInterface* NewParent, bool RecacheShader = true);

	ENGINE_API void SetVectorParameterValueEditorOnly(const FMaterialParameterInfo& ParameterInfo, FLinearColor Value);
	ENGINE_API void SetScalarParameterValueEditorOnly(const FMaterialParameterInfo& ParameterInfo, float Value);

	/** A null texture is stored as null. */
	ENGINE_API void SetTextureParameterValueEditorOnly(const FMaterialParameterInfo& ParameterInfo, UTexture* Value);

	/** Drops the scalar, vector, texture and static switch overrides. */
	ENGINE_API void ClearParameterValuesEditorOnly();
};
