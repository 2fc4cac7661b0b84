// SPDX-License-Identifier: MIT
/** What a peer serves: at most one object of each type, with the animation that it has. */
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Zef/Records.h"

namespace Zef::Peer
{

/** Makes the vertex animation of an object. Called on the server's thread, at most once; the result is kept. */
using FMeshSequenceMaker = std::function<std::vector<FMeshSequenceFrame>()>;

/** One object and its animation. */
struct FProjectObject
{
	EObjectType Type = EObjectType::Invalid;

	/** For people: "sample avatar", or the names of the files that it was read from. */
	std::string Source;

	FSurfaceMesh Mesh;

	/** Frames over Mesh.Joints, in ascending time; no frames: no joint animation. */
	FJointSequence JointSequence;

	/**
	 * Vertex animation of its own, over all vertices of Mesh. When it is empty, an object with a joint sequence is
	 * animated through its influences, and one without has no vertex animation.
	 */
	FMeshSequenceMaker MakeMeshSequence;

	bool HasJointAnimation() const { return !JointSequence.Frames.empty(); }
	bool HasMeshSequence() const { return static_cast<bool>(MakeMeshSequence) || HasJointAnimation(); }
};

/** The project that is open in this peer. */
struct FProject
{
	std::string Name;

	/** No type stands twice; the order is the order of sending. */
	std::vector<FProjectObject> Objects;

	const FProjectObject* Find(EObjectType Type) const
	{
		for (const FProjectObject& Object : Objects)
		{
			if (Object.Type == Type)
			{
				return &Object;
			}
		}
		return nullptr;
	}
};

/** "garment", "avatar", "outfit", "prop"; "invalid" for anything else. */
const char* ObjectTypeName(EObjectType Type);

/** Counts over all surfaces of a mesh. */
struct FObjectCounts
{
	std::size_t Vertices = 0;
	std::size_t Triangles = 0;
	std::size_t TextureBytes = 0;
};
FObjectCounts CountObject(const FSurfaceMesh& Mesh);

/** The five flags of message 3: flag 0 says that there is a garment, flag 2 that there is an avatar. */
FAvailability ProjectAvailability(const FProject& Project);

} // namespace Zef::Peer
