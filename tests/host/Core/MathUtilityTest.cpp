// SPDX-License-Identifier: MIT
#include "Math/NumericLimits.h"
#include "Math/UnrealMathUtility.h"

#include <cstring>
#include <gtest/gtest.h>
#include <type_traits>

TEST(MathUtility, SmallNumberHasTheBitsOfTheFloatNearestToOneHundredMillionth)
{
	const float Small = UE_SMALL_NUMBER;
	uint32 Bits;
	std::memcpy(&Bits, &Small, sizeof(Bits));

	EXPECT_EQ(Bits, 0x322BCC77u);
	EXPECT_EQ(SMALL_NUMBER, UE_SMALL_NUMBER);
	EXPECT_EQ(UE_KINDA_SMALL_NUMBER, 1.e-4f);
}

TEST(MathUtility, RoundToIntOfAFloatRoundsHalvesUp)
{
	const struct
	{
		float In;
		int32 Out;
	} Rows[] = {{0.0f, 0}, {0.5f, 1}, {0.49f, 0}, {1.5f, 2}, {2.5f, 3}, {63.5f, 64}, {127.0f, 127}, {-0.5f, 0},
		{-0.51f, -1}, {-1.5f, -1}, {-2.5f, -2}, {-127.0f, -127}, {-127.6f, -128}};
	for (const auto& Row : Rows)
	{
		EXPECT_EQ(FMath::RoundToInt(Row.In), Row.Out) << Row.In;
	}
}

TEST(MathUtility, RoundingOfDoublesGivesLongIntegers)
{
	static_assert(std::is_same_v<decltype(FMath::RoundToInt(1.0)), int64>);
	static_assert(std::is_same_v<decltype(FMath::FloorToInt(1.0f)), int32>);

	EXPECT_EQ(FMath::RoundToInt(5.0e9 + 0.5), 5000000001ll);
	EXPECT_EQ(FMath::FloorToInt(-1.5), -2);
	EXPECT_EQ(FMath::CeilToInt(-1.5f), -1);
	EXPECT_EQ(FMath::TruncToInt(-1.5f), -1);
	EXPECT_EQ(FMath::RoundToFloat(-0.5f), 0.0f);
}

TEST(MathUtility, ClampMeetsInTheCommonTypeAndPrefersTheLowerEndOfAnEmptyRange)
{
	static_assert(std::is_same_v<decltype(FMath::Clamp(1.0f, 0, 2.0)), double>);

	EXPECT_EQ(FMath::Clamp(5, 0, 3), 3);
	EXPECT_EQ(FMath::Clamp(-5, 0, 3), 0);
	EXPECT_EQ(FMath::Clamp(2, 0, 3), 2);
	EXPECT_EQ(FMath::Clamp(2, 7, 3), 7);
	EXPECT_EQ(FMath::Max(1, 2.5), 2.5);
	EXPECT_EQ(FMath::Min3(3, 1, 2), 1);
	EXPECT_EQ(FMath::Max3(3, 1, 2), 3);
}

TEST(MathUtility, PowersOfTwoAreRecognisedAndRoundedTo)
{
	EXPECT_TRUE(FMath::IsPowerOfTwo(1));
	EXPECT_TRUE(FMath::IsPowerOfTwo(4096));
	EXPECT_FALSE(FMath::IsPowerOfTwo(4095));
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(0), 1u);
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(1), 1u);
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(5), 8u);
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(0x80000000u), 0x80000000u);
	EXPECT_EQ(FMath::FloorLog2(4095), 11u);
	EXPECT_EQ(FMath::CeilLogTwo(4097), 13u);
	EXPECT_EQ(FMath::DivideAndRoundUp(7, 3), 3);
}

TEST(MathUtility, AnglesConvertAndUnwind)
{
	EXPECT_NEAR(FMath::RadiansToDegrees(FMath::Atan2(1.0, 0.0)), 90.0, 1e-12);
	EXPECT_NEAR(FMath::DegreesToRadians(180.0f), UE_PI, 1e-6f);
	EXPECT_EQ(FMath::UnwindDegrees(370.0), 10.0);
	EXPECT_EQ(FMath::UnwindDegrees(-190.0), 170.0);
	EXPECT_EQ(FMath::Acos(1.0000001f), 0.0f);
}

TEST(MathUtility, InterpolationReachesBothEnds)
{
	EXPECT_EQ(FMath::Lerp(2.0f, 6.0f, 0.25f), 3.0f);
	EXPECT_EQ(FMath::SmoothStep(0.0f, 2.0f, -1.0f), 0.0f);
	EXPECT_EQ(FMath::SmoothStep(0.0f, 2.0f, 1.0f), 0.5f);
	EXPECT_EQ(FMath::SmoothStep(0.0f, 2.0f, 2.0f), 1.0f);
	EXPECT_EQ(FMath::GridSnap(17.0, 5.0), 15.0);
	EXPECT_EQ(FMath::GridSnap(17.0, 0.0), 17.0);
}

TEST(MathUtility, NearlyEqualIncludesTheTolerance)
{
	EXPECT_TRUE(FMath::IsNearlyEqual(1.0f, 1.5f, 0.5f));
	EXPECT_FALSE(FMath::IsNearlyEqual(1.0f, 1.5f, 0.25f));
	EXPECT_TRUE(FMath::IsNearlyZero(-1.e-9));
}

TEST(MathUtility, NumericLimitsAgreeWithTheMacros)
{
	EXPECT_EQ(TNumericLimits<uint16>::Max(), 65535);
	EXPECT_EQ(MAX_uint16, 65535);
	EXPECT_EQ(MIN_int32, -2147483647 - 1);
	EXPECT_EQ(TNumericLimits<float>::Lowest(), -MAX_flt);
}
