// SPDX-License-Identifier: MIT
// The components that a world holds.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"

class UActorComponent;

/** In the order of registering. Components may come and go while they tick. */
struct FRegisteredComponents
{
	void Add(UActorComponent* Component);
	void Remove(UActorComponent* Component);
	/** Ticks each component that stood here at the beginning, may tick, is due and still stands here. */
	void Tick(ELevelTick TickType, float DeltaSeconds);
	/** Unregisters the last one until none is left. */
	void UnregisterAll();

private:
	struct FEntry
	{
		UActorComponent* Component; // null once it went during a tick
		float SinceLastTick;
	};

	TArray<FEntry> Entries;
	int32 TickDepth = 0;
	bool bHasGaps = false;
};
