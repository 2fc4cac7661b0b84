// SPDX-License-Identifier: MIT
#include "PackedNormal.h"

#include <cstring>
#include <gtest/gtest.h>

TEST(PackedNormal, RoundsEachComponentOf127ths)
{
	const FPackedNormal Packed(FVector3f(1.0f, -1.0f, 0.5f));

	EXPECT_EQ(Packed.X, 127);
	EXPECT_EQ(Packed.Y, -127);
	EXPECT_EQ(Packed.Z, 64);
	EXPECT_EQ(Packed.W, 127);
}

TEST(PackedNormal, LimitsWhatIsNoUnitVector)
{
	const FPackedNormal Packed(FVector4f(2.0f, -2.0f, 0.0f, -1.0f));

	EXPECT_EQ(Packed.X, 127);
	EXPECT_EQ(Packed.Y, -128);
	EXPECT_EQ(Packed.Z, 0);
	EXPECT_EQ(Packed.W, -127);
}

TEST(PackedNormal, LiesInMemoryAsXYZW)
{
	const FPackedNormal Packed(FVector(1.0, 0.0, -1.0));
	int8 Bytes[4];
	std::memcpy(Bytes, &Packed, sizeof(Bytes));

	EXPECT_EQ(Bytes[0], 127);
	EXPECT_EQ(Bytes[1], 0);
	EXPECT_EQ(Bytes[2], -127);
	EXPECT_EQ(Bytes[3], 127);
	EXPECT_EQ(Packed.Packed, 0x7F81007Fu);
}

TEST(PackedNormal, EveryEncodedComponentSurvives)
{
	for (int32 Component = -127; Component <= 127; ++Component)
	{
		FPackedNormal Packed;
		Packed.X = static_cast<int8>(Component);
		EXPECT_EQ(FPackedNormal(Packed.ToFVector3f()).X, Component);
		EXPECT_EQ(FPackedNormal(Packed.ToFVector()).X, Component);
	}
}

TEST(PackedNormal, WordsHaveTheirOwnScale)
{
	const FPackedRGBA16N Packed(FVector3f(1.0f, -0.5f, 0.0f));

	EXPECT_EQ(Packed.X, 32767);
	EXPECT_EQ(Packed.Y, -16383);
	EXPECT_EQ(Packed.W, 32767);
	EXPECT_EQ(FPackedRGBA16N(Packed.ToFVector4f()), Packed);
}
