// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Floats.h"

#include <cstdint>

namespace Host
{

/** Small structure that a surface has of itself, finer than its maps. */
enum class ESurfacePattern : uint8_t
{
	None,
	Knit,	// rows of interlocked stitches
	Grain,	// plates between creases, as of leather
	Fibres, // strands that lean over each other, as of fur
};

/**
 * How a surface answers light beyond base colour, roughness, metallic and specular. Strengths are 0..1, colours linear;
 * a default look adds nothing.
 */
struct FSurfaceLook
{
	/** Light scattered by upright fibres, seen at the rim: the look of cloth. Black for none. */
	FFloat3 SheenColor;
	float SheenRoughness = 0.5f; // small for a narrow rim
	bool bSheenTinted = true;	 // the sheen is multiplied with the base colour

	/** A smooth colourless layer on top. */
	float Clearcoat = 0.0f;
	float ClearcoatRoughness = 0.1f;

	/** -1..1: above 0 highlights are long along the tangent, below 0 along the bitangent. */
	float Anisotropy = 0.0f;
	float AnisotropyAngle = 0.0f; // turns that direction in the surface; 1 is a whole turn

	/** Interference colours of a thin film. */
	float Iridescence = 0.0f;
	float FilmThickness = 400.0f; // nanometres
	float FilmIndex = 1.33f;	  // of refraction

	/** Share of the diffuse light that goes into the body and comes out elsewhere, in the colour that it takes on. */
	float Subsurface = 0.0f;
	FFloat3 SubsurfaceColor{1.0f, 1.0f, 1.0f};

	/** Own light: factor on the base colour, 0 or more. */
	float Emission = 0.0f;

	/** Share of light that goes through a clear body. */
	float Transmission = 0.0f;
	float TransmissionIndex = 1.5f;

	/** Mirror flakes: the share of cells that hold one, cells a unit of texture coordinate, brightness and lean. */
	float GlitterDensity = 0.0f;
	float GlitterScale = 400.0f;
	float GlitterIntensity = 1.0f;
	float GlitterSpread = 0.5f;

	/**
	 * Repetitions a unit of texture coordinate. Where that would make stitches, creases, strands or flakes much smaller
	 * or larger on the surface than such things are, they are drawn in the nearest size that they have: texture
	 * coordinates come in many units.
	 */
	ESurfacePattern Pattern = ESurfacePattern::None;
	float PatternScale = 100.0f;
	float PatternDepth = 0.0f;
};

} // namespace Host
