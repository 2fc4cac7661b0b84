// SPDX-License-Identifier: MIT
/** Turns, shifts and scales as a matrix, which, other than quaternions, may be added up. */
#pragma once

#include "Math/Rotation.h"

namespace Zef
{

/** Three columns and a shift. Zero by default, as the start of a weighted sum. */
struct FMatrix34
{
	FVec3 ColumnX, ColumnY, ColumnZ, Shift;

	static FMatrix34 Identity() { return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {}}; }
	static FMatrix34 From(const FRigid& Rigid)
	{
		return {Rotate(Rigid.Rotation, {1, 0, 0}), Rotate(Rigid.Rotation, {0, 1, 0}), Rotate(Rigid.Rotation, {0, 0, 1}),
			Rigid.Translation};
	}
	/** Scale first, then rotation, then translation, as the engine applies a transform. */
	static FMatrix34 From(const FTransform& Transform)
	{
		FMatrix34 M = From(FRigid{Transform.Rotation, Transform.Translation});
		M.ColumnX = M.ColumnX * Transform.Scale.X;
		M.ColumnY = M.ColumnY * Transform.Scale.Y;
		M.ColumnZ = M.ColumnZ * Transform.Scale.Z;
		return M;
	}

	void AddScaled(const FMatrix34& Other, float Scale)
	{
		ColumnX += Other.ColumnX * Scale;
		ColumnY += Other.ColumnY * Scale;
		ColumnZ += Other.ColumnZ * Scale;
		Shift += Other.Shift * Scale;
	}
	FVec3 Direction(const FVec3& D) const { return ColumnX * D.X + ColumnY * D.Y + ColumnZ * D.Z; }
	FVec3 Point(const FVec3& P) const { return Direction(P) + Shift; }

	/** The identity where there is no inverse. */
	FMatrix34 Inverted() const
	{
		const FVec3 RowX = Cross(ColumnY, ColumnZ), RowY = Cross(ColumnZ, ColumnX), RowZ = Cross(ColumnX, ColumnY);
		const float Determinant = Dot(ColumnX, RowX);
		if (std::fabs(Determinant) < 1e-20f)
		{
			return Identity();
		}
		const float S = 1 / Determinant;
		FMatrix34 M{FVec3{RowX.X, RowY.X, RowZ.X} * S, FVec3{RowX.Y, RowY.Y, RowZ.Y} * S,
			FVec3{RowX.Z, RowY.Z, RowZ.Z} * S, {}};
		M.Shift = -M.Direction(Shift);
		return M;
	}
};

/** B first, then A. */
inline FMatrix34 operator*(const FMatrix34& A, const FMatrix34& B)
{
	return {A.Direction(B.ColumnX), A.Direction(B.ColumnY), A.Direction(B.ColumnZ), A.Point(B.Shift)};
}

} // namespace Zef
