// SPDX-License-Identifier: MIT
#include "render/RenderFixture.h"
#include "render/SceneShapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

using namespace Host;
using namespace SceneShapes;

namespace
{

FMaterialSnapshot Grey()
{
	FMaterialSnapshot Material;
	Material.BaseColor = {0.3f, 0.3f, 0.3f, 1.0f};
	Material.Roughness = 0.6f;
	return Material;
}

float Brightness(const FFloat3& Color)
{
	return (Color.X + Color.Y + Color.Z) / 3.0f;
}

/** Brightest value of any channel. */
int Peak(const FImage& Image)
{
	int Largest = 0;
	for (size_t Index = 0; Index < Image.Pixels.size(); ++Index)
	{
		Largest = Index % 4 == 3 ? Largest : std::max(Largest, int(Image.Pixels[Index]));
	}
	return Largest;
}

/** Mean difference of two pictures, in 8-bit steps. */
float Difference(const FImage& A, const FImage& B)
{
	double Sum = 0.0;
	for (size_t Index = 0; Index < A.Pixels.size(); ++Index)
	{
		Sum += std::abs(int(A.Pixels[Index]) - int(B.Pixels[Index]));
	}
	return float(Sum / double(A.Pixels.size()));
}

/** Stripes along V: dark for the first half of U, bright for the second. */
std::shared_ptr<FTextureSnapshot> Halves()
{
	auto Texture = Texture8(64, 64, [](int X, int) { return X < 32 ? FFloat4{0, 0, 0, 1} : FFloat4{1, 1, 1, 1}; });
	Texture->bSRGB = false;
	return Texture;
}

std::shared_ptr<FTextureSnapshot> Flat8(float Red, float Green, float Blue, float Alpha)
{
	return Texture8(8, 8, [=](int, int) { return FFloat4{Red, Green, Blue, Alpha}; });
}

} // namespace

/** Each parameter changes the picture in the direction that it stands for. */
class MaterialSweep : public RenderFixture
{
protected:
	FImage DrawBall(const FMaterialSnapshot& Material) { return Draw(SceneOf({Placed(Ball(10.0f), Material)})); }
	FImage DrawSquare(const FMaterialSnapshot& Material) { return Draw(SceneOf({Placed(Square(10.0f), Material)})); }
	FFloat3 Middle(const FImage& Image) { return MeanColor(Image, 0.3f, 0.3f, 0.7f, 0.7f); }

	/** Brightness of the left, right, upper and lower quarter of the square. */
	std::array<float, 4> Sides(const FMaterialSnapshot& Material)
	{
		const FImage Image = DrawSquare(Material);
		return {Brightness(MeanColor(Image, 0.1f, 0.35f, 0.3f, 0.65f)),
			Brightness(MeanColor(Image, 0.7f, 0.35f, 0.9f, 0.65f)),
			Brightness(MeanColor(Image, 0.35f, 0.1f, 0.65f, 0.3f)),
			Brightness(MeanColor(Image, 0.35f, 0.7f, 0.65f, 0.9f))};
	}
};

TEST_F(MaterialSweep, BaseColorColours)
{
	FMaterialSnapshot Material = Grey();
	const FFloat3 Before = Middle(DrawBall(Material));
	Material.BaseColor = {0.6f, 0.3f, 0.3f, 1.0f};
	const FFloat3 Redder = Middle(DrawBall(Material));
	Material.BaseColor = {0.05f, 0.05f, 0.05f, 1.0f};
	const FFloat3 Darker = Middle(DrawBall(Material));

	EXPECT_GT(Redder.X, Before.X + 25.0f);
	EXPECT_NEAR(Redder.Y, Before.Y, 5.0f);
	EXPECT_LT(Brightness(Darker), Brightness(Before) - 40.0f);
}

TEST_F(MaterialSweep, RoughnessSpreadsTheHighlight)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.02f, 0.02f, 0.02f, 1.0f};
	int Before = 256;
	for (float Roughness : {0.05f, 0.4f, 0.9f})
	{
		Material.Roughness = Roughness;
		const int Now = Peak(Draw(
			[&]
			{
				FSceneSnapshot Scene = SceneOf({Placed(Ball(10.0f), Material)});
				Scene.Surroundings.BackdropTop = Scene.Surroundings.BackdropBottom = FFloat3();
				return Scene;
			}()));
		EXPECT_LT(Now, Before - 5) << Roughness;
		Before = Now;
	}
}

