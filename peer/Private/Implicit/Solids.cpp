// SPDX-License-Identifier: MIT
// The distances of the round cone and of the ellipsoid (an approximation) follow Inigo Quilez's published formulas.
#include "Implicit/Solids.h"

namespace Zef::Peer
{

namespace
{

class FRoundCone : public IField
{
public:
	FRoundCone(const FVec3& A, const FVec3& B, float RadiusA, float RadiusB)
		: A(A)
		, Axis(B - A)
		, RadiusA(RadiusA)
		, RadiusB(RadiusB)
	{
		Squared = Dot(Axis, Axis);
		Slope = RadiusA - RadiusB;
		Flank = Squared - Slope * Slope;
		Box.Add(FBox{A, A}.Grown(RadiusA));
		Box.Add(FBox{B, B}.Grown(RadiusB));
	}

	float At(const FVec3& P) const override
	{
		const FVec3 Q = P - A;
		const float Y = Dot(Q, Axis);
		const float Z = Y - Squared;
		const FVec3 Side = Q * Squared - Axis * Y;
		const float X2 = Dot(Side, Side);
		const float Y2 = Y * Y * Squared;
		const float Z2 = Z * Z * Squared;
		const float K = (Slope < 0 ? -1.0f : 1.0f) * Slope * Slope * X2;
		if ((Z < 0 ? -1.0f : 1.0f) * Flank * Z2 > K)
		{
			return std::sqrt(X2 + Z2) / Squared - RadiusB;
		}
		if ((Y < 0 ? -1.0f : 1.0f) * Flank * Y2 < K)
		{
			return std::sqrt(X2 + Y2) / Squared - RadiusA;
		}
		return (std::sqrt(X2 * Flank / Squared) + Y * Slope) / Squared - RadiusA;
	}
	FBox Bounds() const override { return Box; }

private:
	FVec3 A, Axis;
	float RadiusA, RadiusB, Squared, Slope, Flank;
	FBox Box;
};

/** A solid in a frame of its own. */
class FPlaced : public IField
{
public:
	FPlaced(const FVec3& Center, const FVec4& Turn, float Reach)
		: Frame{Turn, Center}
		, Box(FBox{Center, Center}.Grown(Reach))
	{
	}
	float At(const FVec3& P) const override { return Local(Frame.ApplyInverse(P)); }
	FBox Bounds() const override { return Box; }

protected:
	virtual float Local(const FVec3& P) const = 0;

private:
	FRigid Frame;
	FBox Box;
};

class FEllipsoid : public FPlaced
{
public:
	FEllipsoid(const FVec3& Center, const FVec3& Radii, const FVec4& Turn)
		: FPlaced(Center, Turn, std::max({Radii.X, Radii.Y, Radii.Z}))
		, Inverse{1 / Radii.X, 1 / Radii.Y, 1 / Radii.Z}
		, Smallest(std::min({Radii.X, Radii.Y, Radii.Z}))
	{
	}

protected:
	float Local(const FVec3& P) const override
	{
		const FVec3 Q = P * Inverse;
		const float K0 = Length(Q);
		const float K1 = Length(Q * Inverse);
		return K1 < 1e-6f ? -Smallest : K0 * (K0 - 1) / K1;
	}

private:
	FVec3 Inverse;
	float Smallest;
};

class FRoundBox : public FPlaced
{
public:
	FRoundBox(const FVec3& Center, const FVec3& HalfSize, float Rounding, const FVec4& Turn)
		: FPlaced(Center, Turn, Length(HalfSize))
		, Core(HalfSize - FVec3{Rounding, Rounding, Rounding})
		, Rounding(Rounding)
	{
	}

protected:
	float Local(const FVec3& P) const override
	{
		const FVec3 Q{std::fabs(P.X) - Core.X, std::fabs(P.Y) - Core.Y, std::fabs(P.Z) - Core.Z};
		const FVec3 Outside{std::max(Q.X, 0.0f), std::max(Q.Y, 0.0f), std::max(Q.Z, 0.0f)};
		return Length(Outside) + std::min(std::max({Q.X, Q.Y, Q.Z}), 0.0f) - Rounding;
	}

private:
	FVec3 Core;
	float Rounding;
};

class FTorus : public FPlaced
{
public:
	FTorus(const FVec3& Center, float RingRadius, float TubeRadius, const FVec4& Turn)
		: FPlaced(Center, Turn, RingRadius + TubeRadius)
		, Ring(RingRadius)
		, Tube(TubeRadius)
	{
	}

protected:
	float Local(const FVec3& P) const override
	{
		const float Radial = std::sqrt(P.X * P.X + P.Y * P.Y) - Ring;
		return std::sqrt(Radial * Radial + P.Z * P.Z) - Tube;
	}

private:
	float Ring, Tube;
};

constexpr float Everywhere = 1e6f;

class FFunction : public IField
{
public:
	FFunction(std::function<float(const FVec3&)> Value, const FBox& Box)
		: Value(std::move(Value))
		, Box(Box)
	{
	}
	float At(const FVec3& P) const override { return Value(P); }
	FBox Bounds() const override { return Box; }

private:
	std::function<float(const FVec3&)> Value;
	FBox Box;
};

} // namespace

FFieldPtr RoundCone(const FVec3& A, const FVec3& B, float RadiusA, float RadiusB)
{
	return std::make_unique<FRoundCone>(A, B, RadiusA, RadiusB);
}

FFieldPtr Ellipsoid(const FVec3& Center, const FVec3& Radii, const FVec4& Turn)
{
	return std::make_unique<FEllipsoid>(Center, Radii, Turn);
}

FFieldPtr RoundBox(const FVec3& Center, const FVec3& HalfSize, float Rounding, const FVec4& Turn)
{
	return std::make_unique<FRoundBox>(Center, HalfSize, Rounding, Turn);
}

FFieldPtr Torus(const FVec3& Center, float RingRadius, float TubeRadius, const FVec4& Turn)
{
	return std::make_unique<FTorus>(Center, RingRadius, TubeRadius, Turn);
}

FFieldPtr HalfSpace(const FVec3& Point, const FVec3& Normal)
{
	return Function([Point, Normal](const FVec3& P) { return Dot(P - Point, Normal); },
		FBox{{-Everywhere, -Everywhere, -Everywhere}, {Everywhere, Everywhere, Everywhere}});
}

FFieldPtr Raised(FFieldPtr Solid, std::function<float(const FVec3&)> Height, float Highest)
{
	const FBox Box = Solid->Bounds().Grown(Highest);
	// A function object is copied, a solid is not.
	const std::shared_ptr<const IField> Shared = std::move(Solid);
	const FBox Far = Box.Grown(1.0f);
	return Function(
		[Shared, Far, Height = std::move(Height)](const FVec3& P)
		{
			const float Value = Shared->At(P);
			return Far.Contains(P) ? Value - Height(P) : Value;
		},
		Box);
}

FFieldPtr Function(std::function<float(const FVec3&)> Value, const FBox& Box)
{
	return std::make_unique<FFunction>(std::move(Value), Box);
}

} // namespace Zef::Peer
