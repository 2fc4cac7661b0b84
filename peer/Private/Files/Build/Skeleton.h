// SPDX-License-Identifier: MIT
/** The joints of a model, in the pose in which its skins were bound. */
#pragma once

#include "Files/Model/Model.h"

namespace Zef::Peer
{

/** Places of all nodes in the file's space, from their local places. Nodes in a circle stay where they are. */
std::vector<FMatrix34> PlaceNodes(const FModel& Model, const std::vector<FTransform>& Locals);

struct FModelSkeleton
{
	std::vector<int> Nodes;			  // of each joint, parents before children; -1: a root that the file lacks
	std::vector<int> Parents;		  // of each joint
	std::vector<int> JointOfNode;	  // -1: no joint
	std::vector<FMatrix34> BindPlace; // of each joint, in the file's space
};

/**
 * Joints are the nodes that skins name and those between them; a root is added when several remain.
 *
 * The pose is that of the inverse bind matrices, standing where the topmost joint of the skin stands in the file, so
 * that mesh and joints agree exactly; a joint of no skin keeps its place at its parent. Files whose bind matrices are
 * no rotations, shifts and scales are posed as their nodes stand.
 */
FModelSkeleton MakeSkeleton(const FModel& Model, const std::vector<FMatrix34>& NodePlaces);

/** The joint that moves what hangs at a node: its own, else that of the nearest ancestor, else the root. */
int JointAbove(const FModel& Model, const FModelSkeleton& Skeleton, int Node);

} // namespace Zef::Peer
