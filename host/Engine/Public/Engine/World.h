// SPDX-License-Identifier: MIT
// A world: actors, a scene that shows them, and time.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Engine/EngineTypes.h"
#include "RHIFeatureLevel.h"
#include "Templates/SharedPointer.h"
#include "World.generated.h"

class AActor;
class AWorldSettings;
class FSceneInterface;
class ULevel;
struct FRegisteredComponents;

/** How an actor is spawned. */
struct FActorSpawnParameters
{
	/** None for a name of its own making. */
	FName Name;
	AActor* Template = nullptr;
	AActor* Owner = nullptr;
	ULevel* OverrideLevel = nullptr;
	/** Undefined leaves it to the class. */
	ESpawnActorCollisionHandlingMethod SpawnCollisionHandlingOverride = ESpawnActorCollisionHandlingMethod::Undefined;
	EObjectFlags ObjectFlags = RF_Transactional;
};

/**
 * Actors in one level, the scene that their components stand in, and the ticks of the components.
 *
 * A world that is no game's ticks a component as soon as that is registered. Nothing collides, and nothing streams.
 */
UCLASS()
class UWorld : public UObject
{
	GENERATED_BODY()

public:
	UWorld(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY()
	TObjectPtr<ULevel> PersistentLevel;

	/** Owned; null after CleanupWorld. */
	FSceneInterface* Scene = nullptr;

	TEnumAsByte<EWorldType::Type> WorldType = EWorldType::None;

	/**
	 * A world with its level, its settings and its scene. It lives while something refers to it.
	 *
	 * @param InWorldPackage  the outer; the transient package when null
	 */
	static UWorld* CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld,
		FName WorldName = NAME_None, UPackage* InWorldPackage = nullptr);

	/**
	 * Makes an actor and puts it into the level.
	 *
	 * @param Transform  null for the identity; an actor without a root component stands at the origin
	 * @return null when the class is null, abstract or no actor's
	 */
	AActor* SpawnActor(UClass* InClass, FTransform const* Transform,
		const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());
	template <class T>
	T* SpawnActor(const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(T::StaticClass(), nullptr, SpawnParameters));
	}
	template <class T>
	T* SpawnActor(UClass* Class, FTransform const& Transform,
		const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(Class, &Transform, SpawnParameters));
	}

	/** See AActor::Destroy. */
	bool DestroyActor(AActor* Actor, bool bNetForce = false, bool bShouldModifyLevel = true);

	ULevel* GetCurrentLevel() const { return PersistentLevel; }
	AWorldSettings* GetWorldSettings() const { return WorldSettings; }
	bool IsGameWorld() const;

	/**
	 * Moves the world on. With LEVELTICK_All every registered component that may tick does, in the order of
	 * registering; one that comes during the tick waits for the next, one that goes is not called any more.
	 *
	 * @param DeltaSeconds  at least 0
	 */
	void Tick(ELevelTick TickType, float DeltaSeconds);
	/** Seconds that the world has ticked. */
	double GetTimeSeconds() const { return TimeSeconds; }
	float GetDeltaSeconds() const { return DeltaTimeSeconds; }

	ERHIFeatureLevel::Type GetFeatureLevel() const { return FeatureLevel; }
	/** Shows everything in the scene anew at that level; nothing happens when it is the present one. */
	void ChangeFeatureLevel(
		ERHIFeatureLevel::Type InFeatureLevel, bool bShowSlowProgressDialog = true, bool bForceUpdate = false);

	/** Takes all actors and components out and ends the scene. The world is of no use afterwards. */
	void CleanupWorld();
	/** CleanupWorld, and the world becomes garbage. */
	void DestroyWorld(bool bInformEngineOfWorld);

	virtual UWorld* GetWorld() const override { return const_cast<UWorld*>(this); }
	virtual void BeginDestroy() override;

private:
	friend class UActorComponent;

	UPROPERTY()
	TObjectPtr<AWorldSettings> WorldSettings;

	TSharedPtr<FRegisteredComponents> RegisteredComponents;
	ERHIFeatureLevel::Type FeatureLevel = ERHIFeatureLevel::SM5;
	double TimeSeconds = 0.0;
	float DeltaTimeSeconds = 0.0f;
};
