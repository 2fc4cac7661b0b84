// SPDX-License-Identifier: MIT
// What a renderer reads of one level of detail of a skeletal mesh.
#pragma once

#include "CoreMinimal.h"
#include "Rendering/MultiSizeIndexContainer.h"
#include "Rendering/SkeletalMeshDuplicatedVerticesBuffer.h"
#include "Rendering/SkinWeightVertexBuffer.h"
#include "SkeletalMeshTypes.h"
#include "StaticMeshResources.h"

/** The triangles of one material slot. */
struct FSkelMeshRenderSection
{
	/** Slot of the mesh's materials. */
	uint16 MaterialIndex = 0;

	/** First index in the level's index buffer, in indices. */
	uint32 BaseIndex = 0;
	uint32 NumTriangles = 0;
	bool bRecomputeTangent = false;
	ESkinVertexColorChannel RecomputeTangentsVertexMaskChannel = ESkinVertexColorChannel::None;
	bool bCastShadow = true;
	bool bVisibleInRayTracing = true;

	/** Number of the section's first vertex within the level. */
	uint32 BaseVertexIndex = 0;
	TArray<TArray<FMeshToMeshVertData>> ClothMappingDataLODs;

	/** Bones of the reference skeleton that the influences of the vertices index. */
	TArray<FBoneIndexType> BoneMap;
	uint32 NumVertices = 0;
	int32 MaxBoneInfluences = 4;
	int16 CorrespondClothAssetIndex = INDEX_NONE;
	FClothingSectionData ClothingData;
	FDuplicatedVerticesBuffer DuplicatedVerticesBuffer;
	bool bDisabled = false;
};

/** What a renderer reads of one level of detail. */
class FSkeletalMeshLODRenderData
{
public:
	TArray<FSkelMeshRenderSection> RenderSections;
	FMultiSizeIndexContainer MultiSizeIndexContainer;
	FStaticMeshVertexBuffers StaticVertexBuffers;
	FSkinWeightVertexBuffer SkinWeightVertexBuffer;
	TArray<FBoneIndexType> ActiveBoneIndices;
	TArray<FBoneIndexType> RequiredBones;

	uint32 GetNumVertices() const { return StaticVertexBuffers.PositionVertexBuffer.GetNumVertices(); }
	uint32 GetNumTexCoords() const { return StaticVertexBuffers.StaticMeshVertexBuffer.GetNumTexCoords(); }
	uint32 GetVertexBufferMaxBoneInfluences() const { return SkinWeightVertexBuffer.GetMaxBoneInfluences(); }

	/** Triangles over all sections. */
	ENGINE_API int32 GetTotalFaces() const;

	FSkinWeightVertexBuffer* GetSkinWeightVertexBuffer() { return &SkinWeightVertexBuffer; }
	const FSkinWeightVertexBuffer* GetSkinWeightVertexBuffer() const { return &SkinWeightVertexBuffer; }
};
