// SPDX-License-Identifier: MIT
// The hit proxy of an actor.
#pragma once

#include "HitProxies.h"
#include "UObject/ObjectPtr.h"

class AActor;
class UPrimitiveComponent;

/** A click on an actor, and on which of its components. */
struct HActor : public HHitProxy
{
	DECLARE_HIT_PROXY()

	TObjectPtr<AActor> Actor;
	TObjectPtr<const UPrimitiveComponent> PrimComponent;
	int32 SectionIndex = INDEX_NONE;
	int32 MaterialIndex = INDEX_NONE;

	HActor(AActor* InActor, const UPrimitiveComponent* InPrimComponent)
		: Actor(InActor)
		, PrimComponent(InPrimComponent)
	{
	}
	HActor(AActor* InActor, const UPrimitiveComponent* InPrimComponent, int32 InSectionIndex, int32 InMaterialIndex)
		: Actor(InActor)
		, PrimComponent(InPrimComponent)
		, SectionIndex(InSectionIndex)
		, MaterialIndex(InMaterialIndex)
	{
	}
};
