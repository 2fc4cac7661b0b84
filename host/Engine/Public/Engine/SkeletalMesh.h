// SPDX-License-Identifier: MIT
// A mesh asset whose vertices hang on the bones of a skeleton.
#pragma once

#include "CoreMinimal.h"
#include "BoneIndices.h"
#include "Engine/SkinnedAsset.h"
#include "Engine/SkinnedAssetCommon.h"
#include "Misc/Guid.h"
#include "ReferenceSkeleton.h"
#include "Templates/SharedPointer.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "SkeletalMesh.generated.h"

class FSkeletalMeshLODModel;
class FSkeletalMeshModel;
class USkeleton;

namespace Host
{
struct FSkeletalMeshAccess;
} // namespace Host

/** A mesh asset whose vertices hang on the bones of a skeleton. A new one has no bones and no level of detail. */
UCLASS()
class USkeletalMesh : public USkinnedAsset
{
	GENERATED_BODY()

public:
	ENGINE_API USkeletalMesh(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The source of the mesh: fill it, then Build. Never null. */
	FSkeletalMeshModel* GetImportedModel() const { return ImportedModel.Get(); }

	ENGINE_API virtual TArray<FSkeletalMaterial>& GetMaterials() override;
	ENGINE_API virtual const TArray<FSkeletalMaterial>& GetMaterials() const override;
	ENGINE_API void SetMaterials(const TArray<FSkeletalMaterial>& InMaterials);

	/** Drops the settings of all levels of detail. */
	ENGINE_API void ResetLODInfo();

	/** Appends the settings of one more level, half as large on the screen and half as fine as the one before. */
	ENGINE_API FSkeletalMeshLODInfo& AddLODInfo();

	/** Appends a copy. @return its index */
	ENGINE_API int32 AddLODInfo(const FSkeletalMeshLODInfo& NewLODInfo);
	ENGINE_API virtual FSkeletalMeshLODInfo* GetLODInfo(int32 Index) override;
	ENGINE_API virtual const FSkeletalMeshLODInfo* GetLODInfo(int32 Index) const override;
	TArray<FSkeletalMeshLODInfo>& GetLODInfoArray() { return LODInfo; }

	/** Levels of detail that have settings. */
	ENGINE_API virtual int32 GetLODNum() const override;

	ENGINE_API virtual FReferenceSkeleton& GetRefSkeleton() override;
	ENGINE_API virtual const FReferenceSkeleton& GetRefSkeleton() const override;
	ENGINE_API void SetRefSkeleton(const FReferenceSkeleton& InRefSkeleton);

	ENGINE_API virtual USkeleton* GetSkeleton() override;
	ENGINE_API virtual const USkeleton* GetSkeleton() const override;

	/** Stores the skeleton; changes neither the mesh's bones nor the skeleton's. */
	ENGINE_API void SetSkeleton(USkeleton* InSkeleton);

	bool GetHasVertexColors() const { return bHasVertexColors; }
	void SetHasVertexColors(bool InbHasVertexColors) { bHasVertexColors = InbHasVertexColors; }
	FGuid GetVertexColorGuid() const { return VertexColorGuid; }
	void SetVertexColorGuid(const FGuid& InVertexColorGuid) { VertexColorGuid = InVertexColorGuid; }

	/**
	 * Fills the level's required bones: every bone in ascending order.
	 *
	 * @param BonesToRemove  bones to leave out, by key; may be null
	 */
	ENGINE_API static void CalculateRequiredBones(FSkeletalMeshLODModel& LODModel,
		const FReferenceSkeleton& RefSkeleton, const TMap<FBoneIndexType, FBoneIndexType>* BonesToRemove);

	/** Computes the inverse reference matrices, but only when their number differs from the number of bones. */
	ENGINE_API void CalculateInvRefMatrices();
	ENGINE_API virtual TArray<FMatrix44f>& GetRefBasesInvMatrix() override;
	ENGINE_API virtual const TArray<FMatrix44f>& GetRefBasesInvMatrix() const override;

	/** The transform of a bone in the mesh's space, in the reference pose. */
	ENGINE_API FMatrix GetComposedRefPoseMatrix(int32 InBoneIndex) const;

	/** Stores the bounds that GetBounds answers. */
	ENGINE_API void SetImportedBounds(const FBoxSphereBounds& InBounds);
	FBoxSphereBounds GetImportedBounds() const { return ImportedBounds; }
	ENGINE_API virtual FBoxSphereBounds GetBounds() const override;

	/**
	 * Makes render data from the imported model: for each level one render section for each section in the same order,
	 * and the vertices of all sections one after the other. Nothing is welded, split, sorted or normalised.
	 *
	 * The work is put off until somebody asks for the result, as the engine's asynchronous build is: the builds that
	 * follow each other while a mesh is made cost one.
	 */
	ENGINE_API void Build();

	/** Null before the first Build; finishes a build that was put off. */
	ENGINE_API virtual FSkeletalMeshRenderData* GetResourceForRendering() const override;

	/** Builds again; components that show the mesh take its bounds and are drawn anew. */
	ENGINE_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

private:
	friend struct Host::FSkeletalMeshAccess;

	FReferenceSkeleton RefSkeleton;

	/** From the mesh's space to each bone's in the reference pose. */
	TArray<FMatrix44f> RefBasesInvMatrix;

	/** Never null, never shared with another mesh. */
	TSharedPtr<FSkeletalMeshModel> ImportedModel;

	/** Null until the mesh is built. */
	TSharedPtr<FSkeletalMeshRenderData> RenderData;

	/** Whether RenderData is older than the last Build. */
	mutable bool bBuildPending = false;

	UPROPERTY(EditAnywhere, Category = Material)
	TArray<FSkeletalMaterial> Materials;

	UPROPERTY()
	TArray<FSkeletalMeshLODInfo> LODInfo;

	UPROPERTY(Category = Mesh, VisibleAnywhere)
	TObjectPtr<USkeleton> Skeleton;

	UPROPERTY()
	FBoxSphereBounds ImportedBounds = FBoxSphereBounds(ForceInit);

	UPROPERTY()
	FGuid VertexColorGuid;

	UPROPERTY()
	bool bHasVertexColors = false;
};
