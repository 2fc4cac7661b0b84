// SPDX-License-Identifier: MIT
/** One decoder per kind of image file. Each returns the reason when the bytes cannot be decoded, else empty. */
#pragma once

#include <cstddef>
#include <string>

#include "Zef/Records.h"

namespace Zef::Peer
{

/** PNG of any kind, to R, G, B, A with 8 bits, or 16 where the file has 16. */
std::string DecodePng(const unsigned char* Bytes, std::size_t Size, FTexture& Texture);

/** JPEG, to R, G, B, A with 8 bits. */
std::string DecodeJpeg(const unsigned char* Bytes, std::size_t Size, FTexture& Texture);

} // namespace Zef::Peer
