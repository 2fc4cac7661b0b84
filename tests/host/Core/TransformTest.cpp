// SPDX-License-Identifier: MIT
#include "Math/Transform.h"
#include "fixtures/EnginePrinters.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace
{
/** Rounding of a chain of operations on numbers up to some hundreds. */
constexpr double Tolerance = 1e-9;

const FVector Samples[] = {FVector(0, 0, 0), FVector(1, 2, 3), FVector(-40, 5, 60)};

FTransform SampleA()
{
	return FTransform(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2, 2, 2));
}

FTransform SampleB()
{
	return FTransform(FRotator(-50, 70, 110), FVector(-7, 8, 9), FVector(0.5, 0.5, 0.5));
}
} // namespace

TEST(Transform, StartsAsTheIdentityInBothPrecisions)
{
	const FTransform3f Single;
	const FTransform Double;

	EXPECT_EQ(Single.GetRotation(), FQuat4f(0, 0, 0, 1));
	EXPECT_EQ(Single.GetTranslation(), FVector3f(0, 0, 0));
	EXPECT_EQ(Single.GetScale3D(), FVector3f(1, 1, 1));
	EXPECT_TRUE(Double.Equals(FTransform::Identity, 0.0));
}

TEST(Transform, PrecisionsConvertOnlyWhenWrittenOut)
{
	static_assert(!std::is_convertible_v<FTransform, FTransform3f> && !std::is_convertible_v<FTransform3f, FTransform>);
	static_assert(!std::is_convertible_v<FVector, FTransform> && !std::is_convertible_v<FQuat, FTransform>);

	const FTransform3f Single(FQuat4f(0, 0, 1, 0), FVector3f(1, 2, 3), FVector3f(4, 5, 6));
	EXPECT_TRUE(FTransform(Single).Equals(FTransform(FQuat(0, 0, 1, 0), FVector(1, 2, 3), FVector(4, 5, 6)), 0.0));
}

TEST(Transform, ScalesThenRotatesThenMoves)
{
	const FTransform T(FRotator(0, 90, 0), FVector(10, 0, 0), FVector(2, 3, 4));

	EXPECT_TRUE(T.TransformPosition(FVector(1, 0, 0)).Equals(FVector(10, 2, 0), Tolerance));
	EXPECT_TRUE(T.TransformVector(FVector(0, 1, 0)).Equals(FVector(-3, 0, 0), Tolerance));
	EXPECT_TRUE(T.TransformPositionNoScale(FVector(1, 0, 0)).Equals(FVector(10, 1, 0), Tolerance));
}

TEST(Transform, ProductAppliesTheLeftFactorFirst)
{
	const FTransform Product = SampleA() * SampleB();

	for (const FVector& P : Samples)
	{
		EXPECT_TRUE(Product.TransformPosition(P).Equals(
			SampleB().TransformPosition(SampleA().TransformPosition(P)), Tolerance));
	}
}

TEST(Transform, ProductOfMirroringTransformsMapsLikeItsFactors)
{
	const FTransform Mirror(FRotator(15, 25, 35), FVector(3, 2, 1), FVector(-2, 1, 1));
	const FTransform Product = Mirror * SampleB();

	for (const FVector& P : Samples)
	{
		EXPECT_TRUE(
			Product.TransformPosition(P).Equals(SampleB().TransformPosition(Mirror.TransformPosition(P)), Tolerance));
	}
	EXPECT_LT(Product.GetScale3D().X, 0.0);
}

TEST(Transform, InverseUndoesAndKeepsAZeroScaleZero)
{
	const FTransform Round = SampleA() * SampleA().Inverse();

	EXPECT_TRUE(Round.Equals(FTransform::Identity, Tolerance));
	EXPECT_EQ(
		FTransform(FQuat::Identity, FVector(0, 0, 0), FVector(2, 0, 4)).Inverse().GetScale3D(), FVector(0.5, 0, 0.25));
	for (const FVector& P : Samples)
	{
		EXPECT_TRUE(SampleA().InverseTransformPosition(SampleA().TransformPosition(P)).Equals(P, Tolerance));
	}
}

TEST(Transform, RelativeTransformTimesItsBaseIsTheTransform)
{
	const FTransform Relative = SampleA().GetRelativeTransform(SampleB());

	EXPECT_TRUE((Relative * SampleB()).Equals(SampleA(), Tolerance));
}

