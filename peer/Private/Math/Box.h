// SPDX-License-Identifier: MIT
/** Axis-aligned box. */
#pragma once

#include <algorithm>

#include "Math/Vector.h"

namespace Zef
{

struct FBox
{
	FVec3 Min{1e30f, 1e30f, 1e30f};
	FVec3 Max{-1e30f, -1e30f, -1e30f};

	void Add(const FVec3& P)
	{
		Min = {std::min(Min.X, P.X), std::min(Min.Y, P.Y), std::min(Min.Z, P.Z)};
		Max = {std::max(Max.X, P.X), std::max(Max.Y, P.Y), std::max(Max.Z, P.Z)};
	}
	void Add(const FBox& B)
	{
		Add(B.Min);
		Add(B.Max);
	}
	FBox Grown(float By) const { return {Min - FVec3{By, By, By}, Max + FVec3{By, By, By}}; }
	FVec3 Center() const { return (Min + Max) * 0.5f; }
	bool Contains(const FVec3& P) const
	{
		return P.X >= Min.X && P.Y >= Min.Y && P.Z >= Min.Z && P.X <= Max.X && P.Y <= Max.Y && P.Z <= Max.Z;
	}

	/** 0 inside. */
	float DistanceTo(const FVec3& P) const
	{
		const float X = std::max({Min.X - P.X, P.X - Max.X, 0.0f});
		const float Y = std::max({Min.Y - P.Y, P.Y - Max.Y, 0.0f});
		const float Z = std::max({Min.Z - P.Z, P.Z - Max.Z, 0.0f});
		return std::sqrt(X * X + Y * Y + Z * Z);
	}
};

} // namespace Zef