TEST_F(MaterialSweep, MetallicReplacesTheBodyByColouredReflection)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.9f, 0.6f, 0.2f, 1.0f};
	Material.Roughness = 0.25f;
	const FImage Dielectric = DrawBall(Material);
	Material.Metallic = 1.0f;
	const FImage Metal = DrawBall(Material);

	// The lower half of metal shows the dark floor instead of scattering the lamps' light.
	const FFloat3 A = MeanColor(Dielectric, 0.4f, 0.6f, 0.6f, 0.8f), B = MeanColor(Metal, 0.4f, 0.6f, 0.6f, 0.8f);
	EXPECT_LT(Brightness(B), Brightness(A) - 15.0f);
	EXPECT_GT(Difference(Dielectric, Metal), 5.0f);
}

TEST_F(MaterialSweep, SpecularBrightensTheReflection)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.02f, 0.02f, 0.02f, 1.0f};
	Material.Roughness = 0.3f;
	float Before = -100.0f;
	for (float Specular : {0.0f, 0.5f, 1.0f})
	{
		Material.Specular = Specular;
		const float Now = Brightness(Middle(DrawBall(Material)));
		EXPECT_GT(Now, Before + 4.0f) << Specular;
		Before = Now;
	}
}

TEST_F(MaterialSweep, BaseColorMapMultipliesTheColorAndItsIntensityTheMap)
{
	FMaterialSnapshot Material = Grey();
	const FFloat3 Plain = Middle(DrawBall(Material));
	FChannelMap& Map = Material.Map(ESurfaceChannel::BaseColor);
	Map.Texture = Flat8(1.0f, 0.3f, 0.3f, 1.0f);
	const FFloat3 Mapped = Middle(DrawBall(Material));
	Map.Intensity = 2.0f;
	const FFloat3 Intense = Middle(DrawBall(Material));

	EXPECT_NEAR(Mapped.X, Plain.X, 8.0f); // the tone curve ties the channels together a little
	EXPECT_LT(Mapped.Y, Plain.Y - 40.0f);
	EXPECT_GT(Intense.X, Mapped.X + 25.0f);
}

TEST_F(MaterialSweep, ColorsAreDecodedFromSrgbOnlyWhenTheTextureSaysSo)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {1.0f, 1.0f, 1.0f, 1.0f};
	auto Texture = Flat8(0.4f, 0.4f, 0.4f, 1.0f);
	Material.Map(ESurfaceChannel::BaseColor).Texture = Texture;
	const float Decoded = Brightness(Middle(DrawBall(Material)));
	auto Linear = std::make_shared<FTextureSnapshot>(*Texture);
	Linear->bSRGB = false;
	Material.Map(ESurfaceChannel::BaseColor).Texture = Linear;
	const float AsStored = Brightness(Middle(DrawBall(Material)));

	EXPECT_LT(Decoded, AsStored - 40.0f);
}

TEST_F(MaterialSweep, NormalMapTiltsTheSurfaceAsItsIntensitySays)
{
	FMaterialSnapshot Material = Grey();
	FChannelMap& Map = Material.Map(ESurfaceChannel::Normal);
	const auto UnderKeyLight = [&]
	{
		FSceneSnapshot Scene = SceneOf({Placed(Square(10.0f), Material)});
		Scene.Lights.resize(1); // it comes from the upper left
		return Brightness(Middle(Draw(Scene)));
	};
	const float Flat = UnderKeyLight();
	Map.Texture = Flat8(0.25f, 0.5f, 0.93f, 1.0f); // leans against U, to the left
	const float ToTheLeft = UnderKeyLight();
	Map.Texture = Flat8(0.75f, 0.5f, 0.93f, 1.0f);
	const float ToTheRight = UnderKeyLight();
	Map.Texture = Flat8(0.5f, 0.25f, 0.93f, 1.0f); // leans against V, up
	const float Upwards = UnderKeyLight();
	Map.Texture = Flat8(0.5f, 0.75f, 0.93f, 1.0f);
	const float Downwards = UnderKeyLight();
	Map.Intensity = 0.0f;
	const float Flattened = UnderKeyLight();

	EXPECT_GT(ToTheLeft, ToTheRight + 10.0f);
	EXPECT_GT(Upwards, Downwards + 10.0f);
	EXPECT_NEAR(Flattened, Flat, 1.0f);
}

