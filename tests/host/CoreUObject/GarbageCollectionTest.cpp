// SPDX-License-Identifier: MIT
#include "ObjectFixture.h"

#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"

namespace
{

class GarbageCollection : public FObjectTest
{
protected:
	virtual void SetUp() override
	{
		Root = NewObject<UTestNode>(GetTransientPackage(), TEXT("Root"));
		Root->AddToRoot();
	}

	virtual void TearDown() override
	{
		Root->RemoveFromRoot();
		FObjectTest::TearDown();
	}

	static TWeakObjectPtr<UTestNode> MakeNode(UObject* Outer = GetTransientPackage())
	{
		return NewObject<UTestNode>(Outer);
	}

	UTestNode* Root = nullptr;
};

TEST_F(GarbageCollection, TakesWhatNothingRefersTo)
{
	const TWeakObjectPtr<UTestNode> Lost = MakeNode();

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(Lost.IsValid());
	EXPECT_TRUE(IsValid(Root));
}

TEST_F(GarbageCollection, TakesCycles)
{
	const TWeakObjectPtr<UTestNode> First = MakeNode();
	const TWeakObjectPtr<UTestNode> Second = MakeNode();
	First->Next = Second.Get();
	Second->Next = First.Get();

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(First.IsValid());
	EXPECT_FALSE(Second.IsValid());
}

TEST_F(GarbageCollection, FollowsReflectedReferencesOfEveryKind)
{
	TArray<TWeakObjectPtr<UTestNode>> Nodes;
	for (int32 Index = 0; Index < 11; ++Index)
	{
		Nodes.Add(MakeNode());
	}
	Root->Next = Nodes[0].Get();
	Root->Others = {nullptr, Nodes[1].Get()};
	Root->ByName.Add(TEXT("Key"), Nodes[2].Get());
	Root->Ranks.Add(Nodes[3].Get(), 1);
	Root->Members.Add(Nodes[4].Get());
	Root->Slot.Held = Nodes[5].Get();
	Root->Slots.AddDefaulted_GetRef().Held = Nodes[6].Get();
	Root->Slots[0].Nested.AddDefaulted_GetRef().Held = Nodes[7].Get();
	Root->Corners[1] = Nodes[8].Get();
	Root->Native = Nodes[9].Get();
	Nodes[9]->Next = Nodes[10].Get();

	CollectGarbage(RF_NoFlags);

	for (const TWeakObjectPtr<UTestNode>& Node : Nodes)
	{
		EXPECT_TRUE(Node.IsValid());
	}
}

TEST_F(GarbageCollection, DoesNotFollowPlainAndWeakPointers)
{
	const TWeakObjectPtr<UTestNode> Plain = MakeNode();
	const TWeakObjectPtr<UTestNode> Weak = MakeNode();
	Root->Unreflected = Plain.Get();
	Root->Weak = Weak;

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(Plain.IsValid());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Root->Weak.Get(), nullptr);
}

TEST_F(GarbageCollection, FollowsALongChainWithoutRecursion)
{
	UTestNode* Last = Root;
	for (int32 Index = 0; Index < 200'000; ++Index)
	{
		Last->Next = NewObject<UTestNode>();
		Last = Last->Next;
	}
	const TWeakObjectPtr<UTestNode> End = Last;

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(End.IsValid());

	Root->Next = nullptr;
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(End.IsValid());
}

TEST_F(GarbageCollection, AnObjectKeepsItsOuterButNotWhatLiesInside)
{
	const TWeakObjectPtr<UTestNode> Outer = MakeNode();
	const TWeakObjectPtr<UTestNode> Kept = MakeNode(Outer.Get());
	const TWeakObjectPtr<UTestNode> Sibling = MakeNode(Outer.Get());
	Root->Next = Kept.Get();

	CollectGarbage(RF_NoFlags);

	EXPECT_TRUE(Outer.IsValid());
	EXPECT_FALSE(Sibling.IsValid());
}

TEST_F(GarbageCollection, KeepsStandaloneObjectsWhenToldSo)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Kept"));
	const TWeakObjectPtr<UTestNode> Asset = NewObject<UTestNode>(Package, TEXT("Kept"), RF_Public | RF_Standalone);

	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Asset.IsValid());

	Asset->ClearFlags(RF_Standalone);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_FALSE(Asset.IsValid());
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Kept")), nullptr);
}

