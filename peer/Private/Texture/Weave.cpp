// SPDX-License-Identifier: MIT
#include "Texture/Weave.h"

namespace Zef::Peer
{

namespace
{

FVec4 Gray(float Value)
{
	return {Value, Value, Value, 1};
}

/** Distances to the nearest and the second nearest of the points strewn one to a cell, in cells. */
FVec2 NearestPoints(float U, float V, int Cells, std::uint32_t Seed)
{
	const float X = U * static_cast<float>(Cells), Y = V * static_cast<float>(Cells);
	const int CellX = static_cast<int>(std::floor(X)), CellY = static_cast<int>(std::floor(Y));
	FVec2 Nearest{1e9f, 1e9f};
	for (int J = CellY - 1; J <= CellY + 1; ++J)
	{
		for (int I = CellX - 1; I <= CellX + 1; ++I)
		{
			const int WrappedI = (I % Cells + Cells) % Cells, WrappedJ = (J % Cells + Cells) % Cells;
			const float DX = static_cast<float>(I) + Hash(WrappedI, WrappedJ, Seed) - X;
			const float DY = static_cast<float>(J) + Hash(WrappedI, WrappedJ, Seed + 1) - Y;
			const float D = std::sqrt(DX * DX + DY * DY);
			if (D < Nearest.X)
			{
				Nearest = {D, Nearest.X};
			}
			else if (D < Nearest.Y)
			{
				Nearest.Y = D;
			}
		}
	}
	return Nearest;
}

} // namespace

FThread ThreadAt(const FWeave& Weave, float U, float V)
{
	const float X = U * static_cast<float>(Weave.Ends), Y = V * static_cast<float>(Weave.Picks);
	const int End = static_cast<int>(std::floor(X)) % Weave.Ends, Pick = static_cast<int>(std::floor(Y)) % Weave.Picks;
	const float AcrossEnd = (2 * (X - std::floor(X)) - 1) / Weave.Thickness;
	const float AcrossPick = (2 * (Y - std::floor(Y)) - 1) / Weave.Thickness;
	const bool bOver = Weave.IsEndOver(End, Pick);
	// A thread is round across and arches where it lies over the other.
	const auto Arch = [](float Across, float Along, bool bTop)
	{
		const float Bulge = 1 - Across * Across;
		return Bulge <= 0 ? 0.0f
						  : 0.55f * std::sqrt(Bulge) + (bTop ? 0.35f : 0.05f) * std::max(1 - Along * Along, 0.0f);
	};
	const float EndHeight = Arch(AcrossEnd, AcrossPick, bOver);
	const float PickHeight = Arch(AcrossPick, AcrossEnd, !bOver);
	FThread Thread;
	Thread.bEnd = EndHeight >= PickHeight;
	Thread.Height = std::max(EndHeight, PickHeight);
	Thread.Round = Thread.bEnd ? AcrossEnd : AcrossPick;
	Thread.Cover = Thread.Height > 0 ? 1.0f : 0.0f;
	// Shade by thread, and along it by its twist.
	const float ByThread = Thread.bEnd ? Hash(End, 0, Weave.Seed) : Hash(Pick, 1, Weave.Seed);
	const float Along = Thread.bEnd ? Y : X;
	const float Twist = 0.5f + 0.5f * std::sin(2 * Pi * (Along * 2 + Thread.Round * 0.6f));
	const float Shade = 1 + Weave.Uneven * (ByThread - 0.5f) + 0.10f * (Twist - 0.5f) - 0.30f * (1 - Thread.Height);
	Thread.Color = (Thread.bEnd ? Weave.EndColor : Weave.PickColor) * Shade;
	return Thread;
}

FImage ColorsOf(const FWeave& Weave, int Size)
{
	return FImage::Make(Size, Size,
		[&](float U, float V)
		{
			const FThread Thread = ThreadAt(Weave, U, V);
			return FVec4{Thread.Color.X, Thread.Color.Y, Thread.Color.Z, 1};
		});
}

FImage HeightsOf(const FWeave& Weave, int Size)
{
	return FImage::Make(Size, Size, [&](float U, float V) { return Gray(ThreadAt(Weave, U, V).Height); });
}

FImage RoughnessOf(const FWeave& Weave, int Size, float Crown, float Between)
{
	return FImage::Make(Size, Size,
		[&](float U, float V) { return Gray(Lerp(Between, Crown, Clamp(ThreadAt(Weave, U, V).Height, 0, 1))); });
}

FImage CoverOf(const FWeave& Weave, int Size, float OnThread, float InGap)
{
	return FImage::Make(Size, Size,
		[&](float U, float V)
		{
			const FThread Thread = ThreadAt(Weave, U, V);
			const float Cover = Lerp(InGap, OnThread, Thread.Cover * (0.6f + 0.4f * Thread.Height));
			return FVec4{Cover, Cover, Cover, Cover};
		});
}

FWeave Herringbone(int Threads, int Stripe, const FVec3& EndColor, const FVec3& PickColor)
{
	FWeave Weave;
	Weave.Ends = Weave.Picks = Threads;
	Weave.EndColor = EndColor;
	Weave.PickColor = PickColor;
	Weave.Uneven = 0.10f;
	Weave.IsEndOver = [Stripe](int End, int Pick)
	{
		const bool bTurned = (End / Stripe) % 2 == 1;
		const int Step = bTurned ? Pick - End : Pick + End;
		return ((Step % 4) + 4) % 4 < 2;
	};
	return Weave;
}

FWeave PlainWeave(int Threads, float Thickness, const FVec3& Color)
{
	FWeave Weave;
	Weave.Ends = Weave.Picks = Threads;
	Weave.Thickness = Thickness;
	Weave.EndColor = Weave.PickColor = Color;
	Weave.IsEndOver = [](int End, int Pick) { return (End + Pick) % 2 == 0; };
	return Weave;
}

FImage KnitHeights(int Size, int Stitches)
{
	return FImage::Make(Size, Size,
		[Stitches](float U, float V)
		{
			const float X = U * static_cast<float>(Stitches), Y = V * static_cast<float>(Stitches) * 1.0f;
			const float Side = 2 * (X - std::floor(X)) - 1;
			float Height = 0;
			// The legs of this stitch and of the one it hangs in: slanted strands that meet below.
			for (int Row = 0; Row < 2; ++Row)
			{
				const float Down = (Y - std::floor(Y)) + static_cast<float>(Row) - 0.5f;
				const float Center = 0.50f - 0.34f * (Down - 0.5f);
				const float Across = (std::fabs(Side) - Center) / 0.44f;
				const float Along = (Down - 0.5f) / 0.95f;
				const float Inside = 1 - Across * Across - Along * Along;
				if (Inside > 0)
				{
					Height = std::max(Height, std::sqrt(Inside) * (1 - 0.18f * static_cast<float>(Row)));
				}
			}
			return Gray(Height);
		});
}

FImage GrainHeights(int Width, int Height, int Cells, std::uint32_t Seed)
{
	return FImage::Make(Width, Height,
		[=](float U, float V)
		{
			const FVec2 Near = NearestPoints(U, V, Cells, Seed);
			const float Crease = SmoothStep(0.02f, 0.28f, Near.Y - Near.X);
			return Gray(0.75f * Crease + 0.25f * Clouds(U, V, Cells * 2, 2, Seed + 7));
		});
}

} // namespace Zef::Peer
