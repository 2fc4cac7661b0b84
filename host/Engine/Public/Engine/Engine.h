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
	UEngine(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Asks for a garbage collection at the end of the frame. */
	void ForceGarbageCollection(bool bFullPurge = false);
	/** Called at the end of each frame: collects when asked, and when a minute has passed since the last time. */
	void ConditionalCollectGarbage();

private:
	bool bCollectionForced = false;
	double LastCollection; // on the application's clock
};

/** Null while no engine runs. */
extern UEngine* GEngine;
