// SPDX-License-Identifier: MIT
// Base of the components: ownership, registration with a world, and ticks.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Engine/EngineTypes.h"
#include "ActorComponent.generated.h"

class AActor;
class FRegisterComponentContext;
class UWorld;

/**
 * A part of an actor, or of a preview scene directly.
 *
 * The owner is the actor that the component has as outer (or the first actor outward), found at construction. While it
 * is registered, the component stands in a world: it ticks there if its tick function may, and shows itself if it is
 * something to see.
 */
UCLASS(Abstract, DefaultToInstanced, EditInlineNew)
class UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	UActorComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Set in the constructor: `PrimaryComponentTick.bCanEverTick = true` asks for TickComponent. */
	FActorComponentTickFunction PrimaryComponentTick;

	/** Null for a component that no actor owns. */
	AActor* GetOwner() const;
	/** The world that it is registered with, else its owner's; null for neither. */
	virtual UWorld* GetWorld() const override;
	bool IsRegistered() const { return bRegistered; }
	bool IsBeingDestroyed() const { return bIsBeingDestroyed; }

	/** Registers with the owner's world; nothing happens when it is registered or when there is no such world. */
	void RegisterComponent();
	/** Registers with the given world; nothing happens when it is registered. */
	void RegisterComponentWithWorld(UWorld* InWorld);
	/** Nothing happens when it is not registered. */
	void UnregisterComponent();
	/** Unregisters and registers with the same world; nothing happens when it is not registered. */
	void ReregisterComponent();

	/** Unregisters, leaves the owner and marks the component as garbage. */
	virtual void DestroyComponent(bool bPromoteChildren = false);

	/** Called each time the world ticks, while registered and enabled. */
	virtual void TickComponent(float DeltaTime, ELevelTick TickType, FActorComponentTickFunction* ThisTickFunction);
	void SetComponentTickEnabled(bool bEnabled) { PrimaryComponentTick.SetTickFunctionEnable(bEnabled); }
	bool IsComponentTickEnabled() const { return PrimaryComponentTick.IsTickFunctionEnabled(); }

	/** What the scene shows of this component is out of date. */
	void MarkRenderStateDirty();
	/** Whether it stands in the world's scene. */
	bool IsRenderStateCreated() const { return bRenderStateCreated; }

	virtual void PostInitProperties() override;
	virtual void BeginDestroy() override;

protected:
	/** Called when the component was given a world; overrides call the base first. */
	virtual void OnRegister();
	/** Called before the component loses its world; overrides call the base last. */
	virtual void OnUnregister();
	virtual void OnComponentDestroyed(bool bDestroyingHierarchy);

	/** Whether there is anything to show in the scene. */
	virtual bool ShouldCreateRenderState() const { return false; }
	/** Puts it into the world's scene, takes it out, or tells the scene that it has moved. */
	virtual void CreateRenderState_Concurrent(FRegisterComponentContext* Context);
	virtual void DestroyRenderState_Concurrent();
	virtual void SendRenderTransform_Concurrent();

private:
	friend class AActor;

	UWorld* WorldPrivate = nullptr; // while registered; a world outlives its registrations
	AActor* OwnerPrivate = nullptr; // the outer, which outlives the component
	bool bRegistered = false;
	bool bRenderStateCreated = false;
	bool bIsBeingDestroyed = false;
};
