// SPDX-License-Identifier: MIT
/** Two-component vector. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"

class FString;

namespace UE::Math
{

/** A point or direction in two dimensions. Precisions convert only when written out. */
template <typename T>
struct TVector2
{
	using FReal = T;

	T X;
	T Y;

	/** Leaves the components uninitialised. */
	TVector2() = default;
	explicit constexpr TVector2(T InF)
		: X(InF)
		, Y(InF)
	{
	}
	constexpr TVector2(T InX, T InY)
		: X(InX)
		, Y(InY)
	{
	}
	/** Zero. */
	explicit constexpr TVector2(EForceInit)
		: X(0)
		, Y(0)
	{
	}
	/** Drops Z. */
	explicit constexpr TVector2(const TVector<T>& V);
	explicit constexpr TVector2(const TIntPoint<int32>& InPos);
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TVector2(const TVector2<FArg>& From)
		: X(static_cast<T>(From.X))
		, Y(static_cast<T>(From.Y))
	{
	}

	static const TVector2 ZeroVector;
	static const TVector2 UnitVector;
	static const TVector2 One;

	constexpr TVector2 operator+(const TVector2& V) const { return {X + V.X, Y + V.Y}; }
	constexpr TVector2 operator-(const TVector2& V) const { return {X - V.X, Y - V.Y}; }
	constexpr TVector2 operator*(const TVector2& V) const { return {X * V.X, Y * V.Y}; }
	constexpr TVector2 operator/(const TVector2& V) const { return {X / V.X, Y / V.Y}; }
	constexpr TVector2 operator-() const { return {-X, -Y}; }
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector2 operator*(FArg Scale) const { return {X * static_cast<T>(Scale), Y * static_cast<T>(Scale)}; }
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector2 operator/(FArg Divisor) const
	{
		return {X / static_cast<T>(Divisor), Y / static_cast<T>(Divisor)};
	}
	constexpr TVector2& operator+=(const TVector2& V) { return *this = *this + V; }
	constexpr TVector2& operator-=(const TVector2& V) { return *this = *this - V; }
	constexpr TVector2& operator*=(const TVector2& V) { return *this = *this * V; }
	constexpr TVector2& operator/=(const TVector2& V) { return *this = *this / V; }
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector2& operator*=(FArg Scale) { return *this = *this * Scale; }
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector2& operator/=(FArg Divisor) { return *this = *this / Divisor; }

	/** Dot product. */
	constexpr T operator|(const TVector2& V) const { return X * V.X + Y * V.Y; }
	/** Z of the cross product of the two vectors in the plane. */
	constexpr T operator^(const TVector2& V) const { return X * V.Y - Y * V.X; }
	static constexpr T DotProduct(const TVector2& A, const TVector2& B) { return A | B; }
	static constexpr T CrossProduct(const TVector2& A, const TVector2& B) { return A ^ B; }

	constexpr bool operator==(const TVector2& V) const { return X == V.X && Y == V.Y; }

	/** 0 is X, 1 is Y; anything else is a fault. */
	T& operator[](int32 Index)
	{
		check(Index >= 0 && Index < 2);
		return Index == 0 ? X : Y;
	}
	const T& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < 2);
		return Index == 0 ? X : Y;
	}

	void Set(T InX, T InY) { *this = TVector2(InX, InY); }
	T Size() const { return FMath::Sqrt(SizeSquared()); }
	T Length() const { return Size(); }
	constexpr T SizeSquared() const { return X * X + Y * Y; }
	static T Distance(const TVector2& A, const TVector2& B) { return (B - A).Size(); }
	static constexpr T DistSquared(const TVector2& A, const TVector2& B) { return (B - A).SizeSquared(); }
	T GetMax() const { return FMath::Max(X, Y); }
	T GetMin() const { return FMath::Min(X, Y); }
	TVector2 GetAbs() const { return {FMath::Abs(X), FMath::Abs(Y)}; }

	/** Unit vector in this direction, zero when the squared length is below Tolerance. */
	TVector2 GetSafeNormal(T Tolerance = UE_SMALL_NUMBER) const
	{
		const T SquareSum = SizeSquared();
		return SquareSum > Tolerance ? *this * FMath::InvSqrt(SquareSum) : TVector2(T(0), T(0));
	}
	/** Whether no component differs by more than Tolerance. */
	bool Equals(const TVector2& V, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance;
	}
	bool IsNearlyZero(T Tolerance = UE_KINDA_SMALL_NUMBER) const { return Equals(TVector2(T(0), T(0)), Tolerance); }
	constexpr bool IsZero() const { return X == T(0) && Y == T(0); }
	/** Whether a component is infinite or not a number. */
	bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y); }

	/** "X=1.000 Y=2.000" */
	FString ToString() const;
};

template <typename T>
constinit const TVector2<T> TVector2<T>::ZeroVector(T(0), T(0));
template <typename T>
constinit const TVector2<T> TVector2<T>::UnitVector(T(1), T(1));
template <typename T>
constinit const TVector2<T> TVector2<T>::One(T(1), T(1));

template <typename FArg, typename T>
requires std::is_arithmetic_v<FArg>
constexpr TVector2<T> operator*(FArg Scale, const TVector2<T>& V)
{
	return V * Scale;
}

} // namespace UE::Math