TEST_F(GarbageCollection, DoesNotKeepStandaloneGarbage)
{
	const TWeakObjectPtr<UTestNode> Asset = NewObject<UTestNode>(GetTransientPackage(), TEXT("Given"), RF_Standalone);
	Asset->MarkAsGarbage();

	CollectGarbage(RF_Standalone);

	EXPECT_EQ(Asset.GetEvenIfUnreachable(), nullptr);
}

TEST_F(GarbageCollection, ClearsReferencesToGarbage)
{
	UTestNode* const Garbage = MakeNode().Get();
	UTestNode* const Other = MakeNode().Get();
	Root->Next = Garbage;
	Root->Others = {Garbage, Other};
	Root->ByName.Add(TEXT("Key"), Garbage);
	Root->Ranks.Add(Garbage, 1);
	Root->Ranks.Add(Other, 2);
	Root->Members = {Garbage, Other};
	Root->Slots.AddDefaulted_GetRef().Held = Garbage;
	Root->Native = Garbage;
	Garbage->MarkAsGarbage();

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(Root->Next, nullptr);
	EXPECT_EQ(Root->Others, TArray<UTestNode*>({nullptr, Other}));
	EXPECT_EQ(Root->ByName[TEXT("Key")], nullptr);
	EXPECT_EQ(Root->Ranks.Num(), 1);
	EXPECT_EQ(Root->Ranks.FindRef(Other), 2);
	EXPECT_EQ(Root->Members.Num(), 1);
	EXPECT_TRUE(Root->Members.Contains(Other));
	EXPECT_EQ(Root->Slots[0].Held, nullptr);
	EXPECT_EQ(Root->Native, nullptr);
}

TEST_F(GarbageCollection, RootedObjectsCannotBecomeGarbage)
{
	EXPECT_EQ(AssertionOf([this] { Root->MarkAsGarbage(); }),
		"/Engine/Transient.Root is in the root set and cannot be garbage");
}

TEST_F(GarbageCollection, GarbageIsNotValidBeforeItIsCollected)
{
	const TWeakObjectPtr<UTestNode> Node = MakeNode();
	UTestNode* const Raw = Node.Get();
	Raw->MarkAsGarbage();

	EXPECT_FALSE(IsValid(Raw));
	EXPECT_EQ(Node.Get(), nullptr);
	EXPECT_EQ(Node.Get(true), Raw);
	EXPECT_EQ(FindObjectFast<UTestNode>(GetTransientPackage(), Raw->GetFName()), nullptr);

	Raw->ClearGarbage();
	EXPECT_EQ(Node.Get(), Raw);
}

TEST_F(GarbageCollection, RunsEachStepOfDestructionForAllBeforeTheNext)
{
	UTestWitness* const First = NewObject<UTestWitness>();
	First->Label = TEXT("A");
	NewObject<UTestWitness>()->Label = TEXT("B");
	UTestWitness::Events.Empty();

	CollectGarbage(RF_NoFlags);

	const TArray<FString> Expected = {TEXT("BeginDestroy A"), TEXT("BeginDestroy B"), TEXT("FinishDestroy A"),
		TEXT("FinishDestroy B"), TEXT("Destructor A"), TEXT("Destructor B")};
	EXPECT_EQ(UTestWitness::Events, Expected);
}

class FKeeper : public FGCObject
{
public:
	virtual void AddReferencedObjects(FReferenceCollector& Collector) override
	{
		Collector.AddReferencedObject(Object);
		Collector.AddReferencedObjects(Objects);
		Collector.AddReferencedObjects(Keys);
		Collector.AddReferencedObjects(Values);
		Collector.AddReferencedObjects(Members);
	}
	virtual FString GetReferencerName() const override { return TEXT("FKeeper"); }

