// SPDX-License-Identifier: MIT
#include "WorldTickList.h"

#include "Components/ActorComponent.h"

void FWorldTickList::Add(UActorComponent* Component)
{
	Entries.Add({Component, 0.0f});
}

void FWorldTickList::Remove(UActorComponent* Component)
{
	const int32 Index = Entries.IndexOfByPredicate([&](const FEntry& Entry) { return Entry.Component == Component; });
	if (Index == INDEX_NONE)
	{
		return;
	}
	if (RunDepth > 0)
	{
		Entries[Index].Component = nullptr;
		bHasGaps = true;
		return;
	}
	Entries.RemoveAt(Index);
}

void FWorldTickList::Run(ELevelTick TickType, float DeltaSeconds)
{
	const int32 Count = Entries.Num();
	++RunDepth;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		UActorComponent* const Component = Entries[Index].Component;
		if (!Component || !Component->IsComponentTickEnabled())
		{
			continue;
		}
		Entries[Index].SinceLastTick += DeltaSeconds;
		const float Elapsed = Entries[Index].SinceLastTick;
		if (Elapsed < Component->PrimaryComponentTick.TickInterval)
		{
			continue;
		}
		Entries[Index].SinceLastTick = 0.0f;
		// The call may add entries and so move them.
		Component->TickComponent(Elapsed, TickType, &Component->PrimaryComponentTick);
	}
	if (--RunDepth == 0 && bHasGaps)
	{
		Entries.RemoveAll([](const FEntry& Entry) { return Entry.Component == nullptr; });
		bHasGaps = false;
	}
}
