// SPDX-License-Identifier: MIT
#include "Engine/Texture2D.h"
#include "EngineFixture.h"
#include "Host/TextureResource.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace
{
using Texture = FEngineFixture;

/** Bytes 0, 1, 2, ... */
std::vector<uint8> CountedBytes(size_t Num)
{
	std::vector<uint8> Bytes(Num);
	std::iota(Bytes.begin(), Bytes.end(), uint8(0));
	return Bytes;
}

std::vector<uint8> ReadMip(const FTextureSource& Source, int32 Mip)
{
	TArray64<uint8> Data;
	EXPECT_TRUE(Source.GetMipData(Data, Mip));
	return std::vector<uint8>(Data.GetData(), Data.GetData() + Data.Num());
}
} // namespace

TEST_F(Texture, CopiesExactlyTheBytesOfItsSizeAndFormat)
{
	const std::vector<uint8> Pixels = CountedBytes(3 * 2 * 4);
	FTextureSource Source;
	Source.Init(3, 2, 1, 1, TSF_BGRA8, Pixels.data());

	EXPECT_TRUE(Source.IsValid());
	EXPECT_EQ(Source.GetSizeX(), 3);
	EXPECT_EQ(Source.GetSizeY(), 2);
	EXPECT_EQ(Source.GetNumSlices(), 1);
	EXPECT_EQ(Source.GetNumMips(), 1);
	EXPECT_EQ(Source.GetFormat(), TSF_BGRA8);
	EXPECT_EQ(Source.CalcMipSize(0), 24);
	EXPECT_EQ(ReadMip(Source, 0), Pixels);
}

TEST_F(Texture, KeepsSixteenBitPixelsAsTheyAre)
{
	const std::vector<uint8> Pixels = CountedBytes(2 * 8);
	FTextureSource Source;
	Source.Init(2, 1, 1, 1, TSF_RGBA16, Pixels.data());
	EXPECT_EQ(Source.CalcMipSize(0), 16);
	EXPECT_EQ(ReadMip(Source, 0), Pixels);
}

TEST_F(Texture, LaysMipsOneAfterTheOther)
{
	const std::vector<uint8> Pixels = CountedBytes(4 * 2 + 2 * 1 + 1);
	FTextureSource Source;
	Source.Init(4, 2, 1, 3, TSF_G8, Pixels.data());
	EXPECT_EQ(ReadMip(Source, 1), (std::vector<uint8>{8, 9}));
	EXPECT_EQ(ReadMip(Source, 2), (std::vector<uint8>{10}));
	EXPECT_EQ(Source.CalcMipSize(3), 0);
	EXPECT_EQ(Source.LockMipReadOnly(3), nullptr);
}

TEST_F(Texture, ReservesZeroedPixelsForANullPointer)
{
	FTextureSource Source;
	Source.Init(2, 1, 1, 1, TSF_BGRA8);
	EXPECT_TRUE(Source.IsValid());
	EXPECT_EQ(ReadMip(Source, 0), (std::vector<uint8>(8, 0)));
}

TEST_F(Texture, IsNotValidInAnUnknownFormat)
{
	const std::vector<uint8> Pixels = CountedBytes(64);
	FTextureSource Source;
	Source.Init(4, 4, 1, 1, TSF_Invalid, Pixels.data());
	EXPECT_FALSE(Source.IsValid());
	TArray64<uint8> Data;
	EXPECT_FALSE(Source.GetMipData(Data, 0));
	EXPECT_EQ(Data.Num(), 0);
}

TEST_F(Texture, GetsANewIdWithEachSource)
{
	const std::vector<uint8> Pixels = CountedBytes(4);
	FTextureSource Source;
	Source.Init(1, 1, 1, 1, TSF_BGRA8, Pixels.data());
	const FGuid First = Source.GetId();
	Source.Init(1, 1, 1, 1, TSF_BGRA8, Pixels.data());
	EXPECT_TRUE(First.IsValid());
	EXPECT_FALSE(Source.GetId() == First);
}

TEST_F(Texture, StartsAsAPlainColourTexture)
{
	const UTexture2D* New = NewObject<UTexture2D>(GetTransientPackage());
	EXPECT_TRUE(New->SRGB);
	EXPECT_EQ(New->CompressionSettings.GetValue(), TC_Default);
	EXPECT_EQ(New->MipGenSettings.GetValue(), TMGS_FromTextureGroup);
	EXPECT_EQ(New->LODGroup.GetValue(), TEXTUREGROUP_World);
	EXPECT_FALSE(New->CompressionNoAlpha);
	EXPECT_EQ(New->GetSizeX(), 0);
}

TEST_F(Texture, MarksItsResourceAsStaleOnUpdateAndOnPostEditChange)
{
	UTexture2D* New = NewObject<UTexture2D>(GetTransientPackage());
	EXPECT_EQ(Host::GetTextureResourceVersion(*New), 0u);
	New->UpdateResource();
	EXPECT_EQ(Host::GetTextureResourceVersion(*New), 1u);
	New->PostEditChange();
	EXPECT_EQ(Host::GetTextureResourceVersion(*New), 2u);
}

TEST_F(Texture, GivesItsPixelsAndSettingsToADuplicate)
{
	const std::vector<uint8> Pixels = CountedBytes(4);
	UTexture2D* Original = NewObject<UTexture2D>(GetTransientPackage(), TEXT("Original"));
	Original->Source.Init(1, 1, 1, 1, TSF_BGRA8, Pixels.data());
	Original->CompressionSettings = TC_Normalmap;
	Original->SRGB = false;

	const UTexture2D* Copy = DuplicateObject<UTexture2D>(Original, GetTransientPackage(), TEXT("Copy"));
	Original->Source.Init(1, 1, 1, 1, TSF_BGRA8);

	EXPECT_EQ(ReadMip(Copy->Source, 0), Pixels);
	EXPECT_EQ(Copy->CompressionSettings.GetValue(), TC_Normalmap);
	EXPECT_FALSE(Copy->SRGB);
}
