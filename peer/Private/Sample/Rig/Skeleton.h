// SPDX-License-Identifier: MIT
/** The figure's joints. */
#pragma once

#include <string>
#include <vector>

#include "Math/Rotation.h"

namespace Zef::Peer
{

/** One joint, in the symmetric pose of Measures.h, where the axes of all joints are those of the world. */
struct FRigJoint
{
	std::string Name;
	int Parent = -1;
	FVec3 Place;
	/** What the joint moves: the line from Place to here. The same as Place: it holds no flesh. */
	FVec3 End;
	/** -1 left, 1 right, 0 middle. */
	int Side = 0;
	/** A hand or a finger. */
	bool bHand = false;
};

/** Joints in an order where parents stand before children. */
class FSkeleton
{
public:
	FSkeleton();

	const std::vector<FRigJoint>& Joints() const { return All; }
	int Count() const { return static_cast<int>(All.size()); }

	/** Index of a joint that exists. */
	int Find(const std::string& Name) const;

	/** Number of joints on the way from one to the other: 0 for the same, 1 for parent and child. */
	int StepsBetween(int A, int B) const { return Steps[static_cast<std::size_t>(A * Count() + B)]; }

private:
	int Add(const std::string& Name, int Parent, const FVec3& Place, const FVec3& End);
	void AddSide(bool bRight, int Spine5, int Pelvis);
	void MeasureSteps();

	std::vector<FRigJoint> All;
	std::vector<int> Steps;
};

/** A turn for each joint, about the axes that all joints share in the symmetric pose, and where the root stands. */
struct FPose
{
	explicit FPose(const FSkeleton& Skeleton)
		: Turns(Skeleton.Joints().size(), FVec4{0, 0, 0, 1})
	{
	}

	std::vector<FVec4> Turns; // [joints], the identity by default
	FVec3 PelvisShift;		  // added to the pelvis joint's place
};

/** Each joint's place in the world. */
std::vector<FRigid> PlaceJoints(const FSkeleton& Skeleton, const FPose& Pose);

/** What brings a point that hangs on a joint from the symmetric pose to another. */
std::vector<FRigid> MovesFromSymmetric(const FSkeleton& Skeleton, const std::vector<FRigid>& Places);

/** The records that the link carries: transforms relative to the parent. */
std::vector<FJoint> ToRecords(const FSkeleton& Skeleton, const std::vector<FRigid>& Places);

} // namespace Zef::Peer
