// SPDX-License-Identifier: MIT
// A material or instance as the plain values that a renderer shades with.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Host/MaterialLook.h"

class UMaterialInterface;
class UTexture2D;

namespace Host
{
/** The channels of a master that take a map. */
enum class EMaterialChannel : uint8
{
	BaseColor,
	Normal,
	Roughness,
	Metallic,
	Specular,
	Opacity
};
inline constexpr int32 NumMaterialChannels = 6;

/** The prefix of a channel's parameters, for instance "BaseColor" in "BaseColor_Texture". */
const TCHAR* GetChannelPrefix(EMaterialChannel Channel);

/** The map of one channel and where it lies on the surface. */
struct FEvaluatedMap
{
	/** Not owned; null where the map is switched on with no texture: the channel then shows its plain value. */
	UTexture2D* Texture = nullptr;

	/** The channel's "HasMap" switch; without it everything below is unused. */
	bool bHasMap = false;

	/** Rotation in whole turns. */
	float Angle = 0.0f;
	float UAmount = 1.0f;
	float VAmount = 1.0f;
	float UOffset = 0.0f;
	float VOffset = 0.0f;

	/** Factor on the texel; on a normal map, factor on the tilt: 0 is flat. 1 for opacity. */
	float Intensity = 1.0f;

	/** Whether a texel is read: the switch is on and there is a texture. */
	bool IsUsed() const { return bHasMap && Texture; }

	/**
	 * The coordinate at which the map is read for a surface coordinate: scaled by the amounts, rotated about the
	 * origin by the angle (u towards v), then moved by the offsets.
	 */
	FVector2f Place(const FVector2f& UV) const;
};

/**
 * Everything that decides the look of a surface. A used map replaces or multiplies its plain value:
 *   base colour   BaseColor x texel (sRGB decoded) x Intensity
 *   normal        tangent-space texel with x and y x Intensity
 *   roughness, metallic, specular   red texel x Intensity, the plain value unused
 *   opacity       Opacity x (alpha texel when `bOpacityAlphaMode`, else red texel)
 * Linear colours; roughness, metallic, specular and opacity are 0..1 in the masters and passed on as they stand.
 */
struct FEvaluatedMaterial
{
	FLinearColor BaseColor = FLinearColor(0.5f, 0.5f, 0.5f, 1.0f);
	float Roughness = 0.5f;
	float Metallic = 0.0f;

	/** 0.5 is a reflectance of 4 percent at normal incidence. */
	float Specular = 0.5f;
	float Opacity = 1.0f;

	/** Indexed by EMaterialChannel. */
	FEvaluatedMap Maps[NumMaterialChannels];

	/** Whether the opacity map is read from its alpha channel. */
	bool bOpacityAlphaMode = false;

	/** A masked surface is absent where its opacity is less than this. */
	float OpacityMaskClipValue = 0.3333f;
	EBlendMode BlendMode = BLEND_Opaque;
	bool bTwoSided = false;
	FMaterialLook Look;

	/** Object name of the base material, for instance "M_ZEF_Silk". */
	FName Master;

	const FEvaluatedMap& GetMap(EMaterialChannel Channel) const { return Maps[int32(Channel)]; }
};

/**
 * Follows the parents of `Material` to its base material and answers the values in effect: an override of the
 * nearest instance, else the declared default, else the default of the structure. Static switches and the overrides
 * of blend mode and sides count as of the last `PostEditChange` of the instance that holds them. Null gives the
 * engine's default surface material.
 */
FEvaluatedMaterial EvaluateMaterial(const UMaterialInterface* Material);
} // namespace Host
