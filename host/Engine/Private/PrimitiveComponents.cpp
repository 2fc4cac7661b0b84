// SPDX-License-Identifier: MIT
#include "Components/MeshComponent.h"
#include "Components/PrimitiveComponent.h"

#include "Engine/World.h"
#include "Host/Scene.h"
#include "Host/SelectionQuery.h"
#include "Materials/MaterialInterface.h"

namespace
{
Host::FSelectionQuery SelectionQuery = nullptr;
}

void Host::SetSelectionQuery(FSelectionQuery Query)
{
	SelectionQuery = Query;
}

bool UPrimitiveComponent::IsComponentIndividuallySelected() const
{
	return SelectionQuery && SelectionQuery(*this);
}

bool UPrimitiveComponent::ShouldRenderSelected() const
{
	return SelectionOverrideDelegate.IsBound() ? SelectionOverrideDelegate.Execute(this)
											   : IsComponentIndividuallySelected();
}

void UPrimitiveComponent::PushSelectionToProxy()
{
	if (Host::FScene* const Scene = Host::FScene::Of(GetWorld()))
	{
		Scene->UpdateSelection();
	}
}

UMaterialInterface* UPrimitiveComponent::GetMaterial(int32) const
{
	return nullptr;
}

void UPrimitiveComponent::SetMaterial(int32, UMaterialInterface*) {}

void UPrimitiveComponent::GetUsedMaterials(TArray<UMaterialInterface*>&, bool) const {}

void UPrimitiveComponent::CreateRenderState_Concurrent(FRegisterComponentContext*)
{
	GetWorld()->Scene->AddPrimitive(this);
}

void UPrimitiveComponent::DestroyRenderState_Concurrent()
{
	GetWorld()->Scene->RemovePrimitive(this);
}

void UPrimitiveComponent::SendRenderTransform_Concurrent()
{
	GetWorld()->Scene->UpdatePrimitiveTransform(this);
}

UMaterialInterface* UMeshComponent::GetMaterial(int32 ElementIndex) const
{
	return OverrideMaterials.IsValidIndex(ElementIndex) ? OverrideMaterials[ElementIndex].Get() : nullptr;
}

void UMeshComponent::SetMaterial(int32 ElementIndex, UMaterialInterface* Material)
{
	if (ElementIndex < 0)
	{
		return;
	}
	if (ElementIndex >= OverrideMaterials.Num())
	{
		OverrideMaterials.SetNum(ElementIndex + 1);
	}
	if (OverrideMaterials[ElementIndex] != Material)
	{
		OverrideMaterials[ElementIndex] = Material;
		MarkRenderStateDirty();
	}
}

void UMeshComponent::GetUsedMaterials(TArray<UMaterialInterface*>& OutMaterials, bool) const
{
	for (int32 Index = 0; Index < GetNumMaterials(); ++Index)
	{
		if (UMaterialInterface* const Material = GetMaterial(Index))
		{
			OutMaterials.Add(Material);
		}
	}
}
