// SPDX-License-Identifier: MIT
#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/BitArray.h"
#include "Containers/IndirectArray.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

namespace
{

/** Counts its living objects, so that a test sees what is destroyed twice or never. */
struct FCounted
{
	FCounted(int32 InValue = 0)
		: Value(InValue)
		, Self(this)
	{
		++NumAlive;
	}
	FCounted(const FCounted& Other)
		: FCounted(Other.Value)
	{
	}
	FCounted& operator=(const FCounted& Other)
	{
		Value = Other.Value;
		return *this;
	}
	~FCounted()
	{
		EXPECT_EQ(Self, this) << "the object was moved without its constructor";
		--NumAlive;
	}
	bool operator==(const FCounted& Other) const { return Value == Other.Value; }

	int32 Value;
	FCounted* Self;
	static inline int32 NumAlive = 0;
};

TArray<int32> ValuesOf(const TArray<FCounted>& Array)
{
	TArray<int32> Result;
	for (const FCounted& Element : Array)
	{
		Result.Add(Element.Value);
	}
	return Result;
}

} // namespace

TEST(Array, AddReturnsTheIndexOfTheNewElement)
{
	TArray<int32> Array;

	EXPECT_EQ(Array.Add(7), 0);
	EXPECT_EQ(Array.Add(8), 1);
	EXPECT_EQ(Array, (TArray<int32>{7, 8}));
}

TEST(Array, AddUniqueReturnsTheIndexOfAnEqualElement)
{
	TArray<int32> Array{5, 6};

	EXPECT_EQ(Array.AddUnique(6), 1);
	EXPECT_EQ(Array.AddUnique(9), 2);
	EXPECT_EQ(Array.Num(), 3);
}

TEST(Array, InsertMovesTheElementsBehind)
{
	TArray<int32> Array{1, 4};

	Array.Insert({2, 3}, 1);
	Array.Insert(0, 0);
	Array.Insert(5, Array.Num());

	EXPECT_EQ(Array, (TArray<int32>{0, 1, 2, 3, 4, 5}));
}

TEST(Array, RemoveTakesEveryEqualElementAndRemoveSingleTheFirst)
{
	TArray<int32> Array{1, 2, 1, 3, 1};

	EXPECT_EQ(Array.RemoveSingle(1), 1);
	EXPECT_EQ(Array, (TArray<int32>{2, 1, 3, 1}));
	EXPECT_EQ(Array.Remove(1), 2);
	EXPECT_EQ(Array, (TArray<int32>{2, 3}));
	EXPECT_EQ(Array.Remove(1), 0);
}

TEST(Array, RemoveAtSwapFillsTheGapFromTheEnd)
{
	TArray<int32> Array{0, 1, 2, 3, 4};

	Array.RemoveAtSwap(1);
	EXPECT_EQ(Array, (TArray<int32>{0, 4, 2, 3}));
	Array.RemoveAtSwap(1, 2);
	EXPECT_EQ(Array, (TArray<int32>{0, 3}));
}

TEST(Array, RemoveAllKeepsTheOrderOfTheRest)
{
	TArray<int32> Array{1, 2, 3, 4, 5, 6};

	EXPECT_EQ(Array.RemoveAll([](int32 Value) { return Value % 2 == 0; }), 3);
	EXPECT_EQ(Array, (TArray<int32>{1, 3, 5}));
}

TEST(Array, ResetKeepsTheStorageAndEmptyFreesIt)
{
	TArray<int32> Array;
	Array.Reserve(100);
	Array.Add(1);
	const int32* Storage = Array.GetData();

	Array.Reset();
	EXPECT_EQ(Array.Num(), 0);
	EXPECT_EQ(Array.Max(), 100);
	EXPECT_EQ(Array.GetData(), Storage);

	Array.Empty();
	EXPECT_EQ(Array.Max(), 0);
	EXPECT_EQ(Array.GetData(), nullptr);
}

