// SPDX-License-Identifier: MIT
#include "AssetRefresh.h"

#include "Components/SkinnedMeshComponent.h"
#include "Engine/SkinnedAsset.h"
#include "Engine/Texture.h"
#include "Materials/MaterialInstance.h"
#include "Templates/Casts.h"
#include "UObject/UObjectIterator.h"

namespace Host
{
namespace
{
/** Draws every registered component anew one of whose materials `Uses` accepts. */
template <typename UsesType>
void RefreshUsersOfMaterials(UsesType&& Uses)
{
	TArray<UMaterialInterface*> Materials;
	for (TObjectIterator<UPrimitiveComponent> It; It; ++It)
	{
		if (!It->IsRegistered())
		{
			continue;
		}
		Materials.Reset();
		It->GetUsedMaterials(Materials);
		if (Materials.ContainsByPredicate([&Uses](const UMaterialInterface* Used) { return Used && Uses(*Used); }))
		{
			It->MarkRenderStateDirty();
		}
	}
}

/** Whether a material is `Wanted` or an instance that leads to it. */
bool LeadsTo(const UMaterialInterface& Material, const UMaterialInterface& Wanted)
{
	for (const UMaterialInterface* Step = &Material; Step;)
	{
		if (Step == &Wanted)
		{
			return true;
		}
		const UMaterialInstance* Instance = Cast<UMaterialInstance>(Step);
		Step = Instance ? Instance->Parent.Get() : nullptr;
	}
	return false;
}
} // namespace

void RefreshComponents(const USkinnedAsset& Mesh)
{
	for (TObjectIterator<USkinnedMeshComponent> It; It; ++It)
	{
		if (It->GetSkinnedAsset() == &Mesh)
		{
			It->UpdateBounds();
			It->MarkRenderStateDirty();
		}
	}
}

void RefreshComponents(const UMaterialInterface& Material)
{
	RefreshUsersOfMaterials([&Material](const UMaterialInterface& Used) { return LeadsTo(Used, Material); });
}

void RefreshComponents(const UTexture& Texture)
{
	RefreshUsersOfMaterials(
		[&Texture](const UMaterialInterface& Used)
		{
			TArray<UTexture*> Textures;
			Used.GetUsedTextures(Textures, EMaterialQualityLevel::Num, true, ERHIFeatureLevel::Num, true);
			return Textures.Contains(const_cast<UTexture*>(&Texture));
		});
}
} // namespace Host
