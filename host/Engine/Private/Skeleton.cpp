// SPDX-License-Identifier: MIT
#include "Animation/Skeleton.h"

#include "Engine/SkeletalMesh.h"
#include "Host/NativeCopy.h"
#include "SkeletonAccess.h"
#include "UObject/UObjectIterator.h"

namespace
{
Host::TNativeCopy<USkeleton> CopySkeleton([](const USkeleton& Source, USkeleton& Target)
	{ Host::FSkeletonAccess::GetRefSkeleton(Target) = Source.GetReferenceSkeleton(); });
} // namespace

bool USkeleton::DoesParentChainMatch(int32 StartBoneTreeIndex, const USkinnedAsset* InSkinnedAsset) const
{
	const FReferenceSkeleton& Own = ReferenceSkeleton;
	const FReferenceSkeleton& Theirs = InSkinnedAsset->GetRefSkeleton();
	int32 OwnBone = StartBoneTreeIndex;
	int32 TheirBone = Theirs.FindRawBoneIndex(Own.GetRawRefBoneInfo()[StartBoneTreeIndex].Name);
	if (TheirBone == INDEX_NONE)
	{
		return false;
	}
	while (true)
	{
		OwnBone = Own.GetRawParentIndex(OwnBone);
		TheirBone = Theirs.GetRawParentIndex(TheirBone);
		if (OwnBone == INDEX_NONE || TheirBone == INDEX_NONE)
		{
			// The mesh may hang its root under nothing while the skeleton goes on upwards, not the other way round.
			return TheirBone == INDEX_NONE;
		}
		if (Own.GetRawRefBoneInfo()[OwnBone].Name != Theirs.GetRawRefBoneInfo()[TheirBone].Name)
		{
			return false;
		}
	}
}

bool USkeleton::IsCompatibleMesh(const USkinnedAsset* InSkinnedAsset, bool bDoParentChainCheck) const
{
	if (!InSkinnedAsset)
	{
		return false;
	}
	const FReferenceSkeleton& Own = ReferenceSkeleton;
	const FReferenceSkeleton& Theirs = InSkinnedAsset->GetRefSkeleton();
	int32 NumFound = 0;
	for (int32 TheirBone = 0; TheirBone < Theirs.GetRawBoneNum(); ++TheirBone)
	{
		const int32 OwnBone = Own.FindRawBoneIndex(Theirs.GetRawRefBoneInfo()[TheirBone].Name);
		if (OwnBone != INDEX_NONE)
		{
			++NumFound;
			if (bDoParentChainCheck && !DoesParentChainMatch(OwnBone, InSkinnedAsset))
			{
				return false;
			}
			continue;
		}
		int32 Ancestor = Theirs.GetRawParentIndex(TheirBone);
		while (Ancestor != INDEX_NONE && Own.FindRawBoneIndex(Theirs.GetRawRefBoneInfo()[Ancestor].Name) == INDEX_NONE)
		{
			Ancestor = Theirs.GetRawParentIndex(Ancestor);
		}
		if (Ancestor == INDEX_NONE)
		{
			return false;
		}
	}
	return NumFound * 2 > Theirs.GetRawBoneNum();
}

bool USkeleton::MergeAllBonesToBoneTree(const USkinnedAsset* InSkinnedAsset, bool bShowProgress)
{
	if (!InSkinnedAsset)
	{
		return false;
	}
	TArray<int32> AllBones;
	const int32 NumBones = InSkinnedAsset->GetRefSkeleton().GetRawBoneNum();
	AllBones.Reserve(NumBones);
	for (int32 Bone = 0; Bone < NumBones; ++Bone)
	{
		AllBones.Add(Bone);
	}
	return MergeBonesToBoneTree(InSkinnedAsset, AllBones, bShowProgress);
}

bool USkeleton::MergeBonesToBoneTree(
	const USkinnedAsset* InSkinnedAsset, const TArray<int32>& RequiredRefBones, bool /*bShowProgress*/)
{
	const bool bWasEmpty = ReferenceSkeleton.GetRawBoneNum() == 0;
	if (!InSkinnedAsset || (!bWasEmpty && !IsCompatibleMesh(InSkinnedAsset)))
	{
		return false;
	}
	const FReferenceSkeleton& Theirs = InSkinnedAsset->GetRefSkeleton();
	FReferenceSkeletonModifier Modifier(ReferenceSkeleton, this);
	for (const int32 TheirBone : RequiredRefBones)
	{
		FMeshBoneInfo Bone = Theirs.GetRawRefBoneInfo()[TheirBone];
		if (Modifier.FindBoneIndex(Bone.Name) != INDEX_NONE)
		{
			continue;
		}
		if (Bone.ParentIndex != INDEX_NONE)
		{
			Bone.ParentIndex = Modifier.FindBoneIndex(Theirs.GetRawRefBoneInfo()[Bone.ParentIndex].Name);
		}
		// A mesh that was allowed several roots brings them with it.
		Modifier.Add(Bone, Theirs.GetRawRefBonePose()[TheirBone], true);
	}
	return true;
}

USkeletalMesh* USkeleton::GetPreviewMesh(bool bFindIfNotSet)
{
	if (!PreviewSkeletalMesh.IsValid() && bFindIfNotSet)
	{
		for (TObjectIterator<USkeletalMesh> It; It; ++It)
		{
			if (It->GetSkeleton() == this)
			{
				SetPreviewMesh(*It, false);
				break;
			}
		}
	}
	return PreviewSkeletalMesh.Get();
}

USkeletalMesh* USkeleton::GetPreviewMesh() const
{
	return PreviewSkeletalMesh.Get();
}

void USkeleton::SetPreviewMesh(USkeletalMesh* PreviewMesh, bool bMarkAsDirty)
{
	PreviewSkeletalMesh = PreviewMesh;
	if (bMarkAsDirty)
	{
		MarkPackageDirty();
	}
}
