// SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"
#include "Misc/CString.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

TEST(String, ComparesWithoutCaseByOperatorAndWithCaseByEquals)
{
	const FString Shirt(TEXT("Shirt"));

	EXPECT_TRUE(Shirt == TEXT("SHIRT"));
	EXPECT_FALSE(Shirt.Equals(TEXT("SHIRT")));
	EXPECT_TRUE(Shirt.Equals(TEXT("SHIRT"), ESearchCase::IgnoreCase));
	EXPECT_TRUE(FString(TEXT("a")) < FString(TEXT("B")));
	EXPECT_GT(FString(TEXT("a")).Compare(TEXT("B")), 0);
	EXPECT_EQ(GetTypeHash(Shirt), GetTypeHash(FString(TEXT("sHIRT"))));
}

TEST(String, IsEndedByANullWhateverWasDoneToIt)
{
	FString Text;
	EXPECT_STREQ(TCHAR_TO_UTF8(*Text), "");
	Text += TEXT("ab");
	Text.RemoveAt(1);
	Text.InsertAt(0, TEXT("xy"));
	Text.LeftInline(2);
	Text.AppendChar('!');

	EXPECT_TEXT_EQ(Text, TEXT("xy!"));
	EXPECT_EQ(Text.GetCharArray().Num(), 4);
	EXPECT_EQ(Text.GetCharArray().Last(), TCHAR(0));
	EXPECT_EQ(Text.Len(), 3);
}

TEST(String, ChecksTheIndexOfACharacter)
{
	const FAssertionsThrow Assertions;
	FString Text(TEXT("ab"));

	EXPECT_EQ(Text[1], TCHAR('b'));
	EXPECT_THROW(Text[2], FAssertionFailure);
	EXPECT_THROW(FString()[0], FAssertionFailure);
}

TEST(String, AppendsAPartOfItself)
{
	FString Text(TEXT("abcdefgh"));

	Text += Text;
	Text += FStringView(Text).Mid(2, 3);
	Text = FStringView(Text).RightChop(1);

	EXPECT_TEXT_EQ(Text, TEXT("bcdefghabcdefghcde"));
}

TEST(String, JoinsPathsWithExactlyOneSlash)
{
	struct FCase
	{
		const TCHAR* Left;
		const TCHAR* Right;
		const TCHAR* Joined;
	};
	const FCase Cases[] = {
		{TEXT("A"), TEXT("B"), TEXT("A/B")},
		{TEXT("A/"), TEXT("B"), TEXT("A/B")},
		{TEXT("A"), TEXT("/B"), TEXT("A/B")},
		{TEXT("A/"), TEXT("/B"), TEXT("A/B")},
		{TEXT("A\\"), TEXT("B"), TEXT("A\\B")},
		{TEXT(""), TEXT("B"), TEXT("B")},
		{TEXT(""), TEXT("/B"), TEXT("/B")},
		{TEXT("A"), TEXT(""), TEXT("A/")},
		{TEXT("A/"), TEXT(""), TEXT("A/")},
		{TEXT("/"), TEXT("B"), TEXT("/B")},
	};
	for (const FCase& Case : Cases)
	{
		const FString Right(Case.Right);
		FString InPlace(Case.Left);
		InPlace.PathAppend(*Right, Right.Len());

		EXPECT_TEXT_EQ(FString(Case.Left) / Case.Right, Case.Joined);
		EXPECT_TEXT_EQ(FString(Case.Left) / Right, Case.Joined);
		EXPECT_TEXT_EQ(InPlace, Case.Joined);
	}
}

TEST(String, PathAppendTakesAsManyCharactersAsItIsTold)
{
	FString Path(TEXT("/Game"));

	Path.PathAppend(TEXT("Shirts and more"), 6);

	EXPECT_TEXT_EQ(Path, TEXT("/Game/Shirts"));
}

