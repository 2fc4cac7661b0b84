// SPDX-License-Identifier: MIT
#include "Engine/SkeletalMesh.h"

#include "Animation/Skeleton.h"
#include "AssetRefresh.h"
#include "Host/NativeCopy.h"
#include "Materials/MaterialInterface.h"
#include "Rendering/SkeletalMeshModel.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "SkeletalMeshRenderDataBuilder.h"

namespace Host
{
struct FSkeletalMeshAccess
{
	/** Source and bones go along; what renders is built from them where the source had been built. */
	static void Copy(const USkeletalMesh& Source, USkeletalMesh& Target)
	{
		Target.RefSkeleton = Source.RefSkeleton;
		Target.RefBasesInvMatrix = Source.RefBasesInvMatrix;
		Target.ImportedModel = MakeShared<FSkeletalMeshModel>(*Source.ImportedModel);
		if (Source.RenderData)
		{
			Target.Build();
		}
	}
};

namespace
{
TNativeCopy<USkeletalMesh> CopySkeletalMesh(&FSkeletalMeshAccess::Copy);
} // namespace
} // namespace Host

USkeletalMesh::USkeletalMesh(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, ImportedModel(MakeShared<FSkeletalMeshModel>())
{
}

TArray<FSkeletalMaterial>& USkeletalMesh::GetMaterials()
{
	return Materials;
}

const TArray<FSkeletalMaterial>& USkeletalMesh::GetMaterials() const
{
	return Materials;
}

void USkeletalMesh::SetMaterials(const TArray<FSkeletalMaterial>& InMaterials)
{
	Materials = InMaterials;
}

void USkeletalMesh::ResetLODInfo()
{
	LODInfo.Empty();
}

FSkeletalMeshLODInfo& USkeletalMesh::AddLODInfo()
{
	const int32 Level = LODInfo.Num();
	const float Share = FMath::Pow(0.5f, float(Level));
	FSkeletalMeshLODInfo Info;
	Info.ScreenSize = FPerPlatformFloat(Share);
	Info.LODHysteresis = 0.02f;
	Info.ReductionSettings.NumOfTrianglesPercentage = Share;
	Info.ReductionSettings.NumOfVertPercentage = Share;
	LODInfo.Add(Info);
	return LODInfo[Level];
}

int32 USkeletalMesh::AddLODInfo(const FSkeletalMeshLODInfo& NewLODInfo)
{
	return LODInfo.Add(NewLODInfo);
}

FSkeletalMeshLODInfo* USkeletalMesh::GetLODInfo(int32 Index)
{
	return LODInfo.IsValidIndex(Index) ? &LODInfo[Index] : nullptr;
}

const FSkeletalMeshLODInfo* USkeletalMesh::GetLODInfo(int32 Index) const
{
	return LODInfo.IsValidIndex(Index) ? &LODInfo[Index] : nullptr;
}

int32 USkeletalMesh::GetLODNum() const
{
	return LODInfo.Num();
}

FReferenceSkeleton& USkeletalMesh::GetRefSkeleton()
{
	return RefSkeleton;
}

const FReferenceSkeleton& USkeletalMesh::GetRefSkeleton() const
{
	return RefSkeleton;
}

void USkeletalMesh::SetRefSkeleton(const FReferenceSkeleton& InRefSkeleton)
{
	RefSkeleton = InRefSkeleton;
}

USkeleton* USkeletalMesh::GetSkeleton()
{
	return Skeleton.Get();
}

const USkeleton* USkeletalMesh::GetSkeleton() const
{
	return Skeleton.Get();
}

void USkeletalMesh::SetSkeleton(USkeleton* InSkeleton)
{
	Skeleton = InSkeleton;
}

void USkeletalMesh::CalculateRequiredBones(FSkeletalMeshLODModel& LODModel, const FReferenceSkeleton& RefSkeleton,
	const TMap<FBoneIndexType, FBoneIndexType>* BonesToRemove)
{
	const int32 NumBones = RefSkeleton.GetRawBoneNum();
	LODModel.RequiredBones.Empty(NumBones);
	for (int32 Bone = 0; Bone < NumBones; ++Bone)
	{
		if (!BonesToRemove || !BonesToRemove->Contains(FBoneIndexType(Bone)))
		{
			LODModel.RequiredBones.Add(FBoneIndexType(Bone));
		}
	}
}

void USkeletalMesh::CalculateInvRefMatrices()
{
	const int32 NumBones = RefSkeleton.GetRawBoneNum();
	if (RefBasesInvMatrix.Num() == NumBones)
	{
		return;
	}
	// Parents stand before their children, so one pass composes all of them.
	TArray<FMatrix> ToMesh;
	ToMesh.Reserve(NumBones);
	RefBasesInvMatrix.Empty(NumBones);
	for (int32 Bone = 0; Bone < NumBones; ++Bone)
	{
		const int32 ParentBone = RefSkeleton.GetRawParentIndex(Bone);
		const FMatrix Local = RefSkeleton.GetRawRefBonePose()[Bone].ToMatrixWithScale();
		ToMesh.Add(ParentBone == INDEX_NONE ? Local : Local * ToMesh[ParentBone]);
		RefBasesInvMatrix.Add(FMatrix44f(ToMesh[Bone].Inverse()));
	}
}

TArray<FMatrix44f>& USkeletalMesh::GetRefBasesInvMatrix()
{
	return RefBasesInvMatrix;
}

const TArray<FMatrix44f>& USkeletalMesh::GetRefBasesInvMatrix() const
{
	return RefBasesInvMatrix;
}

FMatrix USkeletalMesh::GetComposedRefPoseMatrix(int32 InBoneIndex) const
{
	FMatrix Composed = FMatrix::Identity;
	for (int32 Bone = InBoneIndex; Bone != INDEX_NONE; Bone = RefSkeleton.GetRawParentIndex(Bone))
	{
		Composed = Composed * RefSkeleton.GetRawRefBonePose()[Bone].ToMatrixWithScale();
	}
	return Composed;
}

void USkeletalMesh::SetImportedBounds(const FBoxSphereBounds& InBounds)
{
	ImportedBounds = InBounds;
}

FBoxSphereBounds USkeletalMesh::GetBounds() const
{
	return ImportedBounds;
}

void USkeletalMesh::Build()
{
	if (!RenderData)
	{
		RenderData = MakeShared<FSkeletalMeshRenderData>();
	}
	bBuildPending = true;
}

FSkeletalMeshRenderData* USkeletalMesh::GetResourceForRendering() const
{
	if (bBuildPending)
	{
		Host::BuildSkeletalMeshRenderData(*this, *RenderData);
		bBuildPending = false;
	}
	return RenderData.Get();
}

void USkeletalMesh::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Build();
	Host::RefreshComponents(*this);
	Super::PostEditChangeProperty(PropertyChangedEvent);
}
