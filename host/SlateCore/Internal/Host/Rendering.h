// SPDX-License-Identifier: MIT
#pragma once

// What whoever draws the widgets has to follow.

#include "CoreMinimal.h"

namespace Host
{
/** How often the image files were asked to be read anew: pictures that were read at another count are stale. */
uint64 TextureReloadCount();
} // namespace Host
