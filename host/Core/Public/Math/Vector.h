// SPDX-License-Identifier: MIT
/** Three-component vector. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"

namespace UE::Math
{

/**
 * A point, direction or scale in three dimensions; the engine's axes are X forward, Y right, Z up, left-handed.
 * Precisions convert only when written out: `FVector(Single)`, `FVector3f(Double)`.
 */
template <typename T>
struct TVector
{
	using FReal = T;

	T X;
	T Y;
	T Z;

	/** Leaves the components uninitialised. */
	TVector() = default;
	/** All three components. */
	explicit constexpr TVector(T InF)
		: X(InF)
		, Y(InF)
		, Z(InF)
	{
	}
	constexpr TVector(T InX, T InY, T InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}
	/** Zero. */
	explicit constexpr TVector(EForceInit)
		: X(0)
		, Y(0)
		, Z(0)
	{
	}
	/** Drops W. */
	constexpr TVector(const TVector4<T>& V);
	explicit constexpr TVector(const TVector2<T>& V, T InZ)
		: X(V.X)
		, Y(V.Y)
		, Z(InZ)
	{
	}
	explicit constexpr TVector(const TIntVector3<int32>& InVector);
	explicit TVector(const FLinearColor& InColor);
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TVector(const TVector<FArg>& From)
		: X(static_cast<T>(From.X))
		, Y(static_cast<T>(From.Y))
		, Z(static_cast<T>(From.Z))
	{
	}

	static const TVector ZeroVector;
	static const TVector OneVector;
	static const TVector UpVector;
	static const TVector DownVector;
	static const TVector ForwardVector;
	static const TVector BackwardVector;
	static const TVector RightVector;
	static const TVector LeftVector;
	static const TVector XAxisVector;
	static const TVector YAxisVector;
	static const TVector ZAxisVector;

	constexpr TVector operator+(const TVector& V) const { return {X + V.X, Y + V.Y, Z + V.Z}; }
	constexpr TVector operator-(const TVector& V) const { return {X - V.X, Y - V.Y, Z - V.Z}; }
	constexpr TVector operator*(const TVector& V) const { return {X * V.X, Y * V.Y, Z * V.Z}; }
	constexpr TVector operator/(const TVector& V) const { return {X / V.X, Y / V.Y, Z / V.Z}; }
	constexpr TVector operator-() const { return {-X, -Y, -Z}; }
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector operator*(FArg Scale) const
	{
		return {X * static_cast<T>(Scale), Y * static_cast<T>(Scale), Z * static_cast<T>(Scale)};
	}
	/** Multiplies by the reciprocal. */
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector operator/(FArg Divisor) const { return *this * (T(1) / static_cast<T>(Divisor)); }
	constexpr TVector& operator+=(const TVector& V) { return *this = *this + V; }
	constexpr TVector& operator-=(const TVector& V) { return *this = *this - V; }
	constexpr TVector& operator*=(const TVector& V) { return *this = *this * V; }
	constexpr TVector& operator/=(const TVector& V) { return *this = *this / V; }
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector& operator*=(FArg Scale) { return *this = *this * Scale; }
	template <typename FArg>
	requires std::is_arithmetic_v<FArg>
	constexpr TVector& operator/=(FArg Divisor) { return *this = *this / Divisor; }

	/** Cross product. */
	constexpr TVector operator^(const TVector& V) const
	{
		return {Y * V.Z - Z * V.Y, Z * V.X - X * V.Z, X * V.Y - Y * V.X};
	}
	/** Dot product. */
	constexpr T operator|(const TVector& V) const { return X * V.X + Y * V.Y + Z * V.Z; }
	constexpr TVector Cross(const TVector& V) const { return *this ^ V; }
	constexpr T Dot(const TVector& V) const { return *this | V; }
	static constexpr TVector CrossProduct(const TVector& A, const TVector& B) { return A ^ B; }
	static constexpr T DotProduct(const TVector& A, const TVector& B) { return A | B; }

	constexpr bool operator==(const TVector& V) const { return X == V.X && Y == V.Y && Z == V.Z; }

