// SPDX-License-Identifier: MIT
/** The two packing options of the link, as operations on a mesh. */
#pragma once

#include <cstdint>
#include <vector>

#include "Zef/Records.h"

namespace Zef::Peer
{

/** Which vertices of a mesh are left after packing. */
struct FKeptVertices
{
	/** [vertices after packing]: the number of each before it, over all surfaces, ascending. Empty: all were kept. */
	std::vector<std::uint32_t> Old;
};

/**
 * Merges the vertices of a surface that are equal bit for bit in position, normal, tangent, texture coordinate and
 * influences (bones, weights and their order). The first of several stays, so the order of the rest is unchanged.
 *
 * Indices and offsets are brought up to date; triangles are neither removed nor reordered, so one whose corners fall
 * together stays, with a repeated index. Surfaces are not merged with each other. A negative zero equals a positive
 * one; not-a-number equals itself. Linear in the number of vertices.
 */
FKeptVertices WeldVertices(FSurfaceMesh& Mesh);

/**
 * Replaces the materials of a mesh by one, and the sections of each surface by one.
 *
 * The one material is a copy of the dominant one: the material that covers the largest surface area; of equal ones
 * the first in the map. Substance materials stand back: one is chosen only if there is no other. It keeps its key, id
 * and channels and is renamed "Unified"; the textures that it does not use are removed. The indices of a surface's
 * sections are joined in their order, so triangles keep their order too. Every surface takes the mode of the surface
 * where the dominant material covers most, because a mode of 1 anywhere would make the one material translucent.
 * Sections whose material is unknown count with no area and take the unified one as well.
 * A mesh without materials only has its sections joined, under material 0.
 */
void UnifyMaterials(FSurfaceMesh& Mesh);

/** Both as the options say; materials are unified on garments only. */
FKeptVertices Pack(FSurfaceMesh& Mesh, EObjectType Type, const FPackingOptions& Options);

/** Leaves in each frame only the vertices that were kept. */
void PackFrames(std::vector<FMeshSequenceFrame>& Frames, const FKeptVertices& Kept);

} // namespace Zef::Peer
