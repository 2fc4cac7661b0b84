// SPDX-License-Identifier: MIT
// A skinned asset of no kind has no bones, no slots and nothing to draw.
#include "Engine/SkinnedAsset.h"

#include "Engine/SkinnedAssetCommon.h"

namespace
{
FReferenceSkeleton& NoBones()
{
	static FReferenceSkeleton Bones;
	Bones.Empty();
	return Bones;
}

TArray<FSkeletalMaterial>& NoMaterials()
{
	static TArray<FSkeletalMaterial> Materials;
	Materials.Empty();
	return Materials;
}

TArray<FMatrix44f>& NoMatrices()
{
	static TArray<FMatrix44f> Matrices;
	Matrices.Empty();
	return Matrices;
}
} // namespace

FReferenceSkeleton& USkinnedAsset::GetRefSkeleton()
{
	return NoBones();
}

const FReferenceSkeleton& USkinnedAsset::GetRefSkeleton() const
{
	return NoBones();
}

FSkeletalMeshRenderData* USkinnedAsset::GetResourceForRendering() const
{
	return nullptr;
}

FBoxSphereBounds USkinnedAsset::GetBounds() const
{
	return FBoxSphereBounds(ForceInit);
}

USkeleton* USkinnedAsset::GetSkeleton()
{
	return nullptr;
}

const USkeleton* USkinnedAsset::GetSkeleton() const
{
	return nullptr;
}

TArray<FSkeletalMaterial>& USkinnedAsset::GetMaterials()
{
	return NoMaterials();
}

const TArray<FSkeletalMaterial>& USkinnedAsset::GetMaterials() const
{
	return NoMaterials();
}

int32 USkinnedAsset::GetLODNum() const
{
	return 0;
}

FSkeletalMeshLODInfo* USkinnedAsset::GetLODInfo(int32)
{
	return nullptr;
}

const FSkeletalMeshLODInfo* USkinnedAsset::GetLODInfo(int32) const
{
	return nullptr;
}

TArray<FMatrix44f>& USkinnedAsset::GetRefBasesInvMatrix()
{
	return NoMatrices();
}

const TArray<FMatrix44f>& USkinnedAsset::GetRefBasesInvMatrix() const
{
	return NoMatrices();
}
