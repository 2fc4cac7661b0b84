// SPDX-License-Identifier: MIT
#include "Host/PngFile.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <png.h>
#include <string>
#include <vector>

namespace
{
/** An image as another reader of PNG files sees it. */
struct FReadImage
{
	uint32 Width = 0;
	uint32 Height = 0;
	int Bits = 0;
	int Channels = 0;
	std::vector<uint8> FirstRow;
};

FReadImage ReadPng(const std::string& Path)
{
	FReadImage Image;
	std::FILE* File = std::fopen(Path.c_str(), "rb");
	if (!File)
	{
		ADD_FAILURE() << Path << " is not there";
		return Image;
	}
	png_structp Png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
	png_infop Info = png_create_info_struct(Png);
	png_init_io(Png, File);
	png_read_info(Png, Info);
	Image.Width = png_get_image_width(Png, Info);
	Image.Height = png_get_image_height(Png, Info);
	Image.Bits = png_get_bit_depth(Png, Info);
	Image.Channels = png_get_channels(Png, Info);
	Image.FirstRow.resize(png_get_rowbytes(Png, Info));
	png_read_row(Png, Image.FirstRow.data(), nullptr);
	png_destroy_read_struct(&Png, &Info, nullptr);
	std::fclose(File);
	return Image;
}

std::string ReadText(const std::string& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(Stream), {});
}

FString ToPath(const std::string& Path)
{
	return FString(UTF8_TO_TCHAR(Path.c_str()));
}

using FBytes = std::vector<uint8>;
} // namespace

TEST(PngFile, WritesEightBitColourWithAlpha)
{
	const FTemporaryFolder Folder;
	const FBytes Pixels = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
	EXPECT_TRUE(Host::WritePng(ToPath(Folder / "a.png"), 2, 2, 4, 8, Pixels.data()));

	const FReadImage Image = ReadPng(Folder / "a.png");
	EXPECT_EQ(Image.Width, 2u);
	EXPECT_EQ(Image.Height, 2u);
	EXPECT_EQ(Image.Bits, 8);
	EXPECT_EQ(Image.Channels, 4);
	EXPECT_EQ(Image.FirstRow, (FBytes{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(PngFile, WritesSixteenBitSamplesWithTheHighByteFirst)
{
	const FTemporaryFolder Folder;
	const uint16 Pixels[] = {0x0102, 0x0304, 0x0506};
	EXPECT_TRUE(Host::WritePng(ToPath(Folder / "a.png"), 1, 1, 3, 16, Pixels));

	const FReadImage Image = ReadPng(Folder / "a.png");
	EXPECT_EQ(Image.Bits, 16);
	EXPECT_EQ(Image.Channels, 3);
	EXPECT_EQ(Image.FirstRow, (FBytes{1, 2, 3, 4, 5, 6}));
}

TEST(PngFile, WritesGreyWithAndWithoutAlpha)
{
	const FTemporaryFolder Folder;
	const FBytes Pixels = {7, 8};
	EXPECT_TRUE(Host::WritePng(ToPath(Folder / "grey.png"), 2, 1, 1, 8, Pixels.data()));
	EXPECT_TRUE(Host::WritePng(ToPath(Folder / "alpha.png"), 1, 1, 2, 8, Pixels.data()));
	EXPECT_EQ(ReadPng(Folder / "grey.png").Channels, 1);
	EXPECT_EQ(ReadPng(Folder / "alpha.png").FirstRow, Pixels);
}

TEST(PngFile, ReplacesAnOlderFileAndLeavesNothingBeside)
{
	const FTemporaryFolder Folder;
	const FBytes Pixels = {1, 2, 3, 4};
	std::ofstream(Folder / "a.png") << "old";
	EXPECT_TRUE(Host::WritePng(ToPath(Folder / "a.png"), 1, 1, 4, 8, Pixels.data()));
	EXPECT_EQ(ReadPng(Folder / "a.png").FirstRow, Pixels);
	EXPECT_EQ(Folder.Entries(), (std::vector<std::string>{"a.png"}));
}

TEST(PngFile, RefusesWhatIsNoImageAndKeepsTheOldFile)
{
	const FTemporaryFolder Folder;
	std::ofstream(Folder / "a.png") << "old";
	const FString Path = ToPath(Folder / "a.png");
	const FBytes Pixels(64);
	const struct
	{
		const char* Name;
		Host::FImagePixels Image;
		const char* Fault;
	} Cases[] = {{"no width", {0, 1, 4, 8, Pixels.data()}, "the size 0 x 1 is not within 1 to 1048576"},
		{"negative height", {1, -1, 4, 8, Pixels.data()}, "the size 1 x -1 is not within 1 to 1048576"},
		{"five channels", {1, 1, 5, 8, Pixels.data()}, "5 channels are not 1 to 4"},
		{"twelve bits", {1, 1, 4, 12, Pixels.data()}, "12 bits a channel are neither 8 nor 16"},
		{"no pixels", {1, 1, 4, 8, nullptr}, "there are no pixels"}};
	for (const auto& Case : Cases)
	{
		FString Error;
		EXPECT_FALSE(Host::WritePng(Path, Case.Image, &Error)) << Case.Name;
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Error)), (Folder / "a.png") + " was not written: " + Case.Fault + ".")
			<< Case.Name;
	}
	EXPECT_EQ(ReadText(Folder / "a.png"), "old");
}

TEST(PngFile, SaysWhyAFileCannotBeWritten)
{
	const FTemporaryFolder Folder;
	const FBytes Pixels = {1, 2, 3, 4};
	FString Error;
	EXPECT_FALSE(Host::WritePng(ToPath(Folder / "missing/a.png"), 1, 1, 4, 8, Pixels.data(), &Error));
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Error)),
		(Folder / "missing/a.png") + " was not written: No such file or directory.");
}

TEST(PngFile, LeavesNothingBesideATargetThatCannotBeReplaced)
{
	const FTemporaryFolder Folder;
	const FBytes Pixels = {1, 2, 3, 4};
	std::filesystem::create_directories(Folder / "a.png/inner");
	FString Error;
	EXPECT_FALSE(Host::WritePng(ToPath(Folder / "a.png"), 1, 1, 4, 8, Pixels.data(), &Error));
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Error)), (Folder / "a.png") + " was not written: Is a directory.");
	EXPECT_EQ(Folder.Entries(), (std::vector<std::string>{"a.png"}));
}
