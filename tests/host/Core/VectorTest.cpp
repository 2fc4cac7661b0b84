// SPDX-License-Identifier: MIT
#include "Math/IntPoint.h"
#include "Math/IntVector.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/EnginePrinters.h"

#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

TEST(Vector, PrecisionsConvertOnlyWhenWrittenOut)
{
	static_assert(!std::is_convertible_v<FVector, FVector3f> && !std::is_convertible_v<FVector3f, FVector>);
	static_assert(!std::is_convertible_v<FVector2D, FVector2f> && !std::is_convertible_v<FVector2f, FVector2D>);
	static_assert(!std::is_convertible_v<FVector4, FVector4f> && !std::is_convertible_v<FVector4f, FVector4>);
	static_assert(!std::is_convertible_v<double, FVector>);

	EXPECT_EQ(FVector(FVector3f(0.5f, -1.0f, 2.0f)), FVector(0.5, -1.0, 2.0));
	EXPECT_EQ(FVector3f(FVector(0.5, -1.0, 2.0)), FVector3f(0.5f, -1.0f, 2.0f));
	EXPECT_EQ(FVector4(FVector4f(1.0f, 2.0f, 3.0f, 4.0f)), FVector4(1.0, 2.0, 3.0, 4.0));
}

TEST(Vector, IsAsBigAsItsComponentsAndCopiesBitwise)
{
	static_assert(sizeof(FVector3f) == 12 && sizeof(FVector) == 24 && sizeof(FVector2f) == 8);
	static_assert(sizeof(FVector4f) == 16 && alignof(FVector4f) == 16);
	static_assert(std::is_trivially_copyable_v<FVector3f> && std::is_trivially_copyable_v<FVector4>);
}

TEST(Vector, CrossProductFollowsTheAxes)
{
	EXPECT_EQ(FVector(1, 0, 0) ^ FVector(0, 1, 0), FVector(0, 0, 1));
	EXPECT_EQ(FVector::CrossProduct(FVector(1, 2, 3), FVector(4, 5, 6)), FVector(-3, 6, -3));
	EXPECT_EQ(FVector(1, 2, 3) | FVector(4, 5, 6), 32.0);
}

TEST(Vector, ArithmeticTakesVectorsAndAnyScalar)
{
	EXPECT_EQ(FVector3f(1, 2, 3) * 2, FVector3f(2, 4, 6));
	EXPECT_EQ(2.0 * FVector3f(1, 2, 3), FVector3f(2, 4, 6));
	EXPECT_EQ(FVector(2, 4, 8) / 2, FVector(1, 2, 4));
	EXPECT_EQ(FVector(2, 4, 8) / FVector(2, 1, 4), FVector(1, 4, 2));
	EXPECT_EQ(-FVector(1, -2, 3), FVector(-1, 2, -3));
}

// The squared length decides: exactly 1, below 1e-8, or anything else.
TEST(Vector, SafeNormalKeepsUnitVectorsAndGivesZeroForShortOnes)
{
	const FVector3f Unit(0.6f, 0.8f, 0.0f);
	ASSERT_EQ(Unit.SizeSquared(), 1.0f);

	EXPECT_EQ(Unit.GetSafeNormal(), Unit);
	EXPECT_EQ(FVector3f(0.0f, 0.0f, 0.0f).GetSafeNormal(), FVector3f::ZeroVector);
	EXPECT_EQ(FVector3f(0.99e-4f, 0.0f, 0.0f).GetSafeNormal(), FVector3f::ZeroVector);
	EXPECT_NEAR(FVector3f(1.01e-4f, 0.0f, 0.0f).GetSafeNormal().X, 1.0f, 1e-6f);
	EXPECT_NEAR(FVector3f(0.0f, -3.0f, 4.0f).GetSafeNormal().Y, -0.6f, 1e-6f);
	EXPECT_EQ(FVector3f(0.0f, 0.0f, 0.0f).GetSafeNormal(UE_SMALL_NUMBER, FVector3f::UpVector), FVector3f(0, 0, 1));
}

TEST(Vector, NormalizeLeavesShortVectorsAlone)
{
	FVector Short(1e-5, 0, 0);
	FVector Long(0, 0, 5);

	EXPECT_FALSE(Short.Normalize());
	EXPECT_EQ(Short, FVector(1e-5, 0, 0));
	EXPECT_TRUE(Long.Normalize());
	EXPECT_NEAR(Long.Z, 1.0, 1e-12);
}

TEST(Vector, AnIndexOutsideIsAFault)
{
	FAssertionsThrow Assertions;
	FVector V(1, 2, 3);

	EXPECT_EQ(V[2], 3.0);
	V[0] = 7;
	EXPECT_EQ(V.X, 7.0);
	EXPECT_THROW(V[3], FAssertionFailure);
	EXPECT_THROW(V[-1], FAssertionFailure);
	EXPECT_THROW(FVector2D(1, 2)[2], FAssertionFailure);
	EXPECT_THROW(FVector4(1, 2, 3, 4)[4], FAssertionFailure);
}

TEST(Vector, ContainsNaNFindsInfinityToo)
{
	EXPECT_FALSE(FVector(1, 2, 3).ContainsNaN());
	EXPECT_TRUE(FVector(1, std::numeric_limits<double>::infinity(), 3).ContainsNaN());
	EXPECT_TRUE(FVector3f(1, 2, std::numeric_limits<float>::quiet_NaN()).ContainsNaN());
}

TEST(Vector, EqualsIncludesTheTolerance)
{
	EXPECT_TRUE(FVector(0, 0, 0).Equals(FVector(0.5, 0, -0.5), 0.5));
	EXPECT_FALSE(FVector(0, 0, 0).Equals(FVector(0.5, 0, -0.51), 0.5));
	EXPECT_TRUE(FVector(1e-5, 0, 0).IsNearlyZero());
	EXPECT_FALSE(FVector(1e-5, 0, 0).IsZero());
}

TEST(Vector, WritesThreeDecimals)
{
	EXPECT_EQ(ToStdString(FVector(1, -2.5, 0.0625).ToString()), "X=1.000 Y=-2.500 Z=0.062");
	EXPECT_EQ(ToStdString(FVector2D(1, 2).ToString()), "X=1.000 Y=2.000");
}

TEST(Vector4, DefaultsToTheOriginAndTakesPointsWithWOne)
{
	const FVector4f Default;
	const FVector4f OfPoint = FVector3f(1, 2, 3);

	EXPECT_EQ(Default.W, 1.0f);
	EXPECT_EQ(Default.X, 0.0f);
	EXPECT_EQ(OfPoint.W, 1.0f);
	EXPECT_EQ(FVector4f(FVector3f(1, 2, 3), 0.5f).W, 0.5f);
	EXPECT_EQ(FVector3f(FVector4f(1, 2, 3, 4)), FVector3f(1, 2, 3));
}

TEST(IntVector, CountsInThreeDirections)
{
	EXPECT_EQ((FIntVector(1, 2, 3) + FIntVector(1, 1, 1)), FIntVector(2, 3, 4));
	EXPECT_EQ(FIntVector(1, 2, 3)[1], 2);
	EXPECT_EQ(FVector(FIntVector(1, 2, 3)), FVector(1, 2, 3));
	EXPECT_EQ(FIntVector(FVector(1.9, -1.9, 0)), FIntVector(1, -1, 0));
	EXPECT_EQ(FIntPoint(3, 4) - FIntPoint(1, 1), FIntPoint(2, 3));
	EXPECT_EQ(FVector2D(FIntPoint(3, 4)), FVector2D(3, 4));
}
