// SPDX-License-Identifier: MIT
/** Vertex animation of a mesh that moves with its joints. */
#pragma once

#include <vector>

#include "Zef/Records.h"

namespace Zef::Peer
{

/**
 * One frame of positions, normals and tangents for each frame of the sequence, by the weighted mean of the joints'
 * movements since the reference pose (linear blend skinning).
 *
 * A frame's joints are found by name; a joint that a frame does not name stays as in the reference pose relative to
 * its parent. Vertices without influences stay where they are. Normals and tangents are unit vectors; scale that
 * differs by axis is not undone on normals.
 * @return empty when the mesh has no joints or no influences
 */
std::vector<FMeshSequenceFrame> MakeSkinnedSequence(const FSurfaceMesh& Mesh, const FJointSequence& Sequence);

} // namespace Zef::Peer
