// SPDX-License-Identifier: MIT
/** Three integers. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"

namespace UE::Math
{

/** Three integers, such as the joints of a chain or the corners of a triangle. */
template <typename IntType>
struct TIntVector3
{
	IntType X;
	IntType Y;
	IntType Z;

	/** Leaves the components uninitialised. */
	TIntVector3() = default;
	constexpr TIntVector3(IntType InX, IntType InY, IntType InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}
	explicit constexpr TIntVector3(IntType InValue)
		: X(InValue)
		, Y(InValue)
		, Z(InValue)
	{
	}
	explicit constexpr TIntVector3(EForceInit)
		: X(0)
		, Y(0)
		, Z(0)
	{
	}
	/** Truncates towards zero. */
	explicit constexpr TIntVector3(const TVector<double>& V)
		: X(static_cast<IntType>(V.X))
		, Y(static_cast<IntType>(V.Y))
		, Z(static_cast<IntType>(V.Z))
	{
	}

	static const TIntVector3 ZeroValue;
	/** (-1, -1, -1) */
	static const TIntVector3 NoneValue;

	constexpr bool operator==(const TIntVector3& Other) const { return X == Other.X && Y == Other.Y && Z == Other.Z; }
	constexpr TIntVector3 operator+(const TIntVector3& O) const { return {X + O.X, Y + O.Y, Z + O.Z}; }
	constexpr TIntVector3 operator-(const TIntVector3& O) const { return {X - O.X, Y - O.Y, Z - O.Z}; }
	constexpr TIntVector3 operator*(IntType Scale) const { return {X * Scale, Y * Scale, Z * Scale}; }
	constexpr TIntVector3 operator/(IntType Divisor) const { return {X / Divisor, Y / Divisor, Z / Divisor}; }
	constexpr TIntVector3& operator+=(const TIntVector3& O) { return *this = *this + O; }
	constexpr TIntVector3& operator-=(const TIntVector3& O) { return *this = *this - O; }

	/** 0 is X, 1 is Y, 2 is Z; anything else is a fault. */
	IntType& operator[](int32 Index)
	{
		check(Index >= 0 && Index < 3);
		return Index == 0 ? X : (Index == 1 ? Y : Z);
	}
	const IntType& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < 3);
		return Index == 0 ? X : (Index == 1 ? Y : Z);
	}
	IntType GetMax() const { return FMath::Max3(X, Y, Z); }
	IntType GetMin() const { return FMath::Min3(X, Y, Z); }
	constexpr bool IsZero() const { return X == 0 && Y == 0 && Z == 0; }

	/** "X=1 Y=2 Z=3" */
	FString ToString() const;
};

template <typename IntType>
constinit const TIntVector3<IntType> TIntVector3<IntType>::ZeroValue(0, 0, 0);
template <typename IntType>
constinit const TIntVector3<IntType> TIntVector3<IntType>::NoneValue(-1, -1, -1);

template <typename IntType>
uint32 GetTypeHash(const TIntVector3<IntType>& Vector)
{
	return static_cast<uint32>(Vector.X) * 0x9E3779B1u ^ static_cast<uint32>(Vector.Y) * 0x85EBCA77u ^
		   static_cast<uint32>(Vector.Z) * 0xC2B2AE3Du;
}

template <typename T>
constexpr TVector<T>::TVector(const TIntVector3<int32>& InVector)
	: X(static_cast<T>(InVector.X))
	, Y(static_cast<T>(InVector.Y))
	, Z(static_cast<T>(InVector.Z))
{
}

} // namespace UE::Math
