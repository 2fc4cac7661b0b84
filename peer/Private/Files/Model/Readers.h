// SPDX-License-Identifier: MIT
/** The two libraries that read model files. Both are called in the reader process only. */
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Files/Model/Model.h"

namespace Zef::Peer
{

/** Reads a .gltf or .glb file. @return the reason when it cannot be read, else empty */
std::string ReadGltf(const std::filesystem::path& File, FModel& Model);

/** Reads a file of any format that Assimp knows. @return the reason when it cannot be read, else empty */
std::string ReadWithAssimp(const std::filesystem::path& File, FModel& Model);

/** An image file's bytes as a texture, 8 or 16 bits a channel. @return the reason when they are no image, else empty */
std::string DecodeImage(const unsigned char* Bytes, std::size_t Size, FTexture& Texture);

} // namespace Zef::Peer
