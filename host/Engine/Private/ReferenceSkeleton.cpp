// SPDX-License-Identifier: MIT
#include "ReferenceSkeleton.h"

#include "SkeletonAccess.h"

namespace
{
int32 FindIndex(const TMap<FName, int32>& Map, const FName& Name)
{
	const int32* Found = Name.IsNone() ? nullptr : Map.Find(Name);
	return Found ? *Found : INDEX_NONE;
}

void MapNames(const TArray<FMeshBoneInfo>& Bones, TMap<FName, int32>& OutMap)
{
	OutMap.Empty(Bones.Num());
	for (int32 Index = 0; Index < Bones.Num(); ++Index)
	{
		OutMap.Add(Bones[Index].Name, Index);
	}
}
} // namespace

TArray<FName> FReferenceSkeleton::GetRawRefBoneNames() const
{
	TArray<FName> Names;
	Names.Reserve(RawRefBoneInfo.Num());
	for (const FMeshBoneInfo& Bone : RawRefBoneInfo)
	{
		Names.Add(Bone.Name);
	}
	return Names;
}

int32 FReferenceSkeleton::FindBoneIndex(const FName& BoneName) const
{
	return FindIndex(FinalNameToIndexMap, BoneName);
}

int32 FReferenceSkeleton::FindRawBoneIndex(const FName& BoneName) const
{
	return FindIndex(RawNameToIndexMap, BoneName);
}

void FReferenceSkeleton::Empty(int32 Size)
{
	RawRefBoneInfo.Empty(Size);
	RawRefBonePose.Empty(Size);
	RawNameToIndexMap.Empty(Size);
	FinalRefBoneInfo.Empty(Size);
	FinalRefBonePose.Empty(Size);
	FinalNameToIndexMap.Empty(Size);
}

void FReferenceSkeleton::Add(const FMeshBoneInfo& BoneInfo, const FTransform& BonePose, bool bAllowMultipleRoots)
{
	const bool bRoot = BoneInfo.ParentIndex == INDEX_NONE;
	const bool bNameIsNew = FindRawBoneIndex(BoneInfo.Name) == INDEX_NONE;
	const bool bParentIsThere = bRoot || RawRefBoneInfo.IsValidIndex(BoneInfo.ParentIndex);
	const bool bRootIsAllowed = !bRoot || RawRefBoneInfo.IsEmpty() || bAllowMultipleRoots || !bOnlyOneRootAllowed;
	checkf(bNameIsNew, TEXT("The bone %s is there already."), *BoneInfo.Name.ToString());
	checkf(bParentIsThere, TEXT("The bone %s has the parent %d, but only %d bones stand before it."),
		*BoneInfo.Name.ToString(), BoneInfo.ParentIndex, RawRefBoneInfo.Num());
	checkf(bRootIsAllowed, TEXT("The bone %s is a second root."), *BoneInfo.Name.ToString());
	if (bNameIsNew && bParentIsThere && bRootIsAllowed)
	{
		RawNameToIndexMap.Add(BoneInfo.Name, RawRefBoneInfo.Add(BoneInfo));
		RawRefBonePose.Add(BonePose);
	}
}

void FReferenceSkeleton::RebuildRefSkeleton(const USkeleton*, bool bRebuildNameMap)
{
	if (bRebuildNameMap)
	{
		MapNames(RawRefBoneInfo, RawNameToIndexMap);
	}
	FinalRefBoneInfo = RawRefBoneInfo;
	FinalRefBonePose = RawRefBonePose;
	FinalNameToIndexMap = RawNameToIndexMap;
}

FReferenceSkeletonModifier::FReferenceSkeletonModifier(USkeleton* InSkeleton)
	: RefSkeleton(Host::FSkeletonAccess::GetRefSkeleton(*InSkeleton))
	, Skeleton(InSkeleton)
{
}

FReferenceSkeletonModifier::~FReferenceSkeletonModifier()
{
	RefSkeleton.RebuildRefSkeleton(Skeleton, true);
}

void FReferenceSkeletonModifier::Add(
	const FMeshBoneInfo& BoneInfo, const FTransform& BonePose, const bool bAllowMultipleRoots)
{
	RefSkeleton.Add(BoneInfo, BonePose, bAllowMultipleRoots);
}

void FReferenceSkeletonModifier::UpdateRefPoseTransform(const int32 BoneIndex, const FTransform& BonePose)
{
	if (RefSkeleton.RawRefBonePose.IsValidIndex(BoneIndex))
	{
		RefSkeleton.RawRefBonePose[BoneIndex] = BonePose;
	}
}

int32 FReferenceSkeletonModifier::FindBoneIndex(const FName& BoneName) const
{
	return RefSkeleton.FindRawBoneIndex(BoneName);
}
