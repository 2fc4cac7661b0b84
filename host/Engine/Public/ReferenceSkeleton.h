// SPDX-License-Identifier: MIT
// The bones of a mesh or skeleton with the pose in which it was bound.
#pragma once

#include "CoreMinimal.h"

class USkeleton;

/** One bone: its name and its parent. */
struct FMeshBoneInfo
{
	FName Name;

	/** Index of the parent, less than the bone's own; INDEX_NONE for a root. */
	int32 ParentIndex = INDEX_NONE;

	/** The name with its exact case, which an FName does not keep. */
	FString ExportName;

	FMeshBoneInfo() = default;
	FMeshBoneInfo(const FName& InName, const FString& InExportName, int32 InParentIndex)
		: Name(InName)
		, ParentIndex(InParentIndex)
		, ExportName(InExportName)
	{
	}

	bool operator==(const FMeshBoneInfo& Other) const { return Name == Other.Name && ParentIndex == Other.ParentIndex; }
};

/**
 * The bones of a mesh or skeleton, parents before children, with each bone's transform relative to its parent in the
 * pose in which the mesh was bound. Filled through FReferenceSkeletonModifier.
 *
 * The raw bones are those that were added; the final ones add the virtual bones of a skeleton, of which there are none
 * here, so both lists hold the same bones once the modifier is closed.
 */
struct FReferenceSkeleton
{
	explicit FReferenceSkeleton(bool bInOnlyOneRootAllowed = true)
		: bOnlyOneRootAllowed(bInOnlyOneRootAllowed)
	{
	}

	int32 GetNum() const { return FinalRefBoneInfo.Num(); }
	int32 GetRawBoneNum() const { return RawRefBoneInfo.Num(); }
	const TArray<FMeshBoneInfo>& GetRefBoneInfo() const { return FinalRefBoneInfo; }
	const TArray<FMeshBoneInfo>& GetRawRefBoneInfo() const { return RawRefBoneInfo; }

	/** Relative to the parent, in centimetres [GetNum()]. */
	const TArray<FTransform>& GetRefBonePose() const { return FinalRefBonePose; }
	const TArray<FTransform>& GetRawRefBonePose() const { return RawRefBonePose; }

	/** Names in bone order [GetRawBoneNum()]. */
	ENGINE_API TArray<FName> GetRawRefBoneNames() const;

	/** INDEX_NONE for a name that no bone has. */
	ENGINE_API int32 FindBoneIndex(const FName& BoneName) const;
	ENGINE_API int32 FindRawBoneIndex(const FName& BoneName) const;

	/** The index must be one of a bone. */
	FName GetBoneName(const int32 BoneIndex) const { return FinalRefBoneInfo[BoneIndex].Name; }

	/** INDEX_NONE for a root. */
	int32 GetParentIndex(const int32 BoneIndex) const { return FinalRefBoneInfo[BoneIndex].ParentIndex; }
	int32 GetRawParentIndex(const int32 BoneIndex) const { return RawRefBoneInfo[BoneIndex].ParentIndex; }

	bool IsValidIndex(int32 Index) const { return FinalRefBoneInfo.IsValidIndex(Index); }
	bool IsValidRawIndex(int32 Index) const { return RawRefBoneInfo.IsValidIndex(Index); }

	/** Drops all bones and keeps room for `Size`. */
	ENGINE_API void Empty(int32 Size = 0);

	/**
	 * Rebuilds the final bones from the object's own raw ones; takes no bone from the skeleton but its virtual ones.
	 *
	 * @param bRebuildNameMap  whether the look-up of raw bones by name is rebuilt first
	 */
	ENGINE_API void RebuildRefSkeleton(const USkeleton* Skeleton, bool bRebuildNameMap);

private:
	friend struct FReferenceSkeletonModifier;

	void Add(const FMeshBoneInfo& BoneInfo, const FTransform& BonePose, bool bAllowMultipleRoots);

	TArray<FMeshBoneInfo> RawRefBoneInfo;
	TArray<FTransform> RawRefBonePose;
	TMap<FName, int32> RawNameToIndexMap;
	TArray<FMeshBoneInfo> FinalRefBoneInfo;
	TArray<FTransform> FinalRefBonePose;
	TMap<FName, int32> FinalNameToIndexMap;
	bool bOnlyOneRootAllowed = true;
};

/** Changes a reference skeleton; the final bones follow when it is destroyed. */
struct FReferenceSkeletonModifier
{
	/** The skeleton's own bones. */
	ENGINE_API FReferenceSkeletonModifier(USkeleton* InSkeleton);

	/** The bones of a mesh. @param InSkeleton gives the virtual bones; may be null */
	FReferenceSkeletonModifier(FReferenceSkeleton& InRefSkeleton, const USkeleton* InSkeleton)
		: RefSkeleton(InRefSkeleton)
		, Skeleton(InSkeleton)
	{
	}
	ENGINE_API ~FReferenceSkeletonModifier();
	UE_NONCOPYABLE(FReferenceSkeletonModifier)

	/**
	 * Appends a bone. A name that is there already, a parent that is not there yet and a second root are failed checks;
	 * a bone that fails one is left out.
	 *
	 * @param BonePose             relative to the parent, in centimetres
	 * @param bAllowMultipleRoots  whether a further root is no fault
	 */
	ENGINE_API void Add(
		const FMeshBoneInfo& BoneInfo, const FTransform& BonePose, const bool bAllowMultipleRoots = false);

	/** Replaces the pose of a bone; a name that no bone has changes nothing. */
	ENGINE_API void UpdateRefPoseTransform(const int32 BoneIndex, const FTransform& BonePose);

	/** INDEX_NONE for a name that no bone has. */
	ENGINE_API int32 FindBoneIndex(const FName& BoneName) const;
	const FReferenceSkeleton& GetReferenceSkeleton() const { return RefSkeleton; }

private:
	FReferenceSkeleton& RefSkeleton;
	const USkeleton* Skeleton;
};
