// SPDX-License-Identifier: MIT
#include <tiny_gltf.h>

#include "Files/Model/Readers.h"

namespace Zef::Peer
{

std::string DecodeImage(const unsigned char* Bytes, std::size_t Size, FTexture& Texture)
{
	tinygltf::Image Image;
	std::string Error, Warning;
	if (Size == 0 || Size > 0x7fffffff)
	{
		return "it holds " + std::to_string(Size) + " bytes.";
	}
	// Without options the library expands to four channels and keeps 16 bits where there are 16.
	if (!tinygltf::LoadImageData(&Image, 0, &Error, &Warning, 0, 0, Bytes, static_cast<int>(Size), nullptr) ||
		Image.component != 4 || (Image.bits != 8 && Image.bits != 16))
	{
		return "it is no image that can be decoded.";
	}
	Texture.Format = Image.bits == 8 ? 0 : 1;
	Texture.Width = Image.width;
	Texture.Height = Image.height;
	Texture.Pixels = std::move(Image.image); // 16 bits are in this machine's order, which is little-endian
	const std::size_t Expected =
		static_cast<std::size_t>(Image.width) * static_cast<std::size_t>(Image.height) * (Image.bits == 8 ? 4 : 8);
	if (Texture.Pixels.size() != Expected)
	{
		Texture = {};
		return "its pixels are not complete.";
	}
	return {};
}

} // namespace Zef::Peer
