// SPDX-License-Identifier: MIT
#include "ObjectFixture.h"

#include "Templates/Casts.h"
#include "UObject/UObjectHash.h"

namespace
{

class ObjectConstruction : public FObjectTest
{
};

TEST_F(ObjectConstruction, GivesClassOuterNameAndFlags)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Construction"));

	UTestNode* const Node = NewObject<UTestNode>(Package, TEXT("Knot"), RF_Public | RF_Transient);

	EXPECT_EQ(Node->GetClass(), UTestNode::StaticClass());
	EXPECT_EQ(Node->GetOuter(), Package);
	EXPECT_EQ(Node->GetFName(), FName(TEXT("Knot")));
	EXPECT_EQ(Node->GetFlags(), RF_Public | RF_Transient);
	EXPECT_EQ(Node->GetPathName(), TEXT("/Game/Construction.Knot"));
	EXPECT_EQ(Node->GetFullName(), TEXT("TestNode /Game/Construction.Knot"));
}

TEST_F(ObjectConstruction, WithoutOuterTheObjectLiesInTheTransientPackage)
{
	UTestNode* const Node = NewObject<UTestNode>();

	EXPECT_EQ(Node->GetOuter(), GetTransientPackage());
	EXPECT_EQ(GetTransientPackage()->GetName(), TEXT("/Engine/Transient"));
}

TEST_F(ObjectConstruction, WithoutNameEachObjectGetsOneOfItsOwn)
{
	const UTestNode* const First = NewObject<UTestNode>();
	const UTestNode* const Second = NewObject<UTestNode>();

	EXPECT_NE(First->GetFName(), Second->GetFName());
	EXPECT_TRUE(First->GetName().StartsWith(TEXT("TestNode_")));
}

TEST_F(ObjectConstruction, PathsPutAColonBelowTheObjectOfThePackage)
{
	UTestNode* const Top = NewObject<UTestNode>(CreatePackage(TEXT("/Game/Paths")), TEXT("Top"));
	UTestNode* const Middle = NewObject<UTestNode>(Top, TEXT("Middle"));
	UTestNode* const Bottom = NewObject<UTestNode>(Middle, TEXT("Bottom"));

	EXPECT_EQ(Bottom->GetPathName(), TEXT("/Game/Paths.Top:Middle.Bottom"));
	EXPECT_EQ(Bottom->GetPathName(Top), TEXT("Middle.Bottom"));
	EXPECT_EQ(Bottom->GetOutermost()->GetName(), TEXT("/Game/Paths"));
	EXPECT_EQ(Bottom->GetTypedOuter<UTestNode>(), Middle);
	EXPECT_TRUE(Bottom->IsIn(Top));
	EXPECT_FALSE(Top->IsIn(Bottom));
}

TEST_F(ObjectConstruction, TheSameOuterNameAndClassRebuildTheObjectAtItsAddress)
{
	UTestNode* const Old = NewObject<UTestNode>(GetTransientPackage(), TEXT("Dummy"));
	Old->Slot.Name = TEXT("Filled");
	const TWeakObjectPtr<UTestNode> Weak = Old;

	UTestNode* const New = NewObject<UTestNode>(GetTransientPackage(), TEXT("Dummy"), RF_Public);

	EXPECT_EQ(New, Old);
	EXPECT_EQ(New->Slot.Name, FName());
	EXPECT_EQ(New->GetFlags(), RF_Public);
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_NE(Weak, TWeakObjectPtr<UTestNode>(New));
}

TEST_F(ObjectConstruction, RebuildingRunsTheWholeDestructionFirst)
{
	UTestWitness* const Old = NewObject<UTestWitness>(GetTransientPackage(), TEXT("Witness"));
	Old->Label = TEXT("old");
	UTestWitness::Events.Empty();

	NewObject<UTestWitness>(GetTransientPackage(), TEXT("Witness"))->Label = TEXT("new");

	const TArray<FString> Expected = {TEXT("BeginDestroy old"), TEXT("FinishDestroy old"), TEXT("Destructor old"),
		TEXT("PostInitProperties Witness")};
	EXPECT_EQ(UTestWitness::Events, Expected);
}

TEST_F(ObjectConstruction, ARebuiltObjectStaysInTheRootSet)
{
	UTestNode* const Node = NewObject<UTestNode>(GetTransientPackage(), TEXT("Rooted"));
	Node->AddToRoot();

	NewObject<UTestNode>(GetTransientPackage(), TEXT("Rooted"));

	EXPECT_TRUE(Node->IsRooted());
	Node->RemoveFromRoot();
}

