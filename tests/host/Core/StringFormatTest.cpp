// SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

#include <limits>

TEST(StringFormat, PrintsEachConversion)
{
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%d %i %u"), -1, 2, 3u), TEXT("-1 2 3"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%x %X %o"), 255, 255, 8), TEXT("ff FF 10"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%f %g %e"), 1.5, 0.25f, 1000.0), TEXT("1.500000 0.25 1.000000e+03"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%s|%hs|%c|%%"), TEXT("wide"), "narrow", TCHAR('c')), TEXT("wide|narrow|c|%"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%lld %llu"), std::numeric_limits<int64>::min(), ~0ull),
		TEXT("-9223372036854775808 18446744073709551615"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("no arguments")), TEXT("no arguments"));
}

TEST(StringFormat, HonoursFlagsWidthAndPrecision)
{
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%05d|%-5d|%+d|% d"), 42, 42, 42, 42), TEXT("00042|42   |+42| 42"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%.2f|%8.3f|%-8.1f|"), 1.005, 3.14159, 2.0), TEXT("1.00|   3.142|2.0     |"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%*d|%.*f|%-*d|"), 4, 7, 1, 2.55, 3, 1), TEXT("   7|2.5|1  |"));
	EXPECT_TEXT_EQ(
		FString::Printf(TEXT("%6s|%-6s|%.2s"), TEXT("abc"), TEXT("abc"), TEXT("abc")), TEXT("   abc|abc   |ab"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%#x %08.3f"), 255, -1.5), TEXT("0xff -001.500"));
}

TEST(StringFormat, AnArgumentKeepsItsOwnWidth)
{
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%x"), -1), TEXT("ffffffff"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%x"), int8(-1)), TEXT("ff"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%d"), int64(5000000000)), TEXT("5000000000"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%u"), uint8(200)), TEXT("200"));
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%d"), true), TEXT("1"));
}

TEST(StringFormat, PrintsANullTextAndLongTexts)
{
	const TCHAR* Null = nullptr;
	EXPECT_TEXT_EQ(FString::Printf(TEXT("%s"), Null), TEXT("(null)"));
	const FString Long = FString::ChrN(5000, 'x');
	EXPECT_EQ(FString::Printf(TEXT("<%s>"), *Long).Len(), 5002);
	EXPECT_EQ(FString::Printf(TEXT("%.400f"), 0.0).Len(), 402);
}

TEST(StringFormat, ReportsMissingAndMistakenArguments)
{
	const FAssertionsThrow Assertions;

	EXPECT_THROW(FString::Printf(TEXT("%d %d"), 1), FAssertionFailure);
	EXPECT_THROW(FString::Printf(TEXT("%s"), 1), FAssertionFailure);
	EXPECT_THROW(FString::Printf(TEXT("%y"), 1), FAssertionFailure);
}

TEST(StringFormat, FormatPutsArgumentsByNumber)
{
	EXPECT_TEXT_EQ(
		FString::Format(TEXT("{0}/{1}.{1}"), {TEXT("/Game"), FString(TEXT("Shirt"))}), TEXT("/Game/Shirt.Shirt"));
	EXPECT_TEXT_EQ(FString::Format(TEXT("{1} {0} {2}"), {1, 2.5}), TEXT("2.5 1 {2}"));
	EXPECT_TEXT_EQ(FString::Format(TEXT("`{0} {a"), {1}), TEXT("{0} {a"));
}

TEST(StringFormat, FormatPutsArgumentsByName)
{
	FStringFormatNamedArguments Arguments;
	Arguments.Add(TEXT("Name"), TEXT("Shirt"));
	Arguments.Add(TEXT("Count"), 3);

	EXPECT_TEXT_EQ(FString::Format(TEXT("{Name}: {count} {Other}"), Arguments), TEXT("Shirt: 3 {Other}"));
}

TEST(StringFormat, SanitizeFloatDropsNeedlessZeros)
{
	EXPECT_TEXT_EQ(FString::SanitizeFloat(1.0), TEXT("1.0"));
	EXPECT_TEXT_EQ(FString::SanitizeFloat(1.25), TEXT("1.25"));
	EXPECT_TEXT_EQ(FString::SanitizeFloat(1.0, 0), TEXT("1"));
	EXPECT_TEXT_EQ(FString::SanitizeFloat(100.0, 0), TEXT("100"));
	EXPECT_TEXT_EQ(FString::SanitizeFloat(-0.0), TEXT("0.0"));
	EXPECT_TEXT_EQ(FString::SanitizeFloat(0.5, 3), TEXT("0.500"));
	EXPECT_TEXT_EQ(FString::SanitizeFloat(0.123456789), TEXT("0.123457"));
}

TEST(StringFormat, FormatsWholeNumbers)
{
	EXPECT_TEXT_EQ(FString::FromInt(-2147483647 - 1), TEXT("-2147483648"));
	EXPECT_TEXT_EQ(FString::FormatAsNumber(1234567), TEXT("1,234,567"));
	EXPECT_TEXT_EQ(FString::FormatAsNumber(-123), TEXT("-123"));
	EXPECT_TEXT_EQ(LexToString(true), TEXT("true"));
}
