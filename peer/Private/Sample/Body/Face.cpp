// SPDX-License-Identifier: MIT
#include "Sample/Body/Face.h"

#include "Sample/Body/Measures.h"

namespace Zef::Peer::Face
{

namespace
{

constexpr float MouthCorner = -5.5f;

/** Hump of height 1 over 0..1, level at both ends. */
float Hump(float S)
{
	if (S <= 0 || S >= 1)
	{
		return 0;
	}
	return 0.5f - 0.5f * std::cos(2 * Pi * std::pow(S, 0.8f));
}

float Bell(float X, float Width)
{
	return std::exp(-(X * X) / (Width * Width));
}

float LipRelief(const FVec3& Q)
{
	const float T = Q.Y / MouthHalfWidth;
	if (T > 1.25f || Q.Z > -4.0f || Q.Z < -7.6f || Q.X < 4)
	{
		return 0;
	}
	const float Inside = T < 1 ? 1 - T * T : 0;
	const float Line = LipLine(std::min(T, 1.0f));
	float Height = 0;
	if (Inside > 0)
	{
		const float Upper = (Q.Z - Line) / (UpperLipEdge(T) - Line);
		const float Lower = (Line - Q.Z) / (Line - LowerLipEdge(T));
		Height += 0.24f * std::sqrt(Inside) * Hump(Upper * 0.92f + 0.06f);
		Height += 0.32f * std::sqrt(Inside) * Hump(Lower * 0.88f + 0.06f);
	}
	Height -= 0.06f * Bell(Q.Z - Line, 0.22f) * SmoothStep(1.12f, 0.8f, T);
	// The corner lies in a small hollow.
	Height -= 0.10f * Bell(Q.Z - MouthCorner, 0.35f) * Bell(Q.Y - MouthHalfWidth - 0.1f, 0.3f);
	// Groove between nose and lip.
	Height -= 0.10f * Bell(Q.Y, 0.28f) * SmoothStep(-4.9f, -4.6f, Q.Z) * SmoothStep(-3.4f, -3.8f, Q.Z);
	return Height;
}

float EyeRelief(const FVec3& P)
{
	const FVec3 Q = P - Measures::Eye;
	if (Q.X < 0 || std::fabs(Q.Y) > 2.4f || std::fabs(Q.Z) > 2.0f)
	{
		return 0;
	}
	const float T = Q.Y / EyeHalfWidth;
	const float Upper = UpperLid(Clamp(T, -1, 1)), Lower = LowerLid(Clamp(T, -1, 1));
	// Negative inside the opening.
	const float Beside = std::max(std::fabs(Q.Y) - EyeHalfWidth, 0.0f);
	const float Across = std::max(std::max(Q.Z - Upper, Lower - Q.Z), 0.8f * Beside);
	float Height = -0.36f * SmoothStep(0.14f, -0.16f, Across);
	// The rim stands up a little around the opening, the crease runs above the upper lid.
	Height += 0.04f * Bell(Across - 0.2f, 0.14f) * SmoothStep(1.4f, 1.0f, std::fabs(T));
	const float Crease = Upper + 0.42f - 0.06f * T;
	Height -= 0.10f * Bell(Q.Z - Crease, 0.14f) * SmoothStep(1.35f, 0.7f, std::fabs(T));
	return Height;
}

} // namespace

float UpperLipEdge(float T)
{
	// The bow: a small dip in the middle, its tops at a quarter of the way.
	const float Bow = -4.93f - 0.13f * Bell(T, 0.14f);
	return Lerp(Bow, MouthCorner, std::pow(SmoothStep(0.12f, 1.02f, T), 0.9f));
}

float LipLine(float T)
{
	return Lerp(-5.66f - 0.05f * Bell(T, 0.25f), MouthCorner, SmoothStep(0.3f, 1.0f, T));
}

float LowerLipEdge(float T)
{
	return Lerp(-6.52f, MouthCorner, T * T * (0.55f + 0.45f * T * T));
}

float UpperLid(float T)
{
	// Highest a little towards the nose; the outer corner lies higher than the inner one.
	const float Arc = 1 - T * T;
	return 0.10f * T + 0.50f * std::pow(std::max(Arc, 0.0f), 0.72f) * (1 - 0.10f * T);
}

float LowerLid(float T)
{
	const float Arc = 1 - T * T;
	return 0.10f * T - 0.38f * std::pow(std::max(Arc, 0.0f), 0.85f) * (1 + 0.12f * T);
}

float Relief(const FVec3& P)
{
	const FVec3 Q = P - Measures::Skull;
	if (Q.X < 3)
	{
		return 0;
	}
	return LipRelief(Q) + EyeRelief(P);
}

} // namespace Zef::Peer::Face
