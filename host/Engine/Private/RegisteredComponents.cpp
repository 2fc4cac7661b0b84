// SPDX-License-Identifier: MIT
#include "RegisteredComponents.h"

#include "Components/ActorComponent.h"

void FRegisteredComponents::Add(UActorComponent* Component)
{
	Entries.Add({Component, 0.0f});
}

void FRegisteredComponents::Remove(UActorComponent* Component)
{
	const int32 Index = Entries.IndexOfByPredicate([&](const FEntry& Entry) { return Entry.Component == Component; });
	if (Index == INDEX_NONE)
	{
		return;
	}
	if (TickDepth > 0)
	{
		Entries[Index].Component = nullptr;
		bHasGaps = true;
		return;
	}
	Entries.RemoveAt(Index);
}

void FRegisteredComponents::Tick(ELevelTick TickType, float DeltaSeconds)
{
	const int32 Count = Entries.Num();
	++TickDepth;
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
	if (--TickDepth == 0 && bHasGaps)
	{
		Entries.RemoveAll([](const FEntry& Entry) { return Entry.Component == nullptr; });
		bHasGaps = false;
	}
}

void FRegisteredComponents::UnregisterAll()
{
	for (int32 Index = Entries.Num() - 1; Index >= 0; --Index)
	{
		if (Entries.IsValidIndex(Index) && Entries[Index].Component)
		{
			Entries[Index].Component->UnregisterComponent();
		}
	}
}
