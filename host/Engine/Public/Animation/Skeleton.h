// SPDX-License-Identifier: MIT
// The skeleton asset that meshes and animations share.
#pragma once

#include "CoreMinimal.h"
#include "ReferenceSkeleton.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Skeleton.generated.h"

class USkeletalMesh;
class USkinnedAsset;

namespace Host
{
struct FSkeletonAccess;
} // namespace Host

/** The skeleton that meshes and animations share: a tree of bones that meshes add theirs to. */
UCLASS()
class USkeleton : public UObject
{
	GENERATED_BODY()

public:
	const FReferenceSkeleton& GetReferenceSkeleton() const { return ReferenceSkeleton; }

	/**
	 * Takes in the bones of a mesh. An empty skeleton copies all of them with their poses. Otherwise the mesh must be
	 * compatible; bones that the skeleton lacks are then appended under the parent of the same name, those that it has
	 * keep their pose.
	 *
	 * @return false, with nothing added, for a null or incompatible mesh
	 */
	ENGINE_API bool MergeAllBonesToBoneTree(const USkinnedAsset* InSkinnedAsset, bool bShowProgress = true);

	/** The same with the listed bones of the mesh, which must contain the parents of each. */
	ENGINE_API bool MergeBonesToBoneTree(
		const USkinnedAsset* InSkinnedAsset, const TArray<int32>& RequiredRefBones, bool bShowProgress = true);

	/**
	 * Whether a mesh can use this skeleton: each of its bones, or else an ancestor of it, is here, more than half of
	 * its bones are, and where a bone is here, its chain of parents is the same.
	 */
	ENGINE_API bool IsCompatibleMesh(const USkinnedAsset* InSkinnedAsset, bool bDoParentChainCheck = true) const;

	/** Whether the bone's parents have the same names in this order in the mesh. */
	ENGINE_API bool DoesParentChainMatch(int32 StartBoneTreeIndex, const USkinnedAsset* InSkinnedAsset) const;

	/** The mesh that shows this skeleton; null when none was set or it is gone. */
	ENGINE_API virtual USkeletalMesh* GetPreviewMesh(bool bFindIfNotSet = false);
	ENGINE_API USkeletalMesh* GetPreviewMesh() const;

	/** @param bMarkAsDirty whether the skeleton's package counts as changed */
	ENGINE_API virtual void SetPreviewMesh(USkeletalMesh* PreviewMesh, bool bMarkAsDirty = true);

private:
	friend struct Host::FSkeletonAccess;

	FReferenceSkeleton ReferenceSkeleton;

	/** Weak, so that a skeleton does not keep meshes loaded. */
	UPROPERTY()
	TWeakObjectPtr<USkeletalMesh> PreviewSkeletalMesh;
};
