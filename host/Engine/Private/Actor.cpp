// SPDX-License-Identifier: MIT
#include "GameFramework/Actor.h"

#include "Components/SceneComponent.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "UObject/GCObject.h"

AActor::AActor(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void AActor::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObjects(static_cast<AActor*>(InThis)->OwnedComponents);
	Super::AddReferencedObjects(InThis, Collector);
}

UWorld* AActor::GetWorld() const
{
	const ULevel* const Level = GetLevel();
	return Level ? Level->OwningWorld : nullptr;
}

ULevel* AActor::GetLevel() const
{
	return GetTypedOuter<ULevel>();
}

void AActor::AddOwnedComponent(UActorComponent* Component)
{
	checkf(Component->GetOwner() == this, TEXT("%s is owned by another actor than %s"), *Component->GetPathName(),
		*GetPathName());
	OwnedComponents.Add(Component);
}

void AActor::RemoveOwnedComponent(UActorComponent* Component)
{
	OwnedComponents.Remove(Component);
}

UActorComponent* AActor::FindComponentByClass(const UClass* ComponentClass) const
{
	for (UActorComponent* const Component : OwnedComponents)
	{
		if (Component->IsA(ComponentClass))
		{
			return Component;
		}
	}
	return nullptr;
}

bool AActor::SetRootComponent(USceneComponent* NewRootComponent)
{
	if (NewRootComponent && NewRootComponent->GetOwner() != this)
	{
		return false;
	}
	RootComponent = NewRootComponent;
	return true;
}

FTransform AActor::GetActorTransform() const
{
	return RootComponent ? RootComponent->GetComponentTransform() : FTransform::Identity;
}

bool AActor::SetActorTransform(const FTransform& NewTransform)
{
	if (!RootComponent)
	{
		return false;
	}
	RootComponent->SetWorldTransform(NewTransform);
	return true;
}

void AActor::RegisterAllComponents()
{
	const TArray<UActorComponent*> Components = OwnedComponents.Array();
	for (UActorComponent* const Component : Components)
	{
		if (!Component->IsRegistered())
		{
			Component->RegisterComponent();
		}
	}
}

void AActor::UnregisterAllComponents()
{
	const TArray<UActorComponent*> Components = OwnedComponents.Array();
	for (UActorComponent* const Component : Components)
	{
		Component->UnregisterComponent();
	}
}

bool AActor::Destroy(bool bNetForce, bool bShouldModifyLevel)
{
	UWorld* const World = GetWorld();
	return World && World->DestroyActor(this, bNetForce, bShouldModifyLevel);
}
