// SPDX-License-Identifier: MIT
/** Pictures while they are being made: four floats a pixel, 0 to 1, colours as they are stored (not linear). */
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "Math/Vector.h"

namespace Zef::Peer
{

class FImage
{
public:
	FImage(int Width, int Height, const FVec4& Fill = {0, 0, 0, 1});

	/** Calls Color for the middle of every pixel; U to the right and V down, 0 to 1. */
	static FImage Make(int Width, int Height, const std::function<FVec4(float U, float V)>& Color);

	int Width() const { return W; }
	int Height() const { return H; }
	FVec4& At(int X, int Y) { return Pixels[static_cast<std::size_t>(Y * W + X)]; }
	const FVec4& At(int X, int Y) const { return Pixels[static_cast<std::size_t>(Y * W + X)]; }
	/** Beyond an edge the picture goes on at the other one. */
	const FVec4& Wrapped(int X, int Y) const { return At((X % W + W) % W, (Y % H + H) % H); }

	/** 8 or 16 bits a channel. */
	FTexture ToTexture8() const;
	FTexture ToTexture16() const;

private:
	int W, H;
	std::vector<FVec4> Pixels;
};

/**
 * The normal map of a height that repeats at the edges: x along U, y along V (down), z out, brought from -1..1 to 0..1.
 * Heights are the first channel, in pixels times 1 / Steepness.
 */
FImage NormalsOf(const FImage& Heights, float Steepness);

/** Even noise of 0..1 by hashing; the same everywhere. */
float Hash(int X, int Y, std::uint32_t Seed);

/** Smooth noise of 0..1 that repeats after Period in both directions; X and Y count its cells. */
float Noise(float X, float Y, int Period, std::uint32_t Seed);

/** Sum of octaves of Noise, 0..1; U and V in 0..1 cover one period. */
float Clouds(float U, float V, int Cells, int Octaves, std::uint32_t Seed);

/** Smooth noise of 0..1 in space, cells of size 1. */
float Noise3(const FVec3& P, std::uint32_t Seed);

} // namespace Zef::Peer
