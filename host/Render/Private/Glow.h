// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Image.h"

namespace Host
{

/**
 * Lets what shines by itself glow into its surroundings, as in an eye or a lens.
 *
 * @param Image  on entry its alpha is 255 where nothing shines, less the brighter it does, down to 128; on return 255
 */
void AddGlow(FImage& Image);

} // namespace Host
