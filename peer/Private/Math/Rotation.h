// SPDX-License-Identifier: MIT
/** Quaternions and rigid transforms over the records' types. */
#pragma once

#include "Math/Vector.h"

namespace Zef
{

/** Turn by an angle in degrees about a unit axis. */
inline FVec4 AxisAngle(const FVec3& Axis, float Degrees)
{
	const float Half = Degrees * DegreesToRadians * 0.5f;
	const float S = std::sin(Half);
	return {Axis.X * S, Axis.Y * S, Axis.Z * S, std::cos(Half)};
}

/** B first, then A. */
inline FVec4 Multiply(const FVec4& A, const FVec4& B)
{
	return {A.W * B.X + A.X * B.W + A.Y * B.Z - A.Z * B.Y, A.W * B.Y - A.X * B.Z + A.Y * B.W + A.Z * B.X,
		A.W * B.Z + A.X * B.Y - A.Y * B.X + A.Z * B.W, A.W * B.W - A.X * B.X - A.Y * B.Y - A.Z * B.Z};
}

inline FVec4 Conjugate(const FVec4& Q)
{
	return {-Q.X, -Q.Y, -Q.Z, Q.W};
}

inline FVec3 Rotate(const FVec4& Q, const FVec3& V)
{
	const FVec3 U{Q.X, Q.Y, Q.Z};
	const FVec3 T = 2.0f * Cross(U, V);
	return V + T * Q.W + Cross(U, T);
}

/** Unit quaternion of the same direction. */
inline FVec4 Normalized(const FVec4& Q)
{
	const float L = std::sqrt(Q.X * Q.X + Q.Y * Q.Y + Q.Z * Q.Z + Q.W * Q.W);
	return {Q.X / L, Q.Y / L, Q.Z / L, Q.W / L};
}

/** Turns first about x, then y, then z, all in degrees about the fixed axes. */
inline FVec4 TurnXYZ(const FVec3& Degrees)
{
	return Multiply(
		AxisAngle({0, 0, 1}, Degrees.Z), Multiply(AxisAngle({0, 1, 0}, Degrees.Y), AxisAngle({1, 0, 0}, Degrees.X)));
}

/** Rotation, then translation. */
struct FRigid
{
	FVec4 Rotation{0, 0, 0, 1};
	FVec3 Translation;

	FVec3 Apply(const FVec3& P) const { return Rotate(Rotation, P) + Translation; }
	FVec3 ApplyInverse(const FVec3& P) const { return Rotate(Conjugate(Rotation), P - Translation); }
};

/** B first, then A. */
inline FRigid operator*(const FRigid& A, const FRigid& B)
{
	return {Multiply(A.Rotation, B.Rotation), A.Apply(B.Translation)};
}

inline FRigid Inverse(const FRigid& A)
{
	const FVec4 Q = Conjugate(A.Rotation);
	return {Q, -Rotate(Q, A.Translation)};
}

} // namespace Zef
