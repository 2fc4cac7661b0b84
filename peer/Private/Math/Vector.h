// SPDX-License-Identifier: MIT
/** Arithmetic on the records' vectors. Products are by components, so they read the same in the engine. */
#pragma once

#include <cmath>

#include "Zef/Records.h"

namespace Zef
{

constexpr float Pi = 3.14159265358979f;
constexpr float DegreesToRadians = Pi / 180.0f;

inline FVec3 operator+(const FVec3& A, const FVec3& B)
{
	return {A.X + B.X, A.Y + B.Y, A.Z + B.Z};
}
inline FVec3 operator-(const FVec3& A, const FVec3& B)
{
	return {A.X - B.X, A.Y - B.Y, A.Z - B.Z};
}
inline FVec3 operator-(const FVec3& A)
{
	return {-A.X, -A.Y, -A.Z};
}
inline FVec3 operator*(const FVec3& A, float S)
{
	return {A.X * S, A.Y * S, A.Z * S};
}
inline FVec3 operator*(float S, const FVec3& A)
{
	return A * S;
}
inline FVec3 operator*(const FVec3& A, const FVec3& B)
{
	return {A.X * B.X, A.Y * B.Y, A.Z * B.Z};
}
inline FVec3& operator+=(FVec3& A, const FVec3& B)
{
	return A = A + B;
}
inline FVec3& operator-=(FVec3& A, const FVec3& B)
{
	return A = A - B;
}
inline FVec2 operator+(const FVec2& A, const FVec2& B)
{
	return {A.X + B.X, A.Y + B.Y};
}
inline FVec2 operator-(const FVec2& A, const FVec2& B)
{
	return {A.X - B.X, A.Y - B.Y};
}
inline FVec2 operator*(const FVec2& A, float S)
{
	return {A.X * S, A.Y * S};
}

inline float Dot(const FVec3& A, const FVec3& B)
{
	return A.X * B.X + A.Y * B.Y + A.Z * B.Z;
}
inline FVec3 Cross(const FVec3& A, const FVec3& B)
{
	return {A.Y * B.Z - A.Z * B.Y, A.Z * B.X - A.X * B.Z, A.X * B.Y - A.Y * B.X};
}
inline float Length(const FVec3& A)
{
	return std::sqrt(Dot(A, A));
}
inline float Length(const FVec2& A)
{
	return std::sqrt(A.X * A.X + A.Y * A.Y);
}
inline float Distance(const FVec3& A, const FVec3& B)
{
	return Length(A - B);
}
/** Unit vector, or `Otherwise` when A is too short to have a direction. */
inline FVec3 Normalized(const FVec3& A, const FVec3& Otherwise = {0, 0, 1})
{
	const float L = Length(A);
	return L > 1e-12f ? A * (1.0f / L) : Otherwise;
}

inline float Lerp(float A, float B, float T)
{
	return A + (B - A) * T;
}
inline FVec3 Lerp(const FVec3& A, const FVec3& B, float T)
{
	return A + (B - A) * T;
}
inline float Clamp(float X, float Low, float High)
{
	return X < Low ? Low : (X > High ? High : X);
}
/** 0 up to From, 1 from To on, with level ends in between. From may be above To. */
inline float SmoothStep(float From, float To, float X)
{
	const float T = Clamp((X - From) / (To - From), 0.0f, 1.0f);
	return T * T * (3.0f - 2.0f * T);
}

/** A unit vector square to N (a unit vector) and as near to `Wish` as that allows. */
inline FVec3 SquareTo(const FVec3& N, const FVec3& Wish)
{
	const FVec3 T = Wish - N * Dot(N, Wish);
	if (Dot(T, T) > 1e-8f)
	{
		return Normalized(T);
	}
	const FVec3 Other = std::fabs(N.X) < 0.8f ? FVec3{1, 0, 0} : FVec3{0, 1, 0};
	return Normalized(Other - N * Dot(N, Other));
}

} // namespace Zef
