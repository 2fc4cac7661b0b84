// SPDX-License-Identifier: MIT
#include "Texture/Image.h"

namespace Zef::Peer
{

FImage::FImage(int Width, int Height, const FVec4& Fill)
	: W(Width)
	, H(Height)
	, Pixels(static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height), Fill)
{
}

FImage FImage::Make(int Width, int Height, const std::function<FVec4(float, float)>& Color)
{
	FImage Image(Width, Height);
	for (int Y = 0; Y < Height; ++Y)
	{
		for (int X = 0; X < Width; ++X)
		{
			Image.At(X, Y) = Color((static_cast<float>(X) + 0.5f) / static_cast<float>(Width),
				(static_cast<float>(Y) + 0.5f) / static_cast<float>(Height));
		}
	}
	return Image;
}

FTexture FImage::ToTexture8() const
{
	FTexture Texture;
	Texture.Format = 0;
	Texture.Width = W;
	Texture.Height = H;
	Texture.Pixels.reserve(Pixels.size() * 4);
	for (const FVec4& P : Pixels)
	{
		for (const float C : {P.X, P.Y, P.Z, P.W})
		{
			Texture.Pixels.push_back(static_cast<std::uint8_t>(Clamp(C, 0, 1) * 255.0f + 0.5f));
		}
	}
	return Texture;
}

FTexture FImage::ToTexture16() const
{
	FTexture Texture;
	Texture.Format = 1;
	Texture.Width = W;
	Texture.Height = H;
	Texture.Pixels.reserve(Pixels.size() * 8);
	for (const FVec4& P : Pixels)
	{
		for (const float C : {P.X, P.Y, P.Z, P.W})
		{
			const auto Value = static_cast<std::uint32_t>(Clamp(C, 0, 1) * 65535.0f + 0.5f);
			Texture.Pixels.push_back(static_cast<std::uint8_t>(Value & 0xff));
			Texture.Pixels.push_back(static_cast<std::uint8_t>(Value >> 8));
		}
	}
	return Texture;
}

FImage NormalsOf(const FImage& Heights, float Steepness)
{
	FImage Normals(Heights.Width(), Heights.Height());
	for (int Y = 0; Y < Heights.Height(); ++Y)
	{
		for (int X = 0; X < Heights.Width(); ++X)
		{
			const float SlopeU = (Heights.Wrapped(X + 1, Y).X - Heights.Wrapped(X - 1, Y).X) * 0.5f * Steepness;
			const float SlopeV = (Heights.Wrapped(X, Y + 1).X - Heights.Wrapped(X, Y - 1).X) * 0.5f * Steepness;
			const FVec3 N = Normalized(FVec3{-SlopeU, -SlopeV, 1});
			Normals.At(X, Y) = {N.X * 0.5f + 0.5f, N.Y * 0.5f + 0.5f, N.Z * 0.5f + 0.5f, 1};
		}
	}
	return Normals;
}

float Hash(int X, int Y, std::uint32_t Seed)
{
	std::uint32_t H =
		static_cast<std::uint32_t>(X) * 0x9E3779B1u + static_cast<std::uint32_t>(Y) * 0x85EBCA77u + Seed * 0xC2B2AE3Du;
	H ^= H >> 15;
	H *= 0x2C1B3C6Du;
	H ^= H >> 12;
	H *= 0x297A2D39u;
	H ^= H >> 15;
	return static_cast<float>(H >> 8) * (1.0f / 16777216.0f);
}

float Noise(float X, float Y, int Period, std::uint32_t Seed)
{
	const float FloorX = std::floor(X), FloorY = std::floor(Y);
	const auto Wrap = [Period](float F)
	{
		const int I = static_cast<int>(F) % Period;
		return I < 0 ? I + Period : I;
	};
	const int X0 = Wrap(FloorX), Y0 = Wrap(FloorY), X1 = (X0 + 1) % Period, Y1 = (Y0 + 1) % Period;
	const float U = SmoothStep(0, 1, X - FloorX), V = SmoothStep(0, 1, Y - FloorY);
	return Lerp(Lerp(Hash(X0, Y0, Seed), Hash(X1, Y0, Seed), U), Lerp(Hash(X0, Y1, Seed), Hash(X1, Y1, Seed), U), V);
}

float Clouds(float U, float V, int Cells, int Octaves, std::uint32_t Seed)
{
	float Sum = 0, Whole = 0, Share = 1;
	for (int O = 0; O < Octaves; ++O)
	{
		const auto Size = static_cast<float>(Cells);
		Sum += Share * Noise(U * Size, V * Size, Cells, Seed + static_cast<std::uint32_t>(O));
		Whole += Share;
		Share *= 0.5f;
		Cells *= 2;
	}
	return Sum / Whole;
}

float Noise3(const FVec3& P, std::uint32_t Seed)
{
	const float Z = std::floor(P.Z);
	const auto Layer = [&](float At)
	{
		constexpr int Large = 1 << 20;
		return Noise(P.X, P.Y, Large, Seed + static_cast<std::uint32_t>(static_cast<int>(At)) * 7919u);
	};
	return Lerp(Layer(Z), Layer(Z + 1), SmoothStep(0, 1, P.Z - Z));
}

} // namespace Zef::Peer
