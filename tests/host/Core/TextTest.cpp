// SPDX-License-Identifier: MIT
#include "Host/TextInspection.h"
#include "Internationalization/Internationalization.h"
#include "fixtures/CorePrinting.h"

#include <limits>

#define LOCTEXT_NAMESPACE "TextTest"

TEST(Text, KnowsItsNamespaceAndKey)
{
	const FText Text = LOCTEXT("Greeting", "Hello");

	EXPECT_TEXT_EQ(Text.ToString(), TEXT("Hello"));
	EXPECT_TEXT_EQ(Host::TextNamespace(Text), TEXT("TextTest"));
	EXPECT_TEXT_EQ(Host::TextKey(Text), TEXT("Greeting"));
	EXPECT_FALSE(FTextInspector::GetKey(FText::FromString(TEXT("Hello"))).IsSet());
	EXPECT_FALSE(FTextInspector::GetNamespace(FText()).IsSet());
}

TEST(Text, FormatPutsArgumentsInTheOrderOfTheirNumbers)
{
	const FText Name = FText::FromString(TEXT("Shirt"));

	EXPECT_TEXT_EQ(
		FText::Format(NSLOCTEXT("ZEFTandemEditor", "{0}", "{1} saved as {0}"), Name, FText::FromString(TEXT("Title")))
			.ToString(),
		TEXT("Title saved as Shirt"));
	EXPECT_TEXT_EQ(FText::Format(LOCTEXT("Twice", "{0}{0}"), Name).ToString(), TEXT("ShirtShirt"));
	EXPECT_TEXT_EQ(FText::Format(LOCTEXT("Missing", "{0} {1}"), Name).ToString(), TEXT("Shirt {1}"));
	EXPECT_TEXT_EQ(FText::Format(LOCTEXT("Escaped", "`{0`} {0}"), Name).ToString(), TEXT("{0} Shirt"));
	EXPECT_TEXT_EQ(FText::Format(LOCTEXT("Open", "{0} {"), Name).ToString(), TEXT("Shirt {"));
}

TEST(Text, FormatDoesNotLookIntoItsArguments)
{
	EXPECT_TEXT_EQ(
		FText::Format(LOCTEXT("Two", "{0} {1}"), FText::FromString(TEXT("{1}")), 2).ToString(), TEXT("{1} 2"));
}

TEST(Text, FormatShowsNumbersInGroups)
{
	EXPECT_TEXT_EQ(FText::Format(LOCTEXT("Numbers", "{0} {1} {2}"), 1234567, 2.5f, 1000.0).ToString(),
		TEXT("1,234,567 2.5 1,000"));
}

TEST(Text, FormatPutsArgumentsByName)
{
	FFormatNamedArguments Arguments;
	Arguments.Add(TEXT("Name"), FText::FromString(TEXT("Shirt")));
	Arguments.Add(TEXT("Count"), 2);

	EXPECT_TEXT_EQ(FText::Format(LOCTEXT("Named", "{Count} x {Name}"), Arguments).ToString(), TEXT("2 x Shirt"));
	EXPECT_TEXT_EQ(FText::FormatNamed(LOCTEXT("Named", "{Count} x {Name}"), TEXT("Count"), 3, TEXT("Name"),
					   FText::FromString(TEXT("Sock")))
					   .ToString(),
		TEXT("3 x Sock"));
}

TEST(Text, AsNumberGroupsByThreeDigits)
{
	struct FCase
	{
		FText Text;
		const TCHAR* Shown;
	};
	const FCase Cases[] = {
		{FText::AsNumber(0), TEXT("0")},
		{FText::AsNumber(999), TEXT("999")},
		{FText::AsNumber(1000), TEXT("1,000")},
		{FText::AsNumber(-1234567), TEXT("-1,234,567")},
		{FText::AsNumber(std::numeric_limits<int64>::min()), TEXT("-9,223,372,036,854,775,808")},
		{FText::AsNumber(~0ull), TEXT("18,446,744,073,709,551,615")},
		{FText::AsNumber(uint8(255)), TEXT("255")},
		{FText::AsNumber(1234.5678), TEXT("1,234.568")},
		{FText::AsNumber(-0.5f), TEXT("-0.5")},
		{FText::AsNumber(2.0), TEXT("2")},
		{FText::AsPercent(0.256), TEXT("26%")},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_TEXT_EQ(Case.Text.ToString(), Case.Shown);
	}
}

TEST(Text, AsNumberFollowsItsOptions)
{
	FNumberFormattingOptions Options;
	Options.SetUseGrouping(false).SetMinimumFractionalDigits(2).SetMaximumFractionalDigits(2).SetAlwaysSign(true);

	EXPECT_TEXT_EQ(FText::AsNumber(1234.5, &Options).ToString(), TEXT("+1234.50"));
	Options = FNumberFormattingOptions().SetMinimumIntegralDigits(3);
	EXPECT_TEXT_EQ(FText::AsNumber(7, &Options).ToString(), TEXT("007"));
}

TEST(Text, EqualToComparesWhatIsShownWithItsCase)
{
	const FText A = FText::FromString(TEXT("Shirt"));

	EXPECT_TRUE(A.EqualTo(LOCTEXT("Shirt", "Shirt")));
	EXPECT_FALSE(A.EqualTo(FText::FromString(TEXT("shirt"))));
	EXPECT_TRUE(A.EqualToCaseIgnored(FText::FromString(TEXT("shirt"))));
}

TEST(Text, IdenticalToAsksForTheSameTextNotForTheSameLetters)
{
	const FText A = FText::FromString(TEXT("Shirt"));
	const FText Copy = A;

	EXPECT_TRUE(A.IdenticalTo(Copy));
	EXPECT_FALSE(A.IdenticalTo(FText::FromString(TEXT("Shirt"))));
	EXPECT_TRUE(LOCTEXT("Key", "Text").IdenticalTo(LOCTEXT("Key", "Text")));
	EXPECT_FALSE(LOCTEXT("Key", "Text").IdenticalTo(LOCTEXT("OtherKey", "Text")));
	EXPECT_TRUE(FText().IdenticalTo(FText::FromString(FString())));
}

TEST(Text, IsMadeFromNamesAndStrings)
{
	EXPECT_TEXT_EQ(FText::FromName(FName(TEXT("Shirt_2"))).ToString(), TEXT("Shirt_2"));
	EXPECT_TRUE(FText::GetEmpty().IsEmpty());
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::FromString(TEXT("  ")).IsEmptyOrWhitespace());
	EXPECT_TEXT_EQ(INVTEXT("x").ToString(), TEXT("x"));
}

#undef LOCTEXT_NAMESPACE
