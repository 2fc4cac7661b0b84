// SPDX-License-Identifier: MIT
/** Numbers out of a glTF file's buffers, with every bound checked: the library checks none. */
#pragma once

#include <cstdint>
#include <vector>

namespace tinygltf
{
class Model;
}

namespace Zef::Peer
{

/**
 * Elements of an accessor as floats, Width per element, normalised integers brought to 0..1 or -1..1.
 * @return false when the accessor is missing, has another width, or reaches beyond its buffer
 */
bool ReadFloats(const tinygltf::Model& Model, int Accessor, int Width, std::vector<float>& Out);

/** The same for plain integers: indices and joints. */
bool ReadIntegers(const tinygltf::Model& Model, int Accessor, int Width, std::vector<std::uint32_t>& Out);

} // namespace Zef::Peer
