// SPDX-License-Identifier: MIT
// The actors of a world.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Level.generated.h"

class AActor;
class UWorld;

UCLASS()
class ULevel : public UObject
{
	GENERATED_BODY()

public:
	/** In the order of spawning. */
	UPROPERTY()
	TArray<TObjectPtr<AActor>> Actors;

	UPROPERTY()
	TObjectPtr<UWorld> OwningWorld;

	virtual UWorld* GetWorld() const override { return OwningWorld; }
};
