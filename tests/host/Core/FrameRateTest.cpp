// SPDX-License-Identifier: MIT
#include "Misc/FrameRate.h"

#include <gtest/gtest.h>

TEST(FrameRate, DefaultsToSixtyThousandFramesPerSecond)
{
	EXPECT_EQ(FFrameRate().Numerator, 60000);
	EXPECT_EQ(FFrameRate().Denominator, 1);
}

TEST(FrameRate, ConvertsBetweenFramesAndSeconds)
{
	const FFrameRate Ntsc(30000, 1001);

	EXPECT_EQ(Ntsc.AsDecimal(), 30000.0 / 1001.0);
	EXPECT_EQ(Ntsc.AsInterval(), 1001.0 / 30000.0);
	EXPECT_EQ(FFrameRate(30, 1).AsSeconds(FFrameTime(45)), 1.5);
	EXPECT_EQ(FFrameRate(30, 1).AsFrameTime(1.55).GetFrame().Value, 46);
	EXPECT_NEAR(FFrameRate(30, 1).AsFrameTime(1.55).GetSubFrame(), 0.5f, 1e-5f);
	EXPECT_EQ(FFrameRate(30, 1).AsFrameNumber(1.0).Value, 30);
	EXPECT_TRUE(Ntsc.Reciprocal() == FFrameRate(1001, 30000));
}

TEST(FrameRate, IsValidWithAPositiveDenominator)
{
	EXPECT_TRUE(FFrameRate(30, 1).IsValid());
	EXPECT_FALSE(FFrameRate(30, 0).IsValid());
}

TEST(FrameTime, CountsDownwardsBelowZero)
{
	const FFrameTime Time = FFrameTime::FromDecimal(-1.25);

	EXPECT_EQ(Time.GetFrame().Value, -2);
	EXPECT_EQ(Time.GetSubFrame(), 0.75f);
	EXPECT_EQ(Time.AsDecimal(), -1.25);
	EXPECT_EQ(Time.CeilToFrame().Value, -1);
	EXPECT_EQ(Time.RoundToFrame().Value, -1);
}

TEST(FrameTime, KeepsTheSubFrameBelowOne)
{
	EXPECT_LT(FFrameTime(FFrameNumber(3), 1.0f).GetSubFrame(), 1.0f);
	EXPECT_EQ(FFrameTime(FFrameNumber(3), -1.0f).GetSubFrame(), 0.0f);
}

TEST(FrameNumber, CalculatesLikeAnInteger)
{
	FFrameNumber Number = 5;
	++Number;

	EXPECT_EQ((Number + 2).Value, 8);
	EXPECT_EQ((Number - FFrameNumber(10)).Value, -4);
	EXPECT_TRUE(Number < FFrameNumber(7));
}
