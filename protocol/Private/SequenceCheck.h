// SPDX-License-Identifier: MIT
/** The part of the rules for joint sequences that can be told before their arrays have come. */
#pragma once

#include "Zef/Check.h"

namespace Zef
{

/** Checks layouts, names and counts. FrameCount and TransformCount are those that the arrays will have. */
FLinkFault CheckSequenceStructure(const std::vector<FJointTable>& Tables, std::uint64_t FrameCount,
	std::uint64_t TransformCount, std::size_t JointCount, const FLimits& Limits);

/**
 * Checks that the frames' layouts ask for as many transforms as there are, and that the joints of all frames fit the
 * budget of an item; every layout must be in range.
 */
FLinkFault CheckPoses(const std::vector<FJointTable>& Tables, const std::uint32_t* TableOfFrame,
	std::uint64_t FrameCount, std::uint64_t TransformCount, const FLimits& Limits);

} // namespace Zef
