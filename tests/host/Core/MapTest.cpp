// SPDX-License-Identifier: MIT
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "fixtures/AssertionsThrow.h"
#include "fixtures/CorePrinting.h"

namespace
{

template <typename MapType>
TArray<FString> PairsOf(const MapType& Map)
{
	TArray<FString> Result;
	for (const auto& Pair : Map)
	{
		Result.Add(FString::Printf(TEXT("%s=%d"), *Pair.Key, Pair.Value));
	}
	return Result;
}

/** All keys have one hash, so that every look-up walks a chain. */
struct FCollidingKey
{
	int32 Value = 0;
	bool operator==(const FCollidingKey& Other) const = default;
	friend uint32 GetTypeHash(const FCollidingKey&) { return 1; }
};

} // namespace

TEST(Map, WalksInTheOrderOfInsertionWhileNothingWasRemoved)
{
	TMap<FString, int32> Map;
	TArray<FString> Expected;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		const FString Key = FString::FromInt((Index * 7919) % 100);
		Map.Add(Key, Index);
		Expected.Add(FString::Printf(TEXT("%s=%d"), *Key, Index));
	}

	EXPECT_EQ(PairsOf(Map), Expected);
}

TEST(Map, ReusesTheSlotThatWasFreedLast)
{
	TMap<FString, int32> Map{{TEXT("a"), 1}, {TEXT("b"), 2}, {TEXT("c"), 3}, {TEXT("d"), 4}};

	Map.Remove(TEXT("a"));
	Map.Remove(TEXT("c"));
	Map.Add(TEXT("e"), 5);
	EXPECT_EQ(PairsOf(Map), (TArray<FString>{TEXT("b=2"), TEXT("e=5"), TEXT("d=4")}));

	Map.Add(TEXT("f"), 6);
	Map.Add(TEXT("g"), 7);
	EXPECT_EQ(PairsOf(Map), (TArray<FString>{TEXT("f=6"), TEXT("b=2"), TEXT("e=5"), TEXT("d=4"), TEXT("g=7")}));
}

TEST(Map, ACopyHasTheSameSlotsAndFillsThemInTheSameOrder)
{
	TMap<FString, int32> Map{{TEXT("a"), 1}, {TEXT("b"), 2}, {TEXT("c"), 3}};
	Map.Remove(TEXT("b"));
	Map.Remove(TEXT("a"));
	TMap<FString, int32> Copy = Map;

	Copy.Add(TEXT("x"), 8);
	Copy.Add(TEXT("y"), 9);

	EXPECT_EQ(PairsOf(Copy), (TArray<FString>{TEXT("x=8"), TEXT("y=9"), TEXT("c=3")}));
	EXPECT_EQ(PairsOf(Map), (TArray<FString>{TEXT("c=3")}));
}

TEST(Map, AddReplacesAPairInItsPlaceWithItsKey)
{
	TMap<FString, int32> Map{{TEXT("Red"), 1}, {TEXT("Blue"), 2}};

	Map.Add(TEXT("RED"), 10);

	EXPECT_EQ(Map.Num(), 2);
	EXPECT_TEXT_EQ(PairsOf(Map)[0], TEXT("RED=10"));
}

TEST(Map, FindGivesNullAndFindCheckedAssertsForAMissingKey)
{
	const FAssertionsThrow Assertions;
	TMap<int32, FString> Map{{1, TEXT("one")}};

	EXPECT_EQ(Map.Find(2), nullptr);
	EXPECT_EQ(Map.FindRef(2), FString());
	EXPECT_THROW(Map.FindChecked(2), FAssertionFailure);
	EXPECT_THROW(Map[2], FAssertionFailure);
	EXPECT_EQ(Map[1], TEXT("one"));
}

TEST(Map, FindOrAddAddsADefaultValueOnce)
{
	TMap<FString, int32> Map;

	Map.FindOrAdd(TEXT("a")) += 2;
	Map.FindOrAdd(TEXT("a")) += 3;
	Map.FindOrAdd(TEXT("b"), 7);

	EXPECT_EQ(PairsOf(Map), (TArray<FString>{TEXT("a=5"), TEXT("b=7")}));
}

