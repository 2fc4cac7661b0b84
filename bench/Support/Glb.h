// SPDX-License-Identifier: MIT
/** The binary form of glTF, for rivals that read files. */
#pragma once

#include "Zef/Records.h"

#include <cstdint>
#include <vector>

namespace Bench
{

/** A primitive for each surface, of its first section and with its own material, and the textures as PNG in a material
 * each. */
std::vector<std::uint8_t> MakeGlb(const Zef::FSurfaceMesh& Mesh);

} // namespace Bench
