// SPDX-License-Identifier: MIT
/** Solids given by a function: negative inside, positive outside, near its zero about the distance in centimetres. */
#pragma once

#include <memory>
#include <vector>

#include "Math/Box.h"

namespace Zef::Peer
{

class IField
{
public:
	virtual ~IField() = default;

	virtual float At(const FVec3& P) const = 0;

	/** A box that holds everything inside. */
	virtual FBox Bounds() const = 0;
};

using FFieldPtr = std::unique_ptr<IField>;

/** Direction of steepest growth, by four samples at the corners of a tetrahedron; length about 1. */
FVec3 GradientOf(const IField& Field, const FVec3& P, float Step = 0.02f);

/** P moved to the zero of the field along its gradient, `Steps` times. */
FVec3 ProjectOnto(const IField& Field, FVec3 P, int Steps = 3);

/** Where the straight line from `From` (outside) along a unit direction enters the solid; `From` when it does not. */
FVec3 CastOnto(const IField& Field, const FVec3& From, const FVec3& Direction, float MaxDistance);

/** Minimum of A and B, rounded over where they differ by less than K. Exactly the smaller one elsewhere. */
inline float SmoothMin(float A, float B, float K)
{
	const float D = std::fabs(A - B);
	const float Smaller = A < B ? A : B;
	if (D >= K)
	{
		return Smaller;
	}
	const float H = (K - D) / K;
	return Smaller - H * H * K * 0.25f;
}
inline float SmoothMax(float A, float B, float K)
{
	return -SmoothMin(-A, -B, K);
}

/**
 * Parts joined one after the other, each with its own width of blending. A part too far away to matter at a point is
 * not evaluated, which changes nothing in the result.
 */
class FBlend : public IField
{
public:
	/** With bMirrored the parts stand for both sides of the plane y = 0; they are given at y >= 0. */
	explicit FBlend(bool bMirrored = false)
		: bMirrored(bMirrored)
	{
	}

	void Join(FFieldPtr Part, float BlendWidth);
	void Cut(FFieldPtr Part, float BlendWidth);
	/** Leaves only what is inside the part as well. */
	void Keep(FFieldPtr Part, float BlendWidth);

	float At(const FVec3& P) const override;
	FBox Bounds() const override;

private:
	enum class EOperation
	{
		Join,
		Cut,
		Keep
	};
	struct FPart
	{
		FFieldPtr Field;
		FBox Box;
		float Width;
		EOperation Operation;
	};
	std::vector<FPart> Parts;
	FBox Whole;
	bool bMirrored;
};

} // namespace Zef::Peer