TEST_F(ObjectConstruction, AnotherClassUnderTheNameIsFatal)
{
	const UTestNode* const Node = NewObject<UTestNode>(GetTransientPackage(), TEXT("Taken"));

	EXPECT_EQ(AssertionOf([] { NewObject<UTestPart>(GetTransientPackage(), TEXT("Taken")); }),
		"Cannot replace existing object of a different class: TestNode /Engine/Transient.Taken by a TestPart");
	EXPECT_TRUE(IsValid(Node));
}

TEST_F(ObjectConstruction, GarbageGivesUpItsName)
{
	UTestNode* const Garbage = NewObject<UTestNode>(GetTransientPackage(), TEXT("Reused"));
	Garbage->MarkAsGarbage();

	const UTestPart* const Part = NewObject<UTestPart>(GetTransientPackage(), TEXT("Reused"));

	EXPECT_NE(static_cast<const UObject*>(Part), Garbage);
	EXPECT_EQ(Part->GetName(), TEXT("Reused"));
	EXPECT_NE(Garbage->GetName(), TEXT("Reused"));
}

TEST_F(ObjectConstruction, AnAbstractClassHasNoInstances)
{
	EXPECT_EQ(AssertionOf([] { NewObject<UTestShape>(); }), "The class TestShape is abstract and has no instances");
	EXPECT_EQ(NewObject<UTestSquare>()->CornerCount(), 4);
}

TEST_F(ObjectConstruction, TheClassMustBeTheOneOfTheResultOrDerived)
{
	EXPECT_EQ(NewObject<UTestPart>(GetTransientPackage(), UTestBigPart::StaticClass())->GetClass(),
		UTestBigPart::StaticClass());
	EXPECT_EQ(AssertionOf([] { NewObject<UTestBigPart>(GetTransientPackage(), UTestPart::StaticClass()); }),
		"A TestPart is no TestBigPart");
}

TEST_F(ObjectConstruction, ConstructorsMayBeDeclaredInAnyOfTheAllowedWays)
{
	// Of the classes here one declares no constructor, one a plain one, and the others take the initializer.
	EXPECT_NE(NewObject<UTestBigPart>(), nullptr);
	EXPECT_EQ(NewObject<UTestValues>()->bSecond, 1);
	EXPECT_NE(NewObject<UTestOwner>()->Part, nullptr);
	EXPECT_EQ(NewObject<UTestLegacy>()->Age, 4);
	EXPECT_EQ(FString(ATestLamp::StaticClass()->GetPrefixCPP()), TEXT("A"));
	EXPECT_EQ(NewObject<ATestLamp>()->GetClass()->GetName(), TEXT("TestLamp"));
}

TEST_F(ObjectConstruction, AConstructorThatFailsLeavesNothingBehind)
{
	UTestLegacy::bRefuse = true;
	EXPECT_EQ(AssertionOf([] { NewObject<UTestLegacy>(GetTransientPackage(), TEXT("Refused")); }), "refused");
	UTestLegacy::bRefuse = false;

	EXPECT_EQ(FindObject<UObject>(GetTransientPackage(), TEXT("Refused")), nullptr);
	EXPECT_NE(NewObject<UTestLegacy>(GetTransientPackage(), TEXT("Refused")), nullptr);
}

TEST_F(ObjectConstruction, OnlyPackagesHaveNoOuter)
{
	EXPECT_EQ(AssertionOf([] { NewObject<UTestNode>(nullptr, TEXT("Lost")); }),
		"An object of the class TestNode needs an outer");
}

TEST_F(ObjectConstruction, ObjectsAreNotMadeOnTheStack)
{
	EXPECT_EQ(
		AssertionOf([] { UTestPart Part; }), "Objects are made with NewObject, not with new and not on the stack");
}

TEST_F(ObjectConstruction, ATemplateGivesTheFirstValues)
{
	UTestValues* const Template = NewObject<UTestValues>();
	Template->Threads = 40;
	Template->bFirst = 1;
	Template->Numbers = {1, 2, 3};
	Template->Scratch = 5;

	const UTestValues* const Values = NewObject<UTestValues>(GetTransientPackage(), NAME_None, RF_NoFlags, Template);

	EXPECT_EQ(Values->Threads, 40);
	EXPECT_EQ(Values->bFirst, 1);
	EXPECT_EQ(Values->Numbers, TArray<int32>({1, 2, 3}));
	EXPECT_EQ(Values->Scratch, 0);
}

