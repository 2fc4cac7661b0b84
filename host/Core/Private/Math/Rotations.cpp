// SPDX-License-Identifier: MIT
/** Conversions between quaternions, angles and matrices. */

#include "Math/Matrix.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"

namespace UE::Math
{

template <typename T>
TRotator<T>::TRotator(const TQuat<T>& Quat)
{
	*this = Quat.Rotator();
}

template <typename T>
TVector<T> TRotator<T>::Vector() const
{
	T SinPitch, CosPitch, SinYaw, CosYaw;
	FMath::SinCos(&SinPitch, &CosPitch, FMath::DegreesToRadians(Pitch));
	FMath::SinCos(&SinYaw, &CosYaw, FMath::DegreesToRadians(Yaw));
	return {CosPitch * CosYaw, CosPitch * SinYaw, SinPitch};
}

template <typename T>
TQuat<T> TRotator<T>::Quaternion() const
{
	T SinRoll, CosRoll, SinPitch, CosPitch, SinYaw, CosYaw;
	FMath::SinCos(&SinRoll, &CosRoll, FMath::DegreesToRadians(FMath::Fmod(Roll, T(360))) * T(0.5));
	FMath::SinCos(&SinPitch, &CosPitch, FMath::DegreesToRadians(FMath::Fmod(Pitch, T(360))) * T(0.5));
	FMath::SinCos(&SinYaw, &CosYaw, FMath::DegreesToRadians(FMath::Fmod(Yaw, T(360))) * T(0.5));
	// Positive roll and pitch turn against the right-hand rule about +X and +Y, positive yaw turns with it about +Z.
	const TQuat<T> AboutX(-SinRoll, T(0), T(0), CosRoll);
	const TQuat<T> AboutY(T(0), -SinPitch, T(0), CosPitch);
	const TQuat<T> AboutZ(T(0), T(0), SinYaw, CosYaw);
	return AboutZ * AboutY * AboutX;
}

template <typename T>
TVector<T> TRotator<T>::RotateVector(const TVector<T>& V) const
{
	return Quaternion().RotateVector(V);
}

template <typename T>
TVector<T> TRotator<T>::UnrotateVector(const TVector<T>& V) const
{
	return Quaternion().UnrotateVector(V);
}

template <typename T>
TRotator<T> TRotator<T>::GetInverse() const
{
	return Quaternion().Inverse().Rotator();
}

template <typename T>
TRotator<T> TVector<T>::Rotation() const
{
	return {FMath::RadiansToDegrees(FMath::Atan2(Z, FMath::Sqrt(X * X + Y * Y))),
		FMath::RadiansToDegrees(FMath::Atan2(Y, X)), T(0)};
}

template <typename T>
TQuat<T>::TQuat(const TRotator<T>& R)
{
	*this = R.Quaternion();
}

template <typename T>
TQuat<T>::TQuat(TVector<T> Axis, T AngleRad)
{
	T Sine, Cosine;
	FMath::SinCos(&Sine, &Cosine, AngleRad * T(0.5));
	*this = TQuat(Axis.X * Sine, Axis.Y * Sine, Axis.Z * Sine, Cosine);
}

template <typename T>
TQuat<T>::TQuat(const TMatrix<T>& Matrix)
{
	// Rows are images of the axes, so the element that is usually written m[c][r] is M[r][c] here.
	const auto& M = Matrix.M;
	const T Trace = M[0][0] + M[1][1] + M[2][2];
	if (Trace > T(0))
	{
		const T Root = FMath::Sqrt(Trace + T(1));
		const T Factor = T(0.5) / Root;
		*this = TQuat(
			(M[1][2] - M[2][1]) * Factor, (M[2][0] - M[0][2]) * Factor, (M[0][1] - M[1][0]) * Factor, T(0.5) * Root);
		return;
	}
	// The largest diagonal element keeps the divisor away from zero.
	int32 I = 0;
	if (M[1][1] > M[0][0])
	{
		I = 1;
	}
	if (M[2][2] > M[I][I])
	{
		I = 2;
	}
	const int32 J = (I + 1) % 3;
	const int32 K = (I + 2) % 3;
	const T Root = FMath::Sqrt(FMath::Max(M[I][I] - M[J][J] - M[K][K] + T(1), T(0)));
	if (Root <= T(UE_SMALL_NUMBER))
	{
		*this = TQuat(T(0), T(0), T(0), T(1));
		return;
	}
	const T Factor = T(0.5) / Root;
	T Components[3];
	Components[I] = T(0.5) * Root;
	Components[J] = (M[I][J] + M[J][I]) * Factor;
	Components[K] = (M[I][K] + M[K][I]) * Factor;
	*this = TQuat(Components[0], Components[1], Components[2], (M[J][K] - M[K][J]) * Factor);
}

template <typename T>
TRotator<T> TQuat<T>::Rotator() const
{
	// Half the sine of the pitch; past the limit roll and yaw turn about the same axis.
	constexpr T PoleLimit = T(0.4999995);
	const T HalfSine = Z * X - W * Y;
	const T Yaw = FMath::RadiansToDegrees(
		FMath::Atan2(T(2) * (W * Z + X * Y), T(1) - T(2) * (FMath::Square(Y) + FMath::Square(Z))));
	if (HalfSine < -PoleLimit)
	{
		const T Roll = TRotator<T>::NormalizeAxis(-Yaw - T(2) * FMath::RadiansToDegrees(FMath::Atan2(X, W)));
		return {T(-90), Yaw, Roll};
	}
	if (HalfSine > PoleLimit)
	{
		const T Roll = TRotator<T>::NormalizeAxis(Yaw - T(2) * FMath::RadiansToDegrees(FMath::Atan2(X, W)));
		return {T(90), Yaw, Roll};
	}
	const T Pitch = FMath::RadiansToDegrees(FMath::Asin(T(2) * HalfSine));
	// Subtracting from zero, as negating would write a roll of zero as -0.
	const T SineOfRoll = T(0) - T(2) * (W * X + Y * Z);
	const T CosineOfRoll = T(1) - T(2) * (FMath::Square(X) + FMath::Square(Y));
	const T Roll = FMath::RadiansToDegrees(FMath::Atan2(SineOfRoll, CosineOfRoll));
	return {Pitch, Yaw, Roll};
}

template <typename T>
TMatrix<T> TQuat<T>::ToMatrix() const
{
	return TMatrix<T>(GetAxisX(), GetAxisY(), GetAxisZ(), TVector<T>(T(0)));
}

template <typename T>
TQuat<T> TQuat<T>::Slerp(const TQuat& A, const TQuat& B, T Slerp)
{
	// Of the two ways around, the one whose dot product is positive is the shorter.
	const T RawCosine = A | B;
	const T Cosine = FMath::Abs(RawCosine);
	T ScaleA = T(1) - Slerp;
	T ScaleB = Slerp;
	// Nearly equal rotations: the sine below would vanish, and a straight line is as good.
	if (Cosine < T(0.9999))
	{
		const T Omega = FMath::Acos(Cosine);
		const T InverseSine = T(1) / FMath::Sin(Omega);
		ScaleA = FMath::Sin(ScaleA * Omega) * InverseSine;
		ScaleB = FMath::Sin(ScaleB * Omega) * InverseSine;
	}
	return (A * ScaleA + B * (RawCosine >= T(0) ? ScaleB : -ScaleB)).GetNormalized();
}

template <typename T>
TQuat<T> TQuat<T>::FindBetween(const TVector<T>& A, const TVector<T>& B)
{
	const T Lengths = FMath::Sqrt(A.SizeSquared() * B.SizeSquared());
	const T Real = Lengths + (A | B);
	// Opposite directions: any axis across A turns the one into the other.
	if (Real < T(1.e-6) * Lengths)
	{
		const TQuat HalfTurn =
			FMath::Abs(A.X) > FMath::Abs(A.Y) ? TQuat(-A.Z, T(0), A.X, T(0)) : TQuat(T(0), -A.Z, A.Y, T(0));
		return HalfTurn.GetNormalized();
	}
	const TVector<T> Axis = A ^ B;
	return TQuat(Axis.X, Axis.Y, Axis.Z, Real).GetNormalized();
}

#define INSTANTIATE_ROTATIONS(T)                                                                                       \
	template TRotator<T>::TRotator(const TQuat<T>&);                                                                   \
	template TVector<T> TRotator<T>::Vector() const;                                                                   \
	template TQuat<T> TRotator<T>::Quaternion() const;                                                                 \
	template TVector<T> TRotator<T>::RotateVector(const TVector<T>&) const;                                            \
	template TVector<T> TRotator<T>::UnrotateVector(const TVector<T>&) const;                                          \
	template TRotator<T> TRotator<T>::GetInverse() const;                                                              \
	template TRotator<T> TVector<T>::Rotation() const;                                                                 \
	template TQuat<T>::TQuat(const TRotator<T>&);                                                                      \
	template TQuat<T>::TQuat(TVector<T>, T);                                                                           \
	template TQuat<T>::TQuat(const TMatrix<T>&);                                                                       \
	template TRotator<T> TQuat<T>::Rotator() const;                                                                    \
	template TMatrix<T> TQuat<T>::ToMatrix() const;                                                                    \
	template TQuat<T> TQuat<T>::Slerp(const TQuat&, const TQuat&, T);                                                  \
	template TQuat<T> TQuat<T>::FindBetween(const TVector<T>&, const TVector<T>&);

INSTANTIATE_ROTATIONS(float)
INSTANTIATE_ROTATIONS(double)

} // namespace UE::Math
