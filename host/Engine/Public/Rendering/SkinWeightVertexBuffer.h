// SPDX-License-Identifier: MIT
// The influences of a mesh's vertices as a renderer reads them.
#pragma once

#include "CoreMinimal.h"
#include "BoneIndices.h"
#include "GPUSkinPublicDefs.h"

struct FSoftSkinVertex;

/** The influences of one vertex; unused slots hold bone 0 and weight 0. */
struct FSkinWeightInfo
{
	/** Indices into the bone map of the vertex's section. */
	FBoneIndexType InfluenceBones[MAX_TOTAL_INFLUENCES];

	/** 0..65535. */
	uint16 InfluenceWeights[MAX_TOTAL_INFLUENCES];
};

/**
 * The influences of all vertices, packed: the same number of slots for each vertex, bones of 8 or 16 bits, weights of 8
 * or 16. A weight stored in 8 bits reads as the byte repeated, so that 255 reads as 65535.
 */
class FSkinWeightVertexBuffer
{
public:
	/** Slots of each vertex; set before Init. @param InMaxBoneInfluences at most MAX_TOTAL_INFLUENCES */
	void SetMaxBoneInfluences(uint32 InMaxBoneInfluences) { MaxBoneInfluences = InMaxBoneInfluences; }
	void SetUse16BitBoneIndex(bool bUse) { bUse16BitBoneIndex = bUse; }
	void SetUse16BitBoneWeight(bool bUse) { bUse16BitBoneWeight = bUse; }

	uint32 GetMaxBoneInfluences() const { return MaxBoneInfluences; }
	bool Use16BitBoneIndex() const { return bUse16BitBoneIndex; }
	bool Use16BitBoneWeight() const { return bUse16BitBoneWeight; }
	uint32 GetNumVertices() const { return NumVertices; }

	/** Makes room; nothing is initialised. */
	ENGINE_API void Init(uint32 InNumVertices);

	/**
	 * Stores the first GetMaxBoneInfluences() influences of a vertex. Weights of 8 bits are rounded, and what rounding
	 * adds or takes goes to the first slot, so that they add up to 255 where the source adds up to 65535.
	 */
	ENGINE_API void SetVertexSkinWeights(uint32 VertexIndex, const FSoftSkinVertex& Vertex);

	ENGINE_API FSkinWeightInfo GetVertexSkinWeights(uint32 VertexIndex) const;

	/** The same of all vertices. */
	ENGINE_API void GetSkinWeights(TArray<FSkinWeightInfo>& OutVertices) const;

	/** 0 for a slot past the last. */
	ENGINE_API uint32 GetBoneIndex(uint32 VertexIndex, uint32 InfluenceIndex) const;

	/** 0..65535; 0 for a slot past the last. */
	ENGINE_API uint16 GetBoneWeight(uint32 VertexIndex, uint32 InfluenceIndex) const;

private:
	uint32 GetBoneBytes() const { return bUse16BitBoneIndex ? 2 : 1; }
	uint32 GetStride() const { return MaxBoneInfluences * (GetBoneBytes() + (bUse16BitBoneWeight ? 2 : 1)); }

	/** The bones of a vertex, then its weights, vertex after vertex. */
	TArray<uint8> Data;
	uint32 NumVertices = 0;
	uint32 MaxBoneInfluences = 4;
	bool bUse16BitBoneIndex = false;
	bool bUse16BitBoneWeight = false;
};
