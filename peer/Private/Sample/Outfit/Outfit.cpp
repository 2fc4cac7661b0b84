// SPDX-License-Identifier: MIT
#include "Sample/Outfit/Outfit.h"

#include "Mesh/Shapes.h"
#include "Sample/Body/Measures.h"
#include "Sample/Garment/Bodice.h"
#include "Sample/Outfit/Shoes.h"
#include "Sample/Parts/Assembly.h"
#include "Sample/Parts/Kinds.h"
#include "Texture/Weave.h"

namespace Zef::Peer
{

namespace
{

constexpr int FirstKey = 200;
constexpr float BeltHalfWidth = 1.9f;

struct FMaterials
{
	int Leather, Sole, Brass, Gem;
};

FMaterials AddMaterials(FAssembly& Assembly)
{
	constexpr int GrainWidth = 480, GrainHeight = 360;
	const FImage Grain = GrainHeights(GrainWidth, GrainHeight, 36, 71);
	const int LeatherNormal = Assembly.AddTexture(NormalsOf(Grain, 2.0f).ToTexture8());
	const int LeatherColor = Assembly.AddTexture(FImage::Make(GrainWidth, GrainHeight,
		[&](float U, float V)
		{
			const float Shade =
				0.82f + 0.18f * Grain.At(static_cast<int>(U * GrainWidth), static_cast<int>(V * GrainHeight)).X +
				0.12f * (Clouds(U, V, 6, 3, 72) - 0.5f);
			return FVec4{0.60f * Shade, 0.375f * Shade, 0.215f * Shade, 1};
		}).ToTexture8());
	// Brushed: streaks along U, at the full depth of the scanner.
	const int Brushed = Assembly.AddTexture(FImage::Make(256, 256,
		[](float U, float V)
		{
			const float Streak = 0.22f + 0.16f * Noise(U * 8, V * 128, 128, 73);
			return FVec4{Streak, Streak, Streak, 1};
		}).ToTexture16());

	FMaterials Keys{};
	Keys.Leather = Assembly.AddMaterial(FLook("Tan Leather", Kind::Leather)
											.ColorMap(LeatherColor)
											.NormalMap(LeatherNormal, 0.6f)
											.Roughness(0.45f)
											.Specular(0.45f)
											.Place(2, 2));
	Keys.Sole = Assembly.AddMaterial(FLook("Sole", Kind::Plastic).Color(0.055f, 0.035f, 0.025f).Roughness(0.5f));
	Keys.Brass = Assembly.AddMaterial(FLook("Brushed Brass", Kind::Metal)
										  .Color(0.83f, 0.61f, 0.32f)
										  .Roughness(0.28f)
										  .RoughnessMap(Brushed, 1)
										  .Metallic(1)
										  .Place(1, 4, 90));
	Keys.Gem = Assembly.AddMaterial(FLook("Emerald", Kind::GlassGem)
										.Color(0.02f, 0.30f, 0.26f)
										.Roughness(0.05f)
										.Specular(0.9f)
										.Opacity(0.8f)
										.Transparent());
	return Keys;
}

FTriangleMesh MakeBelt(const IField& Bodice)
{
	constexpr int Around = 120;
	return Sheet(Around, 8,
		[&](float U, float V)
		{
			const float Angle = Pi - 2 * Pi * U;
			const FVec3 Out{std::cos(Angle), std::sin(Angle), 0};
			const float Across = 2 * V - 1;
			const FVec3 Axis{-0.5f, 0, WaistHeight + 0.6f - Across * BeltHalfWidth};
			const FVec3 P = CastOnto(Bodice, Axis + Out * 21, -Out, 21);
			// The edges turn in towards the body.
			return P + Out * (0.62f + 0.18f * std::sqrt(std::max(1 - Across * Across * Across * Across, 0.0f)));
		});
}

FTriangleMesh MakeBeltBuckle(const IField& Bodice)
{
	const FVec3 Center = CastOnto(Bodice, {20, 0, WaistHeight + 0.6f}, {-1, 0, 0}, 20) + FVec3{1.0f, 0, 0};
	std::vector<FVec3> Frame;
	for (int I = 0; I < 48; ++I)
	{
		const float Angle = 2 * Pi * static_cast<float>(I) / 48;
		const float C = std::cos(Angle), S = std::sin(Angle);
		const float Scale = 1 / std::pow(C * C * C * C + S * S * S * S, 0.25f);
		// Bent a little around the waist.
		const float Y = 2.5f * Scale * C, Z = 2.15f * Scale * S;
		Frame.push_back(Center + FVec3{-0.02f * Y * Y, Y, Z});
	}
	FTriangleMesh Buckle = Tube(Frame, std::vector<float>(Frame.size(), 0.28f), 10, true);
	const std::vector<FVec3> Pin{
		Center + FVec3{0.05f, 2.6f, 0}, Center + FVec3{0.3f, 0, 0}, Center + FVec3{0.1f, -2.9f, 0}};
	const std::vector<FVec3> PinPath = Smoothed(Pin, 6);
	Buckle.Append(Tube(PinPath, std::vector<float>(PinPath.size(), 0.17f), 8));
	return Buckle;
}

FVec3 EarLobe()
{
	return Measures::Skull + FVec3{-0.55f, 7.35f, -3.3f};
}

FTriangleMesh BothEars(FTriangleMesh Right)
{
	const FTriangleMesh Left = Mirrored(Right);
	Right.Append(Left);
	return Right;
}

} // namespace

FProjectObject MakeOutfit(const FFigure& Figure)
{
	FAssembly Assembly(FirstKey);
	const FMaterials Materials = AddMaterials(Assembly);
	const FFieldPtr Bodice = MakeBodiceSolid();
	const auto Posed = [&](FTriangleMesh Mesh, int Material)
	{
		ApplyMoves(Mesh, WeightsOf(Figure.Skeleton, Mesh), Figure.StandingMoves);
		return FPiece{std::move(Mesh), Material, {}};
	};

	FShoes Shoes = MakeShoes();
	Assembly.AddSurface("Shoes/Uppers",
		{Posed(std::move(Shoes.Uppers), Materials.Leather), Posed(std::move(Shoes.Edging), Materials.Leather),
			Posed(std::move(Shoes.Straps), Materials.Leather)});
	Assembly.AddSurface("Shoes/Soles", {Posed(std::move(Shoes.Soles), Materials.Sole)});
	Assembly.AddSurface("Shoes/Buckles", {Posed(std::move(Shoes.Buckles), Materials.Brass)});
	Assembly.AddSurface(
		"Belt", {Posed(MakeBelt(*Bodice), Materials.Leather), Posed(MakeBeltBuckle(*Bodice), Materials.Brass)});
	FTriangleMesh Hooks = Ball(EarLobe(), {0.24f, 0.24f, 0.24f}, 12, 8);
	const std::vector<FVec3> Wire{EarLobe(), EarLobe() - FVec3{0, 0, 0.5f}, EarLobe() - FVec3{0, 0, 1.0f}};
	Hooks.Append(Tube(Wire, {0.07f, 0.07f, 0.07f}, 6));
	Assembly.AddSurface("Earrings",
		{Posed(BothEars(std::move(Hooks)), Materials.Brass),
			Posed(BothEars(Ball(EarLobe() - FVec3{0, 0, 1.75f}, {0.42f, 0.42f, 0.8f}, 16, 12)), Materials.Gem)});

	FProjectObject Outfit;
	Outfit.Type = EObjectType::Outfit;
	Outfit.Source = "sample shoes, belt and earrings";
	Outfit.Mesh = Assembly.Take();
	return Outfit;
}

} // namespace Zef::Peer
