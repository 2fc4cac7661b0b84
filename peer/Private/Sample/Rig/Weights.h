// SPDX-License-Identifier: MIT
/** How much each joint moves a point of the figure or of what she wears. */
#pragma once

#include "Mesh/TriangleMesh.h"
#include "Sample/Rig/Skeleton.h"

namespace Zef::Peer
{

/** Weights of the vertices of one mesh; the records' packed form, with FirstWeight [vertices + 1]. */
struct FSkinWeights
{
	FInfluences Packed{{0}, {}};

	void AddVertex(const std::vector<FBoneWeight>& Weights);
	void Append(const FSkinWeights& Other);
	std::size_t VertexCount() const { return Packed.VertexCount(); }
};

/**
 * Weights at a place, by its distances to the bones in the symmetric pose: heaviest first, above 0, their sum 1.
 * In the palms more than a dozen bones take part.
 */
std::vector<FBoneWeight> WeightsAt(const FSkeleton& Skeleton, const FVec3& Place);

FSkinWeights WeightsOf(const FSkeleton& Skeleton, const FTriangleMesh& Mesh);

/** The whole mesh hangs on one joint. */
FSkinWeights RigidWeights(int Joint, std::size_t VertexCount);

/** Moves a mesh by the weighted moves of the joints; normals and tangents are turned along. */
void ApplyMoves(FTriangleMesh& Mesh, const FSkinWeights& Weights, const std::vector<FRigid>& Moves);

} // namespace Zef::Peer
