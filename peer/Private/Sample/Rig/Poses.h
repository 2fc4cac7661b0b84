// SPDX-License-Identifier: MIT
/** How the figure stands, and how she walks. */
#pragma once

#include "Sample/Rig/Skeleton.h"

namespace Zef::Peer
{

/** Her reference pose: the weight on the right leg, the left one ahead, arms a little away from the body. */
FPose StandingPose(const FSkeleton& Skeleton);

constexpr int WalkFrames = 60;
constexpr double WalkFramesPerSecond = 30;

/**
 * A frame of the walk in place: two strides of a second each, heel strike of the right foot at frame 0. Frame 60 would
 * be frame 0 again; frames between whole numbers are poses too.
 */
FPose WalkPose(const FSkeleton& Skeleton, double Frame);

} // namespace Zef::Peer
