// SPDX-License-Identifier: MIT
// The source of one level of detail of a skeletal mesh: sections with a vertex pool each, and one index buffer.
#pragma once

#include "CoreMinimal.h"
#include "SkeletalMeshTypes.h"

/** One vertex of a section's source. A new one is not initialised: zero it. */
struct FSoftSkinVertex
{
	/** In centimetres. */
	FVector3f Position;
	FVector3f TangentX;
	FVector3f TangentY;

	/** The normal; W is the sign of the tangent basis. */
	FVector4f TangentZ;
	FVector2f UVs[MAX_TEXCOORDS];
	FColor Color;

	/** Indices into the section's bone map. */
	FBoneIndexType InfluenceBones[MAX_TOTAL_INFLUENCES];

	/** 0..65535; those of a vertex add up to 65535. */
	uint16 InfluenceWeights[MAX_TOTAL_INFLUENCES];

	/** Whether one bone alone has weight; `OutBoneIndex` is that bone then. */
	ENGINE_API bool GetRigidWeightBone(FBoneIndexType& OutBoneIndex) const;

	/** The largest weight. */
	ENGINE_API uint16 GetMaximumWeight() const;
};

/** The triangles of one material slot, with their own vertices. */
struct FSkelMeshSection
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

	/** [NumVertices]; indices of the level's index buffer less BaseVertexIndex lead here. */
	TArray<FSoftSkinVertex> SoftVertices;
	TArray<TArray<FMeshToMeshVertData>> ClothMappingDataLODs;

	/** Bones of the reference skeleton that the vertices hang on. */
	TArray<FBoneIndexType> BoneMap;
	int32 NumVertices = 0;

	/** Most influences of any vertex; see CalcMaxBoneInfluences. */
	int32 MaxBoneInfluences = 4;

	/** Whether influence bones need 16 bits; see CalcUse16BitBoneIndex. */
	bool bUse16BitBoneIndex = false;
	int16 CorrespondClothAssetIndex = INDEX_NONE;
	FClothingSectionData ClothingData;

	/** For a vertex of the section, the other vertices in the same place. */
	TMap<int32, TArray<int32>> OverlappingVertices;
	bool bDisabled = false;
	int32 GenerateUpToLodIndex = INDEX_NONE;
	int32 OriginalDataSectionIndex = INDEX_NONE;
	int32 ChunkedParentSectionIndex = INDEX_NONE;
	uint8 bSelected : 1 = 0;

	int32 GetNumVertices() const { return NumVertices; }
	int32 GetMaxBoneInfluences() const { return MaxBoneInfluences; }
	bool Use16BitBoneIndex() const { return bUse16BitBoneIndex; }
	bool HasClothingData() const { return ClothingData.IsValid(); }

	/** Sets MaxBoneInfluences to the largest count of influences with a weight above 0 that one vertex has. */
	ENGINE_API void CalcMaxBoneInfluences();

	/** Sets bUse16BitBoneIndex to whether any influence names a bone past 255. */
	ENGINE_API void CalcUse16BitBoneIndex();
};

/** The source of one level of detail. */
class FSkeletalMeshLODModel
{
public:
	TArray<FSkelMeshSection> Sections;

	/** Over all sections. */
	uint32 NumVertices = 0;
	uint32 NumTexCoords = 0;

	/** Bones of the reference skeleton that the vertices hang on, over all sections. */
	TArray<FBoneIndexType> ActiveBoneIndices;

	/** Bones to move when this level is drawn, parents included, strictly increasing. */
	TArray<FBoneIndexType> RequiredBones;

	/** Three numbers of the level's vertices for each triangle, section by section. */
	TArray<uint32> IndexBuffer;
	TArray<int32> MeshToImportVertexMap;
	int32 MaxImportVertex = -1;

	/** The largest MaxBoneInfluences of the sections. */
	ENGINE_API int32 GetMaxBoneInfluences() const;

	/** Whether any section needs 16 bits for a bone. */
	ENGINE_API bool DoSectionsUse16BitBoneIndex() const;

	/** Copies the vertices of all sections, one section after the other; the array is emptied first. */
	ENGINE_API void GetVertices(TArray<FSoftSkinVertex>& Vertices) const;
};
