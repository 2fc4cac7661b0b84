// SPDX-License-Identifier: MIT
#include "Glow.h"

#include <algorithm>
#include <cmath>

namespace Host
{
namespace
{

// The glow is smooth: a quarter of the picture's size holds it.
constexpr int32_t Reduction = 4;
constexpr int32_t FullGlow = 127;

struct FGlowBuffer
{
	int32_t Width = 0, Height = 0;
	std::vector<float> Values; // [Width * Height * 3]
};

FGlowBuffer Shining(const FImage& Image)
{
	FGlowBuffer Buffer;
	Buffer.Width = (Image.Width + Reduction - 1) / Reduction;
	Buffer.Height = (Image.Height + Reduction - 1) / Reduction;
	Buffer.Values.resize(size_t(Buffer.Width) * size_t(Buffer.Height) * 3);
	for (int32_t Y = 0; Y < Image.Height; ++Y)
	{
		for (int32_t X = 0; X < Image.Width; ++X)
		{
			const uint8_t* Pixel = Image.At(X, Y);
			const float Share = float(255 - Pixel[3]) / float(FullGlow) / float(Reduction * Reduction);
			if (Share <= 0.0f)
			{
				continue;
			}
			float* Out = &Buffer.Values[(size_t(Y / Reduction) * size_t(Buffer.Width) + size_t(X / Reduction)) * 3];
			for (int Channel = 0; Channel < 3; ++Channel)
			{
				Out[Channel] += Share * float(Pixel[Channel]) / 255.0f;
			}
		}
	}
	return Buffer;
}

/** Means over 2 * Radius + 1 neighbours along one axis; outside there is nothing. */
void Smooth(std::vector<float>& Values, int32_t Count, size_t Step, int32_t Lines, size_t LineStep, int32_t Radius)
{
	std::vector<float> Line(size_t(Count) * 3);
	for (int32_t Index = 0; Index < Lines; ++Index)
	{
		float* First = &Values[size_t(Index) * LineStep];
		float Sum[3] = {0.0f, 0.0f, 0.0f};
		for (int32_t At = -Radius; At < Count; ++At)
		{
			for (int Channel = 0; Channel < 3; ++Channel)
			{
				const int32_t Entering = At + Radius, Leaving = At - Radius - 1;
				Sum[Channel] += Entering < Count ? First[size_t(Entering) * Step + size_t(Channel)] : 0.0f;
				Sum[Channel] -= Leaving >= 0 ? First[size_t(Leaving) * Step + size_t(Channel)] : 0.0f;
				if (At >= 0)
				{
					Line[size_t(At) * 3 + size_t(Channel)] = std::max(Sum[Channel], 0.0f) / float(2 * Radius + 1);
				}
			}
		}
		for (int32_t At = 0; At < Count; ++At)
		{
			std::copy_n(&Line[size_t(At) * 3], 3, First + size_t(At) * Step);
		}
	}
}

/** Three boxes one after the other come close to a bell curve. */
void Blur(FGlowBuffer& Buffer, int32_t Radius)
{
	const size_t Row = size_t(Buffer.Width) * 3;
	for (int Pass = 0; Pass < 3; ++Pass)
	{
		Smooth(Buffer.Values, Buffer.Width, 3, Buffer.Height, Row, Radius);
		Smooth(Buffer.Values, Buffer.Height, Row, Buffer.Width, 3, Radius);
	}
}

float Sample(const FGlowBuffer& Buffer, int32_t X, int32_t Y, int Channel)
{
	const float AtX = std::max((float(X) + 0.5f) / float(Reduction) - 0.5f, 0.0f);
	const float AtY = std::max((float(Y) + 0.5f) / float(Reduction) - 0.5f, 0.0f);
	const int32_t X0 = std::min(int32_t(AtX), Buffer.Width - 1), X1 = std::min(X0 + 1, Buffer.Width - 1);
	const int32_t Y0 = std::min(int32_t(AtY), Buffer.Height - 1), Y1 = std::min(Y0 + 1, Buffer.Height - 1);
	const float U = AtX - float(X0), V = AtY - float(Y0);
	const auto Value = [&](int32_t AtColumn, int32_t AtRow)
	{ return Buffer.Values[(size_t(AtRow) * size_t(Buffer.Width) + size_t(AtColumn)) * 3 + size_t(Channel)]; };
	return (Value(X0, Y0) * (1.0f - U) + Value(X1, Y0) * U) * (1.0f - V) +
		   (Value(X0, Y1) * (1.0f - U) + Value(X1, Y1) * U) * V;
}

} // namespace

void AddGlow(FImage& Image)
{
	bool bShines = false;
	for (size_t Index = 3; Index < Image.Pixels.size() && !bShines; Index += 4)
	{
		bShines = Image.Pixels[Index] < 255;
	}
	if (!bShines)
	{
		return;
	}
	FGlowBuffer Near = Shining(Image);
	FGlowBuffer Far = Near;
	// Radii of one box, in the reduced picture: a halo close by and a wide one.
	Blur(Near, std::max(1, Image.Height / 320));
	Blur(Far, std::max(2, Image.Height / 64));
	for (int32_t Y = 0; Y < Image.Height; ++Y)
	{
		for (int32_t X = 0; X < Image.Width; ++X)
		{
			uint8_t* Pixel = const_cast<uint8_t*>(Image.At(X, Y));
			for (int Channel = 0; Channel < 3; ++Channel)
			{
				const float Glow = 0.30f * Sample(Near, X, Y, Channel) + 0.42f * Sample(Far, X, Y, Channel);
				const float Color = float(Pixel[Channel]) / 255.0f;
				const float Sum = 1.0f - (1.0f - Color) * (1.0f - std::min(Glow, 1.0f));
				Pixel[Channel] = uint8_t(std::lround(Sum * 255.0f));
			}
			Pixel[3] = 255;
		}
	}
}

} // namespace Host
