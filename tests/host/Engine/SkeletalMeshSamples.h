// SPDX-License-Identifier: MIT
// Small skeletal meshes for tests.
#pragma once

#include "Animation/Skeleton.h"
#include "Engine/SkeletalMesh.h"
#include "Engine/SkinnedAssetCommon.h"
#include "Rendering/SkeletalMeshModel.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <initializer_list>

namespace SkeletalMeshSamples
{
struct FBone
{
	const TCHAR* Name;
	int32 Parent;
	FVector Translation = FVector(0.0, 0.0, 0.0);
};

inline USkeletalMesh* MakeMesh(std::initializer_list<FBone> Bones, const TCHAR* Name = TEXT("Mesh"))
{
	USkeletalMesh* Mesh = NewObject<USkeletalMesh>(GetTransientPackage(), FName(Name));
	FReferenceSkeletonModifier Modifier(Mesh->GetRefSkeleton(), nullptr);
	for (const FBone& Bone : Bones)
	{
		Modifier.Add(FMeshBoneInfo(FName(Bone.Name), Bone.Name, Bone.Parent), FTransform(Bone.Translation));
	}
	return Mesh;
}

/** A vertex at (X, 0, 0), normal up, tangent along X, on bone 0. */
inline FSoftSkinVertex MakeVertex(float X)
{
	FSoftSkinVertex Vertex;
	FMemory::Memzero(&Vertex, sizeof(Vertex));
	Vertex.Position = FVector3f(X, 0.0f, 0.0f);
	Vertex.TangentX = FVector3f(1.0f, 0.0f, 0.0f);
	Vertex.TangentY = FVector3f(0.0f, 1.0f, 0.0f);
	Vertex.TangentZ = FVector4f(0.0f, 0.0f, 1.0f, 1.0f);
	Vertex.UVs[0] = FVector2f(X, 0.5f);
	Vertex.Color = FColor(10, 20, 30, 40);
	Vertex.InfluenceWeights[0] = 65535;
	return Vertex;
}

/** Appends a section of one triangle over three new vertices at X, X + 1 and X + 2. */
inline FSkelMeshSection& AddTriangle(FSkeletalMeshLODModel& Model, float X, uint16 MaterialIndex)
{
	FSkelMeshSection& Section = Model.Sections.AddDefaulted_GetRef();
	Section.MaterialIndex = MaterialIndex;
	Section.BaseIndex = uint32(Model.IndexBuffer.Num());
	Section.BaseVertexIndex = Model.NumVertices;
	Section.NumTriangles = 1;
	Section.NumVertices = 3;
	Section.BoneMap.Add(0);
	for (int32 Corner = 0; Corner < 3; ++Corner)
	{
		Section.SoftVertices.Add(MakeVertex(X + float(Corner)));
		Model.IndexBuffer.Add(Model.NumVertices + uint32(Corner));
	}
	Model.NumVertices += 3;
	Model.NumTexCoords = 1;
	Section.CalcMaxBoneInfluences();
	Section.CalcUse16BitBoneIndex();
	return Section;
}

/** Appends a level of detail without sections. */
inline FSkeletalMeshLODModel& AddLevel(USkeletalMesh* Mesh)
{
	Mesh->GetImportedModel()->LODModels.Add(new FSkeletalMeshLODModel());
	Mesh->AddLODInfo();
	return Mesh->GetImportedModel()->LODModels[Mesh->GetImportedModel()->LODModels.Num() - 1];
}
} // namespace SkeletalMeshSamples
