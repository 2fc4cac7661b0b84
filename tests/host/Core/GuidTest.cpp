// SPDX-License-Identifier: MIT
#include "Misc/Guid.h"
#include "fixtures/CorePrinting.h"

#include <gtest/gtest.h>

TEST(Guid, IsNoneUntilMade)
{
	FGuid Guid;
	EXPECT_FALSE(Guid.IsValid());

	Guid = FGuid::NewGuid();
	EXPECT_TRUE(Guid.IsValid());

	Guid.Invalidate();
	EXPECT_EQ(Guid, FGuid(0, 0, 0, 0));
}

TEST(Guid, NewGuidsDifferAndAreOfVersionFour)
{
	const FGuid First = FGuid::NewGuid();
	const FGuid Second = FGuid::NewGuid();

	EXPECT_NE(First, Second);
	EXPECT_EQ(First.B >> 12 & 0xFu, 4u);
	EXPECT_EQ(First.C >> 30, 2u);
}

TEST(Guid, IsWrittenInThreeForms)
{
	const FGuid Guid(0x01234567, 0x89ABCDEF, 0x00112233, 0x44556677);

	EXPECT_TEXT_EQ(Guid.ToString(), "0123456789ABCDEF0011223344556677");
	EXPECT_TEXT_EQ(Guid.ToString(EGuidFormats::DigitsWithHyphens), "01234567-89AB-CDEF-0011-223344556677");
	EXPECT_TEXT_EQ(Guid.ToString(EGuidFormats::DigitsWithHyphensInBraces), "{01234567-89AB-CDEF-0011-223344556677}");
}

TEST(Guid, IsOrderedByItsFirstDifferingPart)
{
	EXPECT_LT(FGuid(1, 9, 9, 9), FGuid(2, 0, 0, 0));
	EXPECT_LT(FGuid(1, 1, 1, 1), FGuid(1, 1, 1, 2));
}
