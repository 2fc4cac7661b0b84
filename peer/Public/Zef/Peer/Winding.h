// SPDX-License-Identifier: MIT
/** Which side of a triangle is its front, stated once for everything that makes or reads meshes here. */
#pragma once

#include "Zef/Records.h"

namespace Zef::Peer
{

/**
 * Direction out of the front of triangle A, B, C, not normalised; its length is twice the area.
 *
 * The engine is left-handed and its front is (C - A) x (B - A), the cross product taken by components. Seen as a
 * picture, A, B, C run counter-clockwise around a front. A right-handed file with counter-clockwise fronts keeps its
 * index order when its axes are brought to the engine's by a reflection (an exchange of two axes, say).
 */
inline FVec3 FrontDirection(const FVec3& A, const FVec3& B, const FVec3& C)
{
	const FVec3 U{C.X - A.X, C.Y - A.Y, C.Z - A.Z};
	const FVec3 V{B.X - A.X, B.Y - A.Y, B.Z - A.Z};
	return {U.Y * V.Z - U.Z * V.Y, U.Z * V.X - U.X * V.Z, U.X * V.Y - U.Y * V.X};
}

} // namespace Zef::Peer
