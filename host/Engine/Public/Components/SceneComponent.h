// SPDX-License-Identifier: MIT
// A component that has a place, children attached to it, and bounds.
#pragma once

#include "Components/ActorComponent.h"
#include "SceneComponent.generated.h"

/**
 * A place in the world. The transform is kept relative to the parent that it is attached to; the one in the world
 * follows at once. Centimetres and degrees.
 */
UCLASS()
class USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	USceneComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Bounds in the world, as of the last UpdateBounds. */
	FBoxSphereBounds Bounds;

	/** Whether it may move. A constructor sets the field, everybody else calls SetMobility. */
	UPROPERTY(EditAnywhere, Category = "Mobility")
	TEnumAsByte<EComponentMobility::Type> Mobility = EComponentMobility::Movable;

	const FTransform& GetComponentTransform() const { return ComponentToWorld; }
	FVector GetComponentLocation() const { return ComponentToWorld.GetLocation(); }
	FTransform GetRelativeTransform() const;
	const FVector& GetRelativeLocation() const { return RelativeLocation; }
	const FRotator& GetRelativeRotation() const { return RelativeRotation; }
	const FVector& GetRelativeScale3D() const { return RelativeScale3D; }

	void SetRelativeTransform(const FTransform& NewTransform);
	void SetRelativeLocation(const FVector& NewLocation);
	void SetRelativeRotation(const FRotator& NewRotation);
	void SetRelativeScale3D(const FVector& NewScale3D);
	void SetWorldTransform(const FTransform& NewTransform);

	virtual void SetMobility(EComponentMobility::Type NewMobility);

	USceneComponent* GetAttachParent() const { return AttachParent; }
	const TArray<TObjectPtr<USceneComponent>>& GetAttachChildren() const { return AttachChildren; }
	/**
	 * Empties `Children`, then fills it with the attached components in the order of attachment; with all descendants,
	 * those of each child follow behind all direct children.
	 */
	void GetChildrenComponents(bool bIncludeAllDescendants, TArray<USceneComponent*>& Children) const;
	/**
	 * Attaches this component; it leaves its former parent.
	 *
	 * @return false, and nothing changed, when the parent is null, this component or one of its descendants
	 */
	bool AttachToComponent(USceneComponent* InParent, const FAttachmentTransformRules& AttachmentRules);
	/** Leaves its parent; nothing happens without one. */
	void DetachFromComponent(const FDetachmentTransformRules& DetachmentRules);

	bool IsVisible() const { return bVisible; }
	void SetVisibility(bool bNewVisibility);

	/** Computes `Bounds` anew from CalcBounds. */
	virtual void UpdateBounds();
	/** Bounds of the component at the given place; a point at its origin unless a derived class knows better. */
	virtual FBoxSphereBounds CalcBounds(const FTransform& LocalToWorld) const;
	/** CalcBounds at the identity. */
	FBoxSphereBounds GetLocalBounds() const;

	void DestroyComponent(bool bPromoteChildren = false) override;
	/** The place in the world and what the scene shows follow the edited values. */
	void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

protected:
	void OnRegister() override;

private:
	void UpdateComponentToWorld();

	UPROPERTY()
	TObjectPtr<USceneComponent> AttachParent;
	UPROPERTY()
	TArray<TObjectPtr<USceneComponent>> AttachChildren;
	UPROPERTY(EditAnywhere, Category = "Transform")
	FVector RelativeLocation = FVector(0.0, 0.0, 0.0);
	UPROPERTY(EditAnywhere, Category = "Transform")
	FRotator RelativeRotation = FRotator(0.0, 0.0, 0.0);
	UPROPERTY(EditAnywhere, Category = "Transform")
	FVector RelativeScale3D = FVector(1.0, 1.0, 1.0);
	UPROPERTY(EditAnywhere, Category = "Rendering")
	bool bVisible = true;

	FTransform ComponentToWorld = FTransform::Identity;
};
