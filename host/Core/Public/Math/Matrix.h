// SPDX-License-Identifier: MIT
/** Four by four matrix. */
#pragma once

#include "Math/Axis.h"
#include "Math/MathFwd.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector4.h"

namespace UE::Math
{

/**
 * An affine or projective map of row vectors: a point is multiplied from the left, the translation is row 3, and the
 * product `A * B` applies A first. `M[Row][Column]`.
 */
template <typename T>
struct alignas(16) TMatrix
{
	using FReal = T;

	T M[4][4];

	/** Leaves the elements uninitialised. */
	TMatrix() = default;
	/** Zero. */
	explicit constexpr TMatrix(EForceInit)
		: M{}
	{
	}
	/** From the images of the three axes and of the origin. */
	constexpr TMatrix(const TVector<T>& InX, const TVector<T>& InY, const TVector<T>& InZ, const TVector<T>& InW)
		: M{{InX.X, InX.Y, InX.Z, T(0)}, {InY.X, InY.Y, InY.Z, T(0)}, {InZ.X, InZ.Y, InZ.Z, T(0)},
			  {InW.X, InW.Y, InW.Z, T(1)}}
	{
	}
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TMatrix(const TMatrix<FArg>& From)
		: M{}
	{
		for (int32 Row = 0; Row < 4; ++Row)
		{
			for (int32 Column = 0; Column < 4; ++Column)
			{
				M[Row][Column] = static_cast<T>(From.M[Row][Column]);
			}
		}
	}

	static const TMatrix Identity;

	void SetIdentity() { *this = Identity; }

	TMatrix operator*(const TMatrix& Other) const;
	TMatrix& operator*=(const TMatrix& Other) { return *this = *this * Other; }
	bool operator==(const TMatrix& Other) const;
	/** Whether no element differs by more than Tolerance. */
	bool Equals(const TMatrix& Other, T Tolerance = UE_KINDA_SMALL_NUMBER) const;
	bool ContainsNaN() const;

	TVector4<T> TransformFVector4(const TVector4<T>& V) const;
	TVector4<T> TransformPosition(const TVector<T>& V) const { return TransformFVector4(TVector4<T>(V, T(1))); }
	/** Without the translation. */
	TVector4<T> TransformVector(const TVector<T>& V) const { return TransformFVector4(TVector4<T>(V, T(0))); }
	TVector<T> InverseTransformPosition(const TVector<T>& V) const { return Inverse().TransformPosition(V); }
	TVector<T> InverseTransformVector(const TVector<T>& V) const { return Inverse().TransformVector(V); }

	TMatrix GetTransposed() const;
	T Determinant() const;
	/** The identity when there is no inverse. */
	TMatrix Inverse() const;

	TVector<T> GetOrigin() const { return {M[3][0], M[3][1], M[3][2]}; }
	void SetOrigin(const TVector<T>& NewOrigin);
	TMatrix ConcatTranslation(const TVector<T>& Translation) const;
	/** Image of an axis, not normalised; zero for EAxis::None. */
	TVector<T> GetScaledAxis(EAxis::Type Axis) const;
	TVector<T> GetUnitAxis(EAxis::Type Axis) const { return GetScaledAxis(Axis).GetSafeNormal(); }
	void SetAxis(int32 Axis, const TVector<T>& V);
	/** Lengths of the three axes; an axis whose squared length is below Tolerance has length 0. */
	TVector<T> GetScaleVector(T Tolerance = UE_SMALL_NUMBER) const;
	/** Makes the axes unit vectors and leaves those below Tolerance alone. @return the lengths taken out */
	TVector<T> ExtractScaling(T Tolerance = UE_SMALL_NUMBER);
	void RemoveScaling(T Tolerance = UE_SMALL_NUMBER) { ExtractScaling(Tolerance); }
	T GetMaximumAxisScale() const { return GetScaleVector().GetMax(); }

	/** Rotation of a matrix without scale. */
	TRotator<T> Rotator() const { return ToQuat().Rotator(); }
	TQuat<T> ToQuat() const { return TQuat<T>(*this); }

	/** "[1 0 0 0] [0 1 0 0] [0 0 1 0] [0 0 0 1] " */
	FString ToString() const;
};

template <typename T>
constinit const TMatrix<T> TMatrix<T>::Identity(TVector<T>(T(1), T(0), T(0)), TVector<T>(T(0), T(1), T(0)),
	TVector<T>(T(0), T(0), T(1)), TVector<T>(T(0), T(0), T(0)));

} // namespace UE::Math
