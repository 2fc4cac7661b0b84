// SPDX-License-Identifier: MIT
#include "Implicit/Field.h"

namespace Zef::Peer
{

FVec3 GradientOf(const IField& Field, const FVec3& P, float Step)
{
	const float A = Field.At(P + FVec3{Step, -Step, -Step});
	const float B = Field.At(P + FVec3{-Step, -Step, Step});
	const float C = Field.At(P + FVec3{-Step, Step, -Step});
	const float D = Field.At(P + FVec3{Step, Step, Step});
	return FVec3{A - B - C + D, -A - B + C + D, -A + B - C + D} * (0.25f / Step);
}

FVec3 ProjectOnto(const IField& Field, FVec3 P, int Steps)
{
	for (int Step = 0; Step < Steps; ++Step)
	{
		const FVec3 G = GradientOf(Field, P);
		const float Squared = Dot(G, G);
		if (Squared < 1e-6f)
		{
			break;
		}
		P -= G * (Field.At(P) / Squared);
	}
	return P;
}

FVec3 CastOnto(const IField& Field, const FVec3& From, const FVec3& Direction, float MaxDistance)
{
	// The functions may grow somewhat faster than distance does, so the march takes shortened steps.
	constexpr float Caution = 0.7f;
	constexpr int MostSteps = 200;
	constexpr float Near = 1e-3f;
	float T = 0;
	for (int Step = 0; Step < MostSteps && T < MaxDistance; ++Step)
	{
		const FVec3 P = From + Direction * T;
		const float Value = Field.At(P);
		if (Value < Near)
		{
			return P;
		}
		T += Value * Caution;
	}
	return From;
}

void FBlend::Join(FFieldPtr Part, float BlendWidth)
{
	const FBox Box = Part->Bounds();
	// Blending swells the joint by at most a quarter of its width.
	Whole.Add(Box.Grown(BlendWidth * 0.25f));
	Parts.push_back({std::move(Part), Box, BlendWidth, EOperation::Join});
}

void FBlend::Cut(FFieldPtr Part, float BlendWidth)
{
	const FBox Box = Part->Bounds();
	Parts.push_back({std::move(Part), Box, BlendWidth, EOperation::Cut});
}

void FBlend::Keep(FFieldPtr Part, float BlendWidth)
{
	const FBox Box = Part->Bounds();
	Parts.push_back({std::move(Part), Box, BlendWidth, EOperation::Keep});
}

float FBlend::At(const FVec3& Point) const
{
	const FVec3 P = bMirrored ? FVec3{Point.X, std::fabs(Point.Y), Point.Z} : Point;
	float Value = 1e30f;
	for (const FPart& Part : Parts)
	{
		const float AtLeast = Part.Operation == EOperation::Keep ? 0.0f : Part.Box.DistanceTo(P);
		switch (Part.Operation)
		{
			case EOperation::Join:
				if (AtLeast <= Value + Part.Width)
				{
					Value = Value > 1e29f ? Part.Field->At(P) : SmoothMin(Value, Part.Field->At(P), Part.Width);
				}
				break;
			case EOperation::Cut:
				if (AtLeast <= Part.Width - Value)
				{
					Value = SmoothMax(Value, -Part.Field->At(P), Part.Width);
				}
				break;
			case EOperation::Keep:
				Value = SmoothMax(Value, Part.Field->At(P), Part.Width);
				break;
		}
	}
	return Value;
}

FBox FBlend::Bounds() const
{
	FBox Box = Whole;
	if (bMirrored)
	{
		Box.Min.Y = std::min(Box.Min.Y, -Box.Max.Y);
		Box.Max.Y = std::max(Box.Max.Y, -Box.Min.Y);
	}
	return Box;
}

} // namespace Zef::Peer
