// SPDX-License-Identifier: MIT
// The engine object and the worlds that it knows.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Engine/EngineTypes.h"
#include "Engine.generated.h"

class UWorld;

/** A world, and what it is for. */
struct FWorldContext
{
	TEnumAsByte<EWorldType::Type> WorldType = EWorldType::None;

	UWorld* World() const { return ThisCurrentWorld; }
	void SetCurrentWorld(UWorld* World) { ThisCurrentWorld = World; }

private:
	UWorld* ThisCurrentWorld = nullptr; // the engine's own reference keeps it alive
};

/** Base of the editor's engine object. */
UCLASS(Abstract)
class UEngine : public UObject
{
	GENERATED_BODY()

public:
	/** Asks for a garbage collection at the end of the frame. */
	void ForceGarbageCollection(bool bFullPurge = false)
	{
		(void)bFullPurge;
		bGarbageCollectionForced = true;
	}
	bool IsGarbageCollectionForced() const { return bGarbageCollectionForced; }
	void ClearForcedGarbageCollection() { bGarbageCollectionForced = false; }

private:
	bool bGarbageCollectionForced = false;
};

/** Null while no engine runs. */
extern UEngine* GEngine;
