// SPDX-License-Identifier: MIT
// What a viewport keeps to itself.
#pragma once

#include "UnrealClient.h"

namespace Host
{
struct FViewportAccess
{
	static bool IsDisplayDirty(const FViewport& Viewport) { return Viewport.bDisplayDirty; }
};

/** True from an invalidation until the viewport is drawn. */
inline bool IsDisplayDirty(const FViewport& Viewport)
{
	return FViewportAccess::IsDisplayDirty(Viewport);
}
} // namespace Host
