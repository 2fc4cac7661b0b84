// SPDX-License-Identifier: MIT
/** Rotation as a unit quaternion. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/Rotator.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"

namespace UE::Math
{

/**
 * A rotation. The product `A * B` rotates by B first and by A second.
 * Precisions convert only when written out.
 */
template <typename T>
struct alignas(16) TQuat
{
	using FReal = T;

	T X;
	T Y;
	T Z;
	T W;

	/** Leaves the components uninitialised. */
	TQuat() = default;
	constexpr TQuat(T InX, T InY, T InZ, T InW)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}
	/** The identity for ForceInit, all zero for ForceInitToZero. */
	explicit constexpr TQuat(EForceInit ZeroOrNot)
		: X(0)
		, Y(0)
		, Z(0)
		, W(ZeroOrNot == ForceInitToZero ? T(0) : T(1))
	{
	}
	explicit TQuat(const TRotator<T>& R);
	/** Of a rotation matrix, whose axes have length 1. */
	explicit TQuat(const TMatrix<T>& M);
	/** Rotation by AngleRad about a unit Axis. */
	TQuat(TVector<T> Axis, T AngleRad);
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TQuat(const TQuat<FArg>& From)
		: X(static_cast<T>(From.X))
		, Y(static_cast<T>(From.Y))
		, Z(static_cast<T>(From.Z))
		, W(static_cast<T>(From.W))
	{
	}

	static const TQuat Identity;

	constexpr TQuat operator*(const TQuat& Q) const
	{
		return {W * Q.X + X * Q.W + Y * Q.Z - Z * Q.Y, W * Q.Y - X * Q.Z + Y * Q.W + Z * Q.X,
			W * Q.Z + X * Q.Y - Y * Q.X + Z * Q.W, W * Q.W - X * Q.X - Y * Q.Y - Z * Q.Z};
	}
	constexpr TQuat& operator*=(const TQuat& Q) { return *this = *this * Q; }
	constexpr TVector<T> operator*(const TVector<T>& V) const { return RotateVector(V); }
	constexpr TQuat operator+(const TQuat& Q) const { return {X + Q.X, Y + Q.Y, Z + Q.Z, W + Q.W}; }
	constexpr TQuat operator-(const TQuat& Q) const { return {X - Q.X, Y - Q.Y, Z - Q.Z, W - Q.W}; }
	constexpr TQuat operator-() const { return {-X, -Y, -Z, -W}; }
	constexpr TQuat operator*(T Scale) const { return {X * Scale, Y * Scale, Z * Scale, W * Scale}; }
	constexpr TQuat operator/(T Divisor) const { return *this * (T(1) / Divisor); }
	constexpr TQuat& operator+=(const TQuat& Q) { return *this = *this + Q; }
	constexpr TQuat& operator-=(const TQuat& Q) { return *this = *this - Q; }
	constexpr TQuat& operator*=(T Scale) { return *this = *this * Scale; }
	/** Four-component dot product. */
	constexpr T operator|(const TQuat& Q) const { return X * Q.X + Y * Q.Y + Z * Q.Z + W * Q.W; }
	constexpr bool operator==(const TQuat& Q) const { return X == Q.X && Y == Q.Y && Z == Q.Z && W == Q.W; }

	/** Whether the components differ by no more than Tolerance, for this or the negated quaternion. */
	bool Equals(const TQuat& Q, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		const auto Near = [Tolerance](const TQuat& D)
		{
			return FMath::Abs(D.X) <= Tolerance && FMath::Abs(D.Y) <= Tolerance && FMath::Abs(D.Z) <= Tolerance &&
				   FMath::Abs(D.W) <= Tolerance;
		};
		return Near(*this - Q) || Near(*this + Q);
	}
	bool IsIdentity(T Tolerance = UE_SMALL_NUMBER) const { return Equals(TQuat(T(0), T(0), T(0), T(1)), Tolerance); }
	bool ContainsNaN() const
	{
		return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z) || !FMath::IsFinite(W);
	}

	T Size() const { return FMath::Sqrt(SizeSquared()); }
	constexpr T SizeSquared() const { return *this | *this; }
	/** Makes the length 1; the identity when the squared length is below Tolerance. */
	void Normalize(T Tolerance = UE_SMALL_NUMBER)
	{
		const T SquareSum = SizeSquared();
		*this = SquareSum >= Tolerance ? *this * FMath::InvSqrt(SquareSum) : TQuat(T(0), T(0), T(0), T(1));
	}
	TQuat GetNormalized(T Tolerance = UE_SMALL_NUMBER) const
	{
		TQuat Result(*this);
		Result.Normalize(Tolerance);
		return Result;
	}
	bool IsNormalized() const { return FMath::Abs(T(1) - SizeSquared()) < T(UE_THRESH_QUAT_NORMALIZED); }

	/** The opposite rotation of a unit quaternion. */
	constexpr TQuat Inverse() const { return {-X, -Y, -Z, W}; }
	constexpr TVector<T> RotateVector(const TVector<T>& V) const
	{
		const TVector<T> Axis(X, Y, Z);
		const TVector<T> Twice = (Axis ^ V) * T(2);
		return V + Twice * W + (Axis ^ Twice);
	}
	constexpr TVector<T> UnrotateVector(const TVector<T>& V) const { return Inverse().RotateVector(V); }

	/** Angles in degrees: yaw in -180..180, pitch in -90..90. At pitch 90 or -90 all remaining turn is yaw and roll. */
	TRotator<T> Rotator() const;
	/** (Roll, Pitch, Yaw) in degrees; Z is the yaw. */
	TVector<T> Euler() const { return Rotator().Euler(); }
	/** From (Roll, Pitch, Yaw) in degrees. */
	static TQuat MakeFromEuler(const TVector<T>& Euler) { return TQuat(TRotator<T>::MakeFromEuler(Euler)); }
	static TQuat MakeFromRotator(const TRotator<T>& R) { return TQuat(R); }
	TMatrix<T> ToMatrix() const;

	TVector<T> GetAxisX() const { return RotateVector(TVector<T>(T(1), T(0), T(0))); }
	TVector<T> GetAxisY() const { return RotateVector(TVector<T>(T(0), T(1), T(0))); }
	TVector<T> GetAxisZ() const { return RotateVector(TVector<T>(T(0), T(0), T(1))); }
	TVector<T> GetForwardVector() const { return GetAxisX(); }
	TVector<T> GetRightVector() const { return GetAxisY(); }
	TVector<T> GetUpVector() const { return GetAxisZ(); }
	/** Angle in radians, 0..2 pi. */
	T GetAngle() const { return T(2) * FMath::Acos(W); }
	/** Unit axis; X forward for the identity. */
	TVector<T> GetRotationAxis() const
	{
		return TVector<T>(X, Y, Z).GetSafeNormal(T(UE_SMALL_NUMBER), TVector<T>(T(1), T(0), T(0)));
	}
	/** Smallest angle in radians between the two rotations. */
	T AngularDistance(const TQuat& Q) const
	{
		const T Inner = *this | Q;
		return FMath::Acos(T(2) * Inner * Inner - T(1));
	}

	/** Shortest way from A at Slerp 0 to B at Slerp 1 at constant speed, normalised. */
	static TQuat Slerp(const TQuat& A, const TQuat& B, T Slerp);
	/** Shortest rotation that turns direction A into direction B. */
	static TQuat FindBetween(const TVector<T>& A, const TVector<T>& B);

	/** "X=0.000000000 Y=0.000000000 Z=0.000000000 W=1.000000000" */
	FString ToString() const;
};

template <typename T>
constinit const TQuat<T> TQuat<T>::Identity(T(0), T(0), T(0), T(1));

} // namespace UE::Math
