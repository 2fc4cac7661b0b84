// SPDX-License-Identifier: MIT
#include "Components/SceneComponent.h"

#include "GameFramework/Actor.h"

USceneComponent::USceneComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Bounds(FVector(0.0, 0.0, 0.0), FVector(0.0, 0.0, 0.0), 0.0)
{
}

FTransform USceneComponent::GetRelativeTransform() const
{
	return FTransform(RelativeRotation.Quaternion(), RelativeLocation, RelativeScale3D);
}

void USceneComponent::SetRelativeTransform(const FTransform& NewTransform)
{
	RelativeLocation = NewTransform.GetLocation();
	RelativeRotation = NewTransform.GetRotation().Rotator();
	RelativeScale3D = NewTransform.GetScale3D();
	UpdateComponentToWorld();
}

void USceneComponent::SetRelativeLocation(const FVector& NewLocation)
{
	RelativeLocation = NewLocation;
	UpdateComponentToWorld();
}

void USceneComponent::SetRelativeRotation(const FRotator& NewRotation)
{
	RelativeRotation = NewRotation;
	UpdateComponentToWorld();
}

void USceneComponent::SetRelativeScale3D(const FVector& NewScale3D)
{
	RelativeScale3D = NewScale3D;
	UpdateComponentToWorld();
}

void USceneComponent::SetWorldTransform(const FTransform& NewTransform)
{
	SetRelativeTransform(
		AttachParent ? NewTransform.GetRelativeTransform(AttachParent->ComponentToWorld) : NewTransform);
}

void USceneComponent::SetMobility(EComponentMobility::Type NewMobility)
{
	if (Mobility == NewMobility)
	{
		return;
	}
	Mobility = NewMobility;
	// What is attached below moves along, so nothing below may claim to stand still under something that moves.
	if (NewMobility == EComponentMobility::Movable)
	{
		for (const TObjectPtr<USceneComponent>& Child : AttachChildren)
		{
			Child->SetMobility(NewMobility);
		}
	}
	MarkRenderStateDirty();
}

void USceneComponent::GetChildrenComponents(bool bIncludeAllDescendants, TArray<USceneComponent*>& Children) const
{
	Children.Reset();
	for (const TObjectPtr<USceneComponent>& Child : AttachChildren)
	{
		if (Child)
		{
			Children.Add(Child);
		}
	}
	if (bIncludeAllDescendants)
	{
		const int32 DirectCount = Children.Num();
		for (int32 Index = 0; Index < DirectCount; ++Index)
		{
			TArray<USceneComponent*> Descendants;
			Children[Index]->GetChildrenComponents(true, Descendants);
			Children.Append(Descendants);
		}
	}
}

bool USceneComponent::AttachToComponent(USceneComponent* InParent, const FAttachmentTransformRules& AttachmentRules)
{
	for (const USceneComponent* Ancestor = InParent; Ancestor; Ancestor = Ancestor->AttachParent)
	{
		if (Ancestor == this)
		{
			return false;
		}
	}
	if (!InParent)
	{
		return false;
	}
	const FTransform FormerWorld = ComponentToWorld;
	DetachFromComponent(FDetachmentTransformRules::KeepRelativeTransform);
	AttachParent = InParent;
	InParent->AttachChildren.Add(this);

	const FTransform KeptWorld = FormerWorld.GetRelativeTransform(InParent->ComponentToWorld);
	const auto Choose = [](EAttachmentRule Rule, const auto& Relative, const auto& World, const auto& Snapped) {
		return Rule == EAttachmentRule::KeepRelative ? Relative : Rule == EAttachmentRule::KeepWorld ? World : Snapped;
	};
	RelativeLocation =
		Choose(AttachmentRules.LocationRule, RelativeLocation, KeptWorld.GetLocation(), FVector(0.0, 0.0, 0.0));
	RelativeRotation = Choose(
		AttachmentRules.RotationRule, RelativeRotation, KeptWorld.GetRotation().Rotator(), FRotator(0.0, 0.0, 0.0));
	RelativeScale3D =
		Choose(AttachmentRules.ScaleRule, RelativeScale3D, KeptWorld.GetScale3D(), FVector(1.0, 1.0, 1.0));
	UpdateComponentToWorld();
	return true;
}

void USceneComponent::DetachFromComponent(const FDetachmentTransformRules& DetachmentRules)
{
	if (!AttachParent)
	{
		return;
	}
	const FTransform World = ComponentToWorld;
	AttachParent->AttachChildren.Remove(this);
	AttachParent = nullptr;
	if (DetachmentRules.LocationRule == EDetachmentRule::KeepWorld)
	{
		RelativeLocation = World.GetLocation();
	}
	if (DetachmentRules.RotationRule == EDetachmentRule::KeepWorld)
	{
		RelativeRotation = World.GetRotation().Rotator();
	}
	if (DetachmentRules.ScaleRule == EDetachmentRule::KeepWorld)
	{
		RelativeScale3D = World.GetScale3D();
	}
	UpdateComponentToWorld();
}

void USceneComponent::SetVisibility(bool bNewVisibility)
{
	if (bVisible != bNewVisibility)
	{
		bVisible = bNewVisibility;
		MarkRenderStateDirty();
	}
}

void USceneComponent::UpdateBounds()
{
	Bounds = CalcBounds(ComponentToWorld);
}

FBoxSphereBounds USceneComponent::CalcBounds(const FTransform& LocalToWorld) const
{
	return FBoxSphereBounds(LocalToWorld.GetLocation(), FVector(0.0, 0.0, 0.0), 0.0);
}

FBoxSphereBounds USceneComponent::GetLocalBounds() const
{
	return CalcBounds(FTransform::Identity);
}

void USceneComponent::DestroyComponent(bool bPromoteChildren)
{
	if (IsBeingDestroyed())
	{
		return;
	}
	USceneComponent* const Parent = AttachParent;
	const TArray<TObjectPtr<USceneComponent>> Children = AttachChildren;
	for (const TObjectPtr<USceneComponent>& Child : Children)
	{
		Child->DetachFromComponent(FDetachmentTransformRules::KeepWorldTransform);
		if (bPromoteChildren && Parent)
		{
			Child->AttachToComponent(Parent, FAttachmentTransformRules::KeepWorldTransform);
		}
	}
	DetachFromComponent(FDetachmentTransformRules::KeepWorldTransform);
	AActor* const OwningActor = GetOwner();
	if (OwningActor && OwningActor->GetRootComponent() == this)
	{
		OwningActor->SetRootComponent(nullptr);
	}
	Super::DestroyComponent(bPromoteChildren);
}

void USceneComponent::OnRegister()
{
	Super::OnRegister();
	UpdateComponentToWorld();
}

void USceneComponent::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	UpdateComponentToWorld();
	MarkRenderStateDirty();
	Super::PostEditChangeProperty(PropertyChangedEvent);
}

void USceneComponent::UpdateComponentToWorld()
{
	const FTransform Relative = GetRelativeTransform();
	ComponentToWorld = AttachParent ? Relative * AttachParent->ComponentToWorld : Relative;
	UpdateBounds();
	if (IsRenderStateCreated())
	{
		SendRenderTransform_Concurrent();
	}
	for (const TObjectPtr<USceneComponent>& Child : AttachChildren)
	{
		Child->UpdateComponentToWorld();
	}
}
