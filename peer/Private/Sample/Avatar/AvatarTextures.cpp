// SPDX-License-Identifier: MIT
#include "Sample/Avatar/AvatarTextures.h"

#include "Sample/Avatar/SkinUnwrap.h"
#include "Sample/Body/Measures.h"
#include "Texture/Image.h"

namespace Zef::Peer
{

namespace
{

float Spot(float X, float Y)
{
	return std::exp(-(X * X + Y * Y));
}

FVec3 Mix(const FVec3& A, const FVec3& B, float T)
{
	return Lerp(A, B, Clamp(T, 0, 1));
}

/** Height of the hair's strands, 0 to 1; strands run along V. */
float Strands(float U, float V)
{
	const float Fine = Noise(U * 512, V * 8, 512, 11);
	const float Medium = Noise(U * 128 + 2 * Noise(U * 16, V * 4, 16, 5), V * 4, 128, 12);
	const float Broad = Noise(U * 32, V * 2, 32, 13);
	return 0.45f * Fine + 0.35f * Medium + 0.2f * Broad;
}

} // namespace

FTexture MakeSkinColor()
{
	const FVec3 Tone{0.890f, 0.742f, 0.655f};
	const FVec3 Rosy{0.868f, 0.610f, 0.560f};
	const FVec3 Shadow{0.600f, 0.420f, 0.370f};
	return FImage::Make(1024, 1024,
		[&](float U, float V)
		{
			FVec3 Color = Tone;
			const float Mottle = Clouds(U, V, 24, 3, 101) - 0.5f;
			Color = Color * (1 + 0.05f * Mottle);
			Color = Mix(Color, Rosy, 0.22f * Clouds(U, V, 9, 2, 102) - 0.04f);
			if (const FHeadPlace Place = HeadPlaceAt(U, V); Place.bHead)
			{
				const float Side = std::fabs(Place.Degrees);
				const float Height = Place.Height - Measures::Skull.Z;
				// Cheeks, tip of the nose, ears, lids, and a shade under the cheek bone.
				Color = Mix(Color, Rosy, 0.55f * Spot((Side - 36) / 16, (Height + 2.6f) / 1.9f));
				Color = Mix(Color, Rosy, 0.35f * Spot(Side / 7, (Height + 2.3f) / 0.9f));
				Color = Mix(Color, Rosy, 0.40f * Spot((Side - 100) / 12, (Height + 1.0f) / 3.0f));
				Color = Mix(Color, Shadow, 0.45f * Spot((Side - 23) / 11, (Height - 1.55f) / 0.55f));
				Color = Mix(Color, Shadow, 0.10f * Spot((Side - 52) / 16, (Height + 5.2f) / 1.6f));
			}
			return FVec4{Color.X, Color.Y, Color.Z, 1};
		})
		.ToTexture8();
}

FTexture MakeSkinRoughness()
{
	return FImage::Make(512, 512,
		[](float U, float V)
		{
			float Rough = 0.50f + 0.10f * (Clouds(U, V, 48, 3, 201) - 0.5f);
			if (const FHeadPlace Place = HeadPlaceAt(U, V); Place.bHead)
			{
				// Forehead, nose and lower lip shine a little.
				const float Height = Place.Height - Measures::Skull.Z;
				Rough -= 0.07f * Spot(Place.Degrees / 22, (Height - 4.5f) / 2.5f);
				Rough -= 0.09f * Spot(Place.Degrees / 6, (Height + 1.0f) / 2.4f);
			}
			return FVec4{Rough, Rough, Rough, 1};
		})
		.ToTexture8();
}

FTexture MakeIris()
{
	return FImage::Make(512, 512,
		[](float U, float V)
		{
			const float X = 2 * U - 1, Y = 2 * V - 1;
			const float A = X * std::sqrt(1 - Y * Y * 0.5f), B = Y * std::sqrt(1 - X * X * 0.5f);
			const float Radius = std::sqrt(A * A + B * B), Around = std::atan2(B, A);
			const FVec3 White = Mix({0.93f, 0.91f, 0.89f}, {0.86f, 0.68f, 0.64f}, SmoothStep(0.45f, 1.0f, Radius));
			constexpr float IrisRadius = 0.355f, PupilRadius = 0.145f;
			const float T = (Radius - PupilRadius) / (IrisRadius - PupilRadius);
			const float Rays = Noise((Around / (2 * Pi) + 0.5f) * 64, Radius * 18, 64, 31);
			FVec3 Iris =
				Mix({0.46f, 0.34f, 0.16f}, {0.22f, 0.36f, 0.30f}, SmoothStep(0.05f, 0.6f, T + 0.3f * (Rays - 0.5f)));
			Iris = Iris * (0.75f + 0.5f * Rays);
			Iris = Mix(Iris, {0.05f, 0.07f, 0.06f}, SmoothStep(0.70f, 1.0f, T));
			FVec3 Color = Mix(Iris, White, SmoothStep(IrisRadius - 0.012f, IrisRadius + 0.018f, Radius));
			Color = Mix({0.01f, 0.01f, 0.01f}, Color, SmoothStep(PupilRadius - 0.012f, PupilRadius + 0.012f, Radius));
			// The window's reflection, which gives life from afar.
			Color = Mix(Color, {1, 1, 1}, 0.95f * SmoothStep(0.075f, 0.05f, std::hypot(A + 0.12f, B + 0.14f)));
			return FVec4{Color.X, Color.Y, Color.Z, 1};
		})
		.ToTexture8();
}

FTexture MakeHairColor()
{
	const FVec3 Dark{0.150f, 0.095f, 0.070f};
	const FVec3 Light{0.420f, 0.270f, 0.175f};
	return FImage::Make(512, 256,
		[&](float U, float V)
		{
			const float Strand = Strands(U, V);
			const FVec3 Color = Mix(Dark, Light, 1.5f * (Strand - 0.28f));
			return FVec4{Color.X, Color.Y, Color.Z, 1};
		})
		.ToTexture16();
}

FTexture MakeHairNormal()
{
	const FImage Heights = FImage::Make(512, 256,
		[](float U, float V)
		{
			const float Strand = Strands(U, V);
			return FVec4{Strand, Strand, Strand, 1};
		});
	return NormalsOf(Heights, 2.2f).ToTexture8();
}

} // namespace Zef::Peer
