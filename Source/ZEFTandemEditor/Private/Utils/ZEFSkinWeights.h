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
 * The influences of every vertex of an object, quantised and sorted by weight, heaviest first.
 *
 * A weight becomes the low 16 bits of the truncated Weight * 65534 + 1, so 0 becomes 1 and 1 becomes 65535. A second
 * entry for a bone replaces the weight of the first.
 */
class FQuantizedInfluences
{
public:
	explicit FQuantizedInfluences(const TArray<FZEFVertexInfluence>& Influences);

	/**
	 * Writes the influences of `Vertex`, at most 12, so that the weights sum to 65535 in 16-bit arithmetic; what is
	 * missing goes to the first. A vertex past the list is bound whole to bone 0.
	 */
	void Apply(int32 Vertex, FSoftSkinVertex& OutVertex) const;

private:
	TArray<FQuantizedInfluence> Packed;
	TArray<int32> FirstOfVertex; // [vertex count + 1]
};

} // namespace ZEFEditorUtils
