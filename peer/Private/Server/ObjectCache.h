// SPDX-License-Identifier: MIT
/** The packed forms of a project's objects, made when first asked for. */
#pragma once

#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "Zef/Peer/Packing.h"
#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

using FFrameList = std::vector<std::shared_ptr<const FMeshSequenceFrame>>;

class FObjectCache
{
public:
	explicit FObjectCache(FProject Project);

	const FProject& Project() const { return *Source; }

	/** An empty mesh when the project has no such object. */
	std::shared_ptr<const FSurfaceMesh> Mesh(EObjectType Type, const FPackingOptions& Options);

	/** No frames when the object has no joint animation. */
	std::shared_ptr<const FJointAnimation> JointAnimation(EObjectType Type, const FPackingOptions& Options);

	/** No frames when the object has no vertex animation. Making them may take seconds, once. */
	std::shared_ptr<const FFrameList> MeshSequence(EObjectType Type, const FPackingOptions& Options);

	/** True when MeshSequence will have to be made first. */
	bool IsMeshSequenceWaiting(EObjectType Type) const;

private:
	using FKey = std::tuple<EObjectType, bool, bool>;
	struct FPacked
	{
		std::shared_ptr<const FSurfaceMesh> Mesh;
		FKeptVertices Kept;
		std::shared_ptr<const FJointAnimation> JointAnimation;
		std::shared_ptr<const FFrameList> Frames;
	};
	FPacked& Packed(EObjectType Type, const FPackingOptions& Options);
	const std::vector<FMeshSequenceFrame>& WholeSequence(const FProjectObject& Object);

	std::shared_ptr<const FProject> Source;
	std::map<FKey, FPacked> Forms;
	std::map<EObjectType, std::vector<FMeshSequenceFrame>> Sequences;
};

} // namespace Zef::Peer
