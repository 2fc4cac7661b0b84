// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Host
{

/** A picture of 8 bits a channel: rows from the top, red, green, blue, alpha. */
struct FImage
{
	int32_t Width = 0;
	int32_t Height = 0;
	std::vector<uint8_t> Pixels; // [Width * Height * 4]

	const uint8_t* At(int32_t X, int32_t Y) const
	{
		return Pixels.data() + (size_t(Y) * size_t(Width) + size_t(X)) * 4;
	}
};

} // namespace Host
