// SPDX-License-Identifier: MIT
// The look of a master material beyond its parameters: what a renderer adds to base colour, roughness and maps.
#pragma once

#include "CoreMinimal.h"
#include "Math/Color.h"

namespace Host
{
/** The repeating small structure that a renderer draws on a surface, in texture coordinates. */
enum class EMaterialPattern : uint8
{
	None,
	/** Rows of interlocked stitches. */
	Knit,
	/** Irregular small bumps, as of leather or skin. */
	Grain,
	/** Thin strands that lean over each other. */
	Fibres
};

/** A diffuse-like glow at grazing angles: the stray fibres of cloth. */
struct FMaterialSheen
{
	/** Linear colour of the glow; black for none. Multiplied with the base colour when `bTinted`. */
	FLinearColor Color = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);

	/** 0..1; small values make a narrow rim, large ones a broad glow. */
	float Roughness = 0.5f;

	/** Whether the base colour tints the glow. */
	bool bTinted = true;
};

/** A smooth transparent layer over the surface. */
struct FMaterialClearcoat
{
	/** 0 (none)..1. */
	float Amount = 0.0f;

	/** 0..1. */
	float Roughness = 0.1f;
};

/** Highlights that are longer along one direction of the surface, as on satin or brushed metal. */
struct FMaterialAnisotropy
{
	/** -1..1: above 0 the highlight stretches along the tangent, below along the bitangent; 0 is round. */
	float Amount = 0.0f;

	/** Turn of that direction in the tangent plane, in whole turns. */
	float Angle = 0.0f;
};

/** Interference colours of a thin film that change with the angle of view. */
struct FMaterialIridescence
{
	/** 0 (none)..1. */
	float Amount = 0.0f;

	/** Thickness of the film at normal incidence, in nanometres. */
	float Thickness = 400.0f;

	/** Index of refraction of the film. */
	float IndexOfRefraction = 1.33f;
};

/** Light that enters the surface and leaves it somewhere else. */
struct FMaterialSubsurface
{
	/** 0 (none)..1: the share of diffuse light that goes through. */
	float Amount = 0.0f;

	/** Linear colour that the light takes on inside. */
	FLinearColor Color = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
};

/** Light that the surface gives off by itself. */
struct FMaterialEmission
{
	/** Factor on the base colour; 0 for none, 1 shows the base colour unlit. */
	float Amount = 0.0f;
};

/** Light that passes through the body, as through glass. */
struct FMaterialTransmission
{
	/** 0 (none)..1: the share of light that passes at normal incidence. */
	float Amount = 0.0f;

	float IndexOfRefraction = 1.5f;
};

/** Small mirror flakes in random directions. */
struct FMaterialGlitter
{
	/** 0 (none)..1: the share of cells that hold a flake. */
	float Density = 0.0f;

	/** Cells a unit of texture coordinate, in each direction. */
	float Scale = 400.0f;

	/** Factor on the light that a flake mirrors. */
	float Intensity = 1.0f;

	/** How far a flake may lean away from the surface, 0..1 (1 is 45 degrees). */
	float Spread = 0.5f;
};

/** The surface's own small relief. */
struct FMaterialRelief
{
	EMaterialPattern Pattern = EMaterialPattern::None;

	/** Repetitions a unit of texture coordinate, in each direction. */
	float Scale = 100.0f;

	/** 0 (flat)..1: how far the pattern tilts the normal and darkens its grooves. */
	float Depth = 0.0f;
};

/** All of a master's look; a default one adds nothing. */
struct FMaterialLook
{
	FMaterialSheen Sheen;
	FMaterialClearcoat Clearcoat;
	FMaterialAnisotropy Anisotropy;
	FMaterialIridescence Iridescence;
	FMaterialSubsurface Subsurface;
	FMaterialEmission Emission;
	FMaterialTransmission Transmission;
	FMaterialGlitter Glitter;
	FMaterialRelief Relief;
};
} // namespace Host
