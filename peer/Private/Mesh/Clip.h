// SPDX-License-Identifier: MIT
/** Cuts meshes along a line where a function is zero, and finds their open edges. */
#pragma once

#include <functional>

#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

/** What lies where the function is 0 or more. Triangles on the line are cut; the cut is exact to a hundredth of cm. */
FTriangleMesh KeepWhere(const FTriangleMesh& Mesh, const std::function<float(const FVec3&)>& Keep);

/** The open edges as closed rows of vertices, each in the order in which the triangles run along it. */
std::vector<std::vector<std::uint32_t>> OpenEdges(const FTriangleMesh& Mesh);

/** A closed row of points made even: smoothed, then divided into pieces of about the given length. */
std::vector<FVec3> EvenLoop(const std::vector<FVec3>& Points, float PieceLength, int SmoothingPasses);

} // namespace Zef::Peer
