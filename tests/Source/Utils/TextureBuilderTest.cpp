// SPDX-License-Identifier: MIT
#include "Engine/Texture2D.h"
#include "EngineFixture.h"
#include "Materials/Material.h"
#include "Source/AssertionChecks.h"
#include "Source/SampleMeshes.h"
#include "UObject/Package.h"
#include "Utils/ZEFAssetObject.h"
#include "Utils/ZEFTandemEditorUtils.h"

#include <gtest/gtest.h>

using namespace SampleMeshes;

namespace
{

class TextureBuilder : public FEngineFixture
{
protected:
	static UTexture2D* Build(const FZEFTexture& Texture, uint8 CompressionKind = 0, bool bSRGB = true)
	{
		return ZEFEditorUtils::CreateTextureFromData(GetTransientPackage(), TEXT("T_A_1"),
			static_cast<EObjectFlags>(RF_Public | RF_Standalone), CompressionKind, Texture, bSRGB);
	}
};

TArray64<uint8> PixelsOf(const UTexture2D* Texture)
{
	TArray64<uint8> Pixels;
	EXPECT_TRUE(const_cast<UTexture2D*>(Texture)->Source.GetMipData(Pixels, 0));
	return Pixels;
}

} // namespace

TEST_F(TextureBuilder, SwapsRedAndBlueOfEightBitPixels)
{
	FZEFTexture Texture = MakeTexture(0, 2, 1);
	Texture.Pixels = {1, 2, 3, 4, 5, 6, 7, 8};

	const UTexture2D* const Built = Build(Texture);

	EXPECT_EQ(Built->Source.GetFormat(), TSF_BGRA8);
	EXPECT_EQ(PixelsOf(Built), (TArray64<uint8>{3, 2, 1, 4, 7, 6, 5, 8}));
}

TEST_F(TextureBuilder, KeepsSixteenBitPixels)
{
	FZEFTexture Texture = MakeTexture(1, 1, 1);
	Texture.Pixels = {1, 2, 3, 4, 5, 6, 7, 8};

	const UTexture2D* const Built = Build(Texture);

	EXPECT_EQ(Built->Source.GetFormat(), TSF_RGBA16);
	EXPECT_EQ(PixelsOf(Built), (TArray64<uint8>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(TextureBuilder, AShortRecordIsFilledWithZeros)
{
	FZEFTexture Texture = MakeTexture(0, 2, 1);
	Texture.Pixels = {1, 2, 3, 4, 5, 6};

	EXPECT_EQ(PixelsOf(Build(Texture)), (TArray64<uint8>{3, 2, 1, 4, 5, 6, 0, 0}));
}

TEST_F(TextureBuilder, MipsNeedBothSizesToBePowersOfTwo)
{
	EXPECT_EQ(Build(MakeTexture(0, 1000, 1000))->MipGenSettings, TMGS_NoMipmaps);
	EXPECT_EQ(Build(MakeTexture(0, 1024, 512))->MipGenSettings, TMGS_FromTextureGroup);
	EXPECT_EQ(Build(MakeTexture(0, 1024, 100))->MipGenSettings, TMGS_NoMipmaps);
	EXPECT_EQ(Build(MakeTexture(0, 1, 1))->MipGenSettings, TMGS_FromTextureGroup);
}

TEST_F(TextureBuilder, KeepsSizeAndColourSpace)
{
	const UTexture2D* const Built = Build(MakeTexture(0, 33, 7), 1, false);

	EXPECT_EQ(Built->Source.GetSizeX(), 33);
	EXPECT_EQ(Built->Source.GetSizeY(), 7);
	EXPECT_EQ(Built->Source.GetNumMips(), 1);
	EXPECT_FALSE(Built->SRGB);
	EXPECT_EQ(Built->CompressionSettings, TC_Normalmap);
	EXPECT_EQ(Built->LODGroup, TEXTUREGROUP_WorldNormalMap);
}

TEST_F(TextureBuilder, AnUnknownFormatIsAnAssertionAndLeavesATextureWithoutSource)
{
	UTexture2D* Built = nullptr;
	EXPECT_REPORTED_ASSERTION(Built = Build(MakeTexture(2, 4, 4)));

	ASSERT_NE(Built, nullptr);
	EXPECT_EQ(Built->Source.GetFormat(), TSF_Invalid);
}

TEST_F(TextureBuilder, AnObjectOfTheNameIsBuiltOverAtItsAddress)
{
	UTexture2D* const First = Build(MakeTexture(0, 4, 4));
	UTexture2D* const Second = Build(MakeTexture(0, 8, 8));

	EXPECT_EQ(First, Second);
	EXPECT_EQ(Second->Source.GetSizeX(), 8);
}

TEST_F(TextureBuilder, AnObjectOfAnotherClassMakesWay)
{
	NewObject<UMaterial>(GetTransientPackage(), FName(TEXT("T_A_1")), RF_Public);

	UTexture2D* const Built = Build(MakeTexture(0, 4, 4));

	ASSERT_NE(Built, nullptr);
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), GetTransientPackage(), TEXT("T_A_1")), Built);
}

TEST_F(TextureBuilder, OutsideTheTransientPackageEachObjectHasAPackageOfItsName)
{
	UPackage* const Beside = CreatePackage(TEXT("/Game/Clothes/Jacket"));

	const UTexture2D* const Built = ZEFEditorUtils::CreateAssetObject<UTexture2D>(
		Beside, TEXT("T My.Map"), static_cast<EObjectFlags>(RF_Public | RF_Standalone));

	EXPECT_EQ(Built->GetName(), FString(TEXT("T_My_Map")));
	EXPECT_EQ(Built->GetOutermost()->GetName(), FString(TEXT("/Game/Clothes/T_My_Map")));
}
