// SPDX-License-Identifier: MIT
#include "SkeletalMeshRenderDataBuilder.h"

#include "Engine/SkeletalMesh.h"
#include "Rendering/SkeletalMeshModel.h"
#include "Rendering/SkeletalMeshRenderData.h"

void FDuplicatedVerticesBuffer::Init(const int32 NumVertices, const TMap<int32, TArray<int32>>& OverlappingVertices)
{
	DupVertData.Reset();
	DupVertIndexData.SetNumUninitialized(NumVertices);
	bHasOverlappingVertices = !OverlappingVertices.IsEmpty();
	for (int32 Vertex = 0; Vertex < NumVertices; ++Vertex)
	{
		const TArray<int32>* Others = bHasOverlappingVertices ? OverlappingVertices.Find(Vertex) : nullptr;
		DupVertIndexData[Vertex] = {Others ? uint32(Others->Num()) : 0, uint32(DupVertData.Num())};
		if (Others)
		{
			DupVertData.Append(*Others);
		}
	}
}

int32 FSkeletalMeshLODRenderData::GetTotalFaces() const
{
	uint32 NumTriangles = 0;
	for (const FSkelMeshRenderSection& Section : RenderSections)
	{
		NumTriangles += Section.NumTriangles;
	}
	return int32(NumTriangles);
}

uint32 FSkeletalMeshRenderData::GetNumBoneInfluences() const
{
	uint32 Most = 0;
	for (const FSkeletalMeshLODRenderData& LOD : LODRenderData)
	{
		Most = FMath::Max(Most, LOD.GetVertexBufferMaxBoneInfluences());
	}
	return Most;
}

int32 FSkeletalMeshRenderData::GetMaxBonesPerSection() const
{
	int32 Most = 0;
	for (const FSkeletalMeshLODRenderData& LOD : LODRenderData)
	{
		for (const FSkelMeshRenderSection& Section : LOD.RenderSections)
		{
			Most = FMath::Max(Most, Section.BoneMap.Num());
		}
	}
	return Most;
}

