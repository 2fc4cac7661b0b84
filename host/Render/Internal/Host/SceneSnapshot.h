// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Floats.h"
#include "Host/SurfaceLook.h"

#include <cstdint>
#include <memory>
#include <vector>

/**
 * A scene as plain values: what the renderer draws, with no engine type in it.
 *
 * Axes and units are the engine's: centimetres, Z up, X forward, Y right, left-handed. Texture rows run down: the first
 * row of pixels is V = 0. Meshes, materials and textures are shared and immutable, so that a renderer can recognise by
 * address what it has uploaded already.
 */
namespace Host
{

enum class ETextureLayout : uint8_t
{
	Bgra8,	// four bytes a pixel, blue first
	Rgba16, // four unsigned 16-bit numbers a pixel, red first, in the machine's byte order
};

struct FTextureSnapshot
{
	int32_t Width = 0;
	int32_t Height = 0;
	ETextureLayout Layout = ETextureLayout::Bgra8;
	/** Whether the colours are stored with the sRGB curve. Counts for the base colour; data channels are read as
	 * stored. */
	bool bSRGB = true;
	/** [Width * Height] pixels, rows from the top, no padding. May be a view that shares the owner of the memory. */
	std::shared_ptr<const uint8_t> Pixels;
};

/**
 * The map of one channel and its placement: uv' = rotate(uv * (UAmount, VAmount), AngleTurns) + (UOffset, VOffset),
 * where a positive angle turns U towards V. Maps repeat.
 */
struct FChannelMap
{
	/** Null: the channel has only its plain value. */
	std::shared_ptr<const FTextureSnapshot> Texture;
	float AngleTurns = 0.0f; // 1.0 is one turn
	float UAmount = 1.0f, VAmount = 1.0f;
	float UOffset = 0.0f, VOffset = 0.0f;
	/**
	 * Factor on the texel, which multiplies the plain base colour and stands in for the plain roughness, metallic or
	 * specular. Of a normal map, factor on the slope: 0 is flat. Not read for opacity, whose texel multiplies.
	 */
	float Intensity = 1.0f;
};

enum class ESurfaceChannel : uint8_t
{
	BaseColor,
	Normal,
	Roughness,
	Metallic,
	Specular,
	Opacity,
	Count
};

enum class EBlend : uint8_t
{
	Opaque,
	Masked,
	Translucent
};

/** One surface material, all values in 0..1 unless stated. */
struct FMaterialSnapshot
{
	FFloat4 BaseColor{1.0f, 1.0f, 1.0f, 1.0f}; // linear
	float Roughness = 0.5f;
	float Metallic = 0.0f;
	float Specular = 0.5f; // 0.5 reflects 4 % head on
	float Opacity = 1.0f;  // no effect on an opaque material
	/** The opacity map gives its alpha instead of its luminance. */
	bool bOpacityFromAlpha = false;
	EBlend Blend = EBlend::Opaque;
	/** A masked material is cut out where its opacity is below this. */
	float ClipValue = 0.3333f;
	/** False: the side that the normals turn away from is not drawn. */
	bool bTwoSided = true;
	FChannelMap Maps[size_t(ESurfaceChannel::Count)];
	FSurfaceLook Look;

	FChannelMap& Map(ESurfaceChannel Channel) { return Maps[size_t(Channel)]; }
	const FChannelMap& Map(ESurfaceChannel Channel) const { return Maps[size_t(Channel)]; }
};

/** The triangles of one material slot. */
struct FMeshSection
{
	/** Index into FObjectSnapshot::Materials; one outside it draws the default material. */
	int32_t MaterialIndex = 0;
	std::vector<uint32_t> Indices; // three a triangle, into the mesh's vertices
};

struct FMeshSnapshot
{
	std::vector<FFloat3> Positions; // centimetres, in the object's own space
	std::vector<FFloat3> Normals;	// [Positions.size()], or empty: flat faces
	/** [Positions.size()], or empty: taken from the texture coordinates. W is the sign of the bitangent W * (N x T). */
	std::vector<FFloat4> Tangents;
	std::vector<FFloat2> UVs; // [Positions.size()], or empty: all zero
	std::vector<FMeshSection> Sections;
};

/** Where an object stands: its axes, scale included, and its origin, in the scene's space. */
struct FPlacement
{
	FFloat3 AxisX{1.0f, 0.0f, 0.0f};
	FFloat3 AxisY{0.0f, 1.0f, 0.0f};
	FFloat3 AxisZ{0.0f, 0.0f, 1.0f};
	FFloat3 Origin;
};

struct FObjectSnapshot
{
	std::shared_ptr<const FMeshSnapshot> Mesh;
	FPlacement Placement;
	std::vector<std::shared_ptr<const FMaterialSnapshot>> Materials; // by slot; null draws the default material
	bool bSelected = false;											 // has a line around it
};

/** A large soft light far away. The first one of a scene casts the shadow. */
struct FLightSnapshot
{
	FFloat3 Towards{0.0f, 0.0f, 1.0f}; // unit vector from the scene to the light
	FFloat3 Color{1.0f, 1.0f, 1.0f};   // linear, may exceed 1
	float Size = 0.35f;				   // half the width of the lamp, as a tangent
};

/** What surrounds the scene: light from all sides, the backdrop and the floor. Colours are linear. */
struct FSurroundings
{
	FFloat3 Sky{0.36f, 0.38f, 0.42f};
	FFloat3 Ground{0.17f, 0.16f, 0.15f};
	FFloat3 BackdropTop{0.30f, 0.33f, 0.38f};
	FFloat3 BackdropBottom{0.70f, 0.71f, 0.73f};
	bool bFloor = true;
	FFloat3 FloorPoint; // a point of the level floor, under the middle of the scene
	float FloorRadius = 400.0f;
	FFloat3 FloorColor{0.62f, 0.61f, 0.60f};
	/** Lines on the floor, along the axes: every eighth is stronger, and those through the origin are the strongest. */
	bool bGrid = false;
	float GridSpacing = 50.0f;
	float GridHalfSize = 2048.0f; // from the origin
};

/** A perspective view. The axes are unit vectors at right angles, left-handed like the scene. */
struct FCameraSnapshot
{
	FFloat3 Location;
	FFloat3 Forward{1.0f, 0.0f, 0.0f};
	FFloat3 Right{0.0f, 1.0f, 0.0f};
	FFloat3 Up{0.0f, 0.0f, 1.0f};
	float HorizontalFov = 45.0f; // degrees
};

struct FSceneSnapshot
{
	std::vector<FObjectSnapshot> Objects;
	std::vector<FLightSnapshot> Lights; // the first four count
	FSurroundings Surroundings;
	FCameraSnapshot Camera;
	float Exposure = 1.0f; // factor on all light before the tone curve
	/** Of the line around what is selected, as it is shown. */
	FFloat3 OutlineColor{1.0f, 0.62f, 0.0f};
};

} // namespace Host
