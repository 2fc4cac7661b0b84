// SPDX-License-Identifier: MIT
// The base of meshes that hang on bones.
#pragma once

#include "CoreMinimal.h"
#include "Engine/StreamableRenderAsset.h"
#include "ReferenceSkeleton.h"
#include "UObject/ObjectMacros.h"
#include "SkinnedAsset.generated.h"

class FSkeletalMeshRenderData;
class USkeleton;
struct FSkeletalMaterial;
struct FSkeletalMeshLODInfo;

/** A mesh that hangs on bones, as components show it. */
UCLASS(Abstract)
class USkinnedAsset : public UStreamableRenderAsset
{
	GENERATED_BODY()

public:
	ENGINE_API virtual FReferenceSkeleton& GetRefSkeleton();
	ENGINE_API virtual const FReferenceSkeleton& GetRefSkeleton() const;

	/** Null before the mesh is built. */
	ENGINE_API virtual FSkeletalMeshRenderData* GetResourceForRendering() const;

	/** The box and sphere that hold the mesh in its reference pose, in centimetres. */
	ENGINE_API virtual FBoxSphereBounds GetBounds() const;

	ENGINE_API virtual USkeleton* GetSkeleton();
	ENGINE_API virtual const USkeleton* GetSkeleton() const;

	ENGINE_API virtual TArray<FSkeletalMaterial>& GetMaterials();
	ENGINE_API virtual const TArray<FSkeletalMaterial>& GetMaterials() const;

	/** Levels of detail. */
	ENGINE_API virtual int32 GetLODNum() const;

	/** Null for a level that is not there. */
	ENGINE_API virtual FSkeletalMeshLODInfo* GetLODInfo(int32 Index);
	ENGINE_API virtual const FSkeletalMeshLODInfo* GetLODInfo(int32 Index) const;

	/** For each bone, from the mesh's space to the bone's in the reference pose [GetRefSkeleton().GetRawBoneNum()]. */
	ENGINE_API virtual TArray<FMatrix44f>& GetRefBasesInvMatrix();
	ENGINE_API virtual const TArray<FMatrix44f>& GetRefBasesInvMatrix() const;
};
