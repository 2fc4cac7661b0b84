// SPDX-License-Identifier: MIT
/** Results of mesh operations. */
#pragma once

#include "CoreTypes.h"

namespace UE::Geometry
{

/** What became of an edit of a mesh. Whatever is not Ok changed nothing. */
enum class EMeshResult
{
	Ok = 0,
	Failed_NotAVertex = 1,
	Failed_NotATriangle = 2,
	Failed_NotAnEdge = 3,

	Failed_BrokenTopology = 10,
	Failed_HitValenceLimit = 11,

	Failed_IsBoundaryEdge = 20,
	Failed_FlippedEdgeExists = 21,
	Failed_IsBowtieVertex = 22,
	Failed_InvalidNeighbourhood = 23,
	Failed_FoundDuplicateTriangle = 24,

	Failed_WouldCreateNonmanifoldEdge = 50,
	Failed_TriangleAlreadyExists = 51,
	Failed_CannotAllocateTriangle = 52,

	Failed_UnrecoverableError = 1000,
	Failed_Unsupported = 1001
};

} // namespace UE::Geometry
