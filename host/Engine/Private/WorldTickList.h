// SPDX-License-Identifier: MIT
// The components that a world ticks.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"

class UActorComponent;

/** Registered components in the order of registering. Components may come and go while the list runs. */
struct FWorldTickList
{
	void Add(UActorComponent* Component);
	void Remove(UActorComponent* Component);
	/** Calls each component that stood in the list at the beginning, is due and still stands there. */
	void Run(ELevelTick TickType, float DeltaSeconds);

private:
	struct FEntry
	{
		UActorComponent* Component; // null once it went, until the list does not run
		float SinceLastTick;
	};

	TArray<FEntry> Entries;
	int32 RunDepth = 0;
	bool bHasGaps = false;
};
