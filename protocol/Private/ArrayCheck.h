// SPDX-License-Identifier: MIT
/** The rules for the elements of an array, applied to each stretch while it is still in the cache from being received.
 */
#pragma once

#include "Zef/Check.h"
#include "Zef/RecordSink.h"

#include <cstdint>
#include <string>

namespace Zef
{

/** What the elements of one array are held against. */
struct FArrayRule
{
	FArraySlot Slot;
	/** Indices: what stands for vertex 0. */
	std::uint32_t Base = 0;
	/** Indices: vertices of the surface. Weights: joints, or 0 when bone indices mean nothing. SequenceTables: tables.
	 */
	std::uint32_t Bound = 0;
	/** FirstWeight: count of weights. */
	std::uint64_t Total = 0;
	/** Weights: the offsets that say which vertex a weight belongs to; for reports. Not owned, may be null. */
	const std::uint32_t* FirstWeight = nullptr;
	std::uint64_t FirstWeightCount = 0;
	/** In front of every path: "" or "/Mesh". A literal. */
	const char* Prefix = "";
};

/** The rule of a slot of a mesh; the structure must have passed CheckStructure. */
FArrayRule RuleOf(
	const FArraySlot& Slot, const FSurfaceMesh& Structure, const FMeshCounts& Counts, EIndexBase IndexBase);

/** Path of the array: "/Surfaces/0/Sections/2/Indices". */
std::string PathOf(const FArrayRule& Rule);

/**
 * Checks the elements [First, Last) of an array of which [0, Last) are in memory.
 * @return the fault of the first bad element; code None when there is none
 */
FLinkFault CheckElements(const FArrayRule& Rule, const void* Elements, std::uint64_t First, std::uint64_t Last);

/** The slots of a mesh's arrays that are not empty, in the order of travel. */
std::vector<FArraySlot> SlotsOf(const FMeshCounts& Counts);

/** Bytes of those arrays. */
std::uint64_t BytesOf(const FMeshCounts& Counts);

} // namespace Zef
