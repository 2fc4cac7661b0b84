// SPDX-License-Identifier: MIT
#include "Components/SkeletalMeshComponent.h"
#include "Components/SkinnedMeshComponent.h"

#include "Engine/SkeletalMesh.h"
#include "Engine/SkinnedAsset.h"
#include "Engine/SkinnedAssetCommon.h"
#include "Materials/MaterialInterface.h"
#include "Templates/Casts.h"

USkinnedAsset* USkinnedMeshComponent::GetSkinnedAsset() const
{
	return SkinnedAsset;
}

void USkinnedMeshComponent::SetSkeletalMesh(USkeletalMesh* NewMesh, bool bReinitPose)
{
	SetSkinnedAssetAndUpdate(NewMesh, bReinitPose);
}

void USkinnedMeshComponent::SetSkinnedAssetAndUpdate(USkinnedAsset* NewMesh, bool)
{
	SkinnedAsset = NewMesh;
	UpdateBounds();
	MarkRenderStateDirty();
}

FSkeletalMeshRenderData* USkinnedMeshComponent::GetSkeletalMeshRenderData() const
{
	return SkinnedAsset ? SkinnedAsset->GetResourceForRendering() : nullptr;
}

int32 USkinnedMeshComponent::GetNumMaterials() const
{
	const int32 AssetSlots = SkinnedAsset ? SkinnedAsset->GetMaterials().Num() : 0;
	return FMath::Max(AssetSlots, GetNumOverrideMaterials());
}

UMaterialInterface* USkinnedMeshComponent::GetMaterial(int32 ElementIndex) const
{
	if (UMaterialInterface* const Override = Super::GetMaterial(ElementIndex))
	{
		return Override;
	}
	if (SkinnedAsset && SkinnedAsset->GetMaterials().IsValidIndex(ElementIndex))
	{
		return SkinnedAsset->GetMaterials()[ElementIndex].MaterialInterface;
	}
	return nullptr;
}

void USkinnedMeshComponent::GetUsedMaterials(TArray<UMaterialInterface*>& OutMaterials, bool) const
{
	for (int32 Index = 0; Index < GetNumMaterials(); ++Index)
	{
		OutMaterials.Add(GetMaterial(Index));
	}
}

FBoxSphereBounds USkinnedMeshComponent::CalcBounds(const FTransform& LocalToWorld) const
{
	return SkinnedAsset ? SkinnedAsset->GetBounds().TransformBy(LocalToWorld) : Super::CalcBounds(LocalToWorld);
}

USkeletalMesh* USkeletalMeshComponent::GetSkeletalMeshAsset() const
{
	return Cast<USkeletalMesh>(GetSkinnedAsset());
}

void USkeletalMeshComponent::SetSkeletalMeshAsset(USkeletalMesh* NewMesh)
{
	SetSkeletalMesh(NewMesh, false);
}

void USkeletalMeshComponent::SetSkeletalMesh(USkeletalMesh* NewMesh, bool bReinitPose)
{
	SetSkinnedAssetAndUpdate(NewMesh, bReinitPose);
}