// The senders mark every texture as sRGB, normal maps too.
TEST_F(MaterialSweep, NormalMapsAreReadAsStoredWhateverTheirFlagSays)
{
	FMaterialSnapshot Material = Grey();
	auto Texture = Flat8(0.3f, 0.5f, 0.9f, 1.0f);
	Material.Map(ESurfaceChannel::Normal).Texture = Texture;
	const FImage Marked = DrawSquare(Material);
	auto Linear = std::make_shared<FTextureSnapshot>(*Texture);
	Linear->bSRGB = false;
	Material.Map(ESurfaceChannel::Normal).Texture = Linear;

	EXPECT_EQ(DrawSquare(Material).Pixels, Marked.Pixels);
}

TEST_F(MaterialSweep, DataMapsStandInForThePlainValueTimesTheirIntensity)
{
	struct FCase
	{
		const char* Name;
		ESurfaceChannel Channel;
		float FMaterialSnapshot::*Value;
	};
	for (const FCase& Case : {FCase{"roughness", ESurfaceChannel::Roughness, &FMaterialSnapshot::Roughness},
			 FCase{"metallic", ESurfaceChannel::Metallic, &FMaterialSnapshot::Metallic},
			 FCase{"specular", ESurfaceChannel::Specular, &FMaterialSnapshot::Specular}})
	{
		FMaterialSnapshot Material = Grey();
		Material.*Case.Value = 0.8f;
		const FImage Plain = DrawBall(Material);

		// A plain 0.2 under a map of 1 at intensity 0.8 is the plain 0.8.
		Material.*Case.Value = 0.2f;
		Material.Map(Case.Channel).Texture = Flat16(65535, 0, 0, 65535);
		Material.Map(Case.Channel).Intensity = 0.8f;
		const FImage Mapped = DrawBall(Material);
		Material.Map(Case.Channel).Intensity = 0.1f;
		const FImage Weak = DrawBall(Material);

		EXPECT_LT(Difference(Plain, Mapped), 0.1f) << Case.Name;
		EXPECT_GT(Difference(Weak, Mapped), 0.5f) << Case.Name;
	}
}

TEST_F(MaterialSweep, OpacityMapGivesItsLuminanceOrItsAlpha)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.9f, 0.1f, 0.1f, 1.0f};
	Material.Blend = EBlend::Masked;
	Material.Map(ESurfaceChannel::Opacity).Texture = Flat8(1.0f, 1.0f, 1.0f, 0.0f);
	const FFloat3 Luminance = Middle(DrawSquare(Material));
	Material.bOpacityFromAlpha = true;
	const FFloat3 Alpha = Middle(DrawSquare(Material));

	EXPECT_GT(Luminance.X, Luminance.Y + 60.0f);
	EXPECT_NEAR(Alpha.X, Alpha.Y, 10.0f);
}

TEST_F(MaterialSweep, ClipValueDecidesWhatIsCutOut)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.9f, 0.1f, 0.1f, 1.0f};
	Material.Blend = EBlend::Masked;
	Material.Opacity = 0.5f;
	Material.ClipValue = 0.4f;
	const FFloat3 Kept = Middle(DrawSquare(Material));
	Material.ClipValue = 0.6f;
	const FFloat3 Cut = Middle(DrawSquare(Material));

	EXPECT_GT(Kept.X, Kept.Y + 60.0f);
	EXPECT_NEAR(Cut.X, Cut.Y, 10.0f);
}

TEST_F(MaterialSweep, TheLowByteOfA16BitMapCounts)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.9f, 0.1f, 0.1f, 1.0f};
	Material.Blend = EBlend::Masked;
	Material.ClipValue = float(0x8040) / 65535.0f;
	Material.Map(ESurfaceChannel::Opacity).Texture = Flat16(0x8010, 0x8010, 0x8010, 65535);
	const FFloat3 Below = Middle(DrawSquare(Material));
	Material.Map(ESurfaceChannel::Opacity).Texture = Flat16(0x8070, 0x8070, 0x8070, 65535);
	const FFloat3 Above = Middle(DrawSquare(Material));

	EXPECT_NEAR(Below.X, Below.Y, 10.0f);
	EXPECT_GT(Above.X, Above.Y + 60.0f);
}

