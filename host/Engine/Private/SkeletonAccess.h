// SPDX-License-Identifier: MIT
// The bones of a skeleton, for the modifier alone.
#pragma once

#include "Animation/Skeleton.h"

namespace Host
{
struct FSkeletonAccess
{
	static FReferenceSkeleton& GetRefSkeleton(USkeleton& Skeleton) { return Skeleton.ReferenceSkeleton; }
};
} // namespace Host
