// SPDX-License-Identifier: MIT
#include "Utils/ZEFSkeletalMeshSections.h"

#include "Rendering/SkeletalMeshLODModel.h"
#include "Utils/ZEFMeshMaterials.h"
#include "Utils/ZEFSkinWeights.h"
#include "ZEFMathUtils.h"

namespace ZEFEditorUtils
{

namespace
{

/** Soft vertices of the section in work by their source vertex, as chains through two flat arrays. */
class FCornerMap
{
public:
	/** Forgets everything and makes room for the vertices of a surface and the corners of a section. */
	void Reset(int32 NumSourceVertices, int32 NumCorners)
	{
		Newest.SetNumUninitialized(NumSourceVertices, false);
		for (int32& Entry : Newest)
		{
			Entry = INDEX_NONE;
		}
		Older.Reset(FMath::Min(NumSourceVertices, NumCorners));
	}

	/** Newest soft vertex of a source vertex, INDEX_NONE when there is none. */
	int32 First(int32 SourceVertex) const { return Newest[SourceVertex]; }

	/** The one added before `SoftVertex` for the same source vertex. */
	int32 Next(int32 SoftVertex) const { return Older[SoftVertex]; }

	/** Soft vertices are added in the order of their numbers. */
	void Add(int32 SourceVertex, int32 SoftVertex)
	{
		Older.Add(Newest[SourceVertex]);
		Newest[SourceVertex] = SoftVertex;
	}

private:
	TArray<int32> Newest; // by source vertex
	TArray<int32> Older;  // by soft vertex
};

TArray<FBoneIndexType> MakeIdentityBoneMap(int32 NumBones)
{
	TArray<FBoneIndexType> Map;
	Map.SetNumUninitialized(NumBones);
	for (int32 Bone = 0; Bone < NumBones; ++Bone)
	{
		Map[Bone] = static_cast<FBoneIndexType>(Bone);
	}
	return Map;
}

/** Writes the whole vertex, padding of unused channels included, so that equal sources give equal bytes. */
void FillSoftVertex(
	const FZEFSurface& Surface, int32 Vertex, const FQuantizedInfluences& Influences, FSoftSkinVertex& OutVertex)
{
	const FVector3f& Normal = Surface.Normals[Vertex];
	const FVector3f& Tangent = Surface.Tangents[Vertex];
	OutVertex.Position = Surface.Positions[Vertex];
	OutVertex.TangentX = Tangent;
	OutVertex.TangentY = (Normal ^ Tangent).GetSafeNormal();
	OutVertex.TangentZ = FVector4f(Normal, 1.0f);
	OutVertex.UVs[0] = Surface.UVs[Vertex];
	for (int32 Channel = 1; Channel < MAX_TEXCOORDS; ++Channel)
	{
		OutVertex.UVs[Channel] = FVector2f(0.0f, 0.0f);
	}
	OutVertex.Color = FColor(255, 255, 255, 255);
	Influences.Apply(Vertex + Surface.VertexOffset, OutVertex);
}

/** Builds the sections one after the other over shared working storage. */
class FSectionBuilder
{
public:
	FSectionBuilder(const FZEFSurfaceMesh& SurfaceMesh, int32 InNumBones, FSkeletalMeshLODModel& InLODModel)
		: Influences(SurfaceMesh.VertexInfluences)
		, SlotKeys(GetMaterialSlotKeys(SurfaceMesh))
		, BoneMap(MakeIdentityBoneMap(InNumBones))
		, LODModel(InLODModel)
	{
	}

	void Build(const FZEFSurface& Surface, const FZEFSection& Source)
	{
		FSkelMeshSection& Section = LODModel.Sections.AddDefaulted_GetRef();
		Section.MaterialIndex = static_cast<uint16>(SlotKeys.Find(Source.MaterialIndex));
		Section.NumTriangles = Source.Indices.Num() / 3;
		Section.BaseVertexIndex = LODModel.NumVertices;
		Section.BaseIndex = LODModel.IndexBuffer.Num();

		const int32 FirstSlot = LODModel.IndexBuffer.AddZeroed(Source.Indices.Num());
		CornerMap.Reset(Surface.Positions.Num(), Source.Indices.Num());
		Section.SoftVertices.Reserve(FMath::Min(Surface.Positions.Num(), Source.Indices.Num()));
		const int32 NumCorners = 3 * static_cast<int32>(Section.NumTriangles);
		for (int32 Corner = 0; Corner < NumCorners; ++Corner)
		{
			const int32 SoftVertex = FindOrAddSoftVertex(Surface, Source.Indices[Corner], Section.SoftVertices);
			LODModel.MeshToImportVertexMap.Add(SoftVertex);
			LODModel.IndexBuffer[FirstSlot + Corner] = SoftVertex + Section.BaseVertexIndex;
		}

		Section.NumVertices = Section.SoftVertices.Num();
		LODModel.NumVertices += Section.NumVertices;
		Section.BoneMap = BoneMap;
		Section.CalcMaxBoneInfluences();
		Section.CalcUse16BitBoneIndex();
	}

private:
	int32 FindOrAddSoftVertex(const FZEFSurface& Surface, int32 SourceVertex, TArray<FSoftSkinVertex>& SoftVertices)
	{
		const int32 Candidate = SoftVertices.AddUninitialized();
		FillSoftVertex(Surface, SourceVertex, Influences, SoftVertices[Candidate]);
		for (int32 Known = CornerMap.First(SourceVertex); Known != INDEX_NONE; Known = CornerMap.Next(Known))
		{
			if (ZEFMathUtils::AreVerticesEqual(SoftVertices[Known], SoftVertices[Candidate]))
			{
				SoftVertices.RemoveAt(Candidate, 1, false);
				return Known;
			}
		}
		CornerMap.Add(SourceVertex, Candidate);
		return Candidate;
	}

	const FQuantizedInfluences Influences;
	const TArray<int32> SlotKeys;
	const TArray<FBoneIndexType> BoneMap;
	FSkeletalMeshLODModel& LODModel;
	FCornerMap CornerMap;
};

} // namespace

void BuildSkeletalMeshSections(const FZEFSurfaceMesh& SurfaceMesh, int32 NumBones, FSkeletalMeshLODModel& LODModel)
{
	int32 NumSections = 0;
	int32 NumIndices = 0;
	for (const FZEFSurface& Surface : SurfaceMesh.Surfaces)
	{
		NumSections += Surface.Sections.Num();
		for (const FZEFSection& Section : Surface.Sections)
		{
			NumIndices += Section.Indices.Num();
		}
	}
	LODModel.Sections.Empty(NumSections);
	LODModel.NumVertices = 0;
	LODModel.IndexBuffer.Empty(NumIndices);
	LODModel.MeshToImportVertexMap.Empty(NumIndices);

	FSectionBuilder Builder(SurfaceMesh, NumBones, LODModel);
	for (const FZEFSurface& Surface : SurfaceMesh.Surfaces)
	{
		for (const FZEFSection& Section : Surface.Sections)
		{
			Builder.Build(Surface, Section);
		}
	}
	LODModel.ActiveBoneIndices = MakeIdentityBoneMap(NumBones);
}

} // namespace ZEFEditorUtils