TEST_F(MaterialSweep, PlacementMovesScalesAndTurnsTheMap)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.8f, 0.8f, 0.8f, 1.0f};
	FChannelMap& Map = Material.Map(ESurfaceChannel::BaseColor);
	Map.Texture = Halves();
	const std::array<float, 4> AsIs = Sides(Material);
	Map.UOffset = 0.5f;
	const std::array<float, 4> MovedAlongU = Sides(Material);
	Map.UOffset = 0.0f;
	// u' = -v with a quarter turn: the upper half samples -0..-0.5, which repeats as 1..0.5, the bright half.
	Map.AngleTurns = 0.25f;
	const std::array<float, 4> Turned = Sides(Material);
	Map.VOffset = 0.5f; // runs along the stripes after the turn as well
	const std::array<float, 4> MovedAlongV = Sides(Material);
	Map.VOffset = 0.0f;
	Map.UOffset = 0.5f; // the offset comes after the turn
	const std::array<float, 4> TurnedAndMoved = Sides(Material);

	constexpr float Much = 60.0f;
	EXPECT_GT(AsIs[1], AsIs[0] + Much);
	EXPECT_GT(MovedAlongU[0], MovedAlongU[1] + Much);
	EXPECT_GT(Turned[2], Turned[3] + Much);
	EXPECT_NEAR(Turned[0], Turned[1], Much / 2);
	EXPECT_GT(MovedAlongV[2], MovedAlongV[3] + Much);
	EXPECT_GT(TurnedAndMoved[3], TurnedAndMoved[2] + Much);
}

TEST_F(MaterialSweep, AmountsRepeatTheMapAlongTheirOwnAxis)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.8f, 0.8f, 0.8f, 1.0f};
	FChannelMap& Map = Material.Map(ESurfaceChannel::BaseColor);
	Map.Texture = Halves();
	const auto Changes = [&](bool bAlongU)
	{
		const FImage Image = DrawSquare(Material);
		int Count = 0;
		for (int Index = 8; Index < 87; ++Index)
		{
			const int A = bAlongU ? Image.At(Index, 48)[1] : Image.At(20, Index)[1];
			const int B = bAlongU ? Image.At(Index + 1, 48)[1] : Image.At(20, Index + 1)[1];
			const int Limit = 90;
			Count += (A < Limit) != (B < Limit);
		}
		return Count;
	};
	EXPECT_EQ(Changes(true), 1);
	Map.UAmount = 3.0f;
	EXPECT_EQ(Changes(true), 5);
	Map.VAmount = 4.0f;
	EXPECT_EQ(Changes(false), 0); // the stripes run along V
	Map.AngleTurns = 0.25f;
	EXPECT_EQ(Changes(false), 7);
}

TEST_F(MaterialSweep, EachChannelHasAPlacementOfItsOwn)
{
	for (ESurfaceChannel Channel : {ESurfaceChannel::BaseColor, ESurfaceChannel::Normal, ESurfaceChannel::Roughness,
			 ESurfaceChannel::Metallic, ESurfaceChannel::Specular, ESurfaceChannel::Opacity})
	{
		FMaterialSnapshot Material = Grey();
		Material.Roughness = 0.3f;
		Material.Blend = EBlend::Masked;
		for (FChannelMap& Map : Material.Maps)
		{
			Map.Texture = Halves();
		}
		Material.Map(ESurfaceChannel::Normal).Texture = Texture8(64, 64,
			[](int X, int) {
				return X < 32 ? FFloat4{0.5f, 0.5f, 1, 1} : FFloat4{0.7f, 0.4f, 0.95f, 1};
			});
		Material.Map(ESurfaceChannel::Opacity).Texture = nullptr;
		if (Channel == ESurfaceChannel::Opacity)
		{
			Material.Map(Channel).Texture = Halves();
		}
		const FImage Before = DrawBall(Material);
		Material.Map(Channel).AngleTurns = 0.2f;
		const FImage Turned = DrawBall(Material);
		Material.Map(Channel).AngleTurns = 0.0f;
		Material.Map(Channel).UAmount = 3.0f;
		const FImage Repeated = DrawBall(Material);

		EXPECT_GT(Difference(Before, Turned), 0.2f) << int(Channel);
		EXPECT_GT(Difference(Before, Repeated), 0.2f) << int(Channel);
	}
}

