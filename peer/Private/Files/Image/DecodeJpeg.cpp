// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdio>
#include <stdexcept>
#include <vector>

#include <jpeglib.h>

#include "Files/Image/Decoders.h"

namespace Zef::Peer
{

namespace
{

[[noreturn]] void Throw(j_common_ptr Jpeg)
{
	char Message[JMSG_LENGTH_MAX];
	Jpeg->err->format_message(Jpeg, Message);
	throw std::runtime_error(Message);
}

void Ignore(j_common_ptr) {}

void Decode(jpeg_decompress_struct& Jpeg, const unsigned char* Bytes, std::size_t Size, FTexture& Texture)
{
	jpeg_mem_src(&Jpeg, Bytes, static_cast<unsigned long>(Size));
	jpeg_read_header(&Jpeg, TRUE);
	Jpeg.out_color_space = JCS_RGB;
	jpeg_start_decompress(&Jpeg);
	Texture.Format = 0;
	Texture.Width = static_cast<std::int32_t>(Jpeg.output_width);
	Texture.Height = static_cast<std::int32_t>(Jpeg.output_height);
	std::vector<unsigned char> Row(std::size_t(Jpeg.output_width) * 3);
	Texture.Pixels.resize(std::size_t(Jpeg.output_width) * Jpeg.output_height * 4);
	std::uint8_t* To = Texture.Pixels.data();
	while (Jpeg.output_scanline < Jpeg.output_height)
	{
		unsigned char* Rows[] = {Row.data()};
		jpeg_read_scanlines(&Jpeg, Rows, 1);
		for (std::size_t At = 0; At < Row.size(); At += 3, To += 4)
		{
			To[0] = Row[At];
			To[1] = Row[At + 1];
			To[2] = Row[At + 2];
			To[3] = 0xff;
		}
	}
	jpeg_finish_decompress(&Jpeg);
}

} // namespace

std::string DecodeJpeg(const unsigned char* Bytes, std::size_t Size, FTexture& Texture)
{
	jpeg_decompress_struct Jpeg{};
	jpeg_error_mgr Errors{};
	Jpeg.err = jpeg_std_error(&Errors);
	Errors.error_exit = &Throw;
	Errors.output_message = &Ignore;
	std::string Reason;
	try
	{
		jpeg_create_decompress(&Jpeg);
		Decode(Jpeg, Bytes, Size, Texture);
	}
	catch (const std::runtime_error& Error)
	{
		Reason = std::string(Error.what()) + ".";
	}
	jpeg_destroy_decompress(&Jpeg);
	return Reason;
}

} // namespace Zef::Peer