TEST(Array, SetNumStartsNewElementsAtZero)
{
	TArray<int32> Array{1};

	Array.SetNum(3);
	EXPECT_EQ(Array, (TArray<int32>{1, 0, 0}));
	Array.SetNumZeroed(4);
	EXPECT_EQ(Array, (TArray<int32>{1, 0, 0, 0}));
	Array.SetNum(2);
	EXPECT_EQ(Array, (TArray<int32>{1, 0}));
}

TEST(Array, SetNumUninitializedKeepsWhatIsThere)
{
	TArray<int32> Array{1, 2};

	Array.SetNumUninitialized(1000);
	EXPECT_EQ(Array.Num(), 1000);
	EXPECT_EQ(Array[0], 1);
	EXPECT_EQ(Array[1], 2);
	Array.SetNumUninitialized(1);
	EXPECT_EQ(Array, (TArray<int32>{1}));
}

TEST(Array, ReportsAnIndexOutOfBoundsWithIndexAndSize)
{
	const FAssertionsThrow Assertions;
	TArray<int32> Array{1, 2, 3};

	EXPECT_THROW(Array[3], FAssertionFailure);
	EXPECT_THROW(Array[-1], FAssertionFailure);
	EXPECT_THROW(Array.Last(3), FAssertionFailure);
	EXPECT_THROW(Array.RemoveAt(2, 2), FAssertionFailure);
	EXPECT_THROW(Array.Insert(9, 4), FAssertionFailure);
	EXPECT_THROW(TArray<int32>().Pop(), FAssertionFailure);
	try
	{
		Array[7] = 1;
		FAIL() << "the index was accepted";
	}
	catch (const FAssertionFailure& Failure)
	{
		EXPECT_EQ(Failure.Message, "Array index out of bounds: 7 into an array of size 3");
	}
	EXPECT_EQ(Array, (TArray<int32>{1, 2, 3}));
}

TEST(Array, RefusesToAddItsOwnElementByReference)
{
	const FAssertionsThrow Assertions;
	TArray<int32> Array{1, 2};

	EXPECT_THROW(Array.Add(Array[0]), FAssertionFailure);
	EXPECT_THROW(Array.Insert(Array[0], 0), FAssertionFailure);
}

