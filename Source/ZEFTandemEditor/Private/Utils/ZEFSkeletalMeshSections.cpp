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
	const FZEFSurface& Surface, int32 Vertex, FInfluenceQuantizer& Influences, FSoftSkinVertex& OutVertex)
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
		int32 MostVertices = 0;
		for (const FZEFSurface& Surface : SurfaceMesh.Surfaces)
		{
			MostVertices = FMath::Max(MostVertices, Surface.Positions.Num());
		}
		SoftVertexEnds.SetNumZeroed(MostVertices);
	}

	void Build(const FZEFSurface& Surface, const FZEFSection& Source)
	{
		FSkelMeshSection& Section = LODModel.Sections.AddDefaulted_GetRef();
		const int32 NumIndices = Source.Indices.Num();
		Section.MaterialIndex = static_cast<uint16>(SlotKeys.Find(Source.MaterialIndex));
		Section.NumTriangles = NumIndices / 3;
		Section.BaseVertexIndex = LODModel.NumVertices;
		Section.BaseIndex = LODModel.IndexBuffer.Num();
		Section.SoftVertices.Reserve(FMath::Min(Surface.Positions.Num(), NumIndices));

		const int32 NumCorners = 3 * static_cast<int32>(Section.NumTriangles);
		uint32* const Indices = LODModel.IndexBuffer.GetData() + LODModel.IndexBuffer.AddUninitialized(NumIndices);
		int32* const ImportVertices =
			LODModel.MeshToImportVertexMap.GetData() + LODModel.MeshToImportVertexMap.AddUninitialized(NumCorners);
		const int32* const SourceVertices = Source.Indices.GetData();
		for (int32 Corner = 0; Corner < NumCorners; ++Corner)
		{
			const int32 SourceVertex = SourceVertices[Corner];
			const uint32 Known = SoftVertexEnds[SourceVertex];
			const uint32 SoftVertex =
				Known > Section.BaseVertexIndex ? Known - 1 : AddSoftVertex(Surface, SourceVertex, Section);
			ImportVertices[Corner] = static_cast<int32>(SoftVertex - Section.BaseVertexIndex);
			Indices[Corner] = SoftVertex;
		}
		for (int32 Trailing = NumCorners; Trailing < NumIndices; ++Trailing)
		{
			Indices[Trailing] = 0;
		}

		Section.NumVertices = Section.SoftVertices.Num();
		LODModel.NumVertices += Section.NumVertices;
		Section.BoneMap = BoneMap;
		Section.CalcMaxBoneInfluences();
		Section.CalcUse16BitBoneIndex();
	}

private:
	/**
	 * Two corners of one source vertex are equal in everything, so whether they may share a soft vertex is decided by
	 * comparing it with itself: a vertex that has no equal, for one of its numbers is none, is made anew every time.
	 *
	 * @return number of the new vertex within the level of detail
	 */
	uint32 AddSoftVertex(const FZEFSurface& Surface, int32 SourceVertex, FSkelMeshSection& Section)
	{
		const int32 Added = Section.SoftVertices.AddUninitialized();
		FSoftSkinVertex& Vertex = Section.SoftVertices[Added];
		FillSoftVertex(Surface, SourceVertex, Influences, Vertex);
		const uint32 SoftVertex = Section.BaseVertexIndex + static_cast<uint32>(Added);
		if (ZEFMathUtils::AreVerticesEqual(Vertex, Vertex))
		{
			SoftVertexEnds[SourceVertex] = SoftVertex + 1;
		}
		return SoftVertex;
	}

	FInfluenceQuantizer Influences;
	const TArray<int32> SlotKeys;
	const TArray<FBoneIndexType> BoneMap;
	FSkeletalMeshLODModel& LODModel;
	/**
	 * By source vertex: one past the number of its soft vertex within the level of detail. A number that is not above
	 * the first vertex of the section in work is of an earlier section, perhaps of another surface.
	 */
	TArray<uint32> SoftVertexEnds;
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
