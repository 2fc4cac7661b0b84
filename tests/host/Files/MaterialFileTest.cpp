// SPDX-License-Identifier: MIT
#include "Host/MaterialFile.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
struct FParsed
{
	bool bValid = false;
	Host::FMaterialFile File;
	std::string Error;
};

FParsed Parse(const std::string& Text)
{
	FParsed Result;
	FString Error;
	Result.bValid = Host::ParseMaterialFile(Text.data(), Text.size(), TEXT("M.json"), Result.File, Error);
	Result.Error = TCHAR_TO_UTF8(*Error);
	return Result;
}

/** A valid file with further members. */
std::string With(const std::string& Members)
{
	return R"({"type": "Material", "version": 1, "parameters": {})" + (Members.empty() ? "" : ", " + Members) + "}";
}

std::string WithLook(const std::string& Look)
{
	return With(R"("look": {)" + Look + "}");
}
} // namespace

TEST(MaterialFile, ReadsEveryKindOfParameterInTheOrderOfTheFile)
{
	const FParsed Parsed = Parse(R"({"type": "Material", "version": 1, "parameters": {
		"vectors": {"BaseColor": [0.5, 0.25, 1], "Tint": [1, 2, 3, 0.5]},
		"scalars": {"Roughness": 0.75, "Angle": -1e3},
		"textures": {"Z_Texture": null, "A_Texture": null},
		"switches": {"On": true, "Off": false}}})");
	ASSERT_TRUE(Parsed.bValid) << Parsed.Error;
	EXPECT_EQ(Parsed.Error, "");
	const Host::FMaterialDeclaration& Declaration = Parsed.File.Declaration;
	EXPECT_EQ(Declaration.FindVector(TEXT("BaseColor"))->Default, FLinearColor(0.5f, 0.25f, 1.0f, 1.0f));
	EXPECT_EQ(Declaration.FindVector(TEXT("Tint"))->Default, FLinearColor(1.0f, 2.0f, 3.0f, 0.5f));
	EXPECT_EQ(Declaration.FindScalar(TEXT("Roughness"))->Default, 0.75f);
	EXPECT_EQ(Declaration.FindScalar(TEXT("Angle"))->Default, -1000.0f);
	ASSERT_EQ(Declaration.Textures.Num(), 2);
	EXPECT_EQ(Declaration.Textures[0].Name, FName(TEXT("Z_Texture")));
	EXPECT_EQ(Declaration.Textures[0].Default.Get(), nullptr);
	EXPECT_TRUE(Declaration.FindSwitch(TEXT("On"))->Default);
	EXPECT_FALSE(Declaration.FindSwitch(TEXT("Off"))->Default);
	EXPECT_EQ(Declaration.FindSwitch(TEXT("Roughness")), nullptr);
}

TEST(MaterialFile, ReadsTheRenderSettings)
{
	const FParsed Parsed =
		Parse(With(R"("domain": "UI", "blendMode": "Masked", "twoSided": true, "opacityMaskClipValue": 0.5)"));
	ASSERT_TRUE(Parsed.bValid) << Parsed.Error;
	EXPECT_EQ(Parsed.File.Domain, MD_UI);
	EXPECT_EQ(Parsed.File.BlendMode, BLEND_Masked);
	EXPECT_TRUE(Parsed.File.bTwoSided);
	EXPECT_EQ(Parsed.File.OpacityMaskClipValue, 0.5f);
}

