// SPDX-License-Identifier: MIT
#include "Utils/ZEFTandemEditorUtils.h"

#include "Animation/Skeleton.h"
#include "Engine/SkeletalMesh.h"
#include "Engine/SkinnedAssetCommon.h"
#include "ReferenceSkeleton.h"
#include "Rendering/SkeletalMeshLODModel.h"
#include "Rendering/SkeletalMeshModel.h"
#include "SkeletalMeshReductionSettings.h"
#include "UObject/Package.h"
#include "Utils/ZEFAssetObject.h"
#include "Utils/ZEFMeshMaterials.h"
#include "Utils/ZEFSkeletalMeshSections.h"

namespace ZEFEditorUtils
{

namespace
{

constexpr EObjectFlags AssetFlags = static_cast<EObjectFlags>(RF_Public | RF_Standalone);

void AddMaterialSlots(const TArray<FZEFMaterialData>& Materials, USkeletalMesh* Mesh)
{
	TArray<FSkeletalMaterial>& Slots = Mesh->GetMaterials();
	Slots.Reserve(Slots.Num() + Materials.Num());
	for (const FZEFMaterialData& Material : Materials)
	{
		Slots.Add(FSkeletalMaterial(Material.Material, true, false, NAME_None, NAME_None));
	}
}

/** Leaves the mesh with one empty level of detail at full detail. */
FSkeletalMeshLODModel& ResetToOneLOD(USkeletalMesh* Mesh)
{
	FSkeletalMeshModel* const ImportedModel = Mesh->GetImportedModel();
	check(ImportedModel->LODModels.Num() == 0);
	ImportedModel->LODModels.Empty();
	ImportedModel->EmptyOriginalReductionSourceMeshData();
	ImportedModel->LODModels.Add(new FSkeletalMeshLODModel());
	Mesh->ResetLODInfo();
	FSkeletalMeshOptimizationSettings& Reduction = Mesh->AddLODInfo().ReductionSettings;
	Reduction.NumOfTrianglesPercentage = 1.0f;
	Reduction.NumOfVertPercentage = 1.0f;
	Reduction.MaxDeviationPercentage = 0.0f;
	return ImportedModel->LODModels[0];
}

void AddBones(const TArray<FZEFJoint>& Joints, USkeletalMesh* Mesh)
{
	// The reference skeleton takes the bones in when the modifier goes out of scope.
	FReferenceSkeletonModifier Modifier(Mesh->GetRefSkeleton(), Mesh->GetSkeleton());
	for (const FZEFJoint& Joint : Joints)
	{
		const FTransform Pose(FQuat(Joint.Transform.GetRotation()), FVector(Joint.Transform.GetTranslation()),
			FVector(Joint.Transform.GetScale3D()));
		Modifier.Add(FMeshBoneInfo(FName(*Joint.Name), Joint.Name + TEXT("_Export"), Joint.ParentIndex), Pose, false);
	}
}

/** Box around all positions; a surface without any is a programming fault of the sender's side of the link. */
FBox3f ComputeBounds(const TArray<FZEFSurface>& Surfaces)
{
	FBox3f Bounds(ForceInit);
	for (const FZEFSurface& Surface : Surfaces)
	{
		Bounds += FBox3f(&Surface.Positions[0], Surface.Positions.Num());
	}
	return Bounds;
}

FBoxSphereBounds ToBoxSphereBounds(const FBox3f& Box)
{
	const FVector Min(Box.Min);
	const FVector Size = FVector(Box.Max) - Min;
	const FVector HalfSize = Size * 0.5;
	const double Radius = FMath::Sqrt((Size.X * Size.X + Size.Y * Size.Y + Size.Z * Size.Z) * 0.25);
	return FBoxSphereBounds(Min + HalfSize, HalfSize, Radius);
}

/** Makes the skeleton of the mesh and ties the two together. */
USkeleton* CreateSkeleton(USkeletalMesh* NewSkeletalMesh)
{
	const FString Name = FString::Printf(TEXT("%s_Skeleton"), *NewSkeletalMesh->GetName());
	USkeleton* const NewSkeleton = CreateAssetObject<USkeleton>(GetTransientPackage(), Name, AssetFlags);
	verify(NewSkeleton->MergeAllBonesToBoneTree(NewSkeletalMesh));
	if (NewSkeletalMesh->GetSkeleton() != NewSkeleton)
	{
		NewSkeletalMesh->SetSkeleton(NewSkeleton);
		NewSkeletalMesh->MarkPackageDirty();
	}
	return NewSkeleton;
}

void Finish(USkeletalMesh* Mesh, USkeleton* Skeleton, const FBox3f& Bounds)
{
	Mesh->SetImportedBounds(ToBoxSphereBounds(Bounds));
	Mesh->CalculateInvRefMatrices();
	Mesh->Build();
	Mesh->MarkPackageDirty();
	Mesh->PostEditChange();
	Skeleton->MarkPackageDirty();
	Skeleton->SetPreviewMesh(Mesh, true);
	Skeleton->PostEditChange();
}

} // namespace

bool ZEFSurfaceMeshToSkeletalMeshData(
	const FZEFSurfaceMesh& SurfaceMesh, const FString& Name, FZEFSkeletalMeshData* OutData)
{
	if (OutData == nullptr)
	{
		return false;
	}
	PrepareMaterialsAndTextures(SurfaceMesh, Name, EUVTransformCopy::Leave, OutData->Textures, OutData->Materials);

	USkeletalMesh* const Mesh = CreateAssetObject<USkeletalMesh>(GetTransientPackage(), Name, AssetFlags);
	AddMaterialSlots(OutData->Materials, Mesh);
	FSkeletalMeshLODModel& LODModel = ResetToOneLOD(Mesh);
	AddBones(SurfaceMesh.Joints, Mesh);
	LODModel.NumTexCoords = 1;
	Mesh->SetHasVertexColors(true);
	Mesh->SetVertexColorGuid(FGuid::NewGuid());

	const FBox3f Bounds = ComputeBounds(SurfaceMesh.Surfaces);
	BuildSkeletalMeshSections(SurfaceMesh, Mesh->GetRefSkeleton().GetRawBoneNum(), LODModel);
	USkeletalMesh::CalculateRequiredBones(LODModel, Mesh->GetRefSkeleton(), nullptr);

	USkeleton* const Skeleton = CreateSkeleton(Mesh);
	Finish(Mesh, Skeleton, Bounds);
	OutData->SkeletalMesh = Mesh;
	OutData->Skeleton = Skeleton;
	return true;
}

} // namespace ZEFEditorUtils
