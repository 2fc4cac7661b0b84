// SPDX-License-Identifier: MIT
/** Vertices and triangles of a piece, brought to their place. */
#pragma once

#include "Files/Build/Skeleton.h"

namespace Zef::Peer
{

/** What a model is posed with. */
struct FModelPose
{
	const FModel& Model;
	const std::vector<FMatrix34>& NodePlaces;
	const FModelSkeleton& Skeleton;
};

/**
 * The way of each vertex of a piece into the file's space: by the weighted joints in the bind pose where it is skinned,
 * else by its node; Joints stay empty on a model without any.
 */
struct FPiecePlacement
{
	std::vector<FMatrix34> Ways;				  // [Positions.size()], or one for all vertices
	std::vector<std::vector<FBoneWeight>> Joints; // [Positions.size()], normalised, by joint of the skeleton

	const FMatrix34& WayOf(std::size_t Vertex) const { return Ways.size() == 1 ? Ways[0] : Ways[Vertex]; }
};
FPiecePlacement PlaceVertices(const FModelPose& Pose, const FModelPiece& Piece);

/** Positions and normals of a piece with its morph targets at these weights, where it has any. */
void ApplyMorphs(const FModelPiece& Piece, const std::vector<float>& Weights, std::vector<FVec3>& Positions,
	std::vector<FVec3>& Normals);

/** A normal along a matrix that may scale and reflect; unit. Zero stays zero. */
FVec3 MoveNormal(const FMatrix34& Way, const FVec3& Normal);

/**
 * The piece as a surface in the engine's axes; normals and tangents that it lacks are computed, missing texture
 * coordinates are zero. Sections keep the numbers of the model's materials.
 */
FSurface BuildSurface(const FModelPiece& Piece, const FPiecePlacement& Placement, const FMatrix34& ToEngine);

} // namespace Zef::Peer
