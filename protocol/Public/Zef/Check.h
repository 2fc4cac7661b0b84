// SPDX-License-Identifier: MIT
/** The rules of meaning that a record must keep to cross the link; the receiving end applies the same. */
#pragma once

#include "Zef/Fault.h"
#include "Zef/Items.h"
#include "Zef/Limits.h"

namespace Zef
{

/** How the indices of sections count. */
enum class EIndexBase : std::uint8_t
{
	/** In the surface: 0 is its first vertex. VertexOffset is the count of vertices before. What the editor receives.
	 */
	Surface,
	/** In the model: VertexOffset is the first vertex; offsets ascend and may leave gaps. What the editor sends. */
	Model
};

/**
 * Checks what a mesh says without looking into its large arrays: counts, offsets, names, joints, materials, texture
 * sizes.
 * @param Structure  its large arrays are not looked at and may be empty
 * @return a fault with code None when all is well; otherwise the first fault in the order of the fields
 */
FLinkFault CheckStructure(
	const FSurfaceMesh& Structure, const FMeshCounts& Counts, EIndexBase IndexBase, const FLimits& Limits = {});

/** Checks a whole mesh: CheckStructure, then every element of every array. */
FLinkFault CheckMesh(const FSurfaceMesh& Mesh, EIndexBase IndexBase, const FLimits& Limits = {});

/** Checks a joint sequence against the joints of its mesh. */
FLinkFault CheckJointSequence(const FPackedJointSequence& Sequence, std::size_t JointCount, const FLimits& Limits = {});

/** Checks one frame of a mesh sequence over a mesh of so many vertices. Paths begin with "/Frames/<Index>". */
FLinkFault CheckSequenceFrame(
	const FMeshSequenceFrame& Frame, std::uint32_t Index, std::uint64_t VertexCount, const FLimits& Limits = {});

/** True for garment, avatar, outfit and prop. */
bool IsObjectType(EObjectType ObjectType);

} // namespace Zef