namespace Host
{
namespace
{
FSkelMeshRenderSection MakeRenderSection(const FSkelMeshSection& Source)
{
	FSkelMeshRenderSection Section;
	Section.MaterialIndex = Source.MaterialIndex;
	Section.BaseIndex = Source.BaseIndex;
	Section.NumTriangles = Source.NumTriangles;
	Section.bRecomputeTangent = Source.bRecomputeTangent;
	Section.RecomputeTangentsVertexMaskChannel = Source.RecomputeTangentsVertexMaskChannel;
	Section.bCastShadow = Source.bCastShadow;
	Section.bVisibleInRayTracing = Source.bVisibleInRayTracing;
	Section.BaseVertexIndex = Source.BaseVertexIndex;
	Section.ClothMappingDataLODs = Source.ClothMappingDataLODs;
	Section.BoneMap = Source.BoneMap;
	Section.NumVertices = uint32(Source.NumVertices);
	Section.MaxBoneInfluences = Source.MaxBoneInfluences;
	Section.CorrespondClothAssetIndex = Source.CorrespondClothAssetIndex;
	Section.ClothingData = Source.ClothingData;
	Section.DuplicatedVerticesBuffer.Init(Source.NumVertices, Source.OverlappingVertices);
	Section.bDisabled = Source.bDisabled;
	return Section;
}

/** Gives every buffer of a level its size and precision. */
void InitBuffers(const FSkeletalMeshLODModel& Model, const FSkeletalMeshBuildSettings& Settings, bool bColors,
	uint32 NumVertices, FSkeletalMeshLODRenderData& OutLOD)
{
	FStaticMeshVertexBuffers& Buffers = OutLOD.StaticVertexBuffers;
	Buffers.PositionVertexBuffer.Init(NumVertices);
	Buffers.StaticMeshVertexBuffer.SetUseHighPrecisionTangentBasis(Settings.bUseHighPrecisionTangentBasis);
	Buffers.StaticMeshVertexBuffer.SetUseFullPrecisionUVs(Settings.bUseFullPrecisionUVs);
	Buffers.StaticMeshVertexBuffer.Init(NumVertices, FMath::Min<uint32>(Model.NumTexCoords, MAX_TEXCOORDS));
	Buffers.ColorVertexBuffer.Init(bColors ? NumVertices : 0);
	const int32 NumInfluences = FMath::Clamp(Model.GetMaxBoneInfluences(), 1, MAX_TOTAL_INFLUENCES);
	OutLOD.SkinWeightVertexBuffer.SetMaxBoneInfluences(uint32(NumInfluences));
	OutLOD.SkinWeightVertexBuffer.SetUse16BitBoneIndex(Model.DoSectionsUse16BitBoneIndex());
	OutLOD.SkinWeightVertexBuffer.SetUse16BitBoneWeight(Settings.bUseHighPrecisionSkinWeights);
	OutLOD.SkinWeightVertexBuffer.Init(NumVertices);
}

void FillBuffers(const FSkeletalMeshLODModel& Model, bool bColors, FSkeletalMeshLODRenderData& OutLOD)
{
	FStaticMeshVertexBuffers& Buffers = OutLOD.StaticVertexBuffers;
	const uint32 NumTexCoords = Buffers.StaticMeshVertexBuffer.GetNumTexCoords();
	uint32 VertexIndex = 0;
	for (const FSkelMeshSection& Section : Model.Sections)
	{
		for (const FSoftSkinVertex& Vertex : Section.SoftVertices)
		{
			Buffers.PositionVertexBuffer.VertexPosition(VertexIndex) = Vertex.Position;
			Buffers.StaticMeshVertexBuffer.SetVertexTangents(VertexIndex, Vertex.TangentX, Vertex.TangentZ);
			for (uint32 UV = 0; UV < NumTexCoords; ++UV)
			{
				Buffers.StaticMeshVertexBuffer.SetVertexUV(VertexIndex, UV, Vertex.UVs[UV]);
			}
			if (bColors)
			{
				Buffers.ColorVertexBuffer.VertexColor(VertexIndex) = Vertex.Color;
			}
			OutLOD.SkinWeightVertexBuffer.SetVertexSkinWeights(VertexIndex, Vertex);
			++VertexIndex;
		}
	}
}

void BuildLevel(const FSkeletalMeshLODModel& Model, const FSkeletalMeshBuildSettings& Settings, bool bColors,
	FSkeletalMeshLODRenderData& OutLOD)
{
	uint32 NumVertices = 0;
	OutLOD.RenderSections.Empty(Model.Sections.Num());
	for (const FSkelMeshSection& Section : Model.Sections)
	{
		OutLOD.RenderSections.Add(MakeRenderSection(Section));
		NumVertices += uint32(Section.SoftVertices.Num());
	}
	InitBuffers(Model, Settings, bColors, NumVertices, OutLOD);
	FillBuffers(Model, bColors, OutLOD);
	OutLOD.MultiSizeIndexContainer.CreateIndexBuffer(NumVertices < MAX_uint16 ? sizeof(uint16) : sizeof(uint32));
	OutLOD.MultiSizeIndexContainer.CopyIndexBuffer(Model.IndexBuffer);
	OutLOD.ActiveBoneIndices = Model.ActiveBoneIndices;
	OutLOD.RequiredBones = Model.RequiredBones;
}
} // namespace

void BuildSkeletalMeshRenderData(const USkeletalMesh& Mesh, FSkeletalMeshRenderData& RenderData)
{
	const FSkeletalMeshModel& Model = *Mesh.GetImportedModel();
	const int32 NumLevels = Model.LODModels.Num();
	while (RenderData.LODRenderData.Num() > NumLevels)
	{
		RenderData.LODRenderData.RemoveAt(RenderData.LODRenderData.Num() - 1);
	}
	while (RenderData.LODRenderData.Num() < NumLevels)
	{
		RenderData.LODRenderData.Add(new FSkeletalMeshLODRenderData());
	}
	for (int32 Level = 0; Level < NumLevels; ++Level)
	{
		const FSkeletalMeshLODInfo* Info = Mesh.GetLODInfo(Level);
		BuildLevel(Model.LODModels[Level], Info ? Info->BuildSettings : FSkeletalMeshBuildSettings(),
			Mesh.GetHasVertexColors(), RenderData.LODRenderData[Level]);
	}
}
} // namespace Host
