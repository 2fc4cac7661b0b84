// SPDX-License-Identifier: MIT
#pragma once

#include "Host/Image.h"

namespace Host
{

/**
 * The picture that the device drew `Scale` times too large.
 *
 * @param Pixels  [Width * Scale * Height * Scale * 4], blue first, rows from the bottom
 * @param bCovered  the picture is opaque, whatever its alpha says; otherwise colours are weighted with their alpha
 * @return the picture, each pixel the mean of Scale * Scale
 */
FImage PictureFromDevice(
	const std::vector<uint8_t>& Pixels, int32_t Width, int32_t Height, int32_t Scale, bool bCovered);

} // namespace Host
