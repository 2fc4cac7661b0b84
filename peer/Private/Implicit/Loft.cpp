// SPDX-License-Identifier: MIT
#include "Implicit/Loft.h"

#include <array>

namespace Zef::Peer
{

namespace
{

constexpr int ChannelCount = 7;
using FChannels = std::array<float, ChannelCount>;

FChannels ChannelsOf(const FSlice& S)
{
	return {S.CenterA, S.CenterB, S.PlusA, S.MinusA, S.PlusB, S.MinusB, S.Exponent};
}

class FLoft : public IField
{
public:
	FLoft(const FLoftFrame& Frame, const std::vector<FSlice>& Slices)
		: Frame(Frame)
	{
		const std::size_t Count = Slices.size();
		for (const FSlice& Slice : Slices)
		{
			Heights.push_back(Slice.Height);
			Values.push_back(ChannelsOf(Slice));
		}
		// Tangents by the differences to both neighbours, weighted so that uneven spacing does not overshoot.
		Tangents.resize(Count);
		for (std::size_t I = 0; I < Count; ++I)
		{
			const std::size_t Before = I == 0 ? 0 : I - 1;
			const std::size_t After = I + 1 == Count ? I : I + 1;
			for (int C = 0; C < ChannelCount; ++C)
			{
				Tangents[I][C] = TangentAt(Before, I, After, C);
			}
		}
		for (const FSlice& S : Slices)
		{
			for (const float A : {S.CenterA + S.PlusA, S.CenterA - S.MinusA})
			{
				for (const float B : {S.CenterB + S.PlusB, S.CenterB - S.MinusB})
				{
					Box.Add(Frame.ToWorld(A, B, S.Height));
				}
			}
		}
		// The curves may swing a little beyond their slices.
		Box = Box.Grown(0.5f);
	}

	float At(const FVec3& P) const override
	{
		const FVec3 Q = P - Frame.Origin;
		const float Height = Dot(Q, Frame.AxisHeight);
		const float Inside = Clamp(Height, Heights.front(), Heights.back());
		const FChannels C = Evaluate(Inside);
		const float A = Dot(Q, Frame.AxisA) - C[0];
		const float B = Dot(Q, Frame.AxisB) - C[1];
		const float RadiusA = A > 0 ? C[2] : C[3];
		const float RadiusB = B > 0 ? C[4] : C[5];
		const float Across = SliceDistance(std::fabs(A), std::fabs(B), RadiusA, RadiusB, C[6]);
		const float Beyond = std::fabs(Height - Inside);
		if (Beyond <= 0)
		{
			return Across;
		}
		return Across > 0 ? std::sqrt(Across * Across + Beyond * Beyond) : Beyond;
	}
	FBox Bounds() const override { return Box; }

private:
	float TangentAt(std::size_t Before, std::size_t I, std::size_t After, int C) const
	{
		const float Low = Heights[I] - Heights[Before];
		const float High = Heights[After] - Heights[I];
		const float SlopeLow = Low > 0 ? (Values[I][C] - Values[Before][C]) / Low : 0;
		const float SlopeHigh = High > 0 ? (Values[After][C] - Values[I][C]) / High : 0;
		if (Low <= 0 || High <= 0)
		{
			return Low > 0 ? SlopeLow : SlopeHigh;
		}
		return (SlopeLow * High + SlopeHigh * Low) / (Low + High);
	}

	FChannels Evaluate(float Height) const
	{
		std::size_t I = 0;
		while (I + 2 < Heights.size() && Height > Heights[I + 1])
		{
			++I;
		}
		const float Span = Heights[I + 1] - Heights[I];
		const float T = (Height - Heights[I]) / Span;
		const float T2 = T * T, T3 = T2 * T;
		const float H00 = 2 * T3 - 3 * T2 + 1, H10 = (T3 - 2 * T2 + T) * Span;
		const float H01 = 3 * T2 - 2 * T3, H11 = (T3 - T2) * Span;
		FChannels Result;
		for (int C = 0; C < ChannelCount; ++C)
		{
			Result[C] = H00 * Values[I][C] + H10 * Tangents[I][C] + H01 * Values[I + 1][C] + H11 * Tangents[I + 1][C];
		}
		return Result;
	}

	/** From the outline, along the ray out of the centre, shortened where the ray meets the outline aslant. */
	static float SliceDistance(float A, float B, float RadiusA, float RadiusB, float Exponent)
	{
		const float U = A / RadiusA, V = B / RadiusB;
		const float Out = std::sqrt(A * A + B * B);
		if (Out < 1e-5f)
		{
			return -std::min(RadiusA, RadiusB);
		}
		float Level, GradientA, GradientB;
		if (std::fabs(Exponent - 2) < 1e-3f)
		{
			Level = std::sqrt(U * U + V * V);
			GradientA = U / (RadiusA * Level);
			GradientB = V / (RadiusB * Level);
		}
		else
		{
			const float PowerU = std::pow(U, Exponent - 1), PowerV = std::pow(V, Exponent - 1);
			Level = std::pow(PowerU * U + PowerV * V, 1 / Exponent);
			const float Scale = std::pow(Level, 1 - Exponent);
			GradientA = PowerU * Scale / RadiusA;
			GradientB = PowerV * Scale / RadiusB;
		}
		// Level grows by 1 / (Out / Level) along the ray and by the gradient's length across the outline.
		const float AlongRay = Out - Out / Level;
		const float Slope = Level / Out / std::sqrt(GradientA * GradientA + GradientB * GradientB);
		return AlongRay * std::max(Slope, 0.5f);
	}

	FLoftFrame Frame;
	std::vector<float> Heights;
	std::vector<FChannels> Values;
	std::vector<FChannels> Tangents;
	FBox Box;
};

} // namespace

FFieldPtr Loft(const FLoftFrame& Frame, std::vector<FSlice> Slices)
{
	return std::make_unique<FLoft>(Frame, Slices);
}

} // namespace Zef::Peer
