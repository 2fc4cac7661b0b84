// SPDX-License-Identifier: MIT
#include "Files/Build/Sample.h"

#include <algorithm>
#include <cmath>

#include "Files/Model/Decompose.h"

namespace Zef::Peer
{

namespace
{

/** Values of a track at a time, Width numbers; a quaternion is turned along the shorter arc. */
std::vector<float> Sample(const FModelTrack& Track, std::size_t Width, double Time, bool bRotation)
{
	const std::size_t Stride = Track.Curve == EModelCurve::Cubic ? Width * 3 : Width;
	const std::size_t Middle = Track.Curve == EModelCurve::Cubic ? Width : 0;
	const auto Value = [&](std::size_t Key, std::size_t Part, std::size_t I)
	{ return Track.Values[Key * Stride + Part * Width + I]; };
	const auto Next =
		static_cast<std::size_t>(std::upper_bound(Track.Times.begin(), Track.Times.end(), Time) - Track.Times.begin());
	std::vector<float> Result(Width);
	if (Next == 0 || Next == Track.Times.size() || Track.Curve == EModelCurve::Step)
	{
		const std::size_t Key = Next == 0 ? 0 : Next - 1;
		const auto From = Track.Values.begin() + static_cast<std::ptrdiff_t>(Key * Stride + Middle);
		std::copy(From, From + static_cast<std::ptrdiff_t>(Width), Result.begin());
		return Result;
	}
	const std::size_t Key = Next - 1;
	const auto Step = static_cast<float>(Track.Times[Next] - Track.Times[Key]);
	const float T = Step > 0 ? static_cast<float>(Time - Track.Times[Key]) / Step : 0;
	if (Track.Curve == EModelCurve::Cubic)
	{
		const float T2 = T * T, T3 = T2 * T;
		for (std::size_t I = 0; I < Width; ++I)
		{
			Result[I] = (2 * T3 - 3 * T2 + 1) * Value(Key, 1, I) + Step * (T3 - 2 * T2 + T) * Value(Key, 2, I) +
						(3 * T2 - 2 * T3) * Value(Next, 1, I) + Step * (T3 - T2) * Value(Next, 0, I);
		}
		return Result;
	}
	float From = 1 - T, To = T;
	if (bRotation)
	{
		float Cosine = 0;
		for (std::size_t I = 0; I < Width; ++I)
		{
			Cosine += Value(Key, 0, I) * Value(Next, 0, I);
		}
		const float Sign = Cosine < 0 ? -1.0f : 1.0f;
		const float Angle = std::acos(std::min(std::fabs(Cosine), 1.0f));
		if (Angle > 1e-3f)
		{
			From = std::sin(From * Angle) / std::sin(Angle);
			To = std::sin(To * Angle) / std::sin(Angle);
		}
		To *= Sign;
	}
	for (std::size_t I = 0; I < Width; ++I)
	{
		Result[I] = From * Value(Key, 0, I) + To * Value(Next, 0, I);
	}
	return Result;
}

} // namespace

std::size_t CountFrames(const FModelClip& Clip)
{
	constexpr double LongestSeconds = 600; // what an editor's timeline still shows; a damaged time is longer
	const double Length = Clip.End - Clip.Start;
	if (!std::isfinite(Length) || Length < 0 || Length > LongestSeconds)
	{
		return 0;
	}
	return static_cast<std::size_t>(std::lround(Length * FramesPerSecond)) + 1;
}

FTransform SampleNode(const FModelNodeTracks& Tracks, const FTransform& Rest, double Time)
{
	FTransform Local = Rest;
	if (!Tracks.Translation.Times.empty())
	{
		const std::vector<float> V = Sample(Tracks.Translation, 3, Time, false);
		Local.Translation = {V[0], V[1], V[2]};
	}
	if (!Tracks.Rotation.Times.empty())
	{
		const std::vector<float> V = Sample(Tracks.Rotation, 4, Time, true);
		Local.Rotation = UnitOrIdentity({V[0], V[1], V[2], V[3]});
	}
	if (!Tracks.Scale.Times.empty())
	{
		const std::vector<float> V = Sample(Tracks.Scale, 3, Time, false);
		Local.Scale = {V[0], V[1], V[2]};
	}
	return Local;
}

std::vector<float> SampleMorph(const FModelNodeTracks& Tracks, std::size_t Targets, double Time)
{
	const FModelTrack& Track = Tracks.Morph;
	const std::size_t Rows = Track.Times.size() * (Track.Curve == EModelCurve::Cubic ? 3 : 1);
	if (Rows == 0 || Track.Values.size() != Rows * Targets)
	{
		return {};
	}
	return Sample(Track, Targets, Time, false);
}

} // namespace Zef::Peer
