// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Floats.h"

#include <string_view>

namespace Host
{

/**
 * How a kind of surface answers light beyond base colour, roughness, metallic and specular. Strengths are 0..1 and 0 is
 * without the effect, unless stated.
 */
struct FMaterialLook
{
	/** Light scattered by upright fibres, seen at the rim: the look of cloth. */
	float Sheen = 0.0f;
	float SheenRoughness = 0.5f;
	/** 0 white sheen, 1 sheen in the base colour. */
	float SheenTint = 0.5f;
	/** A smooth colourless layer on top. */
	float Clearcoat = 0.0f;
	float ClearcoatRoughness = 0.1f;
	/** Highlights stretched across the tangent, -1..1. */
	float Anisotropy = 0.0f;
	/** Colours of a thin film that change with the angle of view. */
	float Iridescence = 0.0f;
	/** Light that goes into the body and comes out coloured: softens the terminator. */
	float Subsurface = 0.0f;
	FFloat3 SubsurfaceColor{1.0f, 0.35f, 0.2f};
	/** Share of the light from behind that shines through thin cloth. */
	float Translucency = 0.0f;
	/** Own light in the base colour, 0 or more. */
	float Emissive = 0.0f;
	/** Small mirrors that flash at random angles. */
	float Glitter = 0.0f;
	/** Strands that shade and colour the surface. */
	float Fur = 0.0f;
	/** Rows of knitted stitches. */
	float Knit = 0.0f;
	/** Grain of tanned skin. */
	float Grain = 0.0f;
	/** Light bent through a clear body. */
	float Transmission = 0.0f;
	/** Flattens the diffuse light as a rough, chalky surface does. */
	float DiffuseRoughness = 0.0f;
	/** Factor on the dielectric highlight. */
	float SpecularScale = 1.0f;
	/** Metallic share that the surface has at metallic 0; 1 stays 1. */
	float MetallicFloor = 0.0f;
};

/**
 * The look of a master material.
 *
 * @param Label  the master's label: "Matte", "Shiny", "Metal", "Plastic", "Leather", "Silk", "Velvet", "GlassGem",
 * "Fur", "Light", "Glitter", "Skin", "Iridescence" or "KnitWear"
 * @return the look of that label; the plain look (all effects off) for "Default" and any other text
 */
FMaterialLook LookOf(std::string_view Label);

} // namespace Host
