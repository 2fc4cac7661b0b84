// SPDX-License-Identifier: MIT
#include "TestObjects.h"

#include "Host/NativeCopy.h"

void UTestNode::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UTestNode*>(InThis)->Native, InThis);
	Super::AddReferencedObjects(InThis, Collector);
}

TArray<FString> UTestWitness::Events;

UTestWitness::~UTestWitness()
{
	Events.Add(TEXT("Destructor ") + Label);
}

void UTestWitness::PostInitProperties()
{
	Super::PostInitProperties();
	Events.Add(TEXT("PostInitProperties ") + GetName());
}

void UTestWitness::BeginDestroy()
{
	Events.Add(TEXT("BeginDestroy ") + Label);
	Super::BeginDestroy();
}

void UTestWitness::FinishDestroy()
{
	Events.Add(TEXT("FinishDestroy ") + Label);
	Super::FinishDestroy();
}

void UTestWitness::PostLoad()
{
	Super::PostLoad();
	Events.Add(TEXT("PostLoad ") + GetName());
}

UTestOwner::UTestOwner(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	Part = CreateDefaultSubobject<UTestPart>(TEXT("Part"));
	Part->Owner = this;
}

UTestBigOwner::UTestBigOwner(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer.SetDefaultSubobjectClass<UTestBigPart>(TEXT("Part")))
{
}

bool UTestLegacy::bRefuse = false;

UTestLegacy::UTestLegacy(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	checkf(!bRefuse, TEXT("refused"));
}

static Host::TNativeCopy<UTestValues> CopyNativeNumbers(
	[](const UTestValues& Source, UTestValues& Target) { Target.NativeNumbers = Source.NativeNumbers; });
