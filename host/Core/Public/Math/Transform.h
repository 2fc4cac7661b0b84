// SPDX-License-Identifier: MIT
/** Scale, rotation and translation. */
#pragma once

#include "Math/MathFwd.h"
#include "Math/Matrix.h"
#include "Math/Quat.h"
#include "Math/Vector.h"

namespace UE::Math
{

/**
 * Maps a point by scaling, then rotating, then translating it. The product `A * B` applies A first and then B.
 * Precisions convert only when written out.
 */
template <typename T>
struct TTransform
{
	using FReal = T;

	static const TTransform Identity;

	/** The identity. */
	constexpr TTransform()
		: Rotation(T(0), T(0), T(0), T(1))
		, Translation(T(0))
		, Scale3D(T(1))
	{
	}
	explicit constexpr TTransform(const TVector<T>& InTranslation)
		: Rotation(T(0), T(0), T(0), T(1))
		, Translation(InTranslation)
		, Scale3D(T(1))
	{
	}
	explicit constexpr TTransform(const TQuat<T>& InRotation)
		: Rotation(InRotation)
		, Translation(T(0))
		, Scale3D(T(1))
	{
	}
	explicit TTransform(const TRotator<T>& InRotation)
		: TTransform(TQuat<T>(InRotation))
	{
	}
	constexpr TTransform(
		const TQuat<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(T(1)))
		: Rotation(InRotation)
		, Translation(InTranslation)
		, Scale3D(InScale3D)
	{
	}
	TTransform(
		const TRotator<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(T(1)))
		: TTransform(TQuat<T>(InRotation), InTranslation, InScale3D)
	{
	}
	/** Of an affine matrix without shear; a mirroring one gets a negative X scale. */
	explicit TTransform(const TMatrix<T>& InMatrix);
	template <typename FArg>
	requires(!std::is_same_v<T, FArg>) explicit constexpr TTransform(const TTransform<FArg>& From)
		: Rotation(From.GetRotation())
		, Translation(From.GetTranslation())
		, Scale3D(From.GetScale3D())
	{
	}

	constexpr TQuat<T> GetRotation() const { return Rotation; }
	constexpr TVector<T> GetTranslation() const { return Translation; }
	constexpr TVector<T> GetLocation() const { return Translation; }
	constexpr TVector<T> GetScale3D() const { return Scale3D; }
	TRotator<T> Rotator() const { return Rotation.Rotator(); }
	T GetMaximumAxisScale() const { return Scale3D.GetAbsMax(); }
	T GetMinimumAxisScale() const { return Scale3D.GetAbsMin(); }
	/** Direction of an axis after the rotation, without the scale. */
	TVector<T> GetUnitAxis(EAxis::Type Axis) const;

	void SetIdentity() { *this = TTransform(); }
	void SetRotation(const TQuat<T>& NewRotation) { Rotation = NewRotation; }
	void SetTranslation(const TVector<T>& NewTranslation) { Translation = NewTranslation; }
	void SetLocation(const TVector<T>& NewLocation) { Translation = NewLocation; }
	void SetScale3D(const TVector<T>& NewScale3D) { Scale3D = NewScale3D; }
	void SetTranslationAndScale3D(const TVector<T>& NewTranslation, const TVector<T>& NewScale3D)
	{
		Translation = NewTranslation;
		Scale3D = NewScale3D;
	}
	void SetComponents(const TQuat<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D)
	{
		*this = TTransform(InRotation, InTranslation, InScale3D);
	}
	void AddToTranslation(const TVector<T>& Delta) { Translation += Delta; }
	void ConcatenateRotation(const TQuat<T>& Delta) { Rotation = Rotation * Delta; }
	void NormalizeRotation() { Rotation.Normalize(); }
	bool IsRotationNormalized() const { return Rotation.IsNormalized(); }

	/** This first, then Other. A mirroring pair is multiplied as matrices, so that the handedness survives. */
	TTransform operator*(const TTransform& Other) const;
	TTransform& operator*=(const TTransform& Other) { return *this = *this * Other; }
	/** The map back. A zero scale component stays zero. */
	TTransform Inverse() const;
	/** This as seen from Other: the result times Other is this. */
	TTransform GetRelativeTransform(const TTransform& Other) const;

	constexpr TVector<T> TransformPosition(const TVector<T>& V) const
	{
		return Rotation.RotateVector(Scale3D * V) + Translation;
	}
	constexpr TVector<T> TransformPositionNoScale(const TVector<T>& V) const
	{
		return Rotation.RotateVector(V) + Translation;
	}
	constexpr TVector<T> TransformVector(const TVector<T>& V) const { return Rotation.RotateVector(Scale3D * V); }
	constexpr TVector<T> TransformVectorNoScale(const TVector<T>& V) const { return Rotation.RotateVector(V); }
	TVector<T> InverseTransformPosition(const TVector<T>& V) const
	{
		return Rotation.UnrotateVector(V - Translation) * GetSafeScaleReciprocal(Scale3D);
	}
	TVector<T> InverseTransformVector(const TVector<T>& V) const
	{
		return Rotation.UnrotateVector(V) * GetSafeScaleReciprocal(Scale3D);
	}
	constexpr TQuat<T> TransformRotation(const TQuat<T>& Q) const { return Rotation * Q; }

	TMatrix<T> ToMatrixWithScale() const;
	TMatrix<T> ToMatrixNoScale() const;
	TMatrix<T> ToInverseMatrixWithScale() const { return ToMatrixWithScale().Inverse(); }

	/** Whether rotation, translation and scale each agree within Tolerance. */
	bool Equals(const TTransform& Other, T Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return Rotation.Equals(Other.Rotation, Tolerance) && Translation.Equals(Other.Translation, Tolerance) &&
			   Scale3D.Equals(Other.Scale3D, Tolerance);
	}
	bool ContainsNaN() const { return Rotation.ContainsNaN() || Translation.ContainsNaN() || Scale3D.ContainsNaN(); }
	/** Whether everything is finite and the rotation has length 1. */
	bool IsValid() const { return !ContainsNaN() && Rotation.IsNormalized(); }

	/** Between A at Alpha 0 and B at Alpha 1, the rotation along the shortest way. */
	void Blend(const TTransform& A, const TTransform& B, T Alpha);

	/** Reciprocals, with 0 for components within Tolerance of 0. */
	static TVector<T> GetSafeScaleReciprocal(const TVector<T>& InScale, T Tolerance = UE_SMALL_NUMBER)
	{
		const auto Reciprocal = [Tolerance](T Value) { return FMath::Abs(Value) <= Tolerance ? T(0) : T(1) / Value; };
		return {Reciprocal(InScale.X), Reciprocal(InScale.Y), Reciprocal(InScale.Z)};
	}

	/** "X,Y,Z|Pitch,Yaw,Roll|SX,SY,SZ" with six decimals. */
	FString ToString() const;

private:
	TQuat<T> Rotation;
	TVector<T> Translation;
	TVector<T> Scale3D;
};

template <typename T>
constinit const TTransform<T> TTransform<T>::Identity{};

} // namespace UE::Math
