// SPDX-License-Identifier: MIT
/** Joints of the right hand before the figure is posed: relaxed, palm towards the thigh, thumb forward. */
#pragma once

#include <array>

#include "Math/Vector.h"

namespace Zef::Peer
{

enum EFinger
{
	Thumb,
	Index,
	Middle,
	Ring,
	Pinky,
	FingerCount
};

struct FFinger
{
	/** Root of the bone in the palm, the three joints, the tip. */
	FVec3 Palm;
	std::array<FVec3, 4> Joints;
	/** At the joints and the tip. */
	std::array<float, 4> Radii;
};

struct FHand
{
	FVec3 Wrist;
	FVec3 Along;	// towards the fingers
	FVec3 ThumbWay; // across the palm
	FVec3 PalmWay;	// out of the palm
	std::array<FFinger, FingerCount> Fingers;
};

const FHand& RightHand();

} // namespace Zef::Peer
