// SPDX-License-Identifier: MIT
// Render settings that a material instance may take from itself instead of from its parent.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "UObject/ObjectMacros.h"
#include "MaterialInstanceBasePropertyOverrides.generated.h"

/** Render settings of a material instance. A value counts only with its flag, and from PostEditChange on. */
USTRUCT()
struct FMaterialInstanceBasePropertyOverrides
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Material)
	uint8 bOverride_OpacityMaskClipValue : 1 = 0;

	UPROPERTY(EditAnywhere, Category = Material)
	uint8 bOverride_BlendMode : 1 = 0;

	UPROPERTY(EditAnywhere, Category = Material)
	uint8 bOverride_TwoSided : 1 = 0;

	/** Whether both sides of a surface are drawn and lit. */
	UPROPERTY(EditAnywhere, Category = Material)
	uint8 TwoSided : 1 = 0;

	/** How the surface meets what lies behind it. */
	UPROPERTY(EditAnywhere, Category = Material)
	TEnumAsByte<EBlendMode> BlendMode = BLEND_Opaque;

	/** A masked surface is absent where its opacity is less than this. */
	UPROPERTY(EditAnywhere, Category = Material)
	float OpacityMaskClipValue = 0.3333f;
};
