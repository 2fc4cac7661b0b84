// SPDX-License-Identifier: MIT
/** The kinds of items that cross the link, and what their headers say before their arrays arrive. */
#pragma once

#include "Zef/Records.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Zef
{

/** Requests go from the editor to the garment application, replies the other way, faults both ways. */
enum class EItem : std::uint8_t
{
	// Requests; the numbers are those of the editor's messages.
	Enable = 0,
	RequestUpdate = 1,
	RequestAnimation = 2,
	RequestAvailability = 3,
	SendJointAnimation = 4,

	// Replies
	SurfaceMesh = 16,
	JointAnimation = 17,
	SequenceBegin = 18,
	SequenceFrame = 19,
	SequenceEnd = 20,
	Availability = 21,
	/** Version 2: what an update will bring. */
	UpdateAnnouncement = 22,

	Fault = 32,
	None = 255
};

/** Name of an item as it stands in reports. */
const char* ToString(EItem Item);

/** One object of an update that is about to be sent. */
struct FAnnouncedObject
{
	EObjectType ObjectType = EObjectType::Invalid;
	/** Of its SurfaceMesh item, header and arrays. */
	std::uint64_t Bytes = 0;

	bool operator==(const FAnnouncedObject&) const = default;
};

/** What an update will bring, in the order in which it comes; each object type once. */
struct FUpdateAnnouncement
{
	std::vector<FAnnouncedObject> Objects;

	bool operator==(const FUpdateAnnouncement&) const = default;
};

/** Element counts of the arrays of one surface. */
struct FSurfaceCounts
{
	std::uint64_t Positions = 0;
	std::uint64_t Normals = 0;
	std::uint64_t Tangents = 0;
	std::uint64_t UVs = 0;
	std::vector<std::uint64_t> SectionIndices; // [FSurface::Sections.size()]
};

/** Element counts of all arrays of a mesh. */
struct FMeshCounts
{
	std::vector<FSurfaceCounts> Surfaces; // [FSurfaceMesh::Surfaces.size()]
	std::uint64_t FirstWeight = 0;		  // 0, or vertices + 1
	std::uint64_t Weights = 0;
	std::vector<std::uint64_t> TexturePixels; // bytes; [FSurfaceMesh::Textures.size()]

	/** Positions of all surfaces. */
	std::uint64_t VertexCount() const;
};

/** Counts of a mesh whose arrays are filled. */
FMeshCounts CountsOf(const FSurfaceMesh& Mesh);

/**
 * A mesh as its header tells it: names, joints, materials, texture sizes. All large arrays in Structure are empty;
 * Counts says how long they will be.
 */
struct FMeshHeader
{
	FSurfaceMesh Structure;
	FMeshCounts Counts;
};

/** Names and parents of one pose layout; frames that move the same joints share one. */
struct FJointTable
{
	struct FEntry
	{
		std::string Name;
		std::int32_t ParentIndex = -1; // in FSurfaceMesh::Joints, not in this table
	};
	std::vector<FEntry> Joints;
};

/** A joint sequence as it travels: layouts once, then one packed run of transforms. */
struct FPackedJointSequence
{
	std::vector<FJointTable> Tables;
	std::vector<double> Times;				 // [frames], seconds
	std::vector<std::uint32_t> TableOfFrame; // [frames], index into Tables
	std::vector<FTransform> Transforms; // of frame 0, then of frame 1, ...: as many as the frame's table has joints
};

/** Packs a sequence; frames with equal names and parents share a table. */
FPackedJointSequence Pack(const FJointSequence& Sequence);

/** The inverse of Pack. The packed sequence must have passed the checks of the link. */
FJointSequence Unpack(const FPackedJointSequence& Packed);

} // namespace Zef
