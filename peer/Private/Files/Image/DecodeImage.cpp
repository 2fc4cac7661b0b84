// SPDX-License-Identifier: MIT
#include <cstring>

#include "Files/Image/Decoders.h"
#include "Files/Model/Readers.h"

namespace Zef::Peer
{

std::string DecodeImage(const unsigned char* Bytes, std::size_t Size, FTexture& Texture)
{
	std::string Reason = "it is neither PNG nor JPEG.";
	if (Size >= 8 && std::memcmp(Bytes, "\x89PNG", 4) == 0)
	{
		Reason = DecodePng(Bytes, Size, Texture);
	}
	else if (Size >= 3 && Bytes[0] == 0xff && Bytes[1] == 0xd8)
	{
		Reason = DecodeJpeg(Bytes, Size, Texture);
	}
	if (!Reason.empty())
	{
		Texture = {};
	}
	return Reason;
}

} // namespace Zef::Peer