TEST(Array, MovesElementsThatMayNotBeCopiedBitwiseThroughTheirConstructors)
{
	FCounted::NumAlive = 0;
	{
		TArray<FCounted> Array;
		for (int32 Value = 0; Value < 100; ++Value)
		{
			Array.Emplace(Value);
		}
		Array.Insert(FCounted(-1), 50);
		Array.RemoveAt(0, 48);
		Array.RemoveAll([](const FCounted& Element) { return Element.Value > 51; });
		Array.Shrink();

		EXPECT_EQ(ValuesOf(Array), (TArray<int32>{48, 49, -1, 50, 51}));
		TArray<FCounted> Copy = Array;
		TArray<FCounted> Moved = MoveTemp(Array);
		EXPECT_EQ(Array.Num(), 0);
		EXPECT_EQ(FCounted::NumAlive, 10);
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

TEST(Array, KeepsFewElementsInlineAndMoreOnTheHeap)
{
	TArray<FCounted, TInlineAllocator<3>> Array;
	for (int32 Value = 0; Value < 3; ++Value)
	{
		Array.Emplace(Value);
	}
	EXPECT_EQ(Array.GetAllocatedSize(), 0u);

	Array.Emplace(3);
	EXPECT_GT(Array.GetAllocatedSize(), 0u);

	Array.RemoveAt(0, 2, false);
	Array.Shrink();
	EXPECT_EQ(Array.GetAllocatedSize(), 0u);
	EXPECT_EQ(Array[0].Value, 2);
	EXPECT_EQ(Array[1].Value, 3);

	TArray<FCounted, TInlineAllocator<3>> Moved = MoveTemp(Array);
	EXPECT_EQ(Array.Num(), 0);
	EXPECT_EQ(Moved[1].Value, 3);
}

TEST(Array, AnInlineAllocatorWithoutASecondaryOneRefusesMore)
{
	const FAssertionsThrow Assertions;
	TArray<int32, TFixedAllocator<2>> Array{1, 2};

	EXPECT_THROW(Array.Add(3), FAssertionFailure);
}

TEST(Array, CopiesBetweenAllocators)
{
	const TArray<int32, TInlineAllocator<2>> Inline{1, 2, 3};
	const TArray<int32> Heap(Inline);
	TArray<int32> Assigned;
	Assigned = Inline;

	EXPECT_EQ(Heap, (TArray<int32>{1, 2, 3}));
	EXPECT_TRUE(Assigned == Inline);
}

TEST(Array, AppendOfAMovedArrayEmptiesIt)
{
	TArray<FString> Array{TEXT("a")};
	TArray<FString> Other{TEXT("b"), TEXT("c")};

	Array.Append(MoveTemp(Other));

	EXPECT_EQ(Array, (TArray<FString>{TEXT("a"), TEXT("b"), TEXT("c")}));
	EXPECT_EQ(Other.Num(), 0);
}

TEST(Array, FindsByValueKeyAndPredicate)
{
	const TArray<FString> Array{TEXT("Red"), TEXT("Green"), TEXT("Blue"), TEXT("Green")};

	EXPECT_EQ(Array.Find(TEXT("green")), 1);
	EXPECT_EQ(Array.FindLast(TEXT("Green")), 3);
	EXPECT_EQ(Array.Find(TEXT("Black")), INDEX_NONE);
	EXPECT_TRUE(Array.Contains(TEXT("Blue")));
	EXPECT_EQ(Array.IndexOfByPredicate([](const FString& Text) { return Text.Len() == 4; }), 2);
	EXPECT_EQ(Array.FindByKey(TEXT("Red")), &Array[0]);
	EXPECT_EQ(Array.FindByPredicate([](const FString& Text) { return Text.IsEmpty(); }), nullptr);
	EXPECT_EQ(Array.FilterByPredicate([](const FString& Text) { return Text.Len() > 3; }).Num(), 3);
}

TEST(Array, SortsPointersByWhatTheyPointTo)
{
	int32 One = 1;
	int32 Two = 2;
	int32 Three = 3;
	TArray<int32*> Array{&Three, &One, &Two};

	Array.Sort([](const int32& A, const int32& B) { return A < B; });

	EXPECT_EQ(Array, (TArray<int32*>{&One, &Two, &Three}));
}

TEST(Array, StableSortKeepsTheOrderOfEqualElements)
{
	TArray<TPair<int32, int32>> Array;
	for (int32 Index = 0; Index < 200; ++Index)
	{
		Array.Emplace((Index * 37) % 5, Index);
	}

	Array.StableSort([](const auto& A, const auto& B) { return A.Key < B.Key; });

	for (int32 Index = 1; Index < Array.Num(); ++Index)
	{
		ASSERT_TRUE(Array[Index - 1] < Array[Index]) << "at " << Index;
	}
}

TEST(Array, SortOrdersEveryPatternOfInput)
{
	for (int32 Num = 0; Num < 200; ++Num)
	{
		for (const int32 Stride : {0, 1, -1, 7, 1103})
		{
			TArray<int32> Array;
			for (int32 Index = 0; Index < Num; ++Index)
			{
				Array.Add((Index * Stride) % 101);
			}
			Array.Sort();
			for (int32 Index = 1; Index < Num; ++Index)
			{
				ASSERT_LE(Array[Index - 1], Array[Index]) << Num << " elements, stride " << Stride;
			}
		}
	}
}

TEST(Array, SortStaysInsideWithAPredicateThatIsNoOrder)
{
	TArray<int32> Array;
	for (int32 Index = 0; Index < 300; ++Index)
	{
		Array.Add(Index % 9);
	}

	Array.Sort([](int32, int32) { return true; });

	int32 Sum = 0;
	for (const int32 Value : Array)
	{
		Sum += Value;
	}
	EXPECT_EQ(Sum, 1191);
}

TEST(Array, AnIteratorRemovesWhileItWalks)
{
	TArray<int32> Array{1, 2, 3, 4};

	for (auto It = Array.CreateIterator(); It; ++It)
	{
		if (*It % 2 == 0)
		{
			It.RemoveCurrent();
		}
	}

	EXPECT_EQ(Array, (TArray<int32>{1, 3}));
}

TEST(Array, CountsBeyondThirtyTwoBitsWithAWideIndex)
{
	TArray64<uint8> Array;
	Array.SetNumZeroed(10);

	EXPECT_EQ(sizeof(Array.Num()), 8u);
	EXPECT_EQ(Array.Last(), 0);
}

TEST(ArrayView, ShowsTheElementsOfWhatItWasMadeFrom)
{
	TArray<int32> Array{1, 2, 3, 4};
	const TArrayView<int32> View(Array);

	View[1] = 20;

	EXPECT_EQ(Array[1], 20);
	EXPECT_EQ(View.Num(), 4);
	EXPECT_EQ(TArray<int32>(View.Slice(1, 2)), (TArray<int32>{20, 3}));
	EXPECT_EQ(TArray<int32>(View.Right(1)), (TArray<int32>{4}));
	EXPECT_EQ(View.Left(9).Num(), 4);
	EXPECT_EQ(MakeArrayView(Array.GetData() + 2, 2)[0], 3);
}

TEST(ArrayView, TakesAListForTheTimeOfACall)
{
	const auto Sum = [](TConstArrayView<int32> View)
	{
		int32 Result = 0;
		for (const int32 Value : View)
		{
			Result += Value;
		}
		return Result;
	};

	EXPECT_EQ(Sum({1, 2, 3}), 6);
	EXPECT_EQ(Sum(TArray<int32>{4, 5}), 9);
}

TEST(ArrayView, ChecksItsBounds)
{
	const FAssertionsThrow Assertions;
	TArray<int32> Array{1, 2};
	const TConstArrayView<int32> View(Array);

	EXPECT_THROW(View[2], FAssertionFailure);
	EXPECT_THROW(View.Slice(1, 2), FAssertionFailure);
}

TEST(IndirectArray, OwnsItsElementsAndCopiesThemDeeply)
{
	FCounted::NumAlive = 0;
	{
		TIndirectArray<FCounted> Array;
		Array.Add(new FCounted(1));
		Array.Add(new FCounted(2));
		FCounted* const First = &Array[0];
		Array.Add(new FCounted(3));
		EXPECT_EQ(&Array[0], First);

		TIndirectArray<FCounted> Copy = Array;
		EXPECT_NE(&Copy[0], First);
		EXPECT_EQ(Copy[2].Value, 3);
		Array.RemoveAt(0);
		EXPECT_EQ(Array[0].Value, 2);
		EXPECT_EQ(FCounted::NumAlive, 5);

		Copy = MoveTemp(Array);
		EXPECT_EQ(FCounted::NumAlive, 2);
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

TEST(BitArray, FindsTheNextSetBitAcrossWords)
{
	TBitArray<> Bits(false, 70);
	Bits[3] = true;
	Bits[64] = true;

	EXPECT_EQ(Bits.FindNextSet(0), 3);
	EXPECT_EQ(Bits.FindNextSet(4), 64);
	EXPECT_EQ(Bits.FindNextSet(65), 70);
	EXPECT_EQ(Bits.CountSetBits(), 2);
	EXPECT_EQ(TBitArray<>(true, 33).CountSetBits(), 33);
}
