// SPDX-License-Identifier: MIT
/** Texture coordinates for the skin: head, trunk, arms and legs rolled off like labels of bottles. */
#pragma once

#include "Sample/Avatar/Figure.h"

namespace Zef::Peer
{

/** Where a part lies in the picture; parts that are two sides of the body come once for each. */
enum class ESkinChart
{
	Head,
	Trunk,
	ArmRight,
	ArmLeft,
	LegRight,
	LegLeft
};

/** The skin cut along the seams between parts, its vertices doubled there, with texture coordinates. */
struct FUnwrappedSkin
{
	FTriangleMesh Mesh;
	FSkinWeights Weights;
};
FUnwrappedSkin UnwrapSkin(const FFigure& Figure);

/** What a place in the picture shows of the head, for painting it. */
struct FHeadPlace
{
	bool bHead = false;
	float Degrees = 0; // around, 0 in front, growing to her right
	float Height = 0;  // cm
};
FHeadPlace HeadPlaceAt(float U, float V);

} // namespace Zef::Peer
