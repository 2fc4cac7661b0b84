// SPDX-License-Identifier: MIT
#include "Host/Scene.h"

#include "Components/PrimitiveComponent.h"
#include "Engine/World.h"

namespace Host
{
FScene* FScene::Of(const UWorld* World)
{
	// Every world makes its scene itself, and of this class.
	return World ? static_cast<FScene*>(World->Scene) : nullptr;
}

void FScene::AddPrimitive(UPrimitiveComponent* Primitive)
{
	if (!Find(Primitive))
	{
		++Revision;
		Primitives.Add({Primitive, Revision, Revision});
	}
}

void FScene::RemovePrimitive(UPrimitiveComponent* Primitive)
{
	++Revision;
	Primitives.RemoveAll([&](const FPrimitive& Entry) { return Entry.Component == Primitive; });
}

void FScene::UpdatePrimitiveTransform(UPrimitiveComponent* Primitive)
{
	if (FPrimitive* const Entry = Find(Primitive))
	{
		Entry->TransformRevision = ++Revision;
	}
}

ERHIFeatureLevel::Type FScene::GetFeatureLevel() const
{
	return World->GetFeatureLevel();
}

void FScene::Refresh(UActorComponent* Component)
{
	++Revision;
	if (FPrimitive* const Entry = Find(Component))
	{
		Entry->Revision = Revision;
	}
}

void FScene::AddLight(ULightComponentBase* Light)
{
	++Revision;
	Lights.AddUnique(Light);
}

void FScene::RemoveLight(ULightComponentBase* Light)
{
	++Revision;
	Lights.Remove(Light);
}

void FScene::RefreshAll()
{
	++Revision;
	for (FPrimitive& Entry : Primitives)
	{
		Entry.Revision = ++Revision;
	}
}

void FScene::SetSurroundings(const FSceneSurroundings& NewSurroundings)
{
	if (Surroundings != NewSurroundings)
	{
		Surroundings = NewSurroundings;
		++Revision;
	}
}

FScene::FPrimitive* FScene::Find(const UActorComponent* Component)
{
	return Primitives.FindByPredicate([&](const FPrimitive& Entry) { return Entry.Component == Component; });
}
} // namespace Host
