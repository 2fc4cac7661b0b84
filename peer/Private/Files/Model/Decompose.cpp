// SPDX-License-Identifier: MIT
#include "Files/Model/Decompose.h"

#include <cmath>

namespace Zef::Peer
{

namespace
{

/** Rotation of an orthonormal right-handed frame; after Shepperd, "Quaternion from Rotation Matrix" (1978). */
FVec4 QuaternionOf(const FVec3& X, const FVec3& Y, const FVec3& Z)
{
	const float Trace = X.X + Y.Y + Z.Z;
	if (Trace > 0)
	{
		const float S = std::sqrt(Trace + 1) * 2;
		return {(Y.Z - Z.Y) / S, (Z.X - X.Z) / S, (X.Y - Y.X) / S, S / 4};
	}
	if (X.X > Y.Y && X.X > Z.Z)
	{
		const float S = std::sqrt(1 + X.X - Y.Y - Z.Z) * 2;
		return {S / 4, (Y.X + X.Y) / S, (Z.X + X.Z) / S, (Y.Z - Z.Y) / S};
	}
	if (Y.Y > Z.Z)
	{
		const float S = std::sqrt(1 + Y.Y - X.X - Z.Z) * 2;
		return {(Y.X + X.Y) / S, S / 4, (Z.Y + Y.Z) / S, (Z.X - X.Z) / S};
	}
	const float S = std::sqrt(1 + Z.Z - X.X - Y.Y) * 2;
	return {(Z.X + X.Z) / S, (Z.Y + Y.Z) / S, S / 4, (X.Y - Y.X) / S};
}

} // namespace

FTransform Decompose(const FMatrix34& M)
{
	FTransform Made;
	Made.Translation = M.Shift;
	Made.Scale = {Length(M.ColumnX), Length(M.ColumnY), Length(M.ColumnZ)};
	const FVec3 X = Normalized(M.ColumnX, {1, 0, 0});
	const FVec3 Y = SquareTo(X, Normalized(M.ColumnY, {0, 1, 0}));
	FVec3 Z = Cross(X, Y);
	if (Determinant(M) < 0)
	{
		// The frame of -X, Y and Z is right-handed again.
		Made.Scale.X = -Made.Scale.X;
		Made.Rotation = UnitOrIdentity(QuaternionOf(-X, Y, Cross(-X, Y)));
		return Made;
	}
	Made.Rotation = UnitOrIdentity(QuaternionOf(X, Y, Z));
	return Made;
}

bool HasShear(const FMatrix34& M)
{
	constexpr float Most = 1e-3f; // cosine; twenty times what the rounding of a file's matrices gives
	const FVec3 X = Normalized(M.ColumnX), Y = Normalized(M.ColumnY), Z = Normalized(M.ColumnZ);
	return std::fabs(Dot(X, Y)) > Most || std::fabs(Dot(Y, Z)) > Most || std::fabs(Dot(X, Z)) > Most ||
		   std::fabs(Determinant(M)) < 1e-18f;
}

} // namespace Zef::Peer
