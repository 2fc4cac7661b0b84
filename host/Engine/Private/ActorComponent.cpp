// SPDX-License-Identifier: MIT
#include "Components/ActorComponent.h"

#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Host/Scene.h"
#include "Logging/LogMacros.h"
#include "RegisteredComponents.h"

DEFINE_LOG_CATEGORY_STATIC(LogActorComponent, Log, All);

UActorComponent::UActorComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	PrimaryComponentTick.Target = this;
	PrimaryComponentTick.TickGroup = TG_DuringPhysics;
}

void UActorComponent::PostInitProperties()
{
	Super::PostInitProperties();
	// A copied template brings the target of its own tick function along.
	PrimaryComponentTick.Target = this;
	OwnerPrivate = GetTypedOuter<AActor>();
	if (OwnerPrivate)
	{
		OwnerPrivate->AddOwnedComponent(this);
	}
}

void UActorComponent::BeginDestroy()
{
	UnregisterComponent();
	Super::BeginDestroy();
}

AActor* UActorComponent::GetOwner() const
{
	return OwnerPrivate;
}

UWorld* UActorComponent::GetWorld() const
{
	if (WorldPrivate)
	{
		return WorldPrivate;
	}
	return OwnerPrivate ? OwnerPrivate->GetWorld() : nullptr;
}

void UActorComponent::RegisterComponent()
{
	RegisterComponentWithWorld(OwnerPrivate ? OwnerPrivate->GetWorld() : nullptr);
}

void UActorComponent::RegisterComponentWithWorld(UWorld* InWorld)
{
	if (bRegistered)
	{
		return;
	}
	if (!InWorld || !IsValid(this))
	{
		UE_LOG(LogActorComponent, Warning, TEXT("%s is not registered: %s"), *GetPathName(),
			InWorld ? TEXT("it was destroyed") : TEXT("there is no world"));
		return;
	}
	WorldPrivate = InWorld;
	bRegistered = true;
	OnRegister();
	if (ShouldCreateRenderState() && InWorld->Scene)
	{
		CreateRenderState_Concurrent(nullptr);
		bRenderStateCreated = true;
	}
	InWorld->RegisteredComponents->Add(this);
}

void UActorComponent::UnregisterComponent()
{
	if (!bRegistered)
	{
		return;
	}
	WorldPrivate->RegisteredComponents->Remove(this);
	if (bRenderStateCreated)
	{
		DestroyRenderState_Concurrent();
		bRenderStateCreated = false;
	}
	OnUnregister();
	bRegistered = false;
	WorldPrivate = nullptr;
}

void UActorComponent::ReregisterComponent()
{
	if (UWorld* const World = bRegistered ? WorldPrivate : nullptr)
	{
		UnregisterComponent();
		RegisterComponentWithWorld(World);
	}
}

void UActorComponent::DestroyComponent(bool bPromoteChildren)
{
	if (bIsBeingDestroyed)
	{
		return;
	}
	bIsBeingDestroyed = true;
	UnregisterComponent();
	if (OwnerPrivate)
	{
		OwnerPrivate->RemoveOwnedComponent(this);
	}
	OnComponentDestroyed(bPromoteChildren);
	MarkAsGarbage();
}

void UActorComponent::TickComponent(float, ELevelTick, FActorComponentTickFunction*) {}

void UActorComponent::MarkRenderStateDirty()
{
	if (bRenderStateCreated)
	{
		Host::FScene::Of(WorldPrivate)->Refresh(this);
	}
}

void UActorComponent::CreateRenderState_Concurrent(FRegisterComponentContext*) {}

void UActorComponent::DestroyRenderState_Concurrent() {}

void UActorComponent::SendRenderTransform_Concurrent() {}

void UActorComponent::OnRegister() {}

void UActorComponent::OnUnregister() {}

void UActorComponent::OnComponentDestroyed(bool) {}