TEST_F(ObjectConstruction, PartsOfATemplateAreCopiedNotShared)
{
	UTestOwner* const Template = NewObject<UTestOwner>();
	Template->Part->Size = 21;

	const UTestOwner* const Owner = NewObject<UTestOwner>(GetTransientPackage(), NAME_None, RF_NoFlags, Template);

	EXPECT_NE(Owner->Part, Template->Part);
	EXPECT_EQ(Owner->Part->GetOuter(), Owner);
	EXPECT_EQ(Owner->Part->Size, 21);
	EXPECT_EQ(Owner->Part->Owner, Owner);
}

TEST_F(ObjectConstruction, DefaultSubobjectsBelongToTheirOwner)
{
	UTestOwner* const Owner = NewObject<UTestOwner>(GetTransientPackage(), NAME_None, RF_Transient);

	EXPECT_EQ(Owner->Part->GetOuter(), Owner);
	EXPECT_EQ(Owner->Part->GetName(), TEXT("Part"));
	EXPECT_TRUE(Owner->Part->IsDefaultSubobject());
	EXPECT_TRUE(Owner->Part->HasAnyFlags(RF_Transient));
	EXPECT_EQ(Owner->GetDefaultSubobjectByName(TEXT("Part")), Owner->Part);
}

TEST_F(ObjectConstruction, ADerivedClassMayChooseTheClassOfAPart)
{
	EXPECT_EQ(NewObject<UTestBigOwner>()->Part->GetClass(), UTestBigPart::StaticClass());
	EXPECT_EQ(NewObject<UTestOwner>()->Part->GetClass(), UTestPart::StaticClass());
}

TEST_F(ObjectConstruction, AClassHasOneDefaultObject)
{
	const UTestValues* const Defaults = GetDefault<UTestValues>();

	EXPECT_EQ(Defaults, UTestValues::StaticClass()->GetDefaultObject());
	EXPECT_EQ(Defaults->GetName(), TEXT("Default__TestValues"));
	EXPECT_TRUE(Defaults->HasAllFlags(RF_ClassDefaultObject | RF_ArchetypeObject));
	EXPECT_EQ(Defaults->Threads, 12);
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(GetDefault<UTestValues>(), Defaults);
}

TEST_F(ObjectConstruction, ADefaultObjectOfAnAbstractClassDoesNotExistWhenCppCannotMakeOne)
{
	EXPECT_EQ(UTestShape::StaticClass()->GetDefaultObject(), nullptr);
}

TEST_F(ObjectConstruction, CastsLookAtTheObject)
{
	UObject* const Square = NewObject<UTestSquare>();
	UObject* const None = nullptr;

	EXPECT_EQ(Cast<UTestShape>(Square), Square);
	EXPECT_EQ(Cast<UTestNode>(Square), nullptr);
	EXPECT_EQ(Cast<UTestNode>(None), nullptr);
	EXPECT_EQ(ExactCast<UTestSquare>(Square), Square);
	EXPECT_EQ(ExactCast<UTestShape>(Square), nullptr);
	EXPECT_EQ(CastChecked<UTestShape>(Square), Square);
	EXPECT_NE(AssertionOf([&] { CastChecked<UTestNode>(Square); }).find("to TestNode failed"), std::string::npos);
	EXPECT_NE(AssertionOf([&] { CastChecked<UTestNode>(None); }), "");
}

TEST_F(ObjectConstruction, RenamingMovesAnObject)
{
	UTestNode* const Node = NewObject<UTestNode>(GetTransientPackage(), TEXT("Before"));
	UTestNode* const Outer = NewObject<UTestNode>(GetTransientPackage(), TEXT("Outer"));

	EXPECT_TRUE(Node->Rename(TEXT("After"), Outer));

	EXPECT_EQ(Node->GetPathName(), TEXT("/Engine/Transient.Outer:After"));
	EXPECT_EQ(FindObject<UTestNode>(GetTransientPackage(), TEXT("Before")), nullptr);
	EXPECT_EQ(FindObject<UTestNode>(Outer, TEXT("After")), Node);
}

TEST_F(ObjectConstruction, RenamingToATakenNameIsFatalAndCanBeTested)
{
	UTestNode* const Node = NewObject<UTestNode>(GetTransientPackage(), TEXT("One"));
	NewObject<UTestNode>(GetTransientPackage(), TEXT("Two"));

	EXPECT_FALSE(Node->Rename(TEXT("Two"), nullptr, REN_Test));
	EXPECT_NE(AssertionOf([&] { Node->Rename(TEXT("Two")); }), "");
	EXPECT_EQ(Node->GetName(), TEXT("One"));
	EXPECT_TRUE(Node->Rename(TEXT("Three"), nullptr, REN_Test));
	EXPECT_EQ(Node->GetName(), TEXT("One"));
}

} // namespace
