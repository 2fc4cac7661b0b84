// SPDX-License-Identifier: MIT
#include "Sample/Garment/GarmentTextures.h"

#include "Sample/Parts/Kinds.h"
#include "Texture/Weave.h"

namespace Zef::Peer
{

namespace
{

/** 1 on the ornament of the brocade, 0 on its ground: a row of palmettes between two bands. */
float Ornament(float U, float V)
{
	const float X = 6 * U - std::floor(6 * U) - 0.5f, Y = V - 0.52f;
	const float Around = std::atan2(Y * 2.0f, X * 2.6f);
	const float Radius = std::hypot(X * 2.6f, Y * 2.0f);
	const float Petals = Radius - (0.40f + 0.24f * std::cos(8 * Around));
	const float Ring = std::fabs(Radius - 0.82f) - 0.05f;
	const float Edge = std::fabs(std::fabs(Y) - 0.40f) - 0.025f;
	const float Dots = std::hypot((12 * U - std::floor(12 * U) - 0.5f) * 1.1f, (std::fabs(Y) - 0.455f) * 6.0f) - 0.16f;
	return SmoothStep(0.03f, -0.03f, std::min(std::min(Petals, Ring), std::min(Edge, Dots)));
}

/** 1 on the threads of the lace: mesh, flowers, and a scalloped edge at the bottom. */
float LaceCover(float U, float V)
{
	const float X = 4 * U - std::floor(4 * U) - 0.5f;
	const float Scallop = 0.99f - 0.17f * (4 * X * X);
	if (V > Scallop)
	{
		return 0;
	}
	const float Edge = SmoothStep(0.055f, 0.045f, Scallop - V);
	const float Top = SmoothStep(0.07f, 0.055f, V);
	const float A = 36 * U + 9 * V, B = 36 * U - 9 * V;
	const float Mesh = std::max(SmoothStep(0.16f, 0.12f, std::fabs(A - std::floor(A) - 0.5f)),
		SmoothStep(0.16f, 0.12f, std::fabs(B - std::floor(B) - 0.5f)));
	const float Y = (V - 0.52f) * 1.05f;
	const float Radius = std::hypot(X, Y), Around = std::atan2(Y, X);
	const float Leaf = std::fabs(Radius - (0.24f + 0.10f * std::cos(6 * Around)));
	const float Flower = std::max(SmoothStep(0.045f, 0.03f, Leaf), SmoothStep(0.11f, 0.095f, Radius));
	const float XB = X > 0 ? X - 0.5f : X + 0.5f;
	const float Bud = SmoothStep(0.10f, 0.085f, std::hypot(XB, (V - 0.30f) * 1.05f));
	return std::max(std::max(Edge, Top), std::max(Mesh, std::max(Flower, Bud)));
}

FImage GlitterNormals(int Size)
{
	return FImage::Make(Size, Size,
		[Size](float U, float V)
		{
			const int Cells = Size / 4;
			const int X = static_cast<int>(U * static_cast<float>(Cells)),
					  Y = static_cast<int>(V * static_cast<float>(Cells));
			const FVec3 N = Normalized(FVec3{Hash(X, Y, 61) - 0.5f, Hash(X, Y, 62) - 0.5f, 0.8f});
			return FVec4{N.X * 0.5f + 0.5f, N.Y * 0.5f + 0.5f, N.Z * 0.5f + 0.5f, 1};
		});
}

} // namespace

FGarmentMaterials AddGarmentMaterials(FAssembly& Assembly)
{
	FGarmentMaterials Keys{};
	const FWeave Twill = Herringbone(128, 16, {0.105f, 0.420f, 0.430f}, {0.060f, 0.310f, 0.335f});
	const int TwillColor = Assembly.AddTexture(ColorsOf(Twill, 1024).ToTexture8());
	const int TwillNormal = Assembly.AddTexture(NormalsOf(HeightsOf(Twill, 1024), 2.5f).ToTexture16());
	const int TwillRoughness = Assembly.AddTexture(RoughnessOf(Twill, 512, 0.55f, 0.9f).ToTexture8());

	const FWeave Gauze = PlainWeave(40, 0.62f, {0.93f, 0.82f, 0.68f});
	const int GauzeColor = Assembly.AddTexture(ColorsOf(Gauze, 512).ToTexture8());
	const int GauzeCover = Assembly.AddTexture(CoverOf(Gauze, 512, 0.62f, 0.10f).ToTexture16());
	const int GauzeNormal = Assembly.AddTexture(NormalsOf(HeightsOf(Gauze, 512), 1.5f).ToTexture8());

	// Not a power of two, on purpose: it comes from a scan of one repeat.
	constexpr int BrocadeWidth = 768, BrocadeHeight = 240;
	const int BrocadeColor = Assembly.AddTexture(FImage::Make(BrocadeWidth, BrocadeHeight,
		[](float U, float V)
		{
			const FVec3 Color = Lerp(FVec3{0.045f, 0.240f, 0.265f}, FVec3{0.86f, 0.66f, 0.36f}, Ornament(U, V));
			const float Thread = 0.9f + 0.1f * std::sin(2 * Pi * 96 * V);
			return FVec4{Color.X * Thread, Color.Y * Thread, Color.Z * Thread, 1};
		}).ToTexture8());
	const FImage BrocadeHeights = FImage::Make(BrocadeWidth, BrocadeHeight,
		[](float U, float V)
		{
			const float Height = 0.7f * Ornament(U, V) + 0.15f * std::sin(2 * Pi * 96 * V);
			return FVec4{Height, Height, Height, 1};
		});
	const int BrocadeNormal = Assembly.AddTexture(NormalsOf(BrocadeHeights, 2.0f).ToTexture16());
	const int BrocadeMetal = Assembly.AddTexture(FImage::Make(BrocadeWidth, BrocadeHeight,
		[](float U, float V)
		{
			const float Gold = Ornament(U, V);
			return FVec4{Gold, Gold, Gold, 1};
		}).ToTexture8());

	const int LaceMap = Assembly.AddTexture(FImage::Make(1024, 256,
		[](float U, float V) {
			return FVec4{0.055f, 0.285f, 0.305f, LaceCover(U, V)};
		}).ToTexture8());
	const int GlitterMap = Assembly.AddTexture(GlitterNormals(256).ToTexture8());
	// A slot that the designer emptied.
	const int Emptied = Assembly.AddTexture(FTexture());

	Keys.Herringbone = Assembly.AddMaterial(FLook("Herringbone", Kind::Matte)
												.ColorMap(TwillColor)
												.NormalMap(TwillNormal, 0.9f)
												.Roughness(0.7f)
												.RoughnessMap(TwillRoughness, 1)
												.Specular(0.35f)
												.Place(0.75f, 0.75f));
	Keys.Skirt = Assembly.AddMaterial(FLook("Herringbone Skirt", Kind::Silk)
										  .ColorMap(TwillColor)
										  .NormalMap(TwillNormal, 0.7f)
										  .Roughness(0.55f)
										  .RoughnessMap(TwillRoughness, 0.6f)
										  .Specular(0.4f)
										  .Place(0.75f, 0.75f));
	Keys.Bias = Assembly.AddMaterial(FLook("Herringbone Bias", Kind::Silk)
										 .ColorMap(TwillColor)
										 .NormalMap(TwillNormal, 0.7f)
										 .Roughness(0.55f)
										 .RoughnessMap(TwillRoughness, 0.6f)
										 .Specular(0.4f)
										 .Place(0.75f, 0.75f, 45, 0.25f, 0.1f));
	Keys.Satin = Assembly.AddMaterial(FLook("Satin Facing", Kind::Silk)
										  .Color(0.006f, 0.060f, 0.066f)
										  .Roughness(0.32f)
										  .Specular(0.5f)
										  .NormalMap(Emptied, 0));
	Keys.Velvet = Assembly.AddMaterial(
		FLook("Velvet Piping", Kind::Velvet).Color(0.004f, 0.042f, 0.047f).Roughness(0.75f).Specular(0.25f));
	Keys.Brocade = Assembly.AddMaterial(FLook("Brocade", Kind::Silk)
											.ColorMap(BrocadeColor)
											.NormalMap(BrocadeNormal, 0.8f)
											.Roughness(0.42f)
											.Metallic(0)
											.MetallicMap(BrocadeMetal, 1)
											.SpecularMap(BrocadeMetal, 0.5f));
	Keys.Lace = Assembly.AddMaterial(FLook("Lace", Kind::Matte)
										 .ColorMap(LaceMap)
										 .Roughness(0.8f)
										 .Specular(0.2f)
										 .Opacity(1)
										 .OpacityMap(LaceMap, true)
										 .Transparent());
	Keys.Pearl = Assembly.AddMaterial(
		FLook("Mother of Pearl", Kind::Iridescence).Color(0.86f, 0.80f, 0.74f).Roughness(0.16f).Specular(0.7f));
	Keys.Label = Assembly.AddMaterial(FLook("Woven Label", Kind::Silk)
										  .Color(0.7f, 0.66f, 0.6f)
										  .Substance("/Game/Substance/WovenLabel", "woven_label")
										  .Place(2, 2, 0));
	Keys.Organza = Assembly.AddMaterial(FLook("Organza", Kind::Silk)
											.ColorMap(GauzeColor)
											.NormalMap(GauzeNormal, 0.5f)
											.Roughness(0.38f)
											.Specular(0.5f)
											.Opacity(0.85f)
											.OpacityMap(GauzeCover, false)
											.Transparent()
											.Place(1.6f, 1.6f));
	Keys.Sequins = Assembly.AddMaterial(FLook("Sequin Trim", Kind::Glitter)
											.Color(0.80f, 0.60f, 0.38f)
											.NormalMap(GlitterMap, 0.8f)
											.Roughness(0.25f)
											.Metallic(0.6f)
											.Specular(0.6f)
											.Place(6, 6));
	Keys.Gem = Assembly.AddMaterial(FLook("Brooch Stone", Kind::GlassGemToo)
										.Color(0.02f, 0.30f, 0.26f)
										.Roughness(0.04f)
										.Specular(0.9f)
										.Opacity(0.8f)
										.Transparent());
	Keys.Setting = Assembly.AddMaterial(
		FLook("Brooch Setting", Kind::Metal).Color(0.83f, 0.61f, 0.32f).Roughness(0.25f).Metallic(1));
	return Keys;
}

} // namespace Zef::Peer