TEST(MaterialFile, ReadsTheLook)
{
	const FParsed Parsed = Parse(WithLook(R"(
		"sheen": {"color": [0.5, 0.25, 0.125], "roughness": 0.25, "tinted": false},
		"clearcoat": {"amount": 0.5, "roughness": 0.0625},
		"anisotropy": {"amount": -0.5, "angle": 0.25},
		"iridescence": {"amount": 1, "thickness": 300, "indexOfRefraction": 1.5},
		"subsurface": {"amount": 0.5, "color": [1, 0.5, 0.25]},
		"emission": {"amount": 2},
		"transmission": {"amount": 0.75, "indexOfRefraction": 1.25},
		"glitter": {"density": 0.25, "scale": 200, "intensity": 3, "spread": 0.75},
		"relief": {"pattern": "Knit", "scale": 50, "depth": 0.5})"));
	ASSERT_TRUE(Parsed.bValid) << Parsed.Error;
	const Host::FMaterialLook& Look = Parsed.File.Declaration.Look;
	EXPECT_EQ(Look.Sheen.Color, FLinearColor(0.5f, 0.25f, 0.125f, 1.0f));
	EXPECT_EQ(Look.Sheen.Roughness, 0.25f);
	EXPECT_FALSE(Look.Sheen.bTinted);
	EXPECT_EQ(Look.Clearcoat.Amount, 0.5f);
	EXPECT_EQ(Look.Clearcoat.Roughness, 0.0625f);
	EXPECT_EQ(Look.Anisotropy.Amount, -0.5f);
	EXPECT_EQ(Look.Anisotropy.Angle, 0.25f);
	EXPECT_EQ(Look.Iridescence.Amount, 1.0f);
	EXPECT_EQ(Look.Iridescence.Thickness, 300.0f);
	EXPECT_EQ(Look.Iridescence.IndexOfRefraction, 1.5f);
	EXPECT_EQ(Look.Subsurface.Amount, 0.5f);
	EXPECT_EQ(Look.Subsurface.Color, FLinearColor(1.0f, 0.5f, 0.25f, 1.0f));
	EXPECT_EQ(Look.Emission.Amount, 2.0f);
	EXPECT_EQ(Look.Transmission.Amount, 0.75f);
	EXPECT_EQ(Look.Transmission.IndexOfRefraction, 1.25f);
	EXPECT_EQ(Look.Glitter.Density, 0.25f);
	EXPECT_EQ(Look.Glitter.Scale, 200.0f);
	EXPECT_EQ(Look.Glitter.Intensity, 3.0f);
	EXPECT_EQ(Look.Glitter.Spread, 0.75f);
	EXPECT_EQ(Look.Relief.Pattern, Host::EMaterialPattern::Knit);
	EXPECT_EQ(Look.Relief.Scale, 50.0f);
	EXPECT_EQ(Look.Relief.Depth, 0.5f);
}

TEST(MaterialFile, AddsNothingToAMasterWithoutALook)
{
	const Host::FMaterialLook Look = Parse(With("")).File.Declaration.Look;
	EXPECT_EQ(Look.Sheen.Color, FLinearColor(0.0f, 0.0f, 0.0f, 1.0f));
	EXPECT_EQ(Look.Clearcoat.Amount, 0.0f);
	EXPECT_EQ(Look.Anisotropy.Amount, 0.0f);
	EXPECT_EQ(Look.Iridescence.Amount, 0.0f);
	EXPECT_EQ(Look.Subsurface.Amount, 0.0f);
	EXPECT_EQ(Look.Emission.Amount, 0.0f);
	EXPECT_EQ(Look.Transmission.Amount, 0.0f);
	EXPECT_EQ(Look.Glitter.Density, 0.0f);
	EXPECT_EQ(Look.Relief.Depth, 0.0f);
}

TEST(MaterialFile, NamesThePlaceAndTheFault)
{
	const struct
	{
		std::string Text;
		const char* Error;
	} Cases[] = {{"[]", "M.json is no material. At /: an object is needed."},
		{R"({"version": 1, "parameters": {}})", "M.json is no material. At /type: this key is missing."},
		{R"({"type": "Material", "parameters": {}})", "M.json is no material. At /version: this key is missing."},
		{R"({"type": "Material", "version": 1})", "M.json is no material. At /parameters: this key is missing."},
		{R"({"type": "Mesh", "version": 1, "parameters": {}})",
			"M.json is no material. At /type: \"Mesh\" is not \"Material\"."},
		{R"({"type": "Material", "version": 2, "parameters": {}})",
			"M.json is no material. At /version: a number from 1 to 1 is needed."},
		{With(R"("colour": 1)"), "M.json is no material. At /colour: this key is not known."},
		{With(R"("twoSided": 1)"), "M.json is no material. At /twoSided: true or false is needed."},
		{With(R"("blendMode": "Glass")"), "M.json is no material. At /blendMode: \"Glass\" is none of Opaque, Masked, "
										  "Translucent, Additive, Modulate, "
										  "AlphaComposite, AlphaHoldout."},
		{With(R"("blendMode": 2)"), "M.json is no material. At /blendMode: a text is needed."},
		{With(R"("opacityMaskClipValue": 1.5)"),
			"M.json is no material. At /opacityMaskClipValue: a number from 0 to 1 is needed."},
		{With(R"("twoSided": true, "twoSided": true)"),
			"M.json is no material. At /: the key \"twoSided\" stands twice in one object."},
		{R"({"type": "Material", "version": 1, "parameters": {"vectors": {"C": [1, 2]}}})",
			"M.json is no material. At /parameters/vectors/C: a colour is needed: three or four numbers of at least "
			"0."},
		{R"({"type": "Material", "version": 1, "parameters": {"vectors": {"C": [1, 2, -3]}}})",
			"M.json is no material. At /parameters/vectors/C: a colour is needed: three or four numbers of at least "
			"0."},
		{R"({"type": "Material", "version": 1, "parameters": {"textures": {"T": "/Game/T"}}})",
			"M.json is no material. At /parameters/textures/T: the default of a texture must be null."},
		{R"({"type": "Material", "version": 1, "parameters": {"switches": {"on": true, "ON": true}}})",
			"M.json is no material. At /parameters/switches/ON: a parameter needs a name that no other has."},
		{WithLook(R"("sheen": 1)"), "M.json is no material. At /look/sheen: an object is needed."},
		{WithLook(R"("sheen": {"roughness": 2})"),
			"M.json is no material. At /look/sheen/roughness: a number from 0 to 1 is needed."},
		{WithLook(R"("relief": {"pattern": "Dots"})"),
			"M.json is no material. At /look/relief/pattern: None, Knit, Grain or Fibres is needed."}};
	for (const auto& Case : Cases)
	{
		const FParsed Parsed = Parse(Case.Text);
		EXPECT_FALSE(Parsed.bValid) << Case.Text;
		EXPECT_EQ(Parsed.Error, Case.Error) << Case.Text;
	}
}

TEST(MaterialFile, SaysWhereTheTextIsNoJson)
{
	const FParsed Parsed = Parse("{\n\"type\": }");
	EXPECT_FALSE(Parsed.bValid);
	EXPECT_NE(Parsed.Error.find("parse error at line 2"), std::string::npos) << Parsed.Error;
}

TEST(MaterialFile, RefusesAFileThatIsNotThere)
{
	Host::FMaterialFile File;
	FString Error;
	EXPECT_FALSE(Host::ReadMaterialFile(TEXT("/nowhere/M.json"), File, Error));
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Error)), "/nowhere/M.json cannot be read or is empty.");
}
