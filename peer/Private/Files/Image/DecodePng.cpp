// SPDX-License-Identifier: MIT
#include <cstring>
#include <stdexcept>
#include <vector>

#include <png.h>

#include "Files/Image/Decoders.h"

namespace Zef::Peer
{

namespace
{

struct FSource
{
	const unsigned char* Bytes;
	std::size_t Left;
};

[[noreturn]] void Throw(png_structp, png_const_charp Message)
{
	throw std::runtime_error(Message);
}

void Ignore(png_structp, png_const_charp) {}

void ReadBytes(png_structp Png, png_bytep To, std::size_t Count)
{
	auto& Source = *static_cast<FSource*>(png_get_io_ptr(Png));
	if (Count > Source.Left)
	{
		png_error(Png, "its pixels are cut off");
	}
	std::memcpy(To, Source.Bytes, Count);
	Source.Bytes += Count;
	Source.Left -= Count;
}

void Decode(png_structp Png, png_infop Info, FTexture& Texture)
{
	png_read_info(Png, Info);
	const bool bWide = png_get_bit_depth(Png, Info) == 16;
	png_set_expand(Png); // palettes, fewer bits and a transparent colour
	png_set_gray_to_rgb(Png);
	png_set_add_alpha(Png, 0xffff, PNG_FILLER_AFTER);
	if (bWide)
	{
		png_set_swap(Png); // the file has the high byte first
	}
	png_set_interlace_handling(Png);
	png_read_update_info(Png, Info);
	Texture.Format = bWide ? 1 : 0;
	Texture.Width = static_cast<std::int32_t>(png_get_image_width(Png, Info));
	Texture.Height = static_cast<std::int32_t>(png_get_image_height(Png, Info));
	const std::size_t Row = png_get_rowbytes(Png, Info);
	if (Row != static_cast<std::size_t>(Texture.Width) * (bWide ? 8 : 4))
	{
		throw std::runtime_error("its pixels have an unknown kind");
	}
	Texture.Pixels.resize(Row * static_cast<std::size_t>(Texture.Height));
	std::vector<png_bytep> Rows;
	for (std::int32_t Y = 0; Y < Texture.Height; ++Y)
	{
		Rows.push_back(Texture.Pixels.data() + Row * static_cast<std::size_t>(Y));
	}
	png_read_image(Png, Rows.data());
}

} // namespace

std::string DecodePng(const unsigned char* Bytes, std::size_t Size, FTexture& Texture)
{
	FSource Source{Bytes, Size};
	png_structp Png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, &Throw, &Ignore);
	png_infop Info = Png ? png_create_info_struct(Png) : nullptr;
	std::string Reason;
	try
	{
		if (!Info)
		{
			throw std::runtime_error("there is no memory for it");
		}
		png_set_read_fn(Png, &Source, &ReadBytes);
		Decode(Png, Info, Texture);
	}
	catch (const std::runtime_error& Error)
	{
		Reason = std::string(Error.what()) + ".";
	}
	png_destroy_read_struct(&Png, &Info, nullptr);
	return Reason;
}

} // namespace Zef::Peer
