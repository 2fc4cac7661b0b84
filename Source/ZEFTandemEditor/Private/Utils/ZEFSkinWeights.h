// SPDX-License-Identifier: MIT
/** Bone weights as the engine stores them. */
#pragma once

#include "CoreMinimal.h"
#include "ZEFTandemRecords.h"

struct FSoftSkinVertex;

namespace ZEFEditorUtils
{

/** A bone and its weight, 0..65535. */
struct FQuantizedInfluence
{
	uint16 Bone;
	uint16 Weight;
};

/**
 * Quantises the influences of an object's vertices and sorts them by weight, heaviest first.
 *
 * A weight becomes the low 16 bits of the truncated Weight * 65534 + 1, so 0 becomes 1 and 1 becomes 65535. A second
 * entry for a bone replaces the weight of the first. Entries of equal weight keep their order.
 */
class FInfluenceQuantizer
{
public:
	/** Keeps a reference to the influences. */
	explicit FInfluenceQuantizer(const TArray<FZEFVertexInfluence>& InInfluences);

	/**
	 * Writes the influences of `Vertex`, at most 12, so that the weights sum to 65535 in 16-bit arithmetic; what is
	 * missing goes to the first. A vertex past the list is bound whole to bone 0.
	 */
	void Apply(int32 Vertex, FSoftSkinVertex& OutVertex);

private:
	int32 Quantize(const TArray<FZEFBoneInfluence>& Pairs);

	const TArray<FZEFVertexInfluence>& Influences;
	/** Of the vertex in work, each bone once; room for the longest list so far. */
	TArray<FQuantizedInfluence> Quantized;
	/**
	 * By bone: where it stands in Quantized, counted from VertexStart. An entry below VertexStart is of an earlier
	 * vertex, so the table needs no clearing between vertices.
	 */
	TArray<uint64> PlaceOfBone;
	uint64 VertexStart = 1;
};

} // namespace ZEFEditorUtils
