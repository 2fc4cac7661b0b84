// SPDX-License-Identifier: MIT
/** Matrix operations. */

#include "Math/Matrix.h"

namespace UE::Math
{

template <typename T>
TMatrix<T> TMatrix<T>::operator*(const TMatrix& Other) const
{
	TMatrix Result;
	for (int32 Row = 0; Row < 4; ++Row)
	{
		for (int32 Column = 0; Column < 4; ++Column)
		{
			Result.M[Row][Column] = M[Row][0] * Other.M[0][Column] + M[Row][1] * Other.M[1][Column] +
									M[Row][2] * Other.M[2][Column] + M[Row][3] * Other.M[3][Column];
		}
	}
	return Result;
}

template <typename T>
bool TMatrix<T>::operator==(const TMatrix& Other) const
{
	for (int32 Row = 0; Row < 4; ++Row)
	{
		for (int32 Column = 0; Column < 4; ++Column)
		{
			if (M[Row][Column] != Other.M[Row][Column])
			{
				return false;
			}
		}
	}
	return true;
}

template <typename T>
bool TMatrix<T>::Equals(const TMatrix& Other, T Tolerance) const
{
	for (int32 Row = 0; Row < 4; ++Row)
	{
		for (int32 Column = 0; Column < 4; ++Column)
		{
			if (!(FMath::Abs(M[Row][Column] - Other.M[Row][Column]) <= Tolerance))
			{
				return false;
			}
		}
	}
	return true;
}

template <typename T>
bool TMatrix<T>::ContainsNaN() const
{
	for (const auto& Row : M)
	{
		for (const T Element : Row)
		{
			if (!FMath::IsFinite(Element))
			{
				return true;
			}
		}
	}
	return false;
}

template <typename T>
TVector4<T> TMatrix<T>::TransformFVector4(const TVector4<T>& V) const
{
	T Out[4];
	for (int32 Column = 0; Column < 4; ++Column)
	{
		Out[Column] = V.X * M[0][Column] + V.Y * M[1][Column] + V.Z * M[2][Column] + V.W * M[3][Column];
	}
	return TVector4<T>(Out[0], Out[1], Out[2], Out[3]);
}

template <typename T>
TMatrix<T> TMatrix<T>::GetTransposed() const
{
	TMatrix Result;
	for (int32 Row = 0; Row < 4; ++Row)
	{
		for (int32 Column = 0; Column < 4; ++Column)
		{
			Result.M[Column][Row] = M[Row][Column];
		}
	}
	return Result;
}

namespace
{
/** The two by two determinants of rows 0 and 1 and of rows 2 and 3, over the column pairs 01, 02, 03, 12, 13, 23. */
template <typename T>
struct TMinors
{
	T Upper[6];
	T Lower[6];

	explicit TMinors(const T (&M)[4][4])
	{
		int32 Pair = 0;
		for (int32 First = 0; First < 3; ++First)
		{
			for (int32 Second = First + 1; Second < 4; ++Second, ++Pair)
			{
				Upper[Pair] = M[0][First] * M[1][Second] - M[0][Second] * M[1][First];
				Lower[Pair] = M[2][First] * M[3][Second] - M[2][Second] * M[3][First];
			}
		}
	}

