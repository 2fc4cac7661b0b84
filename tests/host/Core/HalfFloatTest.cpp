// SPDX-License-Identifier: MIT
#include "Math/Float16.h"
#include "Math/Vector2DHalf.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace
{
uint16 Encode(float Value)
{
	return FFloat16(Value).Encoded;
}
} // namespace

TEST(HalfFloat, EncodesAsIEEE754)
{
	EXPECT_EQ(Encode(0.0f), 0x0000);
	EXPECT_EQ(Encode(-0.0f), 0x8000);
	EXPECT_EQ(Encode(1.0f), 0x3C00);
	EXPECT_EQ(Encode(-2.0f), 0xC000);
	EXPECT_EQ(Encode(0.333251953125f), 0x3555);
	EXPECT_EQ(Encode(65504.0f), 0x7BFF);
	EXPECT_EQ(Encode(0x1p-14f), 0x0400);
	EXPECT_EQ(Encode(0x1p-24f), 0x0001);
}

TEST(HalfFloat, RoundsToTheNearestAndTiesToEven)
{
	EXPECT_EQ(Encode(1.0f + 0x1p-11f), 0x3C00);
	EXPECT_EQ(Encode(1.0f + 0x3p-11f), 0x3C02);
	EXPECT_EQ(Encode(1.0f + 0x1p-11f + 0x1p-20f), 0x3C01);
	EXPECT_EQ(Encode(2047.5f), Encode(2048.0f));
	EXPECT_EQ(Encode(0x1p-25f), 0x0000);
	EXPECT_EQ(Encode(std::nextafter(0x1p-25f, 1.0f)), 0x0001);
	EXPECT_EQ(Encode(0x1p-26f), 0x0000);
}

TEST(HalfFloat, BecomesInfiniteBeyondItsRange)
{
	EXPECT_EQ(Encode(65519.996f), 0x7BFF);
	EXPECT_EQ(Encode(65520.0f), 0x7C00);
	EXPECT_EQ(Encode(-1.0e30f), 0xFC00);
	EXPECT_EQ(Encode(std::numeric_limits<float>::infinity()), 0x7C00);
	EXPECT_TRUE(std::isnan(FFloat16(std::numeric_limits<float>::quiet_NaN()).GetFloat()));
}

TEST(HalfFloat, EveryNumberSurvivesTheWayThroughAFloat)
{
	for (uint32 Bits = 0; Bits < 0x10000u; ++Bits)
	{
		FFloat16 Half;
		Half.Encoded = static_cast<uint16>(Bits);
		const float Value = Half.GetFloat();
		if (std::isnan(Value))
		{
			EXPECT_EQ(Bits & 0x7C00u, 0x7C00u);
			EXPECT_TRUE(std::isnan(FFloat16(Value).GetFloat()));
		}
		else
		{
			EXPECT_EQ(FFloat16(Value).Encoded, Bits);
		}
	}
}

TEST(HalfFloat, PairsConvertToTextureCoordinates)
{
	const FVector2DHalf Half(FVector2f(0.5f, -1.5f));

	EXPECT_EQ(FVector2f(Half), FVector2f(0.5f, -1.5f));
	EXPECT_EQ(sizeof(FVector2DHalf), 4u);
}
