// SPDX-License-Identifier: MIT
#include "Engine/SkeletalMesh.h"

#include "Animation/Skeleton.h"
#include "Materials/MaterialInterface.h"
#include "Rendering/SkeletalMeshModel.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "SkeletalMeshRenderDataBuilder.h"

FSkeletalMeshGeometry::FSkeletalMeshGeometry()
	: ImportedModel(MakeShared<FSkeletalMeshModel>())
{
}

FSkeletalMeshGeometry::FSkeletalMeshGeometry(const FSkeletalMeshGeometry& Other)
	: RefSkeleton(Other.RefSkeleton)
	, RefBasesInvMatrix(Other.RefBasesInvMatrix)
	, ImportedModel(MakeShared<FSkeletalMeshModel>(*Other.ImportedModel))
{
}

FSkeletalMeshGeometry& FSkeletalMeshGeometry::operator=(const FSkeletalMeshGeometry& Other)
{
	if (this != &Other)
	{
		RefSkeleton = Other.RefSkeleton;
		RefBasesInvMatrix = Other.RefBasesInvMatrix;
		ImportedModel = MakeShared<FSkeletalMeshModel>(*Other.ImportedModel);
		RenderData.Reset();
	}
	return *this;
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
	return Geometry.RefSkeleton;
}

const FReferenceSkeleton& USkeletalMesh::GetRefSkeleton() const
{
	return Geometry.RefSkeleton;
}

void USkeletalMesh::SetRefSkeleton(const FReferenceSkeleton& InRefSkeleton)
{
	Geometry.RefSkeleton = InRefSkeleton;
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
	const FReferenceSkeleton& Bones = Geometry.RefSkeleton;
	const int32 NumBones = Bones.GetRawBoneNum();
	if (Geometry.RefBasesInvMatrix.Num() == NumBones)
	{
		return;
	}
	// Parents stand before their children, so one pass composes all of them.
	TArray<FMatrix> ToMesh;
	ToMesh.Reserve(NumBones);
	Geometry.RefBasesInvMatrix.Empty(NumBones);
	for (int32 Bone = 0; Bone < NumBones; ++Bone)
	{
		const int32 ParentBone = Bones.GetRawParentIndex(Bone);
		const FMatrix Local = Bones.GetRawRefBonePose()[Bone].ToMatrixWithScale();
		ToMesh.Add(ParentBone == INDEX_NONE ? Local : Local * ToMesh[ParentBone]);
		Geometry.RefBasesInvMatrix.Add(FMatrix44f(ToMesh[Bone].Inverse()));
	}
}

TArray<FMatrix44f>& USkeletalMesh::GetRefBasesInvMatrix()
{
	return Geometry.RefBasesInvMatrix;
}

const TArray<FMatrix44f>& USkeletalMesh::GetRefBasesInvMatrix() const
{
	return Geometry.RefBasesInvMatrix;
}

FMatrix USkeletalMesh::GetComposedRefPoseMatrix(int32 InBoneIndex) const
{
	const FReferenceSkeleton& Bones = Geometry.RefSkeleton;
	FMatrix Composed = FMatrix::Identity;
	for (int32 Bone = InBoneIndex; Bone != INDEX_NONE; Bone = Bones.GetRawParentIndex(Bone))
	{
		Composed = Composed * Bones.GetRawRefBonePose()[Bone].ToMatrixWithScale();
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
	if (!Geometry.RenderData)
	{
		Geometry.RenderData = MakeShared<FSkeletalMeshRenderData>();
	}
	Host::BuildSkeletalMeshRenderData(*this, *Geometry.RenderData);
}

FSkeletalMeshRenderData* USkeletalMesh::GetResourceForRendering() const
{
	return Geometry.RenderData.Get();
}

void USkeletalMesh::PostEditChange()
{
	Build();
	Super::PostEditChange();
}