TEST_F(MaterialSweep, EveryPartOfALookChangesThePicture)
{
	struct FCase
	{
		const char* Name;
		std::function<void(FSurfaceLook&)> Change;
	};
	const FCase Cases[] = {
		{"sheen",
			[](FSurfaceLook& Look) {
				Look.SheenColor = {1, 1, 1};
			}},
		{"clearcoat", [](FSurfaceLook& Look) { Look.Clearcoat = 1.0f; }},
		{"anisotropy", [](FSurfaceLook& Look) { Look.Anisotropy = 0.8f; }},
		{"iridescence", [](FSurfaceLook& Look) { Look.Iridescence = 1.0f; }},
		{"subsurface",
			[](FSurfaceLook& Look)
			{
				Look.Subsurface = 0.8f;
				Look.SubsurfaceColor = {1.0f, 0.3f, 0.2f};
			}},
		{"emission", [](FSurfaceLook& Look) { Look.Emission = 1.0f; }},
		{"transmission", [](FSurfaceLook& Look) { Look.Transmission = 0.9f; }},
		{"glitter", [](FSurfaceLook& Look) { Look.GlitterDensity = 0.4f; }},
		{"knit",
			[](FSurfaceLook& Look)
			{
				Look.Pattern = ESurfacePattern::Knit;
				Look.PatternDepth = 1.0f;
			}},
		{"grain",
			[](FSurfaceLook& Look)
			{
				Look.Pattern = ESurfacePattern::Grain;
				Look.PatternDepth = 1.0f;
			}},
		{"fibres",
			[](FSurfaceLook& Look)
			{
				Look.Pattern = ESurfacePattern::Fibres;
				Look.PatternDepth = 1.0f;
			}},
	};
	std::vector<FImage> Drawn;
	const auto Look = [&](const std::function<void(FSurfaceLook&)>& Change)
	{
		FMaterialSnapshot Material = Grey();
		Material.BaseColor = {0.35f, 0.2f, 0.2f, 1.0f};
		Change(Material.Look);
		return Draw(SceneOf({Placed(Ball(4.0f), Material)}));
	};
	Drawn.push_back(Look([](FSurfaceLook&) {}));
	for (const FCase& Case : Cases)
	{
		FImage Image = Look(Case.Change);
		for (const FImage& Other : Drawn)
		{
			EXPECT_GT(Difference(Image, Other), 0.5f) << Case.Name;
		}
		Drawn.push_back(std::move(Image));
	}
}

TEST_F(MaterialSweep, SheenBrightensTheRimMoreThanTheMiddle)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {0.05f, 0.05f, 0.05f, 1.0f};
	Material.Roughness = 1.0f;
	Material.Specular = 0.0f;
	const FImage Without = DrawBall(Material);
	Material.Look.SheenColor = {0.6f, 0.6f, 0.6f};
	Material.Look.bSheenTinted = false;
	const FImage With = DrawBall(Material);

	const auto Gain = [&](float Left, float Right)
	{
		return Brightness(MeanColor(With, Left, 0.45f, Right, 0.55f)) -
			   Brightness(MeanColor(Without, Left, 0.45f, Right, 0.55f));
	};
	EXPECT_GT(Gain(0.13f, 0.16f), Gain(0.46f, 0.54f) + 15.0f);
}

TEST_F(MaterialSweep, WhatShinesByItselfGlowsIntoItsSurroundings)
{
	FMaterialSnapshot Material = Grey();
	Material.BaseColor = {1.0f, 0.8f, 0.5f, 1.0f};
	const auto Beside = [&]
	{
		const FImage Image = DrawBall(Material);
		return Brightness(MeanColor(Image, 0.08f, 0.2f, 0.16f, 0.3f));
	};
	const float Dull = Beside();
	Material.Look.Emission = 1.5f;
	const float Shining = Beside();

	EXPECT_GT(Shining, Dull + 1.0f);
}
