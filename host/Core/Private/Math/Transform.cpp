// SPDX-License-Identifier: MIT
/** Transforms, and boxes and bounds under them. */

#include "Math/Transform.h"
#include "Math/BoxSphereBounds.h"

namespace UE::Math
{

namespace
{
/** Rotation and translation of an affine matrix whose scale is known up to what the matrix itself says of its size. */
template <typename T>
TTransform<T> WithScale(TMatrix<T> Matrix, const TVector<T>& Scale)
{
	Matrix.RemoveScaling();
	for (int32 Axis = 0; Axis < 3; ++Axis)
	{
		if (Scale[Axis] < T(0))
		{
			Matrix.SetAxis(Axis, -Matrix.GetScaledAxis(static_cast<EAxis::Type>(EAxis::X + Axis)));
		}
	}
	return TTransform<T>(TQuat<T>(Matrix).GetNormalized(), Matrix.GetOrigin(), Scale);
}
} // namespace

template <typename T>
TTransform<T>::TTransform(const TMatrix<T>& InMatrix)
{
	TVector<T> Scale = InMatrix.GetScaleVector();
	if (InMatrix.Determinant() < T(0))
	{
		Scale.X = -Scale.X;
	}
	*this = WithScale(InMatrix, Scale);
}

template <typename T>
TVector<T> TTransform<T>::GetUnitAxis(EAxis::Type Axis) const
{
	switch (Axis)
	{
		case EAxis::X:
			return Rotation.GetAxisX();
		case EAxis::Y:
			return Rotation.GetAxisY();
		case EAxis::Z:
			return Rotation.GetAxisZ();
		default:
			return TVector<T>(T(0));
	}
}

template <typename T>
TTransform<T> TTransform<T>::operator*(const TTransform& Other) const
{
	if (Scale3D.GetMin() < T(0) || Other.Scale3D.GetMin() < T(0))
	{
		return WithScale(ToMatrixWithScale() * Other.ToMatrixWithScale(), Scale3D * Other.Scale3D);
	}
	return TTransform(Other.Rotation * Rotation, Other.TransformPosition(Translation), Scale3D * Other.Scale3D);
}

template <typename T>
TTransform<T> TTransform<T>::Inverse() const
{
	const TQuat<T> BackRotation = Rotation.Inverse();
	const TVector<T> BackScale = GetSafeScaleReciprocal(Scale3D);
	return TTransform(BackRotation, BackRotation.RotateVector(BackScale * -Translation), BackScale);
}

template <typename T>
TTransform<T> TTransform<T>::GetRelativeTransform(const TTransform& Other) const
{
	const TVector<T> OtherBack = GetSafeScaleReciprocal(Other.Scale3D);
	if (Scale3D.GetMin() < T(0) || Other.Scale3D.GetMin() < T(0))
	{
		return WithScale(ToMatrixWithScale() * Other.ToInverseMatrixWithScale(), Scale3D * OtherBack);
	}
	return TTransform(
		Other.Rotation.Inverse() * Rotation, Other.InverseTransformPosition(Translation), Scale3D * OtherBack);
}

template <typename T>
TMatrix<T> TTransform<T>::ToMatrixWithScale() const
{
	return TMatrix<T>(
		Rotation.GetAxisX() * Scale3D.X, Rotation.GetAxisY() * Scale3D.Y, Rotation.GetAxisZ() * Scale3D.Z, Translation);
}

template <typename T>
TMatrix<T> TTransform<T>::ToMatrixNoScale() const
{
	return TMatrix<T>(Rotation.GetAxisX(), Rotation.GetAxisY(), Rotation.GetAxisZ(), Translation);
}

template <typename T>
void TTransform<T>::Blend(const TTransform& A, const TTransform& B, T Alpha)
{
	*this = TTransform(TQuat<T>::Slerp(A.Rotation, B.Rotation, Alpha), FMath::Lerp(A.Translation, B.Translation, Alpha),
		FMath::Lerp(A.Scale3D, B.Scale3D, Alpha));
}

template struct TTransform<float>;
template struct TTransform<double>;

namespace
{
/** Half size along the axes of a mapped box of the half size Extent. */
template <typename T>
TVector<T> MapExtent(const TMatrix<T>& M, const TVector<T>& Extent)
{
	return M.GetScaledAxis(EAxis::X).GetAbs() * Extent.X + M.GetScaledAxis(EAxis::Y).GetAbs() * Extent.Y +
		   M.GetScaledAxis(EAxis::Z).GetAbs() * Extent.Z;
}
} // namespace

template <typename T>
TBox<T> TBox<T>::TransformBy(const TMatrix<T>& M) const
{
	if (!IsValid)
	{
		return TBox(ForceInit);
	}
	TVector<T> Center, Extent;
	GetCenterAndExtents(Center, Extent);
	return BuildAABB(TVector<T>(M.TransformPosition(Center)), MapExtent(M, Extent));
}

template <typename T>
TBox<T> TBox<T>::TransformBy(const TTransform<T>& M) const
{
	return TransformBy(M.ToMatrixWithScale());
}

template <typename T, typename TExtent>
TBoxSphereBounds<T, TExtent> TBoxSphereBounds<T, TExtent>::TransformBy(const TMatrix<T>& M) const
{
	const TVector<TExtent> Extent(MapExtent(M, TVector<T>(BoxExtent)));
	const TExtent Radius = SphereRadius * static_cast<TExtent>(M.GetMaximumAxisScale());
	return TBoxSphereBounds(TVector<T>(M.TransformPosition(Origin)), Extent, FMath::Min(Radius, Extent.Size()));
}

template <typename T, typename TExtent>
TBoxSphereBounds<T, TExtent> TBoxSphereBounds<T, TExtent>::TransformBy(const TTransform<T>& M) const
{
	return TransformBy(M.ToMatrixWithScale());
}

#define INSTANTIATE_BOUNDS(T)                                                                                          \
	template TBox<T> TBox<T>::TransformBy(const TMatrix<T>&) const;                                                    \
	template TBox<T> TBox<T>::TransformBy(const TTransform<T>&) const;                                                 \
	template TBoxSphereBounds<T, T> TBoxSphereBounds<T, T>::TransformBy(const TMatrix<T>&) const;                      \
	template TBoxSphereBounds<T, T> TBoxSphereBounds<T, T>::TransformBy(const TTransform<T>&) const;

INSTANTIATE_BOUNDS(float)
INSTANTIATE_BOUNDS(double)

} // namespace UE::Math
