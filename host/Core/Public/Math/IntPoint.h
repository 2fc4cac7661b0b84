// SPDX-License-Identifier: MIT
/** Two integers. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"

namespace UE::Math
{

/** A position or size in pixels. */
template <typename IntType>
struct TIntPoint
{
	IntType X;
	IntType Y;

	/** Leaves the components uninitialised. */
	TIntPoint() = default;
	constexpr TIntPoint(IntType InX, IntType InY)
		: X(InX)
		, Y(InY)
	{
	}
	constexpr TIntPoint(IntType InXY)
		: X(InXY)
		, Y(InXY)
	{
	}
	explicit constexpr TIntPoint(EForceInit)
		: X(0)
		, Y(0)
	{
	}

	static const TIntPoint ZeroValue;
	/** (-1, -1) */
	static const TIntPoint NoneValue;

	constexpr bool operator==(const TIntPoint& Other) const { return X == Other.X && Y == Other.Y; }
	constexpr TIntPoint operator+(const TIntPoint& Other) const { return {X + Other.X, Y + Other.Y}; }
	constexpr TIntPoint operator-(const TIntPoint& Other) const { return {X - Other.X, Y - Other.Y}; }
	constexpr TIntPoint operator*(IntType Scale) const { return {X * Scale, Y * Scale}; }
	constexpr TIntPoint operator/(IntType Divisor) const { return {X / Divisor, Y / Divisor}; }
	constexpr TIntPoint& operator+=(const TIntPoint& Other) { return *this = *this + Other; }
	constexpr TIntPoint& operator-=(const TIntPoint& Other) { return *this = *this - Other; }
	IntType GetMax() const { return FMath::Max(X, Y); }
	IntType GetMin() const { return FMath::Min(X, Y); }

	/** "X=1 Y=2" */
	FString ToString() const;
};

template <typename IntType>
constinit const TIntPoint<IntType> TIntPoint<IntType>::ZeroValue(0, 0);
template <typename IntType>
constinit const TIntPoint<IntType> TIntPoint<IntType>::NoneValue(-1, -1);

template <typename IntType>
uint32 GetTypeHash(const TIntPoint<IntType>& Point)
{
	return static_cast<uint32>(Point.X) * 0x9E3779B1u ^ static_cast<uint32>(Point.Y) * 0x85EBCA77u;
}

template <typename T>
constexpr TVector2<T>::TVector2(const TIntPoint<int32>& InPos)
	: X(static_cast<T>(InPos.X))
	, Y(static_cast<T>(InPos.Y))
{
}

} // namespace UE::Math
