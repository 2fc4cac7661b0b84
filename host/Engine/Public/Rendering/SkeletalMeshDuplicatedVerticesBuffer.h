// SPDX-License-Identifier: MIT
// For each vertex of a section, the other vertices in the same place.
#pragma once

#include "CoreMinimal.h"

/** A run of entries in a list. */
struct FIndexLengthPair
{
	uint32 Length;
	uint32 Index;
};

/** For each vertex of a section, the other vertices in the same place. */
class FDuplicatedVerticesBuffer
{
public:
	/** The vertices that some vertex shares its place with, one run after the other. */
	TArray<uint32> DupVertData;

	/** The run of each vertex in DupVertData [NumVertices]. */
	TArray<FIndexLengthPair> DupVertIndexData;
	bool bHasOverlappingVertices = false;

	/** Fills the buffer; a vertex that is no key of the map gets an empty run. */
	ENGINE_API void Init(const int32 NumVertices, const TMap<int32, TArray<int32>>& OverlappingVertices);
};
