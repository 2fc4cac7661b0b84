// SPDX-License-Identifier: MIT
/** Reflected types of every kind, for the tests of the object system. */
#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/GCObject.h"
#include "UObject/Object.h"
#include "UObject/Package.h"

#include "TestObjects.generated.h"

class UTestPart;

UENUM()
enum class ETestKind : uint8
{
	Plain,
	Woven UMETA(DisplayName = "Woven Cloth"),
	Knitted = 5
};

UENUM()
namespace ETestPlain
{
enum Type : int
{
	First,
	Second
};
}

/** Struct with a reference. */
USTRUCT()
struct FTestSlot
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Slot")
	FName Name;

	UPROPERTY(EditAnywhere, Category = "Slot")
	TObjectPtr<UObject> Held;

	UPROPERTY(EditAnywhere, Category = "Slot")
	float Weights[2] = {0.f, 0.f};

	UPROPERTY()
	TArray<FTestSlot> Nested;
};

USTRUCT()
struct FTestNamedSlot : public FTestSlot
{
	GENERATED_BODY()

	UPROPERTY()
	FString Label;
};

/** Node of a graph that the tests build, with references of every kind. */
UCLASS(Transient)
class UTestNode : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UTestNode> Next;

	UPROPERTY()
	TArray<UTestNode*> Others;

	UPROPERTY()
	TMap<FName, TObjectPtr<UTestNode>> ByName;

	UPROPERTY()
	TMap<TObjectPtr<UTestNode>, int32> Ranks;

	UPROPERTY()
	TSet<TObjectPtr<UTestNode>> Members;

	UPROPERTY()
	FTestSlot Slot;

	UPROPERTY()
	TArray<FTestSlot> Slots;

	UPROPERTY()
	UTestNode* Corners[2] = {nullptr, nullptr};

	UPROPERTY()
	TWeakObjectPtr<UTestNode> Weak;

	/** Keeps nothing alive. */
	UTestNode* Unreflected = nullptr;
	/** Kept alive by AddReferencedObjects. */
	UTestNode* Native = nullptr;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
};

/** Writes down what happens to it. */
UCLASS()
class UTestWitness : public UTestNode
{
	GENERATED_BODY()

public:
	virtual ~UTestWitness() override;
	virtual void PostInitProperties() override;
	virtual void BeginDestroy() override;
	virtual void FinishDestroy() override;
	virtual void PostLoad() override;

	FString Label;
	/** Events of all witnesses, "Event Label"; emptied by the tests. */
	static TArray<FString> Events;
};

/** Part that its owner keeps for itself. */
UCLASS(DefaultToInstanced, EditInlineNew)
class UTestPart : public UObject
{
	GENERATED_BODY()

public:
	UTestPart() {}

	UPROPERTY(EditAnywhere, Category = "Part")
	int32 Size = 7;

	UPROPERTY()
	TObjectPtr<UObject> Owner;
};

/** A bigger part. */
UCLASS()
class UTestBigPart : public UTestPart
{
	GENERATED_BODY()
};

/** Owner of a part made in its constructor. */
UCLASS()
class UTestOwner : public UObject
{
	GENERATED_BODY()

public:
	UTestOwner(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY(VisibleAnywhere, Category = "Owner")
	TObjectPtr<UTestPart> Part;

	UPROPERTY(EditAnywhere, Category = "Owner")
	TArray<UTestPart*> Spares;
};

UCLASS()
class UTestBigOwner : public UTestOwner
{
	GENERATED_BODY()

public:
	UTestBigOwner(const FObjectInitializer& ObjectInitializer);
};

/** A property of every kind. */
UCLASS(hidecategories = (Internal))
class UTestValues : public UObject
{
	GENERATED_BODY()

public:
	/** How warm it keeps. */
	UPROPERTY(EditAnywhere, Category = "Cloth|Heat", meta = (ClampMin = "0", ClampMax = "10"))
	float Warmth = 0.5f;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	double Area = 2;

	UPROPERTY(EditAnywhere, Category = "Cloth", meta = (DisplayName = "Number of Threads"))
	int32 Threads = 12;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	uint8 Level = 3;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	bool bUseMikkTSpace = true;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	uint8 bFirst : 1;

	UPROPERTY(EditAnywhere, Category = "Cloth", meta = (EditCondition = "!bFirst"))
	uint8 bSecond : 1;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	FString Text;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	FName Tag;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	FText Caption;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	ETestKind Kind = ETestKind::Woven;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	TEnumAsByte<ETestPlain::Type> Plain = ETestPlain::Second;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	FTestNamedSlot Slot;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	TArray<int32> Numbers;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	TMap<FName, float> Factors;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	TSet<FName> Tags;

	UPROPERTY(EditAnywhere, Category = "Cloth")
	FVector Extent = FVector(1, 2, 3);

	UPROPERTY(VisibleAnywhere, Category = "Cloth")
	TObjectPtr<UObject> Seen;

	UPROPERTY(Transient)
	int32 Scratch = 0;

	UPROPERTY()
	TSubclassOf<UTestPart> PartClass;

	/** Copied by a function of its own. */
	TArray<int32> NativeNumbers;

	UTestValues()
		: bFirst(0)
		, bSecond(1)
	{
	}

private:
	UPROPERTY()
	int32 Hidden = 9;
};

UCLASS(Abstract)
class UTestShape : public UObject
{
	GENERATED_BODY()

public:
	virtual int32 CornerCount() const = 0;
};

UCLASS()
class UTestSquare : public UTestShape
{
	GENERATED_BODY()

public:
	virtual int32 CornerCount() const override { return 4; }
};

/** Declared in the older way. */
UCLASS()
class UTestLegacy : public UObject
{
	GENERATED_UCLASS_BODY()

	UPROPERTY()
	int32 Age = 4;

	/** Makes the constructor fail an assertion. */
	static bool bRefuse;
};

UCLASS()
class ATestLamp : public UObject
{
	GENERATED_BODY()
};
