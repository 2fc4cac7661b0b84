// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Floats.h"

#include <cmath>

/** Arithmetic of three-component vectors. */
namespace Host
{

inline FFloat3 operator+(const FFloat3& A, const FFloat3& B)
{
	return {A.X + B.X, A.Y + B.Y, A.Z + B.Z};
}
inline FFloat3 operator-(const FFloat3& A, const FFloat3& B)
{
	return {A.X - B.X, A.Y - B.Y, A.Z - B.Z};
}
inline FFloat3 operator*(const FFloat3& A, float S)
{
	return {A.X * S, A.Y * S, A.Z * S};
}

inline float Dot(const FFloat3& A, const FFloat3& B)
{
	return A.X * B.X + A.Y * B.Y + A.Z * B.Z;
}

inline FFloat3 Cross(const FFloat3& A, const FFloat3& B)
{
	return {A.Y * B.Z - A.Z * B.Y, A.Z * B.X - A.X * B.Z, A.X * B.Y - A.Y * B.X};
}

inline float Length(const FFloat3& A)
{
	return std::sqrt(Dot(A, A));
}

/** The unit vector along A; `Fallback` when A has no direction. */
inline FFloat3 Normalized(const FFloat3& A, const FFloat3& Fallback = {0.0f, 0.0f, 1.0f})
{
	const float Size = Length(A);
	return Size > 1e-12f ? A * (1.0f / Size) : Fallback;
}

} // namespace Host
