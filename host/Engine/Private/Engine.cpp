// SPDX-License-Identifier: MIT
#include "Engine/Engine.h"

#include "Host/Clock.h"
#include "UObject/GarbageCollection.h"

UEngine* GEngine = nullptr;

namespace
{
constexpr double SecondsBetweenCollections = 60.0;
} // namespace

UEngine::UEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, LastCollection(Host::AppTime())
{
}

void UEngine::ForceGarbageCollection(bool)
{
	bCollectionForced = true;
}

void UEngine::ConditionalCollectGarbage()
{
	const double Now = Host::AppTime();
	if (bCollectionForced || Now - LastCollection >= SecondsBetweenCollections)
	{
		bCollectionForced = false;
		LastCollection = Now;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
}
