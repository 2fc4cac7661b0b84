// SPDX-License-Identifier: MIT
#include "ObjectFixture.h"

#include "UObject/UObjectArray.h"
#include "UObject/UnrealType.h"

namespace
{

class ObjectSystem : public FObjectTest
{
};

TEST_F(ObjectSystem, TheCensusCountsObjectsByClass)
{
	NewObject<UTestPart>(GetTransientPackage(), TEXT("Counted"));
	NewObject<UTestOwner>(CreatePackage(TEXT("/Game/Census")), TEXT("Owner"));
	GetDefault<UTestSquare>();

	const Host::FObjectCensus After = Host::TakeObjectCensus();

	EXPECT_EQ(Host::CompareObjectCensus(Before, After), TEXT("Package +1, TestOwner +1, TestPart +2"));
	EXPECT_EQ(Host::CompareObjectCensus(After, Before), TEXT("Package -1, TestOwner -1, TestPart -2"));
	EXPECT_EQ(After.Total, Before.Total + 4);
	EXPECT_EQ(Host::ListObjectsOfClass(TEXT("TestPart")), TEXT("/Engine/Transient.Counted\n/Game/Census.Owner:Part\n"));
}

TEST_F(ObjectSystem, TeardownDestroysEverythingAndTheSystemCanBeUsedAgain)
{
	UTestWitness* const Witness = NewObject<UTestWitness>(GetTransientPackage(), NAME_None, RF_Standalone);
	Witness->Label = TEXT("rooted");
	Witness->AddToRoot();
	const TWeakObjectPtr<UTestWitness> Weak = Witness;
	GetDefault<UTestValues>();
	UTestWitness::Events.Empty();

	Host::TeardownObjectSystem();

	EXPECT_EQ(UTestWitness::Events,
		TArray<FString>({TEXT("BeginDestroy rooted"), TEXT("FinishDestroy rooted"), TEXT("Destructor rooted")}));
	EXPECT_EQ(GUObjectArray.GetObjectArrayNum(), 0);
	EXPECT_EQ(Weak.Get(), nullptr);

	Host::InitObjectSystem();
	EXPECT_EQ(NewObject<UTestOwner>()->Part->Size, 7);
	EXPECT_EQ(GetDefault<UTestValues>()->Threads, 12);
	EXPECT_EQ(UTestValues::StaticClass()->FindPropertyByName(TEXT("Threads"))->GetCPPType(), TEXT("int32"));
	EXPECT_EQ(StaticEnum<ETestKind>()->NumEnums(), 3);
}

TEST_F(ObjectSystem, ManyRoundsLeaveTheTablesAsTheyWere)
{
	const auto RunRound = []
	{
		UPackage* const Package = CreatePackage(TEXT("/Game/Round"));
		UTestOwner* const Owner = NewObject<UTestOwner>(Package, TEXT("Owner"), RF_Public | RF_Standalone);
		Owner->Spares.Add(NewObject<UTestPart>(Owner));
		DuplicateObject(Owner, Package, TEXT("Copy"))->ClearFlags(RF_Standalone);
		Owner->ClearFlags(RF_Standalone);
		CollectGarbage(RF_Standalone);
	};
	RunRound();
	const int32 Places = GUObjectArray.GetObjectArrayNum();

	for (int32 Round = 0; Round < 2000; ++Round)
	{
		RunRound();
	}

	EXPECT_EQ(GUObjectArray.GetObjectArrayNum(), Places);
	EXPECT_EQ(Host::CompareObjectCensus(Before, Host::TakeObjectCensus()), FString());
}

} // namespace
