// SPDX-License-Identifier: MIT
#include "Host/PngFile.h"

#include "AtomicFile.h"

#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <png.h>

namespace Host
{
namespace
{
constexpr int32 MaxSide = 1 << 20;

/** Room for a message of the library; it must outlive the jump out of the library. */
struct FPngMessage
{
	char Text[256] = {};
};

void OnError(png_structp Png, png_const_charp Message)
{
	FPngMessage* Target = static_cast<FPngMessage*>(png_get_error_ptr(Png));
	std::snprintf(Target->Text, sizeof(Target->Text), "%s", Message);
	png_longjmp(Png, 1);
}

void OnWarning(png_structp, png_const_charp) {}

int GetColorType(int32 Channels)
{
	static constexpr int Types[] = {
		PNG_COLOR_TYPE_GRAY, PNG_COLOR_TYPE_GRAY_ALPHA, PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_RGB_ALPHA};
	return Types[Channels - 1];
}

/** Encodes into an open file. Holds nothing with a destructor, because the library leaves errors by a jump. */
bool Encode(std::FILE* File, const FImagePixels& Pixels, FPngMessage& Message)
{
	png_structp Png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &Message, OnError, OnWarning);
	png_infop Info = Png ? png_create_info_struct(Png) : nullptr;
	if (!Info)
	{
		png_destroy_write_struct(&Png, nullptr);
		std::snprintf(Message.Text, sizeof(Message.Text), "out of memory");
		return false;
	}
	if (setjmp(png_jmpbuf(Png)))
	{
		png_destroy_write_struct(&Png, &Info);
		return false;
	}
	png_init_io(Png, File);
	png_set_IHDR(Png, Info, png_uint_32(Pixels.Width), png_uint_32(Pixels.Height), Pixels.Bits,
		GetColorType(Pixels.Channels), PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
	png_write_info(Png, Info);
	if (Pixels.Bits == 16 && PLATFORM_LITTLE_ENDIAN)
	{
		png_set_swap(Png);
	}
	const size_t RowBytes = size_t(Pixels.Width) * size_t(Pixels.Channels) * size_t(Pixels.Bits / 8);
	for (int32 Row = 0; Row < Pixels.Height; ++Row)
	{
		png_write_row(Png, static_cast<const png_byte*>(Pixels.Data) + size_t(Row) * RowBytes);
	}
	png_write_end(Png, Info);
	png_destroy_write_struct(&Png, &Info);
	return true;
}

/** What is wrong with an image, empty when nothing is. */
FString FindFault(const FImagePixels& Pixels)
{
	if (Pixels.Width < 1 || Pixels.Height < 1 || Pixels.Width > MaxSide || Pixels.Height > MaxSide)
	{
		return FString::Printf(TEXT("the size %d x %d is not within 1 to %d"), Pixels.Width, Pixels.Height, MaxSide);
	}
	if (Pixels.Channels < 1 || Pixels.Channels > 4)
	{
		return FString::Printf(TEXT("%d channels are not 1 to 4"), Pixels.Channels);
	}
	if (Pixels.Bits != 8 && Pixels.Bits != 16)
	{
		return FString::Printf(TEXT("%d bits a channel are neither 8 nor 16"), Pixels.Bits);
	}
	return Pixels.Data ? FString() : FString(TEXT("there are no pixels"));
}
} // namespace

bool WritePng(const FString& Path, const FImagePixels& Pixels, FString* OutError)
{
	FString Error = FindFault(Pixels);
	if (Error.IsEmpty())
	{
		FAtomicFile File(Path);
		FPngMessage Message;
		if (!File.IsOpen())
		{
			Error = File.GetError();
		}
		else if (!Encode(File.GetStream(), Pixels, Message))
		{
			Error = FString(UTF8_TO_TCHAR(Message.Text));
		}
		else if (!File.Commit())
		{
			Error = File.GetError();
		}
	}
	if (!Error.IsEmpty() && OutError)
	{
		*OutError = FString::Printf(TEXT("%s was not written: %s."), *Path, *Error);
	}
	return Error.IsEmpty();
}

bool WritePng(
	const FString& Path, int32 Width, int32 Height, int32 Channels, int32 Bits, const void* Data, FString* OutError)
{
	return WritePng(Path, FImagePixels{Width, Height, Channels, Bits, Data}, OutError);
}
} // namespace Host