	T Determinant() const
	{
		return Upper[0] * Lower[5] - Upper[1] * Lower[4] + Upper[2] * Lower[3] + Upper[3] * Lower[2] -
			   Upper[4] * Lower[1] + Upper[5] * Lower[0];
	}
};
} // namespace

template <typename T>
T TMatrix<T>::Determinant() const
{
	return TMinors<T>(M).Determinant();
}

template <typename T>
TMatrix<T> TMatrix<T>::Inverse() const
{
	// Laplace expansion by complementary minors.
	const TMinors<T> Minors(M);
	const T* const S = Minors.Upper;
	const T* const C = Minors.Lower;
	const T Det = Minors.Determinant();
	if (Det == T(0) || !FMath::IsFinite(Det))
	{
		return Identity;
	}
	const T F = T(1) / Det;
	TMatrix Result;
	Result.M[0][0] = (M[1][1] * C[5] - M[1][2] * C[4] + M[1][3] * C[3]) * F;
	Result.M[0][1] = (-M[0][1] * C[5] + M[0][2] * C[4] - M[0][3] * C[3]) * F;
	Result.M[0][2] = (M[3][1] * S[5] - M[3][2] * S[4] + M[3][3] * S[3]) * F;
	Result.M[0][3] = (-M[2][1] * S[5] + M[2][2] * S[4] - M[2][3] * S[3]) * F;
	Result.M[1][0] = (-M[1][0] * C[5] + M[1][2] * C[2] - M[1][3] * C[1]) * F;
	Result.M[1][1] = (M[0][0] * C[5] - M[0][2] * C[2] + M[0][3] * C[1]) * F;
	Result.M[1][2] = (-M[3][0] * S[5] + M[3][2] * S[2] - M[3][3] * S[1]) * F;
	Result.M[1][3] = (M[2][0] * S[5] - M[2][2] * S[2] + M[2][3] * S[1]) * F;
	Result.M[2][0] = (M[1][0] * C[4] - M[1][1] * C[2] + M[1][3] * C[0]) * F;
	Result.M[2][1] = (-M[0][0] * C[4] + M[0][1] * C[2] - M[0][3] * C[0]) * F;
	Result.M[2][2] = (M[3][0] * S[4] - M[3][1] * S[2] + M[3][3] * S[0]) * F;
	Result.M[2][3] = (-M[2][0] * S[4] + M[2][1] * S[2] - M[2][3] * S[0]) * F;
	Result.M[3][0] = (-M[1][0] * C[3] + M[1][1] * C[1] - M[1][2] * C[0]) * F;
	Result.M[3][1] = (M[0][0] * C[3] - M[0][1] * C[1] + M[0][2] * C[0]) * F;
	Result.M[3][2] = (-M[3][0] * S[3] + M[3][1] * S[1] - M[3][2] * S[0]) * F;
	Result.M[3][3] = (M[2][0] * S[3] - M[2][1] * S[1] + M[2][2] * S[0]) * F;
	return Result;
}

template <typename T>
void TMatrix<T>::SetOrigin(const TVector<T>& NewOrigin)
{
	SetAxis(3, NewOrigin);
}

template <typename T>
void TMatrix<T>::SetAxis(int32 Axis, const TVector<T>& V)
{
	check(Axis >= 0 && Axis <= 3);
	M[Axis][0] = V.X;
	M[Axis][1] = V.Y;
	M[Axis][2] = V.Z;
}

template <typename T>
TMatrix<T> TMatrix<T>::ConcatTranslation(const TVector<T>& Translation) const
{
	TMatrix Result(*this);
	Result.SetOrigin(GetOrigin() + Translation);
	return Result;
}

template <typename T>
TVector<T> TMatrix<T>::GetScaledAxis(EAxis::Type Axis) const
{
	if (Axis < EAxis::X || Axis > EAxis::Z)
	{
		return TVector<T>(T(0));
	}
	const T* const Row = M[Axis - EAxis::X];
	return {Row[0], Row[1], Row[2]};
}

template <typename T>
TVector<T> TMatrix<T>::GetScaleVector(T Tolerance) const
{
	TMatrix Copy(*this);
	return Copy.ExtractScaling(Tolerance);
}

template <typename T>
TVector<T> TMatrix<T>::ExtractScaling(T Tolerance)
{
	TVector<T> Lengths(T(0));
	for (int32 Axis = 0; Axis < 3; ++Axis)
	{
		const TVector<T> Row(M[Axis][0], M[Axis][1], M[Axis][2]);
		const T SquareSum = Row.SizeSquared();
		if (SquareSum > Tolerance)
		{
			Lengths[Axis] = FMath::Sqrt(SquareSum);
			SetAxis(Axis, Row * (T(1) / Lengths[Axis]));
		}
	}
	return Lengths;
}

template struct TMatrix<float>;
template struct TMatrix<double>;

} // namespace UE::Math
