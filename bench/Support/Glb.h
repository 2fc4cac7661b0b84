// SPDX-License-Identifier: MIT
/** The binary form of glTF, for rivals that read files. */
#pragma once

#include "Zef/Records.h"

#include <cstdint>
#include <vector>

namespace Bench
{

/** One surface with one section, all its attributes, and the textures as PNG in one material each. */
std::vector<std::uint8_t> MakeGlb(const Zef::FSurfaceMesh& Mesh);

} // namespace Bench