TEST(String, FindsFromBothEnds)
{
	const FString Text(TEXT("one two One"));

	EXPECT_EQ(Text.Find(TEXT("one")), 0);
	EXPECT_EQ(Text.Find(TEXT("One"), ESearchCase::CaseSensitive), 8);
	EXPECT_EQ(Text.Find(TEXT("one"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 8);
	EXPECT_EQ(Text.Find(TEXT("one"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 1), 8);
	EXPECT_EQ(Text.Find(TEXT("three")), INDEX_NONE);
	EXPECT_TRUE(Text.Contains(TEXT("TWO")));
	EXPECT_FALSE(Text.Contains(TEXT("TWO"), ESearchCase::CaseSensitive));
	EXPECT_EQ(FString().Find(TEXT("a")), INDEX_NONE);
}

TEST(String, StartsAndEndsWithATextOfAnyCase)
{
	const FString Text(TEXT("T_Shirt.png"));

	EXPECT_TRUE(Text.StartsWith(TEXT("t_")));
	EXPECT_FALSE(Text.StartsWith(TEXT("t_"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.EndsWith(TEXT(".PNG")));
	EXPECT_FALSE(Text.EndsWith(TEXT("long before T_Shirt.png")));
}

TEST(String, SplitCutsAtTheFirstOrTheLast)
{
	const FString Text(TEXT("a.b.c"));
	FString Left;
	FString Right;

	EXPECT_TRUE(Text.Split(TEXT("."), &Left, &Right));
	EXPECT_TEXT_EQ(Left, TEXT("a"));
	EXPECT_TEXT_EQ(Right, TEXT("b.c"));
	EXPECT_TRUE(Text.Split(TEXT("."), &Left, nullptr, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_TEXT_EQ(Left, TEXT("a.b"));
	EXPECT_FALSE(Text.Split(TEXT("-"), &Left, &Right));
	EXPECT_TEXT_EQ(Left, TEXT("a.b"));
}

TEST(String, ParseIntoArrayKeepsEmptyPiecesWhenAsked)
{
	TArray<FString> Pieces;

	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Pieces, TEXT(",")), 2);
	EXPECT_EQ(Pieces, (TArray<FString>{TEXT("a"), TEXT("b")}));
	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Pieces, TEXT(","), false), 5);
	EXPECT_EQ(Pieces, (TArray<FString>{TEXT(""), TEXT("a"), TEXT(""), TEXT("b"), TEXT("")}));
	EXPECT_EQ(FString().ParseIntoArray(Pieces, TEXT(","), false), 0);
	FString(TEXT("one\r\ntwo\n\nthree")).ParseIntoArrayLines(Pieces);
	EXPECT_EQ(Pieces, (TArray<FString>{TEXT("one"), TEXT("two"), TEXT("three")}));
	FString(TEXT("  one\ttwo ")).ParseIntoArrayWS(Pieces);
	EXPECT_EQ(Pieces, (TArray<FString>{TEXT("one"), TEXT("two")}));
}

TEST(String, CutsPartsToWhatIsThere)
{
	const FString Text(TEXT("abcde"));

	EXPECT_TEXT_EQ(Text.Left(2), TEXT("ab"));
	EXPECT_TEXT_EQ(Text.Left(9), TEXT("abcde"));
	EXPECT_TEXT_EQ(Text.Right(2), TEXT("de"));
	EXPECT_TEXT_EQ(Text.LeftChop(2), TEXT("abc"));
	EXPECT_TEXT_EQ(Text.RightChop(2), TEXT("cde"));
	EXPECT_TEXT_EQ(Text.Mid(1, 3), TEXT("bcd"));
	EXPECT_TEXT_EQ(Text.Mid(3), TEXT("de"));
	EXPECT_TEXT_EQ(Text.Mid(9, 1), TEXT(""));
	EXPECT_TEXT_EQ(Text.Left(-1), TEXT(""));
}

TEST(String, ReplacesWithAndWithoutCase)
{
	EXPECT_TEXT_EQ(FString(TEXT("aAbA")).Replace(TEXT("a"), TEXT("--")), TEXT("----b--"));
	EXPECT_TEXT_EQ(FString(TEXT("aAbA")).Replace(TEXT("a"), TEXT("x"), ESearchCase::CaseSensitive), TEXT("xAbA"));
	FString Text(TEXT("a b c"));
	EXPECT_EQ(Text.ReplaceInline(TEXT(" "), TEXT("")), 2);
	EXPECT_TEXT_EQ(Text, TEXT("abc"));
	EXPECT_EQ(Text.ReplaceInline(TEXT(""), TEXT("x")), 0);
}

TEST(String, TrimsAndChangesCase)
{
	EXPECT_TEXT_EQ(FString(TEXT(" \ta b\n ")).TrimStartAndEnd(), TEXT("a b"));
	EXPECT_TEXT_EQ(FString(TEXT(" a ")).TrimStart(), TEXT("a "));
	EXPECT_TEXT_EQ(FString(TEXT(" a ")).TrimEnd(), TEXT(" a"));
	EXPECT_TEXT_EQ(FString(TEXT("   ")).TrimStartAndEnd(), TEXT(""));
	EXPECT_TEXT_EQ(FString(TEXT("aBc1")).ToUpper(), TEXT("ABC1"));
	EXPECT_TEXT_EQ(FString(TEXT("aBc1")).ToLower(), TEXT("abc1"));
	EXPECT_TEXT_EQ(FString(TEXT("\"quoted\"")).TrimQuotes(), TEXT("quoted"));
}

TEST(String, RemovesPrefixAndSuffix)
{
	FString Text(TEXT("SK_Shirt_Skeleton"));

	EXPECT_TRUE(Text.RemoveFromStart(TEXT("sk_")));
	EXPECT_TRUE(Text.RemoveFromEnd(TEXT("_Skeleton")));
	EXPECT_FALSE(Text.RemoveFromEnd(TEXT("_Skeleton")));
	EXPECT_TEXT_EQ(Text, TEXT("Shirt"));
}

TEST(String, MatchesWildcards)
{
	EXPECT_TRUE(FString(TEXT("Shirt_01")).MatchesWildcard(TEXT("shirt_*")));
	EXPECT_TRUE(FString(TEXT("Shirt_01")).MatchesWildcard(TEXT("*r?_0*1")));
	EXPECT_TRUE(FString(TEXT("")).MatchesWildcard(TEXT("*")));
	EXPECT_FALSE(FString(TEXT("Shirt")).MatchesWildcard(TEXT("Shir")));
	EXPECT_FALSE(FString(TEXT("Shirt")).MatchesWildcard(TEXT("Shirt?")));
}

TEST(String, TellsNumbersFromOtherTexts)
{
	EXPECT_TRUE(FString(TEXT("-12.5")).IsNumeric());
	EXPECT_TRUE(FString(TEXT("+3")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1.2.3")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("-")).IsNumeric());
	EXPECT_FALSE(FString().IsNumeric());
	EXPECT_FALSE(FString(TEXT("12a")).IsNumeric());
}

TEST(String, ReadsNumbersFromTheStartOfATextAndStaysInRange)
{
	EXPECT_EQ(FCString::Atoi(TEXT(" 42abc")), 42);
	EXPECT_EQ(FCString::Atoi(TEXT("-7")), -7);
	EXPECT_EQ(FCString::Atoi(TEXT("abc")), 0);
	EXPECT_EQ(FCString::Atoi(TEXT("99999999999")), 2147483647);
	EXPECT_EQ(FCString::Atoi(TEXT("-99999999999")), -2147483647 - 1);
	EXPECT_EQ(FCString::Atoi64(TEXT("99999999999")), 99999999999ll);
	EXPECT_EQ(FCString::Strtoi(TEXT("ff"), nullptr, 16), 255);
	EXPECT_DOUBLE_EQ(FCString::Atod(TEXT("2.5e3x")), 2500.0);
	EXPECT_TRUE(FCString::ToBool(TEXT("True")));
	EXPECT_TRUE(FCString::ToBool(TEXT("on")));
	EXPECT_TRUE(FCString::ToBool(TEXT("2")));
	EXPECT_FALSE(FCString::ToBool(TEXT("No")));
}

TEST(String, JoinsTheElementsOfARange)
{
	const TArray<FString> Parts{TEXT("a"), TEXT("b"), TEXT("c")};

	EXPECT_TEXT_EQ(FString::Join(Parts, TEXT(", ")), TEXT("a, b, c"));
	EXPECT_TEXT_EQ(
		FString::JoinBy(TArray<int32>{1, 2}, TEXT("-"), [](int32 V) { return FString::FromInt(V); }), TEXT("1-2"));
	EXPECT_TEXT_EQ(FString::Join(TArray<FString>(), TEXT(",")), TEXT(""));
}

TEST(String, ConcatenatesEveryKindOfText)
{
	const FString A(TEXT("a"));
	const FStringView View(TEXT("vx"), 1);

	EXPECT_TEXT_EQ(A + A + TEXT("b") + View + TCHAR('c'), TEXT("aabvc"));
	EXPECT_TEXT_EQ(TEXT("b") + A, TEXT("ba"));
	EXPECT_TEXT_EQ(View + A, TEXT("va"));
	EXPECT_TEXT_EQ(TCHAR('c') + A, TEXT("ca"));
}

TEST(StringConv, GoesToUtf8AndBackWithoutLoss)
{
	const FString Text(TEXT("Tandem \u00e4\u20ac \U0001F9F5"));

	EXPECT_STREQ(TCHAR_TO_UTF8(*Text), "Tandem \xC3\xA4\xE2\x82\xAC \xF0\x9F\xA7\xB5");
	EXPECT_TEXT_EQ(FString(UTF8_TO_TCHAR(TCHAR_TO_UTF8(*Text))), Text);
	EXPECT_EQ(FTCHARToUTF8(*Text).Length(), 17);
	EXPECT_STREQ(StringCast<ANSICHAR>(TEXT("Tandem")).Get(), "Tandem");
	EXPECT_EQ(FString("Tandem"), TEXT("Tandem"));
}

TEST(StringConv, ReplacesWhatIsNoCharacter)
{
	struct FCase
	{
		const ANSICHAR* Name;
		const ANSICHAR* Bytes;
		const TCHAR* Text;
	};
	const FCase Cases[] = {
		{"a lone continuation byte", "a\x80z", TEXT("a\uFFFDz")},
		{"a sequence that is cut off", "a\xE2\x82", TEXT("a\uFFFD\uFFFD")},
		{"an overlong slash", "\xC0\xAF", TEXT("\uFFFD\uFFFD")},
		{"a half of a surrogate pair", "\xED\xA0\x80", TEXT("\uFFFD\uFFFD\uFFFD")},
		{"beyond the last code point", "\xF4\x90\x80\x80", TEXT("\uFFFD\uFFFD\uFFFD\uFFFD")},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_TEXT_EQ(FString(UTF8_TO_TCHAR(Case.Bytes)), Case.Text) << Case.Name;
	}
	const TCHAR HalfPair[] = {'a', 0xD83E, 'b', 0};
	EXPECT_STREQ(TCHAR_TO_UTF8(HalfPair), "a\xEF\xBF\xBD"
										  "b");
}
