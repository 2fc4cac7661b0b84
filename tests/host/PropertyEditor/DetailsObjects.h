// SPDX-License-Identifier: MIT
/** Objects with a property of each kind, for the tests of details views. */
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "DetailsObjects.generated.h"

UENUM()
enum class EDetailsKind : uint8
{
	Plain,
	Woven UMETA(DisplayName = "Woven Cloth"),
	Secret UMETA(Hidden)
};

USTRUCT()
struct FDetailsPart
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Part")
	FName Label;
	UPROPERTY(EditAnywhere, Category = "Part")
	FVector Place = FVector(0.0, 0.0, 0.0);
	/** Not for anybody to see. */
	UPROPERTY()
	int32 Hidden = 0;
};

UCLASS()
class UDetailsBase : public UObject
{
	GENERATED_BODY()

public:
	/** How wide it is. */
	UPROPERTY(EditAnywhere, Category = "Size", meta = (ClampMin = "0", ClampMax = "10"))
	float Width = 1.5f;
	UPROPERTY(VisibleAnywhere, Category = "Size")
	int32 Count = 7;
	UPROPERTY(EditAnywhere, Category = "Size|Fine Print", AdvancedDisplay)
	uint8 Byte = 1;
	UPROPERTY(EditDefaultsOnly, Category = "Size")
	int32 ForTemplates = 0;
	UPROPERTY()
	int32 Unseen = 0;
};

UCLASS()
class UDetailsObject : public UDetailsBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Look")
	bool bShiny = false;
	UPROPERTY(EditAnywhere, Category = "Look")
	uint8 bBit : 1;
	UPROPERTY(EditAnywhere, Category = "Look")
	EDetailsKind Kind = EDetailsKind::Plain;
	UPROPERTY(EditAnywhere, Category = "Look")
	FColor Tint = FColor(1, 2, 3, 4);
	UPROPERTY(EditAnywhere, Category = "Look", meta = (EditCondition = "bShiny"))
	float Gloss = 0.0f;
	UPROPERTY(EditAnywhere, Category = "Names")
	FString Title;
	UPROPERTY(EditAnywhere, Category = "Names")
	TArray<FDetailsPart> Parts;
	UPROPERTY(EditAnywhere, EditFixedSize, Category = "Names")
	TArray<int32> Numbers;
	UPROPERTY(EditAnywhere, Category = "Names")
	TMap<FName, int32> Ranks;
	UPROPERTY(EditAnywhere, Category = "Names")
	TObjectPtr<UDetailsBase> Other;
	UPROPERTY(EditAnywhere, Category = "Transform")
	FVector Location = FVector(1.0, 2.0, 3.5);
	UPROPERTY(EditAnywhere, Category = "Transform")
	float Corners[2] = {0.0f, 0.0f};

	UDetailsObject(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get())
		: Super(ObjectInitializer)
		, bBit(0)
	{
	}
};

UCLASS()
class UDetailsCousin : public UDetailsBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Cousin")
	int32 Own = 0;
};
