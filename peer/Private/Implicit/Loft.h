// SPDX-License-Identifier: MIT
/** A solid given by its outline in a row of parallel slices, as limbs and trunks are. */
#pragma once

#include <vector>

#include "Implicit/Field.h"

namespace Zef::Peer
{

/** One slice: a centre, and from there four half-widths; the outline is a superellipse in each quadrant. */
struct FSlice
{
	float Height;			// along the loft's axis
	float CenterA, CenterB; // across it
	float PlusA, MinusA;	// half-widths along A
	float PlusB, MinusB;	// half-widths along B
	float Exponent = 2;		// 2: ellipse; more: squarer
};

/** Where a loft stands: Height, A and B of its slices count along these unit vectors, square to each other. */
struct FLoftFrame
{
	FVec3 Origin;
	FVec3 AxisA{1, 0, 0};
	FVec3 AxisB{0, 1, 0};
	FVec3 AxisHeight{0, 0, 1};

	FVec3 ToWorld(float A, float B, float Height) const { return Origin + AxisA * A + AxisB * B + AxisHeight * Height; }
};

/** Slices in ascending height, at least two; between them everything follows cubic curves. */
FFieldPtr Loft(const FLoftFrame& Frame, std::vector<FSlice> Slices);

} // namespace Zef::Peer
