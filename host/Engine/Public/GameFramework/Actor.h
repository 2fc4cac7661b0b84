// SPDX-License-Identifier: MIT
// Something that stands in a world, made of components.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Engine/EngineTypes.h"
#include "Actor.generated.h"

class UActorComponent;
class ULevel;
class USceneComponent;
class UWorld;

/** Made by UWorld::SpawnActor, and gone at the garbage collection after Destroy. */
UCLASS()
class AActor : public UObject
{
	GENERATED_BODY()

public:
	AActor(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	virtual UWorld* GetWorld() const override;
	ULevel* GetLevel() const;
	AActor* GetOwner() const { return Owner; }

	/** Every component that has this actor as outer, in the order of construction. */
	const TSet<UActorComponent*>& GetComponents() const { return OwnedComponents; }
	bool OwnsComponent(UActorComponent* Component) const { return OwnedComponents.Contains(Component); }
	/** Nothing happens for a component that is listed; one that another actor owns is a failed check. */
	void AddOwnedComponent(UActorComponent* Component);
	void RemoveOwnedComponent(UActorComponent* Component);
	/** The first component of that class or a derived one; null when there is none. */
	UActorComponent* FindComponentByClass(const UClass* ComponentClass) const;
	template <class T>
	T* FindComponentByClass() const
	{
		return static_cast<T*>(FindComponentByClass(T::StaticClass()));
	}

	USceneComponent* GetRootComponent() const { return RootComponent; }
	/** Accepted, with true, when null or owned by this actor. */
	bool SetRootComponent(USceneComponent* NewRootComponent);

	/** The root's place; the identity without a root. */
	FTransform GetActorTransform() const;
	FVector GetActorLocation() const { return GetActorTransform().GetLocation(); }
	/** False, and nothing moved, without a root. */
	bool SetActorTransform(const FTransform& NewTransform);

	/** Registers every component that is not registered yet. */
	void RegisterAllComponents();
	void UnregisterAllComponents();

	bool IsActorBeingDestroyed() const { return bActorIsBeingDestroyed; }
	/**
	 * Takes the actor out of its world; it and its components become garbage.
	 *
	 * @return false when it stands in no world or is being destroyed
	 */
	bool Destroy(bool bNetForce = false, bool bShouldModifyLevel = true);

private:
	friend class UWorld;

	UPROPERTY()
	TObjectPtr<USceneComponent> RootComponent;
	UPROPERTY()
	TObjectPtr<AActor> Owner;

	TSet<UActorComponent*> OwnedComponents; // reported by AddReferencedObjects
	bool bActorIsBeingDestroyed = false;
};
