// SPDX-License-Identifier: MIT
#include "PictureQuality.h"

#include <algorithm>

namespace Host
{

namespace
{

struct FLevel
{
	double Scale; // of the picture against the view, in each direction
	int Supersampling;
	bool bShadows;
	bool bAmbientOcclusion;
	int TranslucentLayers;
	double Weight; // what a picture of it takes against the coarsest, as far as nothing is measured
};

// Coarse to fine. On a graphics card the finest keeps the pace; the coarse ones are for software drawing.
constexpr std::array<FLevel, FPictureQuality::Count> Levels = {{
	{0.35, 1, false, false, 2, 1.0},
	{0.5, 1, false, false, 2, 1.8},
	{0.75, 1, false, false, 4, 4.0},
	{1.0, 1, false, false, 4, 7.0},
	{1.0, 1, true, true, 6, 16.0},
	{1.0, 2, true, true, 12, 55.0},
}};

constexpr double MotionMilliseconds = 45; // a picture of a view that moves may take so long
constexpr double NewShare = 0.4;		  // of a measurement against those before

double Megapixels(const QSize& Pixels)
{
	return std::max(1e-3, Pixels.width() * 1e-6 * Pixels.height());
}

} // namespace

int FPictureQuality::ForMotion(const QSize& Pixels) const
{
	// The nearest measured quality tells about those that were not tried.
	for (int Quality = Finest; Quality > 0; --Quality)
	{
		double Expected = PerMegapixel[static_cast<std::size_t>(Quality)];
		for (int Distance = 1; Expected == 0 && Distance < Count; ++Distance)
		{
			for (const int Other : {Quality - Distance, Quality + Distance})
			{
				if (Expected == 0 && Other >= 0 && Other < Count && PerMegapixel[static_cast<std::size_t>(Other)] > 0)
				{
					Expected = PerMegapixel[static_cast<std::size_t>(Other)] *
							   Levels[static_cast<std::size_t>(Quality)].Weight /
							   Levels[static_cast<std::size_t>(Other)].Weight;
				}
			}
		}
		if (Expected > 0 && Expected * Megapixels(Pixels) <= MotionMilliseconds)
		{
			return Quality;
		}
	}
	return 0;
}

void FPictureQuality::Note(int Quality, const QSize& Pixels, double Milliseconds)
{
	double& Known = PerMegapixel[static_cast<std::size_t>(Quality)];
	const double Now = Milliseconds / Megapixels(Pixels);
	Known = Known == 0 ? Now : Known + NewShare * (Now - Known);
}

FRenderOptions FPictureQuality::OptionsOf(int Quality)
{
	const FLevel& Level = Levels[static_cast<std::size_t>(Quality)];
	FRenderOptions Options;
	Options.Supersampling = Level.Supersampling;
	Options.bShadows = Level.bShadows;
	Options.bAmbientOcclusion = Level.bAmbientOcclusion;
	Options.TranslucentLayers = Level.TranslucentLayers;
	Options.OutlineThickness = static_cast<float>(2.0 * Level.Scale);
	return Options;
}

QSize FPictureQuality::SizeOf(int Quality, const QSize& Pixels)
{
	return (QSizeF(Pixels) * Levels[static_cast<std::size_t>(Quality)].Scale).toSize().expandedTo(QSize(1, 1));
}

} // namespace Host
