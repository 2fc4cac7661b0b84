// SPDX-License-Identifier: MIT
// The masters that the plug-in ships.
#include "Host/MaterialFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
const std::vector<std::string> Labels = {"Default", "Matte", "Shiny", "Metal", "Plastic", "Leather", "Silk", "Velvet",
	"GlassGem", "Fur", "Light", "Glitter", "Skin", "Iridescence", "KnitWear"};

const std::vector<std::string> Channels = {"BaseColor", "Normal", "Roughness", "Metallic", "Specular", "Opacity"};

Host::FMaterialFile ReadMaster(const std::string& Label)
{
	const std::string Path = std::string(ZEF_SOURCE_DIR) + "/Content/Material/UE/M_ZEF_" + Label + ".json";
	Host::FMaterialFile File;
	FString Error;
	EXPECT_TRUE(Host::ReadMaterialFile(UTF8_TO_TCHAR(Path.c_str()), File, Error)) << TCHAR_TO_UTF8(*Error);
	return File;
}

FName Name(const std::string& Text)
{
	return FName(UTF8_TO_TCHAR(Text.c_str()));
}

void ExpectScalar(const Host::FMaterialFile& File, const std::string& ParameterName, float Default)
{
	const Host::FDeclaredScalar* Found = File.Declaration.FindScalar(Name(ParameterName));
	ASSERT_NE(Found, nullptr) << ParameterName;
	EXPECT_EQ(Found->Default, Default) << ParameterName;
}
} // namespace

TEST(MasterMaterials, DeclareEveryParameterOfEveryChannel)
{
	for (const std::string& Label : Labels)
	{
		SCOPED_TRACE(Label);
		const Host::FMaterialFile File = ReadMaster(Label);
		const Host::FMaterialDeclaration& Declaration = File.Declaration;
		EXPECT_NE(Declaration.FindVector(TEXT("BaseColor")), nullptr);
		for (const char* Plain : {"Roughness", "Metallic", "Specular", "Opacity"})
		{
			EXPECT_NE(Declaration.FindScalar(Name(Plain)), nullptr) << Plain;
		}
		for (const std::string& Channel : Channels)
		{
			ASSERT_NE(Declaration.FindSwitch(Name(Channel + "_HasMap")), nullptr) << Channel;
			EXPECT_FALSE(Declaration.FindSwitch(Name(Channel + "_HasMap"))->Default) << Channel;
			EXPECT_NE(Declaration.FindTexture(Name(Channel + "_Texture")), nullptr) << Channel;
			ExpectScalar(File, Channel + "_Angle", 0.0f);
			ExpectScalar(File, Channel + "_UAmount", 1.0f);
			ExpectScalar(File, Channel + "_VAmount", 1.0f);
			ExpectScalar(File, Channel + "_UOffset", 0.0f);
			ExpectScalar(File, Channel + "_VOffset", 0.0f);
			if (Channel != "Opacity")
			{
				ExpectScalar(File, Channel + "_Intensity", 1.0f);
			}
		}
		EXPECT_NE(Declaration.FindSwitch(TEXT("Opacity_AlphaMode")), nullptr);
		EXPECT_EQ(Declaration.FindScalar(TEXT("Opacity_Intensity")), nullptr);
		EXPECT_EQ(Declaration.Vectors.Num(), 1);
		EXPECT_EQ(Declaration.Scalars.Num(), 4 + 6 * 5 + 5);
		EXPECT_EQ(Declaration.Textures.Num(), 6);
		EXPECT_EQ(Declaration.Switches.Num(), 7);
		EXPECT_TRUE(File.bTwoSided);
		EXPECT_EQ(File.Domain, MD_Surface);
	}
}

TEST(MasterMaterials, OnlyGlassIsTranslucentByItself)
{
	for (const std::string& Label : Labels)
	{
		EXPECT_EQ(ReadMaster(Label).BlendMode, Label == "GlassGem" ? BLEND_Translucent : BLEND_Opaque) << Label;
	}
}

TEST(MasterMaterials, HaveTheLookOfTheirFabric)
{
	EXPECT_EQ(ReadMaster("Metal").Declaration.FindScalar(TEXT("Metallic"))->Default, 1.0f);
	EXPECT_GT(ReadMaster("Velvet").Declaration.Look.Sheen.Color.G, ReadMaster("Matte").Declaration.Look.Sheen.Color.G);
	EXPECT_GT(ReadMaster("Silk").Declaration.Look.Anisotropy.Amount, 0.0f);
	EXPECT_GT(ReadMaster("Plastic").Declaration.Look.Clearcoat.Amount, 0.0f);
	EXPECT_GT(ReadMaster("GlassGem").Declaration.Look.Transmission.Amount, 0.0f);
	EXPECT_GT(ReadMaster("Light").Declaration.Look.Emission.Amount, 0.0f);
	EXPECT_GT(ReadMaster("Glitter").Declaration.Look.Glitter.Density, 0.0f);
	EXPECT_GT(ReadMaster("Skin").Declaration.Look.Subsurface.Amount, 0.0f);
	EXPECT_GT(ReadMaster("Iridescence").Declaration.Look.Iridescence.Amount, 0.0f);
	EXPECT_EQ(ReadMaster("KnitWear").Declaration.Look.Relief.Pattern, Host::EMaterialPattern::Knit);
	EXPECT_EQ(ReadMaster("Leather").Declaration.Look.Relief.Pattern, Host::EMaterialPattern::Grain);
	EXPECT_EQ(ReadMaster("Fur").Declaration.Look.Relief.Pattern, Host::EMaterialPattern::Fibres);
}