TEST(Transform, MatrixMapsLikeTheTransform)
{
	const FMatrix Matrix = SampleA().ToMatrixWithScale();

	for (const FVector& P : Samples)
	{
		EXPECT_TRUE(FVector(Matrix.TransformPosition(P)).Equals(SampleA().TransformPosition(P), Tolerance));
	}
	EXPECT_TRUE(FTransform(Matrix).Equals(SampleA(), Tolerance));
}

TEST(Transform, AMirroringMatrixGetsANegativeXScale)
{
	const FMatrix Mirror(FVector(0, 0, 2), FVector(0, 3, 0), FVector(4, 0, 0), FVector(5, 6, 7));
	ASSERT_LT(Mirror.Determinant(), 0.0);
	const FTransform T(Mirror);

	EXPECT_TRUE(T.GetScale3D().Equals(FVector(-2, 3, 4), Tolerance));
	EXPECT_TRUE(T.ToMatrixWithScale().Equals(Mirror, Tolerance));
}

TEST(Transform, BlendGoesHalfWayInAllThreeParts)
{
	FTransform Half;
	Half.Blend(FTransform(FRotator(0, 0, 0), FVector(0, 0, 0), FVector(1, 1, 1)),
		FTransform(FRotator(0, 90, 0), FVector(10, 0, 0), FVector(3, 1, 1)), 0.5);

	EXPECT_TRUE(Half.Equals(FTransform(FRotator(0, 45, 0), FVector(5, 0, 0), FVector(2, 1, 1)), Tolerance));
}

TEST(Transform, WritesTranslationAnglesAndScale)
{
	EXPECT_EQ(ToStdString(FTransform(FVector(1, 2, 3)).ToString()),
		"1.000000,2.000000,3.000000|0.000000,0.000000,0.000000|1.000000,1.000000,1.000000");
}

TEST(Matrix, KeepsTheTranslationInTheLastRow)
{
	const FMatrix M = FTransform(FVector(1, 2, 3)).ToMatrixWithScale();

	EXPECT_EQ(M.M[3][0], 1.0);
	EXPECT_EQ(M.M[3][2], 3.0);
	EXPECT_EQ(M.M[3][3], 1.0);
	EXPECT_EQ(M.GetOrigin(), FVector(1, 2, 3));
}

TEST(Matrix, ProductAppliesTheLeftFactorFirst)
{
	const FMatrix A = SampleA().ToMatrixWithScale();
	const FMatrix B = SampleB().ToMatrixWithScale();
	const FVector P(1, 2, 3);

	EXPECT_TRUE(FVector((A * B).TransformPosition(P))
					.Equals(FVector(B.TransformPosition(FVector(A.TransformPosition(P)))), Tolerance));
}

TEST(Matrix, InverseOfAnyRegularMatrixUndoesIt)
{
	FMatrix M(ForceInit);
	const double Rows[4][4] = {{1, 2, 0, 1}, {0, 3, 1, -1}, {2, -1, 4, 0}, {1, 0, 2, 5}};
	for (int32 Row = 0; Row < 4; ++Row)
	{
		for (int32 Column = 0; Column < 4; ++Column)
		{
			M.M[Row][Column] = Rows[Row][Column];
		}
	}

	EXPECT_TRUE((M * M.Inverse()).Equals(FMatrix::Identity, Tolerance));
	EXPECT_TRUE((M.Inverse() * M).Equals(FMatrix::Identity, Tolerance));
	EXPECT_NEAR(M.Determinant(), M.GetTransposed().Determinant(), Tolerance);
	EXPECT_NEAR(SampleA().ToMatrixWithScale().Determinant(), 8.0, Tolerance);
}

TEST(Matrix, AMatrixWithoutInverseGivesTheIdentity)
{
	EXPECT_EQ(FMatrix(ForceInit).Inverse(), FMatrix::Identity);
}

TEST(Matrix, ExtractScalingLeavesUnitAxes)
{
	FMatrix M = FTransform(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2, 3, 4)).ToMatrixWithScale();

	EXPECT_TRUE(M.ExtractScaling().Equals(FVector(2, 3, 4), Tolerance));
	EXPECT_TRUE(M.GetScaleVector().Equals(FVector(1, 1, 1), Tolerance));
	EXPECT_TRUE(M.Rotator().Equals(FRotator(10, 20, 30), Tolerance));
	EXPECT_EQ(M.GetOrigin(), FVector(1, 2, 3));
}
