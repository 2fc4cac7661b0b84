// SPDX-License-Identifier: MIT
/** Four-component vector. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/Vector.h"

namespace UE::Math
{

/** A homogeneous point, a tangent with its sign, or four numbers. Precisions convert only when written out. */
template <typename T>
struct alignas(16) TVector4
{
	using FReal = T;

	T X;
	T Y;
	T Z;
	T W;

	/** W is 1. */
	constexpr TVector4(const TVector<T>& V)
		: X(V.X)
		, Y(V.Y)
		, Z(V.Z)
		, W(1)
	{
	}
	constexpr TVector4(const TVector<T>& V, T InW)
		: X(V.X)
		, Y(V.Y)
		, Z(V.Z)
		, W(InW)
	{
	}
	/** (0, 0, 0, 1) without arguments. */
	explicit constexpr TVector4(T InX = T(0), T InY = T(0), T InZ = T(0), T InW = T(1))
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}
	constexpr TVector4(const TVector2<T>& InXY, const TVector2<T>& InZW)
		: X(InXY.X)
		, Y(InXY.Y)
		, Z(InZW.X)
		, W(InZW.Y)
	{
	}
	/** Zero in all four components. */
	explicit constexpr TVector4(EForceInit)
		: X(0)
		, Y(0)
		, Z(0)
		, W(0)
	{
	}
	explicit TVector4(const FLinearColor& InColor);
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TVector4(const TVector4<FArg>& From)
		: X(static_cast<T>(From.X))
		, Y(static_cast<T>(From.Y))
		, Z(static_cast<T>(From.Z))
		, W(static_cast<T>(From.W))
	{
	}

	constexpr TVector4 operator+(const TVector4& V) const { return TVector4(X + V.X, Y + V.Y, Z + V.Z, W + V.W); }
	constexpr TVector4 operator-(const TVector4& V) const { return TVector4(X - V.X, Y - V.Y, Z - V.Z, W - V.W); }
	constexpr TVector4 operator*(const TVector4& V) const { return TVector4(X * V.X, Y * V.Y, Z * V.Z, W * V.W); }
	constexpr TVector4 operator/(const TVector4& V) const { return TVector4(X / V.X, Y / V.Y, Z / V.Z, W / V.W); }
	constexpr TVector4 operator-() const { return TVector4(-X, -Y, -Z, -W); }
	constexpr TVector4 operator*(T Scale) const { return TVector4(X * Scale, Y * Scale, Z * Scale, W * Scale); }
	constexpr TVector4 operator/(T Divisor) const { return *this * (T(1) / Divisor); }
	constexpr TVector4& operator+=(const TVector4& V) { return *this = *this + V; }
	constexpr TVector4& operator-=(const TVector4& V) { return *this = *this - V; }
	constexpr TVector4& operator*=(const TVector4& V) { return *this = *this * V; }
	constexpr TVector4& operator*=(T Scale) { return *this = *this * Scale; }

	constexpr bool operator==(const TVector4& V) const { return X == V.X && Y == V.Y && Z == V.Z && W == V.W; }

	/** 0 is X ... 3 is W; anything else is a fault. */
	T& operator[](int32 Index)
	{
		check(Index >= 0 && Index < 4);
		return Index == 0 ? X : (Index == 1 ? Y : (Index == 2 ? Z : W));
	}
	const T& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < 4);
		return Index == 0 ? X : (Index == 1 ? Y : (Index == 2 ? Z : W));
	}

	void Set(T InX, T InY, T InZ, T InW) { *this = TVector4(InX, InY, InZ, InW); }
	/** Length of the first three components. */
	T Size3() const { return FMath::Sqrt(SizeSquared3()); }
	constexpr T SizeSquared3() const { return X * X + Y * Y + Z * Z; }
	T Size() const { return FMath::Sqrt(SizeSquared()); }
	constexpr T SizeSquared() const { return X * X + Y * Y + Z * Z + W * W; }

	/** Whether no component differs by more than Tolerance. */
	bool Equals(const TVector4& V, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance &&
			   FMath::Abs(Z - V.Z) <= Tolerance && FMath::Abs(W - V.W) <= Tolerance;
	}
	/** Whether a component is infinite or not a number. */
	bool ContainsNaN() const
	{
		return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z) || !FMath::IsFinite(W);
	}

	/** "X=1.000 Y=2.000 Z=3.000 W=4.000" */
	FString ToString() const;
};

/** Dot product of the first three components. */
template <typename T>
constexpr T Dot3(const TVector4<T>& A, const TVector4<T>& B)
{
	return A.X * B.X + A.Y * B.Y + A.Z * B.Z;
}

/** Dot product of all four components. */
template <typename T>
constexpr T Dot4(const TVector4<T>& A, const TVector4<T>& B)
{
	return Dot3(A, B) + A.W * B.W;
}

template <typename T>
constexpr TVector<T>::TVector(const TVector4<T>& V)
	: X(V.X)
	, Y(V.Y)
	, Z(V.Z)
{
}

} // namespace UE::Math
