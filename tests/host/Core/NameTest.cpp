// SPDX-License-Identifier: MIT
#include "Containers/Map.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

#include <thread>
#include <vector>

TEST(Name, ComparesWithoutCaseAndKeepsTheCaseItWasMadeWith)
{
	const FName Lower(TEXT("name test shirt"));
	const FName Upper(TEXT("Name Test SHIRT"));

	EXPECT_EQ(Lower, Upper);
	EXPECT_EQ(GetTypeHash(Lower), GetTypeHash(Upper));
	EXPECT_TEXT_EQ(Lower.ToString(), TEXT("name test shirt"));
	EXPECT_TEXT_EQ(Upper.ToString(), TEXT("Name Test SHIRT"));
	EXPECT_FALSE(Lower.IsEqual(Upper, ENameCase::CaseSensitive));
	EXPECT_TRUE(Lower == TEXT("NAME TEST SHIRT"));
}

TEST(Name, SplitsATrailingNumberFromItsText)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Plain;
		int32 Number;
	};
	const FCase Cases[] = {
		{TEXT("Shirt"), TEXT("Shirt"), 0},
		{TEXT("Shirt_0"), TEXT("Shirt"), 1},
		{TEXT("Shirt_3"), TEXT("Shirt"), 4},
		{TEXT("Shirt_10"), TEXT("Shirt"), 11},
		{TEXT("Shirt_03"), TEXT("Shirt_03"), 0},
		{TEXT("Shirt_00"), TEXT("Shirt_00"), 0},
		{TEXT("Shirt3"), TEXT("Shirt3"), 0},
		{TEXT("Shirt_"), TEXT("Shirt_"), 0},
		{TEXT("Shirt_1_2"), TEXT("Shirt_1"), 3},
		{TEXT("_5"), TEXT("_5"), 0},
		{TEXT("123"), TEXT("123"), 0},
		{TEXT("Shirt_2147483645"), TEXT("Shirt"), 2147483646},
		{TEXT("Shirt_2147483646"), TEXT("Shirt_2147483646"), 0},
		{TEXT("Shirt_99999999999"), TEXT("Shirt_99999999999"), 0},
	};
	for (const FCase& Case : Cases)
	{
		const FName Name(Case.Text);

		EXPECT_TEXT_EQ(Name.GetPlainNameString(), Case.Plain) << TCHAR_TO_UTF8(Case.Text);
		EXPECT_EQ(Name.GetNumber(), Case.Number) << TCHAR_TO_UTF8(Case.Text);
		EXPECT_TEXT_EQ(Name.ToString(), Case.Text);
	}
}

TEST(Name, NamesThatDifferInTheirNumberShareTheirText)
{
	const FName First(TEXT("NumberedName_1"));
	FName Second = First;
	Second.SetNumber(NAME_EXTERNAL_TO_INTERNAL(2));

	EXPECT_NE(First, Second);
	EXPECT_EQ(First.GetComparisonIndex(), Second.GetComparisonIndex());
	EXPECT_EQ(Second, FName(TEXT("NumberedName"), NAME_EXTERNAL_TO_INTERNAL(2)));
	EXPECT_TRUE(First.IsEqual(Second, ENameCase::IgnoreCase, false));
	EXPECT_TEXT_EQ(Second.ToString(), TEXT("NumberedName_2"));
}

TEST(Name, NoneIsTheNameOfNothing)
{
	EXPECT_EQ(FName(), NAME_None);
	EXPECT_EQ(FName(TEXT("")), NAME_None);
	EXPECT_EQ(FName(TEXT("nOnE")), NAME_None);
	EXPECT_TRUE(FName().IsNone());
	EXPECT_TEXT_EQ(FName().ToString(), TEXT("None"));
	EXPECT_FALSE(FName(TEXT("None_1")).IsNone());
}

TEST(Name, FindGivesNoneForATextThatNobodyAdded)
{
	EXPECT_EQ(FName(TEXT("A name that nobody added_4"), FNAME_Find), NAME_None);
	const FName Added(TEXT("A name that somebody added"));
	EXPECT_EQ(FName(TEXT("a name that somebody added"), FNAME_Find), Added);
}

TEST(Name, OrdersByTextWithoutCaseAndThenByNumber)
{
	EXPECT_TRUE(FName(TEXT("apple")).LexicalLess(FName(TEXT("Banana"))));
	EXPECT_TRUE(FName(TEXT("Apple")).LexicalLess(FName(TEXT("banana"))));
	EXPECT_TRUE(FName(TEXT("Item_2")).LexicalLess(FName(TEXT("Item_10"))));
	EXPECT_EQ(FName(TEXT("item_2")).Compare(FName(TEXT("ITEM_2"))), 0);
}

TEST(Name, ServesAsAKeyOfMaps)
{
	TMap<FName, int32> Map;
	Map.Add(TEXT("Hips"), 1);
	Map.Add(TEXT("hips_1"), 2);

	EXPECT_EQ(Map.FindRef(TEXT("HIPS")), 1);
	EXPECT_EQ(Map.FindRef(TEXT("Hips_1")), 2);
	EXPECT_EQ(Map.Num(), 2);
}

TEST(Name, RefusesATextThatIsTooLong)
{
	const FAssertionsThrow Assertions;

	EXPECT_NO_THROW(FName(FString::ChrN(NAME_SIZE - 1, 'n')));
	EXPECT_THROW(FName(FString::ChrN(NAME_SIZE, 'n')), FAssertionFailure);
}

TEST(Name, NamesTheCharactersThatAnObjectsNameMayNotHold)
{
	FText Reason;

	EXPECT_TRUE(FName(TEXT("Shirt_Front-2")).IsValidObjectName(Reason));
	EXPECT_TRUE(Reason.IsEmpty());
	EXPECT_FALSE(FName(TEXT("a.b c.d")).IsValidObjectName(Reason));
	EXPECT_TEXT_EQ(Reason.ToString(), TEXT("The name may not contain the following characters: . "));
	for (const TCHAR Char : FString(TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")))
	{
		EXPECT_FALSE(FName(FString(TEXT("a")) + Char).IsValidObjectName(Reason)) << static_cast<int>(Char);
	}
}

TEST(Name, IsMadeOnceWhenSeveralThreadsAskForIt)
{
	constexpr int32 NumThreads = 4;
	constexpr int32 NumNames = 500;
	std::vector<std::vector<FName>> Names(NumThreads);
	std::vector<std::thread> Threads;
	for (int32 Thread = 0; Thread < NumThreads; ++Thread)
	{
		Threads.emplace_back(
			[&Names, Thread]
			{
				for (int32 Index = 0; Index < NumNames; ++Index)
				{
					Names[Thread].push_back(FName(FString::Printf(TEXT("ThreadedName%dx"), Index)));
				}
			});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}

	for (int32 Thread = 1; Thread < NumThreads; ++Thread)
	{
		EXPECT_EQ(Names[Thread], Names[0]);
	}
	EXPECT_TEXT_EQ(Names[0][77].ToString(), TEXT("ThreadedName77x"));
}
