// SPDX-License-Identifier: MIT
#include "Math/Color.h"
#include "fixtures/EnginePrinters.h"

#include <cstring>
#include <gtest/gtest.h>
#include <limits>

TEST(Color, LiesInMemoryAsBlueGreenRedAlpha)
{
	const FColor Color(1, 2, 3, 4);
	uint8 Bytes[4];
	std::memcpy(Bytes, &Color, sizeof(Bytes));

	EXPECT_EQ(Bytes[0], 3);
	EXPECT_EQ(Bytes[1], 2);
	EXPECT_EQ(Bytes[2], 1);
	EXPECT_EQ(Bytes[3], 4);
	EXPECT_EQ(Color.DWColor(), 0x04010203u);
	EXPECT_EQ(FColor(0x04010203u), Color);
}

TEST(Color, BlackIsOpaque)
{
	EXPECT_EQ(FColor::Black.DWColor(), 0xFF000000u);
	EXPECT_EQ(FColor::White.DWColor(), 0xFFFFFFFFu);
	EXPECT_EQ(FColor(10, 20, 30).A, 255);
}

TEST(Color, ScalingALinearColorScalesItsAlphaToo)
{
	EXPECT_EQ(FLinearColor::Gray * 0.5f, FLinearColor(0.25f, 0.25f, 0.25f, 0.5f));
	EXPECT_EQ(FLinearColor::Transparent, FLinearColor(0, 0, 0, 0));
}

TEST(Color, EveryByteSurvivesTheWayThroughLinearLight)
{
	for (int32 Byte = 0; Byte < 256; ++Byte)
	{
		const uint8 Value = static_cast<uint8>(Byte);
		const FColor Color(Value, Value, Value, Value);
		EXPECT_EQ(FLinearColor(Color).ToFColor(true), Color) << Byte;
		EXPECT_EQ(Color.ReinterpretAsLinear().ToFColor(false), Color) << Byte;
	}
}

TEST(Color, SRGBCurveBendsColorsAndNotAlpha)
{
	const FLinearColor Linear(FColor(188, 0, 255, 128));

	EXPECT_NEAR(Linear.R, 0.5029f, 1e-4f);
	EXPECT_EQ(Linear.G, 0.0f);
	EXPECT_EQ(Linear.B, 1.0f);
	EXPECT_NEAR(Linear.A, 128.0f / 255.0f, 1e-7f);
}

TEST(Color, BytesAreLimited)
{
	EXPECT_EQ(FLinearColor(2.0f, -1.0f, 0.5f, 1.0f).ToFColor(false), FColor(255, 0, 128, 255));
	EXPECT_EQ(FLinearColor(std::numeric_limits<float>::quiet_NaN(), 0, 0, 1).ToFColor(true), FColor(0, 0, 0, 255));
}

TEST(Color, ConvertsFromVectors)
{
	EXPECT_EQ(FLinearColor(FVector4f(1, 2, 3, 4)), FLinearColor(1, 2, 3, 4));
	EXPECT_EQ(FLinearColor(FVector3f(1, 2, 3)), FLinearColor(1, 2, 3, 1));
	EXPECT_EQ(FVector4f(FLinearColor(1, 2, 3, 4)), FVector4f(1, 2, 3, 4));
}

TEST(Color, WritesItself)
{
	EXPECT_EQ(ToStdString(FColor(255, 128, 0).ToHex()), "FF8000FF");
	EXPECT_EQ(ToStdString(FColor(255, 128, 0).ToString()), "(R=255,G=128,B=0,A=255)");
}
