// SPDX-License-Identifier: MIT
/** Simple solids to build with. */
#pragma once

#include <functional>

#include "Implicit/Field.h"
#include "Math/Rotation.h"

namespace Zef::Peer
{

/** Two balls and the cone that touches both. */
FFieldPtr RoundCone(const FVec3& A, const FVec3& B, float RadiusA, float RadiusB);

/** Ball of three radii, turned about its centre. */
FFieldPtr Ellipsoid(const FVec3& Center, const FVec3& Radii, const FVec4& Turn = {0, 0, 0, 1});

/** Box with rounded edges; HalfSize includes the rounding. */
FFieldPtr RoundBox(const FVec3& Center, const FVec3& HalfSize, float Rounding, const FVec4& Turn = {0, 0, 0, 1});

/** Ring about the local z axis. */
FFieldPtr Torus(const FVec3& Center, float RingRadius, float TubeRadius, const FVec4& Turn = {0, 0, 0, 1});

/** All that lies behind the plane through Point; the unit normal points out. Holds everything, so it is for Keep. */
FFieldPtr HalfSpace(const FVec3& Point, const FVec3& Normal);

/** The solid with its surface raised by Height (lowered where negative), at most by Highest, all in cm. */
FFieldPtr Raised(FFieldPtr Solid, std::function<float(const FVec3&)> Height, float Highest);

/** Any function, with the box that holds its inside. */
FFieldPtr Function(std::function<float(const FVec3&)> Value, const FBox& Box);

} // namespace Zef::Peer
