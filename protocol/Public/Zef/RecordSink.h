// SPDX-License-Identifier: MIT
/** Where a received item goes: the interface through which arrays land in the receiver's own containers with one copy.
 */
#pragma once

#include "Zef/Items.h"

#include <cstdint>
#include <memory>

namespace Zef
{

/** The arrays of an item, in the order in which they travel within their owner. */
enum class EArray : std::uint8_t
{
	Positions,		   // FVec3, Outer = surface
	Normals,		   // FVec3, Outer = surface
	Tangents,		   // FVec3, Outer = surface
	UVs,			   // FVec2, Outer = surface
	Indices,		   // int32, Outer = surface, Inner = section
	FirstWeight,	   // uint32
	Weights,		   // FBoneWeight
	Pixels,			   // uint8, Outer = position in Textures
	FramePositions,	   // FVec3, Outer = frame
	FrameNormals,	   // FVec3, Outer = frame
	FrameTangents,	   // FVec3, Outer = frame
	SequenceTimes,	   // double; kept by the reader
	SequenceTables,	   // uint32; kept by the reader
	SequenceTransforms // FTransform; kept by the reader
};

/** Bytes of one element. */
std::uint32_t ElementBytes(EArray Array);

struct FArraySlot
{
	EArray Array = EArray::Positions;
	std::uint32_t Outer = 0;
	std::uint32_t Inner = 0;
	std::uint64_t Count = 0; // elements, at most MaxArrayElements
};

/**
 * Receives one object, joint animation or mesh sequence.
 *
 * All calls come from the endpoint's reader thread, in this order: Mesh, then Allocate for each array that is not
 * empty, then for a joint animation JointSequence, for a mesh sequence Frame and its three Allocate for each frame;
 * last Finish. A sink that is destroyed without Finish was dropped: what it holds was never valid. Structure and
 * meaning have been checked when Finish is called, not before; a sink stores and does not interpret.
 */
class IRecordSink
{
public:
	virtual ~IRecordSink() = default;

	/** Structure of the mesh; to be kept, arrays follow. */
	virtual void Mesh(FMeshHeader&& Header) = 0;

	/**
	 * Storage for the elements of one array, contiguous, of exactly Slot.Count elements, valid until Finish or
	 * destruction.
	 * @return null when there is no memory; the item is then dropped with the fault OutOfMemory
	 */
	virtual void* Allocate(const FArraySlot& Slot) = 0;

	/** The whole joint sequence, checked. */
	virtual void JointSequence(FPackedJointSequence&& Sequence) = 0;

	/** A further frame of a mesh sequence begins. */
	virtual void Frame(std::uint32_t Index, double Time) = 0;

	/** Everything is in place. */
	virtual void Finish() = 0;
};

/** Makes sinks; called on the reader thread, and outlives the endpoint's reader thread. */
class IRecordFactory
{
public:
	virtual ~IRecordFactory() = default;

	/** A sink for an item of that kind: SurfaceMesh, JointAnimation, SequenceBegin or SendJointAnimation. */
	virtual std::unique_ptr<IRecordSink> MakeSink(EItem Item, EObjectType ObjectType) = 0;
};

} // namespace Zef