	UTestNode* Object = nullptr;
	TArray<TObjectPtr<UTestNode>> Objects;
	TMap<UTestNode*, int32> Keys;
	TMap<int32, TObjectPtr<UTestNode>> Values;
	TSet<UTestNode*> Members;
};

TEST_F(GarbageCollection, PlainClassesKeepWhatTheyReport)
{
	const TWeakObjectPtr<UTestNode> One = MakeNode();
	const TWeakObjectPtr<UTestNode> Many = MakeNode();
	{
		FKeeper Keeper;
		Keeper.Object = One.Get();
		Keeper.Objects.Add(Many.Get());
		CollectGarbage(RF_NoFlags);
		EXPECT_TRUE(One.IsValid());
		EXPECT_TRUE(Many.IsValid());

		One->MarkAsGarbage();
		CollectGarbage(RF_NoFlags);
		EXPECT_EQ(Keeper.Object, nullptr);
	}
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Many.IsValid());
}

TEST_F(GarbageCollection, PlainClassesMayHoldMapsAndSets)
{
	FKeeper Keeper;
	UTestNode* const Kept = MakeNode().Get();
	UTestNode* const Garbage = MakeNode().Get();
	Keeper.Keys = {{Kept, 1}, {Garbage, 2}};
	Keeper.Values = {{1, Kept}, {2, Garbage}};
	Keeper.Members = {Kept, Garbage};
	Garbage->MarkAsGarbage();

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(Keeper.Keys.Num(), 1);
	EXPECT_EQ(Keeper.Keys.FindRef(Kept), 1);
	EXPECT_EQ(Keeper.Values.FindRef(1), Kept);
	EXPECT_EQ(Keeper.Values.FindRef(2), nullptr);
	EXPECT_EQ(Keeper.Members.Num(), 1);
	EXPECT_TRUE(Keeper.Members.Contains(Kept));
}

TEST_F(GarbageCollection, StrongPointersKeepTheirObject)
{
	TWeakObjectPtr<UTestNode> Weak = MakeNode();
	TStrongObjectPtr<UTestNode> Strong(Weak.Get());
	TStrongObjectPtr<UTestNode> Copy = Strong;

	Strong.Reset();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_EQ(Copy.Get(), Weak.Get());

	Copy = Strong;
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollection, WeakPointersAreEqualByTheObjectThatTheyWereMadeFrom)
{
	const TWeakObjectPtr<UTestNode> First = MakeNode();
	const TWeakObjectPtr<UTestNode> Same = First;
	const TWeakObjectPtr<UTestNode> Second = MakeNode();
	const TWeakObjectPtr<UTestNode> None;

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(First, Same);
	EXPECT_NE(First, Second);
	EXPECT_NE(First, None);
	EXPECT_TRUE(First == nullptr);
	EXPECT_TRUE(First.IsStale());
	EXPECT_FALSE(None.IsStale());
	EXPECT_EQ(GetTypeHash(First), GetTypeHash(Same));
}

TEST_F(GarbageCollection, AWeakPointerDoesNotTakeALaterObjectOfTheSamePlaceForItsOwn)
{
	const TWeakObjectPtr<UTestNode> Old = MakeNode();
	const uint32 Place = Old->GetUniqueID();
	CollectGarbage(RF_NoFlags);

	const UTestNode* const New = MakeNode().Get();

	EXPECT_EQ(New->GetUniqueID(), Place);
	EXPECT_EQ(Old.Get(), nullptr);
}

TEST_F(GarbageCollection, PlacesAndNamesAreUsedAgain)
{
	const int32 Places = GUObjectArray.GetObjectArrayNum();
	for (int32 Round = 0; Round < 1000; ++Round)
	{
		UTestOwner* const Owner = NewObject<UTestOwner>();
		NewObject<UTestNode>(Owner)->Next = MakeNode().Get();
		CollectGarbage(RF_NoFlags);
	}

	EXPECT_LE(GUObjectArray.GetObjectArrayNum(), Places + 4);
}