TEST(Map, GivesItsKeysAndValuesInWalkingOrder)
{
	const TMap<FString, int32> Map{{TEXT("b"), 1}, {TEXT("a"), 2}};
	TArray<FString> Keys{TEXT("rest")};
	TArray<int32> Values;

	EXPECT_EQ(Map.GetKeys(Keys), 2);
	Map.GenerateValueArray(Values);

	EXPECT_EQ(Keys, (TArray<FString>{TEXT("b"), TEXT("a")}));
	EXPECT_EQ(Values, (TArray<int32>{1, 2}));
}

TEST(Map, SortsByKeyAndByValueAndStillFinds)
{
	TMap<FString, int32> Map{{TEXT("b"), 3}, {TEXT("c"), 1}, {TEXT("a"), 2}, {TEXT("x"), 0}};
	Map.Remove(TEXT("x"));

	Map.ValueSort([](int32 A, int32 B) { return A < B; });
	EXPECT_EQ(PairsOf(Map), (TArray<FString>{TEXT("c=1"), TEXT("a=2"), TEXT("b=3")}));
	Map.KeySort([](const FString& A, const FString& B) { return A < B; });
	EXPECT_EQ(PairsOf(Map), (TArray<FString>{TEXT("a=2"), TEXT("b=3"), TEXT("c=1")}));
	EXPECT_EQ(Map.FindChecked(TEXT("c")), 1);
	EXPECT_EQ(Map.Find(TEXT("x")), nullptr);
}

TEST(Map, AnIteratorRemovesWhileItWalks)
{
	TMap<FString, int32> Map{{TEXT("a"), 1}, {TEXT("b"), 2}, {TEXT("c"), 3}};

	for (auto It = Map.CreateIterator(); It; ++It)
	{
		if (It.Key() == TEXT("b"))
		{
			It.RemoveCurrent();
		}
		else
		{
			It.Value() *= 10;
		}
	}

	EXPECT_EQ(PairsOf(Map), (TArray<FString>{TEXT("a=10"), TEXT("c=30")}));
}

TEST(Map, KeysWithOneHashStayApart)
{
	TMap<FCollidingKey, int32> Map;
	for (int32 Value = 0; Value < 50; ++Value)
	{
		Map.Add({Value}, Value * 2);
	}
	for (int32 Value = 0; Value < 50; Value += 2)
	{
		EXPECT_EQ(Map.Remove({Value}), 1);
	}

	EXPECT_EQ(Map.Num(), 25);
	EXPECT_EQ(Map.FindRef({49}), 98);
	EXPECT_FALSE(Map.Contains({48}));
}

TEST(Map, RemoveAndCopyValueHandsTheValueOut)
{
	TMap<int32, FString> Map{{1, TEXT("one")}};
	FString Value;

	EXPECT_TRUE(Map.RemoveAndCopyValue(1, Value));
	EXPECT_EQ(Value, TEXT("one"));
	EXPECT_FALSE(Map.RemoveAndCopyValue(1, Value));
}

TEST(Map, MayHoldItsOwnType)
{
	struct FNode
	{
		TMap<int32, FNode> Children;
	};
	FNode Root;
	Root.Children.Add(1).Children.Add(2);

	EXPECT_EQ(Root.Children[1].Children.Num(), 1);
}

TEST(Map, AKeyOfTheMapItselfMayBeRemovedOrAddedAgain)
{
	TMap<FString, int32> Map{{TEXT("a long enough key to live on the heap"), 1}};

	Map.Add(Map.CreateIterator().Key(), 2);
	EXPECT_EQ(Map.Num(), 1);
	EXPECT_EQ(Map.Remove(Map.CreateIterator().Key()), 1);
	EXPECT_TRUE(Map.IsEmpty());
}

