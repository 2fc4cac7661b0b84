// SPDX-License-Identifier: MIT
#include "Sample/Prop/PropMaterials.h"

#include "Sample/Parts/Kinds.h"
#include "Texture/Weave.h"

namespace Zef::Peer
{

namespace
{

FTexture MarbleColor()
{
	return FImage::Make(512, 512,
		[](float U, float V)
		{
			const float Warp = Clouds(U, V, 4, 5, 81);
			const float Vein = std::fabs(std::sin(2 * Pi * (U + V + 1.3f * Warp)));
			const float Dark = 0.35f * SmoothStep(0.10f, 0.0f, Vein) + 0.10f * Clouds(U, V, 8, 4, 82);
			return FVec4{0.93f - Dark, 0.915f - Dark, 0.89f - 0.95f * Dark, 1};
		})
		.ToTexture8();
}

FTexture LeafColor()
{
	return FImage::Make(256, 256,
		[](float U, float V)
		{
			const float Side = std::fabs(U - 0.5f);
			const float Rib = SmoothStep(0.022f, 0.012f, Side);
			const float Vein = std::fabs(std::sin(Pi * 9 * (V - 0.9f * Side)));
			const float Light = std::max(Rib, 0.5f * SmoothStep(0.10f, 0.02f, Vein) * SmoothStep(0.5f, 0.3f, Side));
			const FVec3 Color = Lerp(FVec3{0.085f, 0.255f, 0.115f}, FVec3{0.42f, 0.56f, 0.30f}, 0.8f * Light);
			const float Shade = 0.85f + 0.3f * Clouds(U, V, 8, 3, 83);
			return FVec4{Color.X * Shade, Color.Y * Shade, Color.Z * Shade, 1};
		})
		.ToTexture8();
}

FImage FurHeights()
{
	return FImage::Make(512, 512,
		[](float U, float V)
		{
			const float Curl = 2.2f * Clouds(U, V, 12, 3, 84);
			const float Strand = 0.5f + 0.5f * std::sin(2 * Pi * (48 * U + 3 * Curl + 9 * V));
			const float Height = 0.5f * Strand + 0.5f * Clouds(U, V, 32, 2, 85);
			return FVec4{Height, Height, Height, 1};
		});
}

} // namespace

FPropMaterials AddPropMaterials(FAssembly& Assembly)
{
	const FImage Knit = KnitHeights(512, 8);
	const int KnitNormal = Assembly.AddTexture(NormalsOf(Knit, 9.0f).ToTexture16());
	const int KnitColor = Assembly.AddTexture(FImage::Make(512, 512,
		[&](float U, float V)
		{
			const float Shade = 0.62f + 0.38f * Knit.At(static_cast<int>(U * 512), static_cast<int>(V * 512)).X +
								0.06f * (Noise(U * 256, V * 256, 256, 86) - 0.5f);
			return FVec4{0.86f * Shade, 0.80f * Shade, 0.71f * Shade, 1};
		}).ToTexture8());
	const FImage Fur = FurHeights();
	const int FurNormal = Assembly.AddTexture(NormalsOf(Fur, 2.2f).ToTexture8());
	const int FurColor = Assembly.AddTexture(FImage::Make(512, 512,
		[&](float U, float V)
		{
			const float Shade = 0.75f + 0.25f * Fur.At(static_cast<int>(U * 512), static_cast<int>(V * 512)).X;
			return FVec4{0.93f * Shade, 0.90f * Shade, 0.84f * Shade, 1};
		}).ToTexture8());
	const int Marble = Assembly.AddTexture(MarbleColor());
	const int Leaf = Assembly.AddTexture(LeafColor());

	FPropMaterials Keys{};
	Keys.Knit = Assembly.AddMaterial(FLook("Chunky Knit", Kind::KnitWear)
										 .ColorMap(KnitColor)
										 .NormalMap(KnitNormal, 1)
										 .Roughness(0.9f)
										 .Specular(0.2f)
										 .Place(5, 2.4f));
	Keys.Velvet = Assembly.AddMaterial(
		FLook("Rust Velvet", Kind::Velvet).Color(0.34f, 0.075f, 0.028f).Roughness(0.7f).Specular(0.3f));
	Keys.Piping = Assembly.AddMaterial(FLook("Cushion Piping", Kind::Silk).Color(0.55f, 0.28f, 0.12f).Roughness(0.4f));
	Keys.Sheepskin = Assembly.AddMaterial(FLook("Sheepskin", Kind::Fur)
											  .ColorMap(FurColor)
											  .NormalMap(FurNormal, 1)
											  .Roughness(0.95f)
											  .Specular(0.15f)
											  .Place(1.2f, 1.2f, 30));
	Keys.Brass =
		Assembly.AddMaterial(FLook("Brass", Kind::Metal).Color(0.83f, 0.61f, 0.32f).Roughness(0.22f).Metallic(1));
	Keys.Globe = Assembly.AddMaterial(FLook("Lamp Globe", Kind::Light).Color(1.0f, 0.86f, 0.66f).Roughness(0.4f));
	Keys.Marble = Assembly.AddMaterial(FLook("Marble", Kind::Shiny).ColorMap(Marble).Roughness(0.18f).Specular(0.5f));
	Keys.Clay = Assembly.AddMaterial(
		FLook("Glazed Clay", Kind::Matte).Color(0.62f, 0.56f, 0.48f).Roughness(0.75f).Specular(0.3f));
	Keys.Soil =
		Assembly.AddMaterial(FLook("Soil", Kind::Matte).Color(0.035f, 0.022f, 0.015f).Roughness(1).Specular(0.1f));
	Keys.Leaf = Assembly.AddMaterial(FLook("Leaf", Kind::Shiny).ColorMap(Leaf).Roughness(0.35f).Specular(0.45f));
	Keys.Stem = Assembly.AddMaterial(FLook("Stem", Kind::Matte).Color(0.07f, 0.11f, 0.04f).Roughness(0.7f));
	Keys.Glass = Assembly.AddMaterial(FLook("Vase Glass", Kind::GlassGem)
										  .Color(0.62f, 0.80f, 0.78f)
										  .Roughness(0.03f)
										  .Specular(0.9f)
										  .Opacity(0.35f)
										  .Transparent());
	Keys.Cover = Assembly.AddMaterial(FLook("Book Cover", Kind::Plastic).Color(0.20f, 0.035f, 0.03f).Roughness(0.4f));
	Keys.Paper = Assembly.AddMaterial(FLook("Paper", Kind::Matte).Color(0.75f, 0.70f, 0.60f).Roughness(0.9f));
	return Keys;
}

} // namespace Zef::Peer
