// SPDX-License-Identifier: MIT
/** A model file as its reader found it: the file's own axes and units, nothing computed yet. */
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "Math/Matrix.h"

namespace Zef::Peer
{

struct FModelNode
{
	std::string Name;
	int Parent = -1; // anywhere in the list
	FTransform Local;
};

struct FModelSkin
{
	std::vector<int> Joints;			// nodes
	std::vector<FMatrix34> InverseBind; // [Joints.size()], from the mesh's space to the joint's
};

/** Weight of one joint of the piece's skin on one vertex. */
struct FModelWeight
{
	int Joint = 0; // in FModelSkin::Joints
	float Weight = 0;
};

struct FModelMorph
{
	std::vector<FVec3> Positions, Normals; // differences; each [Positions.size()] of the pool or empty
};

struct FModelSection
{
	int Material = -1;
	std::vector<std::uint32_t> Indices; // three per triangle; fronts counter-clockwise
};

/** One vertex pool at a node. */
struct FModelPiece
{
	std::string Name;
	int Node = -1;
	int Skin = -1;
	std::vector<FVec3> Positions;
	std::vector<FVec3> Normals, Tangents;			// [Positions.size()] or empty
	std::vector<FVec2> UVs;							// [Positions.size()] or empty; V runs down
	std::vector<std::vector<FModelWeight>> Weights; // [Positions.size()] or empty
	std::vector<FModelMorph> Morphs;
	std::vector<float> MorphWeights; // at rest; [Morphs.size()] or empty
	std::vector<FModelSection> Sections;
};

enum class EModelCurve
{
	Step,
	Linear,
	Cubic // keys hold in-tangent, value, out-tangent
};

/** Keys of one property of a node. */
struct FModelTrack
{
	EModelCurve Curve = EModelCurve::Linear;
	std::vector<double> Times; // seconds, ascending
	std::vector<float> Values; // [Times.size() * width], times three when cubic
};

struct FModelNodeTracks
{
	int Node = -1;
	FModelTrack Translation, Rotation, Scale, Morph;
};

struct FModelClip
{
	std::string Name;
	double Start = 0, End = 0; // seconds
	std::vector<FModelNodeTracks> Nodes;
};

/** A map of a material: which image, which of its channels (-1: all), where it lies. */
struct FModelMap
{
	int Image = -1;
	int Channel = -1;
	FTransform UVTransform;
};

enum class EModelAlpha
{
	Opaque,
	Mask,
	Blend
};

struct FModelMaterial
{
	std::string Name;
	FVec4 Color{1, 1, 1, 1}; // linear
	float NormalScale = 1, Roughness = 1, Metallic = 0;
	EModelAlpha Alpha = EModelAlpha::Opaque;
	FModelMap ColorMap, NormalMap, RoughnessMap, MetallicMap;
	/** Of its own; without one, opacity comes from the alpha of the colour map. */
	FModelMap OpacityMap;
};

struct FModel
{
	std::vector<FModelNode> Nodes;
	std::vector<FModelSkin> Skins;
	std::vector<FModelPiece> Pieces;
	std::vector<FModelClip> Clips;
	std::vector<FModelMaterial> Materials;
	std::vector<FTexture> Images; // Format -1: could not be read

	/** Where the file's axes go, without scale: a reflection for a right-handed file. */
	FMatrix34 Axes;
	/** Centimetres per unit; 0 when the file does not say. */
	float UnitCentimetres = 0;

	std::vector<std::string> Warnings;
};

/** Axes of a right-handed file with Y up that looks along Z: X to -Y, Y to Z, Z to X. */
inline FMatrix34 AxesYUp()
{
	return {{0, -1, 0}, {0, 0, 1}, {1, 0, 0}, {}};
}

} // namespace Zef::Peer