	/** 0 is X, 1 is Y, 2 is Z; anything else is a fault. */
	T& operator[](int32 Index)
	{
		check(Index >= 0 && Index < 3);
		return Index == 0 ? X : (Index == 1 ? Y : Z);
	}
	const T& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < 3);
		return Index == 0 ? X : (Index == 1 ? Y : Z);
	}
	T& Component(int32 Index) { return (*this)[Index]; }
	T Component(int32 Index) const { return (*this)[Index]; }

	void Set(T InX, T InY, T InZ) { *this = TVector(InX, InY, InZ); }
	T Size() const { return FMath::Sqrt(SizeSquared()); }
	T Length() const { return Size(); }
	constexpr T SizeSquared() const { return X * X + Y * Y + Z * Z; }
	constexpr T SquaredLength() const { return SizeSquared(); }
	T Size2D() const { return FMath::Sqrt(X * X + Y * Y); }
	static T Dist(const TVector& A, const TVector& B) { return (B - A).Size(); }
	static T Distance(const TVector& A, const TVector& B) { return Dist(A, B); }
	static constexpr T DistSquared(const TVector& A, const TVector& B) { return (B - A).SizeSquared(); }
	T GetMax() const { return FMath::Max3(X, Y, Z); }
	T GetMin() const { return FMath::Min3(X, Y, Z); }
	T GetAbsMax() const { return GetAbs().GetMax(); }
	T GetAbsMin() const { return GetAbs().GetMin(); }
	TVector GetAbs() const { return {FMath::Abs(X), FMath::Abs(Y), FMath::Abs(Z)}; }
	TVector ComponentMin(const TVector& V) const
	{
		return {FMath::Min(X, V.X), FMath::Min(Y, V.Y), FMath::Min(Z, V.Z)};
	}
	TVector ComponentMax(const TVector& V) const
	{
		return {FMath::Max(X, V.X), FMath::Max(Y, V.Y), FMath::Max(Z, V.Z)};
	}
	static TVector Min(const TVector& A, const TVector& B) { return A.ComponentMin(B); }
	static TVector Max(const TVector& A, const TVector& B) { return A.ComponentMax(B); }

	/**
	 * Unit vector in this direction.
	 *
	 * @param Tolerance     bound of the squared length below which there is no direction
	 * @param ResultIfZero  answer when there is none
	 * @return this vector itself when its squared length is exactly 1
	 */
	TVector GetSafeNormal(T Tolerance = UE_SMALL_NUMBER, const TVector& ResultIfZero = ZeroVector) const
	{
		const T SquareSum = SizeSquared();
		if (SquareSum == T(1))
		{
			return *this;
		}
		if (SquareSum < Tolerance)
		{
			return ResultIfZero;
		}
		return *this * FMath::InvSqrt(SquareSum);
	}
	/** Unit vector in this direction, without a test for zero length. */
	TVector GetUnsafeNormal() const { return *this * FMath::InvSqrt(SizeSquared()); }
	/** Makes this a unit vector. @return false, and no change, when the squared length is not above Tolerance */
	bool Normalize(T Tolerance = UE_SMALL_NUMBER)
	{
		const T SquareSum = SizeSquared();
		if (!(SquareSum > Tolerance))
		{
			return false;
		}
		*this *= FMath::InvSqrt(SquareSum);
		return true;
	}
	bool IsNormalized() const { return FMath::Abs(T(1) - SizeSquared()) < T(UE_THRESH_VECTOR_NORMALIZED); }
	bool IsUnit(T LengthSquaredTolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(T(1) - SizeSquared()) < LengthSquaredTolerance;
	}

	/** Whether no component differs by more than Tolerance. */
	bool Equals(const TVector& V, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance;
	}
	bool IsNearlyZero(T Tolerance = UE_KINDA_SMALL_NUMBER) const { return Equals(TVector(T(0)), Tolerance); }
	constexpr bool IsZero() const { return X == T(0) && Y == T(0) && Z == T(0); }
	/** Whether a component is infinite or not a number. */
	bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z); }

	/** Pitch and yaw that turn X forward into this direction; roll is 0. */
	TRotator<T> Rotation() const;

	/** "X=1.000 Y=2.000 Z=3.000" */
	FString ToString() const;
};

template <typename T>
constinit const TVector<T> TVector<T>::ZeroVector(T(0), T(0), T(0));
template <typename T>
constinit const TVector<T> TVector<T>::OneVector(T(1), T(1), T(1));
template <typename T>
constinit const TVector<T> TVector<T>::UpVector(T(0), T(0), T(1));
template <typename T>
constinit const TVector<T> TVector<T>::DownVector(T(0), T(0), T(-1));
template <typename T>
constinit const TVector<T> TVector<T>::ForwardVector(T(1), T(0), T(0));
template <typename T>
constinit const TVector<T> TVector<T>::BackwardVector(T(-1), T(0), T(0));
template <typename T>
constinit const TVector<T> TVector<T>::RightVector(T(0), T(1), T(0));
template <typename T>
constinit const TVector<T> TVector<T>::LeftVector(T(0), T(-1), T(0));
template <typename T>
constinit const TVector<T> TVector<T>::XAxisVector(T(1), T(0), T(0));
template <typename T>
constinit const TVector<T> TVector<T>::YAxisVector(T(0), T(1), T(0));
template <typename T>
constinit const TVector<T> TVector<T>::ZAxisVector(T(0), T(0), T(1));

template <typename FArg, typename T>
requires std::is_arithmetic_v<FArg>
constexpr TVector<T> operator*(FArg Scale, const TVector<T>& V)
{
	return V * Scale;
}

template <typename T>
constexpr TVector2<T>::TVector2(const TVector<T>& V)
	: X(V.X)
	, Y(V.Y)
{
}

} // namespace UE::Math
