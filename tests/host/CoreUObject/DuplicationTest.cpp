// SPDX-License-Identifier: MIT
#include "ObjectFixture.h"

namespace
{

class Duplication : public FObjectTest
{
};

TEST_F(Duplication, OfNullIsNull)
{
	const UTestNode* const None = nullptr;
	EXPECT_EQ(DuplicateObject<UTestNode>(None, GetTransientPackage()), nullptr);
}

TEST_F(Duplication, CopiesValuesFlagsAndNativeData)
{
	UTestValues* const Source = NewObject<UTestValues>(GetTransientPackage(), NAME_None, RF_Public | RF_Standalone);
	Source->Warmth = 3.5f;
	Source->bFirst = 1;
	Source->bSecond = 0;
	Source->Text = TEXT("Wool");
	Source->Slot.Label = TEXT("Left");
	Source->Slot.Weights[1] = 0.25f;
	Source->Factors.Add(TEXT("A"), 1.5f);
	Source->Tags.Add(TEXT("Soft"));
	Source->NativeNumbers = {4, 5};
	Source->Scratch = 6;

	UTestValues* const Copy = DuplicateObject<UTestValues>(Source, GetTransientPackage(), TEXT("Copy"));

	EXPECT_NE(Copy, Source);
	EXPECT_EQ(Copy->GetName(), TEXT("Copy"));
	EXPECT_EQ(Copy->GetFlags(), RF_Public | RF_Standalone);
	EXPECT_EQ(Copy->Warmth, 3.5f);
	EXPECT_EQ(Copy->bFirst, 1);
	EXPECT_EQ(Copy->bSecond, 0);
	EXPECT_EQ(Copy->Text, TEXT("Wool"));
	EXPECT_EQ(Copy->Slot.Label, TEXT("Left"));
	EXPECT_EQ(Copy->Slot.Weights[1], 0.25f);
	EXPECT_EQ(Copy->Factors.FindRef(TEXT("A")), 1.5f);
	EXPECT_TRUE(Copy->Tags.Contains(FName(TEXT("Soft"))));
	EXPECT_EQ(Copy->NativeNumbers, TArray<int32>({4, 5}));
	EXPECT_EQ(Copy->Scratch, 0);
}

TEST_F(Duplication, CopiesWhatLiesInsideAndKeepsReferencesToTheOutside)
{
	UTestNode* const Outside = NewObject<UTestNode>();
	UTestNode* const Source = NewObject<UTestNode>(GetTransientPackage(), TEXT("Source"));
	UTestNode* const Inside = NewObject<UTestNode>(Source, TEXT("Inside"));
	UTestNode* const Deep = NewObject<UTestNode>(Inside, TEXT("Deep"));
	Source->Next = Inside;
	Source->Others = {Deep, Outside};
	Source->ByName.Add(TEXT("Self"), Source);
	Source->Ranks.Add(Deep, 3);
	Source->Members.Add(Inside);
	Source->Slots.AddDefaulted_GetRef().Held = Deep;
	Inside->Next = Source;

	UTestNode* const Copy = DuplicateObject<UTestNode>(Source, GetTransientPackage(), TEXT("Copy"));

	UTestNode* const NewInside = FindObject<UTestNode>(Copy, TEXT("Inside"));
	UTestNode* const NewDeep = FindObject<UTestNode>(Copy, TEXT("Inside.Deep"));
	ASSERT_NE(NewInside, nullptr);
	ASSERT_NE(NewDeep, nullptr);
	EXPECT_NE(NewInside, Inside);
	EXPECT_EQ(Copy->Next, NewInside);
	EXPECT_EQ(Copy->Others, TArray<UTestNode*>({NewDeep, Outside}));
	EXPECT_EQ(Copy->ByName.FindRef(TEXT("Self")), Copy);
	EXPECT_EQ(Copy->Ranks.Num(), 1);
	EXPECT_EQ(Copy->Ranks.FindRef(NewDeep), 3);
	EXPECT_TRUE(Copy->Members.Contains(NewInside));
	EXPECT_EQ(Copy->Slots[0].Held, NewDeep);
	EXPECT_EQ(NewInside->Next, Copy);
	EXPECT_EQ(Inside->Next, Source);
}

TEST_F(Duplication, UsesThePartsThatTheConstructorMade)
{
	UTestOwner* const Source = NewObject<UTestOwner>();
	Source->Part->Size = 33;

	const UTestOwner* const Copy = DuplicateObject<UTestOwner>(Source, GetTransientPackage());

	EXPECT_EQ(Copy->Part->GetOuter(), Copy);
	EXPECT_EQ(Copy->Part->GetName(), TEXT("Part"));
	EXPECT_EQ(Copy->Part->Size, 33);
	EXPECT_EQ(Copy->Part->Owner, Copy);
	EXPECT_EQ(Source->Part->Owner, Source);
}

TEST_F(Duplication, HasTheClassOfTheSource)
{
	const TObjectPtr<UTestPart> Source = NewObject<UTestBigPart>();

	EXPECT_EQ(DuplicateObject(Source, GetTransientPackage())->GetClass(), UTestBigPart::StaticClass());
}

TEST_F(Duplication, OverAnObjectOfTheClassReplacesItInPlace)
{
	UTestPart* const Old = NewObject<UTestPart>(GetTransientPackage(), TEXT("Target"));
	const TWeakObjectPtr<UTestPart> Weak = Old;
	UTestPart* const Source = NewObject<UTestPart>();
	Source->Size = 50;

	UTestPart* const Copy = DuplicateObject(Source, GetTransientPackage(), TEXT("Target"));

	EXPECT_EQ(Copy, Old);
	EXPECT_EQ(Copy->Size, 50);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(Duplication, OverAnObjectOfAnotherClassIsFatal)
{
	NewObject<UTestNode>(GetTransientPackage(), TEXT("Other"));
	UTestPart* const Source = NewObject<UTestPart>();

	EXPECT_NE(
		AssertionOf([&] { DuplicateObject(Source, GetTransientPackage(), TEXT("Other")); }).find("different class"),
		std::string::npos);
}

TEST_F(Duplication, OntoItselfIsFatal)
{
	UTestPart* const Source = NewObject<UTestPart>(GetTransientPackage(), TEXT("Self"));
	Source->Size = 1;

	EXPECT_EQ(AssertionOf([&] { DuplicateObject(Source, GetTransientPackage(), TEXT("Self")); }),
		"/Engine/Transient.Self cannot be duplicated onto itself");
	EXPECT_EQ(Source->Size, 1);
}

TEST_F(Duplication, TellsTheCopyThatItIsLoaded)
{
	UTestWitness* const Source = NewObject<UTestWitness>(GetTransientPackage(), TEXT("Source"));
	UTestWitness::Events.Empty();

	DuplicateObject(Source, GetTransientPackage(), TEXT("Copy"));

	EXPECT_EQ(UTestWitness::Events, TArray<FString>({TEXT("PostInitProperties Copy"), TEXT("PostLoad Copy")}));
}

} // namespace