TEST(MultiMap, MultiFindGivesTheNewestFirst)
{
	TMultiMap<FString, int32> Map;
	for (int32 Value = 0; Value < 20; ++Value)
	{
		Map.Add(Value % 2 ? TEXT("odd") : TEXT("even"), Value);
	}
	TArray<int32> Newest;
	TArray<int32> Oldest;

	Map.MultiFind(TEXT("odd"), Newest);
	Map.MultiFind(TEXT("odd"), Oldest, true);

	EXPECT_EQ(Newest, (TArray<int32>{19, 17, 15, 13, 11, 9, 7, 5, 3, 1}));
	EXPECT_EQ(Oldest, (TArray<int32>{1, 3, 5, 7, 9, 11, 13, 15, 17, 19}));
	EXPECT_EQ(Map.Num(TEXT("even")), 10);
}

TEST(MultiMap, KeepsTheNewestFirstWhereASlotWasReused)
{
	TMultiMap<int32, int32> Map;
	Map.Add(9, 0);
	Map.Add(1, 10);
	Map.Remove(9);
	Map.Add(1, 20);
	for (int32 Key = 100; Key < 150; ++Key)
	{
		Map.Add(Key, 0);
	}
	TArray<int32> Values;

	Map.MultiFind(1, Values);

	EXPECT_EQ(Values, (TArray<int32>{20, 10}));
}

TEST(MultiMap, RemovesByPairOrByKey)
{
	TMultiMap<int32, int32> Map;
	Map.Add(1, 10);
	Map.Add(1, 20);
	Map.Add(1, 10);
	Map.Add(2, 10);

	EXPECT_EQ(Map.RemoveSingle(1, 10), 1);
	EXPECT_EQ(Map.Num(1), 2);
	EXPECT_NE(Map.FindPair(1, 20), nullptr);
	EXPECT_EQ(Map.Remove(1), 2);
	EXPECT_EQ(Map.Num(), 1);
}

TEST(Set, AddsAnElementOnce)
{
	TSet<FString> Set;
	bool bWasThere = true;

	Set.Add(TEXT("a"), &bWasThere);
	EXPECT_FALSE(bWasThere);
	Set.Add(TEXT("A"), &bWasThere);
	EXPECT_TRUE(bWasThere);
	EXPECT_EQ(Set.Num(), 1);
}

TEST(Set, FollowsTheOrderRuleOfMaps)
{
	TSet<int32> Set{5, 3, 9};

	Set.Remove(3);
	Set.Add(7);
	Set.Add(1);

	EXPECT_EQ(Set.Array(), (TArray<int32>{5, 7, 9, 1}));
}

TEST(Set, KeepsItsSlotsOnReset)
{
	TSet<int32> Set{1, 2, 3};

	Set.Reset();
	EXPECT_TRUE(Set.IsEmpty());
	EXPECT_FALSE(Set.Contains(1));
	Set.Append(TArray<int32>{4, 1});

	EXPECT_EQ(Set.Array(), (TArray<int32>{4, 1}));
}

TEST(Set, CombinesWithOtherSets)
{
	const TSet<int32> A{1, 2, 3};
	const TSet<int32> B{2, 3, 4};

	EXPECT_EQ(A.Intersect(B).Array(), (TArray<int32>{2, 3}));
	EXPECT_EQ(A.Union(B).Array(), (TArray<int32>{1, 2, 3, 4}));
	EXPECT_EQ(A.Difference(B).Array(), (TArray<int32>{1}));
	EXPECT_TRUE(A.Includes(TSet<int32>{1, 3}));
	EXPECT_FALSE(A.Includes(B));
}

TEST(Set, CompactClosesTheGapsAndKeepsTheOrder)
{
	TSet<int32> Set{1, 2, 3, 4};
	Set.Remove(2);

	Set.Compact();
	Set.Add(5);

	EXPECT_EQ(Set.GetMaxIndex(), 4);
	EXPECT_EQ(Set.Array(), (TArray<int32>{1, 3, 4, 5}));
	EXPECT_TRUE(Set.Contains(4));
}
