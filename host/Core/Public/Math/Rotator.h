// SPDX-License-Identifier: MIT
/** Rotation as three angles. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"

namespace UE::Math
{

/**
 * A rotation in degrees: first Roll about X, then Pitch about Y, then Yaw about Z.
 * Positive yaw turns X towards Y, positive pitch lifts X towards Z, positive roll turns Z towards Y.
 */
template <typename T>
struct TRotator
{
	using FReal = T;

	T Pitch;
	T Yaw;
	T Roll;

	/** Leaves the angles uninitialised. */
	TRotator() = default;
	explicit constexpr TRotator(T InF)
		: Pitch(InF)
		, Yaw(InF)
		, Roll(InF)
	{
	}
	constexpr TRotator(T InPitch, T InYaw, T InRoll)
		: Pitch(InPitch)
		, Yaw(InYaw)
		, Roll(InRoll)
	{
	}
	/** Zero. */
	explicit constexpr TRotator(EForceInit)
		: Pitch(0)
		, Yaw(0)
		, Roll(0)
	{
	}
	explicit TRotator(const TQuat<T>& Quat);
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TRotator(const TRotator<FArg>& From)
		: Pitch(static_cast<T>(From.Pitch))
		, Yaw(static_cast<T>(From.Yaw))
		, Roll(static_cast<T>(From.Roll))
	{
	}

	static const TRotator ZeroRotator;

	constexpr TRotator operator+(const TRotator& R) const { return {Pitch + R.Pitch, Yaw + R.Yaw, Roll + R.Roll}; }
	constexpr TRotator operator-(const TRotator& R) const { return {Pitch - R.Pitch, Yaw - R.Yaw, Roll - R.Roll}; }
	constexpr TRotator operator*(T Scale) const { return {Pitch * Scale, Yaw * Scale, Roll * Scale}; }
	constexpr TRotator& operator+=(const TRotator& R) { return *this = *this + R; }
	constexpr TRotator& operator-=(const TRotator& R) { return *this = *this - R; }
	constexpr TRotator& operator*=(T Scale) { return *this = *this * Scale; }
	constexpr bool operator==(const TRotator& R) const { return Pitch == R.Pitch && Yaw == R.Yaw && Roll == R.Roll; }

	/** Whether the angles, each as the same turn between -180 and 180, differ by no more than Tolerance degrees. */
	bool Equals(const TRotator& R, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(NormalizeAxis(Pitch - R.Pitch)) <= Tolerance &&
			   FMath::Abs(NormalizeAxis(Yaw - R.Yaw)) <= Tolerance &&
			   FMath::Abs(NormalizeAxis(Roll - R.Roll)) <= Tolerance;
	}
	bool IsNearlyZero(T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return Equals(TRotator(T(0), T(0), T(0)), Tolerance);
	}
	/** Whether every angle is a multiple of a full turn. */
	bool IsZero() const { return ClampAxis(Pitch) == T(0) && ClampAxis(Yaw) == T(0) && ClampAxis(Roll) == T(0); }
	bool ContainsNaN() const { return !FMath::IsFinite(Pitch) || !FMath::IsFinite(Yaw) || !FMath::IsFinite(Roll); }

	/** Direction that X forward has after this rotation. */
	TVector<T> Vector() const;
	TQuat<T> Quaternion() const;
	/** (Roll, Pitch, Yaw) in degrees. */
	constexpr TVector<T> Euler() const { return {Roll, Pitch, Yaw}; }
	/** From (Roll, Pitch, Yaw) in degrees. */
	static constexpr TRotator MakeFromEuler(const TVector<T>& Euler) { return {Euler.Y, Euler.Z, Euler.X}; }
	TVector<T> RotateVector(const TVector<T>& V) const;
	TVector<T> UnrotateVector(const TVector<T>& V) const;
	TRotator GetInverse() const;
	/** The same rotation with each angle in (-180, 180]. */
	TRotator GetNormalized() const { return {NormalizeAxis(Pitch), NormalizeAxis(Yaw), NormalizeAxis(Roll)}; }
	void Normalize() { *this = GetNormalized(); }

	/** Angle in [0, 360). */
	static T ClampAxis(T Angle)
	{
		const T Turned = FMath::Fmod(Angle, T(360));
		return Turned < T(0) ? Turned + T(360) : Turned;
	}
	/** Angle in (-180, 180]. */
	static T NormalizeAxis(T Angle)
	{
		const T Turned = ClampAxis(Angle);
		return Turned > T(180) ? Turned - T(360) : Turned;
	}

	/** "P=0.000000 Y=90.000000 R=0.000000" */
	FString ToString() const;
};

template <typename T>
constinit const TRotator<T> TRotator<T>::ZeroRotator(T(0), T(0), T(0));

} // namespace UE::Math
