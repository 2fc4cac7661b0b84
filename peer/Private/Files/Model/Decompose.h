// SPDX-License-Identifier: MIT
/** Between matrices and transforms, and transforms between axes. */
#pragma once

#include "Math/Matrix.h"

namespace Zef::Peer
{

/** The unit quaternion of the same direction; the identity where there is none. */
inline FVec4 UnitOrIdentity(const FVec4& Q)
{
	const float Square = Q.X * Q.X + Q.Y * Q.Y + Q.Z * Q.Z + Q.W * Q.W;
	return Square > 1e-12f && Square < 1e12f ? Normalized(Q) : FVec4{0, 0, 0, 1};
}

/** Rotation, translation and scale of a matrix. Shear is lost; a reflection becomes a negative scale along x. */
FTransform Decompose(const FMatrix34& M);

/** The matrix's determinant of its three columns. */
inline float Determinant(const FMatrix34& M)
{
	return Dot(M.ColumnX, Cross(M.ColumnY, M.ColumnZ));
}

/** True when Decompose loses more than rounding. */
bool HasShear(const FMatrix34& M);

} // namespace Zef::Peer