TEST_F(GarbageCollection, TellsWhetherAnObjectIsReferenced)
{
	UObject* Asset = NewObject<UTestNode>(GetTransientPackage(), TEXT("Asset"), RF_Standalone);
	UTestNode* const Part = NewObject<UTestNode>(Asset);
	static_cast<UTestNode*>(Asset)->Next = Part;
	Part->Next = static_cast<UTestNode*>(Asset);
	UTestNode* const Unreachable = MakeNode().Get();
	Unreachable->Next = static_cast<UTestNode*>(Asset);

	EXPECT_FALSE(IsReferenced(Asset, RF_Standalone));

	Root->Next = static_cast<UTestNode*>(Asset);
	EXPECT_TRUE(IsReferenced(Asset, RF_Standalone));
	EXPECT_FALSE(Unreachable->IsUnreachable());
}

TEST_F(GarbageCollection, AnnouncesItself)
{
	int32 Calls = 0;
	const FDelegateHandle Pre =
		FCoreUObjectDelegates::GetPreGarbageCollectDelegate().AddLambda([&Calls] { Calls = Calls * 10 + 1; });
	const FDelegateHandle Post =
		FCoreUObjectDelegates::GetPostGarbageCollect().AddLambda([&Calls] { Calls = Calls * 10 + 2; });

	CollectGarbage(RF_NoFlags);

	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Remove(Pre);
	FCoreUObjectDelegates::GetPostGarbageCollect().Remove(Post);
	EXPECT_EQ(Calls, 12);
}

TEST_F(GarbageCollection, DelegatesOfObjectsThatAreGoneAreSkipped)
{
	FSimpleMulticastDelegate Delegate;
	UTestWitness* const Witness = NewObject<UTestWitness>(GetTransientPackage(), TEXT("Bound"));
	Delegate.AddUObject(Witness, &UTestWitness::PostLoad);
	UTestWitness::Events.Empty();
	Delegate.Broadcast();
	EXPECT_EQ(UTestWitness::Events, TArray<FString>({TEXT("PostLoad Bound")}));

	CollectGarbage(RF_NoFlags);
	UTestWitness::Events.Empty();
	Delegate.Broadcast();
	EXPECT_TRUE(UTestWitness::Events.IsEmpty());
}

TEST_F(GarbageCollection, IteratorsVisitLiveObjectsOfTheClassAndOfDerivedOnes)
{
	GetDefault<UTestBigPart>();
	UTestPart* const Part = NewObject<UTestPart>();
	UTestBigPart* const Big = NewObject<UTestBigPart>();

	TArray<UTestPart*> Visited;
	for (TObjectIterator<UTestPart> It; It; ++It)
	{
		Visited.Add(*It);
	}
	EXPECT_EQ(Visited.Num(), 2);
	EXPECT_TRUE(Visited.Contains(Part));
	EXPECT_TRUE(Visited.Contains(Big));

	TArray<UObject*> Exact;
	GetObjectsOfClass(UTestPart::StaticClass(), Exact, false);
	EXPECT_EQ(Exact, TArray<UObject*>({Part}));

	TArray<UObject*> WithDefaults;
	GetObjectsOfClass(UTestBigPart::StaticClass(), WithDefaults, true, RF_NoFlags);
	EXPECT_TRUE(WithDefaults.Contains(GetMutableDefault<UTestBigPart>()));
}

TEST_F(GarbageCollection, ObjectsInsideAnOuterAreListedBehindTheirOuter)
{
	UTestNode* const Child = NewObject<UTestNode>(Root);
	UTestNode* const GrandChild = NewObject<UTestNode>(Child);

	TArray<UObject*> All;
	GetObjectsWithOuter(Root, All);
	EXPECT_EQ(All, TArray<UObject*>({Child, GrandChild}));

	TArray<UObject*> Direct;
	GetObjectsWithOuter(Root, Direct, false);
	EXPECT_EQ(Direct, TArray<UObject*>({Child}));
}

} // namespace
