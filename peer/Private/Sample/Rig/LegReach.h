// SPDX-License-Identifier: MIT
/** Bends a leg so that the foot stands where it should. */
#pragma once

#include "Sample/Rig/Skeleton.h"

namespace Zef::Peer
{

/** Where a foot is to be, in the world. */
struct FFootGoal
{
	FVec3 Ankle;
	FVec4 Turn{0, 0, 0, 1}; // of the whole foot
	float ToeBend = 0;		// of the ball joint, degrees, toes up
};

/**
 * Turns thigh, calf, foot and ball of one side. The knee points the way the foot does. A goal out of reach is met as
 * far as the leg goes.
 */
void ReachWithLeg(const FSkeleton& Skeleton, FPose& Pose, bool bRight, const FFootGoal& Goal);

} // namespace Zef::Peer
