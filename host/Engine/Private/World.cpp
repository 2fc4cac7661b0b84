// SPDX-License-Identifier: MIT
#include "Engine/World.h"

#include "Components/ActorComponent.h"
#include "Components/SceneComponent.h"
#include "Engine/Level.h"
#include "GameFramework/Actor.h"
#include "GameFramework/WorldSettings.h"
#include "Host/Scene.h"
#include "Logging/LogMacros.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "RegisteredComponents.h"

DEFINE_LOG_CATEGORY_STATIC(LogWorld, Log, All);

UWorld::UWorld(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, RegisteredComponents(MakeShared<FRegisteredComponents>())
{
}

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType, bool, FName WorldName, UPackage* InWorldPackage)
{
	UPackage* const Outer = InWorldPackage ? InWorldPackage : GetTransientPackage();
	UWorld* const World = NewObject<UWorld>(Outer, WorldName, RF_Transient);
	World->WorldType = InWorldType;
	World->Scene = new Host::FScene(World);
	World->PersistentLevel = NewObject<ULevel>(World, FName(TEXT("PersistentLevel")), RF_Transient);
	World->PersistentLevel->OwningWorld = World;

	FActorSpawnParameters Parameters;
	Parameters.Name = FName(TEXT("WorldSettings"));
	Parameters.ObjectFlags = RF_Transient;
	World->WorldSettings = World->SpawnActor<AWorldSettings>(Parameters);
	USceneComponent* const Root = NewObject<USceneComponent>(World->WorldSettings, FName(TEXT("Root")), RF_Transient);
	World->WorldSettings->SetRootComponent(Root);
	Root->RegisterComponent();
	return World;
}

AActor* UWorld::SpawnActor(UClass* InClass, FTransform const* Transform, const FActorSpawnParameters& SpawnParameters)
{
	if (!InClass || !InClass->IsChildOf(AActor::StaticClass()) || InClass->HasAnyClassFlags(CLASS_Abstract))
	{
		UE_LOG(LogWorld, Warning, TEXT("No actor is spawned: '%s' is no class of actors that can be made"),
			InClass ? *InClass->GetName() : TEXT("null"));
		return nullptr;
	}
	ULevel* const Level = SpawnParameters.OverrideLevel ? SpawnParameters.OverrideLevel : PersistentLevel.Get();
	AActor* const Actor =
		NewObject<AActor>(Level, InClass, SpawnParameters.Name, SpawnParameters.ObjectFlags, SpawnParameters.Template);
	Actor->Owner = SpawnParameters.Owner;
	Level->Actors.Add(Actor);
	if (Transform)
	{
		Actor->SetActorTransform(*Transform);
	}
	Actor->RegisterAllComponents();
	return Actor;
}

bool UWorld::DestroyActor(AActor* Actor, bool, bool bShouldModifyLevel)
{
	if (Actor->bActorIsBeingDestroyed || Actor->GetWorld() != this)
	{
		return false;
	}
	Actor->bActorIsBeingDestroyed = true;
	ULevel* const Level = Actor->GetLevel();
	if (bShouldModifyLevel)
	{
		Level->Modify();
	}
	const TArray<UActorComponent*> Components = Actor->OwnedComponents.Array();
	for (UActorComponent* const Component : Components)
	{
		Component->DestroyComponent();
	}
	Level->Actors.Remove(Actor);
	Actor->MarkAsGarbage();
	return true;
}

bool UWorld::IsGameWorld() const
{
	return WorldType == EWorldType::Game || WorldType == EWorldType::PIE || WorldType == EWorldType::GamePreview;
}

void UWorld::Tick(ELevelTick TickType, float DeltaSeconds)
{
	const float Delta = TickType == LEVELTICK_PauseTick ? 0.0f : DeltaSeconds;
	DeltaTimeSeconds = Delta;
	TimeSeconds += Delta;
	if (TickType == LEVELTICK_All)
	{
		// A component may end the world while it ticks.
		const TSharedPtr<FRegisteredComponents> Ticking = RegisteredComponents;
		Ticking->Tick(TickType, Delta);
	}
}

void UWorld::ChangeFeatureLevel(ERHIFeatureLevel::Type InFeatureLevel, bool, bool bForceUpdate)
{
	if (InFeatureLevel == FeatureLevel && !bForceUpdate)
	{
		return;
	}
	FeatureLevel = InFeatureLevel;
	if (Scene)
	{
		Host::FScene::Of(this)->RefreshAll();
	}
}

void UWorld::CleanupWorld()
{
	if (!Scene)
	{
		return;
	}
	RegisteredComponents->UnregisterAll();
	delete Scene;
	Scene = nullptr;
}

void UWorld::DestroyWorld(bool)
{
	CleanupWorld();
	MarkAsGarbage();
}

void UWorld::BeginDestroy()
{
	CleanupWorld();
	Super::BeginDestroy();
}
