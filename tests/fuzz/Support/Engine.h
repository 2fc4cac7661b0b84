// SPDX-License-Identifier: MIT
/** The engine around the conversions, booted once, and the records that they convert. */
#pragma once

#include "ZEFTandemRecords.h"

#include <cstddef>
#include <cstdint>
#include <functional>

namespace Fuzz
{

/**
 * Receives an input as an editor does and gives the mesh of each record that is complete to Convert. A failed assertion
 * of the engine ends the program. What the conversions leave behind is collected now and then.
 */
void ConvertRecords(
	const std::uint8_t* Data, std::size_t Size, const std::function<void(const FZEFSurfaceMesh&)>& Convert);

} // namespace Fuzz
