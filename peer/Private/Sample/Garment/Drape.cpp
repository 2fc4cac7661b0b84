// SPDX-License-Identifier: MIT
#include "Sample/Garment/Drape.h"

#include "Sample/Garment/Bodice.h"

namespace Zef::Peer
{

namespace
{

constexpr int SkirtColumns = 192, SkirtRows = 45;
constexpr float SkirtLength = 66;
constexpr int CapeletColumns = 112, CapeletRows = 26;
constexpr float CapeletLength = 31;

std::vector<float> RowRadii(float Inner, float ClothLength, int Rows)
{
	std::vector<float> Radii;
	for (int R = 0; R < Rows; ++R)
	{
		Radii.push_back(Inner + ClothLength * static_cast<float>(R) / static_cast<float>(Rows - 1));
	}
	return Radii;
}

float LengthAround(const std::vector<FVec3>& Points, bool bClosed)
{
	float Sum = 0;
	for (std::size_t I = 0; I + (bClosed ? 0 : 1) < Points.size(); ++I)
	{
		Sum += Distance(Points[I], Points[(I + 1) % Points.size()]);
	}
	return Sum;
}

FHangingCloth Sewn(FCloth Cloth, std::vector<FVec3> Seam, const FFigure& Figure)
{
	FHangingCloth Hanging{std::move(Cloth), std::move(Seam), {}};
	for (std::size_t C = 0; C < Hanging.SeamPlaces.size(); ++C)
	{
		Hanging.SeamWeights.AddVertex(WeightsAt(Figure.Skeleton, Hanging.SeamPlaces[C]));
		Hanging.Cloth.bFree[C] = 0;
	}
	return Hanging;
}

} // namespace

FHangingCloth MakeSkirtCloth(const FFigure& Figure)
{
	FClothNature Nature;
	Nature.Bend = 0.07f;
	Nature.Thickness = 0.35f;
	FCloth Cloth(SkirtColumns, SkirtRows, true, Nature);
	const FFieldPtr Bodice = MakeBodiceSolid();
	std::vector<FVec3> Seam = MakeWaistLine(*Bodice, SkirtColumns, 0.25f);
	Seam.resize(SkirtColumns, Seam.back());

	// Part of a circle: the waist is the inner edge, and what the circle widens by makes the folds.
	constexpr float PartOfCircle = 0.84f;
	const float Angle = 2 * Pi * PartOfCircle / SkirtColumns;
	const float Inner = LengthAround(Seam, true) / (2 * Pi * PartOfCircle);
	Cloth.SetPattern(RowRadii(Inner, SkirtLength, SkirtRows), Angle);

	FHangingCloth Hanging = Sewn(std::move(Cloth), Seam, Figure);
	const std::vector<FVec3> Top = SeamAt(Hanging, Figure, Figure.StandingPlaces);
	FVec3 Middle;
	for (const FVec3& P : Top)
	{
		Middle += P * (1.0f / SkirtColumns);
	}
	for (int R = 0; R < SkirtRows; ++R)
	{
		const float T = static_cast<float>(R) / (SkirtRows - 1);
		for (int C = 0; C < SkirtColumns; ++C)
		{
			// A cone over the hips with uneven waves, which decide where the folds will be.
			const float Around = 2 * Pi * static_cast<float>(C) / SkirtColumns;
			const float Wave =
				std::sin(11 * Around + 0.9f * std::sin(3 * Around) + 0.4f) + 0.35f * std::sin(17 * Around + 2);
			const FVec3 P = Top[static_cast<std::size_t>(C)];
			const FVec3 Out = Normalized(FVec3{P.X - Middle.X, P.Y - Middle.Y, 0}, {1, 0, 0});
			const float Away = 9.0f * SmoothStep(0, 0.3f, T) + 11.0f * T + 3.2f * Wave * SmoothStep(0.05f, 0.8f, T);
			Hanging.Cloth.Positions[Hanging.Cloth.At(C, R)] = P + Out * Away - FVec3{0, 0, SkirtLength * 0.93f * T};
		}
	}
	return Hanging;
}

FHangingCloth MakeCapeletCloth(const FFigure& Figure)
{
	FClothNature Nature;
	Nature.Bend = 0.03f;
	Nature.Thickness = 0.7f;
	Nature.Drag = 1.4f;
	FCloth Cloth(CapeletColumns, CapeletRows, false, Nature);

	// Around the root of the neck, open in front.
	const FFieldPtr Bodice = MakeBodiceSolid();
	std::vector<FVec3> Seam;
	constexpr float HalfGap = 16 * DegreesToRadians;
	for (int C = 0; C < CapeletColumns; ++C)
	{
		const float T = static_cast<float>(C) / (CapeletColumns - 1);
		const float Angle = -HalfGap - T * (2 * Pi - 2 * HalfGap);
		constexpr float Radius = 7.8f;
		Seam.push_back(
			{-2.6f + Radius * 0.95f * std::cos(Angle), Radius * std::sin(Angle), 146.4f - 2.6f * std::cos(Angle)});
	}
	// Where neck and shoulder meet, the projection jumps: smoothing spans the notch.
	for (int Pass = 0; Pass < 40; ++Pass)
	{
		const std::vector<FVec3> Old = Seam;
		for (std::size_t C = 1; C + 1 < Seam.size(); ++C)
		{
			Seam[C] = Old[C] * 0.5f + (Old[C - 1] + Old[C + 1]) * 0.25f;
		}
		if (Pass % 8 == 0)
		{
			for (FVec3& P : Seam)
			{
				P = ProjectOnto(*Bodice, P, 4);
				P += Normalized(GradientOf(*Bodice, P)) * 0.5f;
			}
		}
	}
	const float Length = LengthAround(Seam, false);
	constexpr float PartOfCircle = 0.80f;
	const float Inner = Length / (2 * Pi * PartOfCircle);
	Cloth.SetPattern(RowRadii(Inner, CapeletLength, CapeletRows), 2 * Pi * PartOfCircle / (CapeletColumns - 1));

	FHangingCloth Hanging = Sewn(std::move(Cloth), Seam, Figure);
	const std::vector<FVec3> Top = SeamAt(Hanging, Figure, Figure.StandingPlaces);
	for (int R = 0; R < CapeletRows; ++R)
	{
		const float Way = CapeletLength * static_cast<float>(R) / (CapeletRows - 1);
		for (int C = 0; C < CapeletColumns; ++C)
		{
			const FVec3 P = Top[static_cast<std::size_t>(C)];
			const FVec3 Out = Normalized(FVec3{P.X + 2.6f, P.Y, 0}, {1, 0, 0});
			// Out over shoulders and bust, then down.
			const float Ledge = Lerp(13.0f, 23.0f, Out.Y * Out.Y);
			const float Away = std::min(Way, Ledge) * 0.98f;
			const float Down = 0.06f * Away + std::max(Way - Ledge, 0.0f) * 0.95f;
			Hanging.Cloth.Positions[Hanging.Cloth.At(C, R)] = P + Out * Away - FVec3{0, 0, Down};
		}
	}
	return Hanging;
}

std::vector<FVec3> SeamAt(const FHangingCloth& Hanging, const FFigure& Figure, const std::vector<FRigid>& Places)
{
	FTriangleMesh Row;
	for (const FVec3& P : Hanging.SeamPlaces)
	{
		Row.Add(P);
	}
	PoseMesh(Row, Hanging.SeamWeights, Figure, Places);
	return Row.Positions;
}

void HoldSeam(FHangingCloth& Hanging, const std::vector<FVec3>& From, const std::vector<FVec3>& To, float Weight)
{
	for (std::size_t C = 0; C < From.size(); ++C)
	{
		Hanging.Cloth.Positions[C] = Lerp(From[C], To[C], Weight);
	}
}

void BlendSeamFrom(FHangingCloth& Hanging, const std::vector<FVec3>& From, float Weight)
{
	for (std::size_t C = 0; C < From.size(); ++C)
	{
		Hanging.Cloth.Positions[C] = Lerp(From[C], Hanging.Cloth.Positions[C], Weight);
	}
}

void Settle(FHangingCloth& Hanging, const FFigure& Figure, FBodyCollider& Body, int Frames)
{
	const FColliderPose Standing = Body.PoseAt(Figure, Figure.StandingPlaces);
	Body.SetPose(Standing, Standing, 0);
	Body.SetPose(Standing, Standing, 0);
	Body.Sort();
	const std::vector<FVec3> Seam = SeamAt(Hanging, Figure, Figure.StandingPlaces);
	HoldSeam(Hanging, Seam, Seam, 0);
	for (int F = 0; F < Frames; ++F)
	{
		if (F % 2 == 0)
		{
			Hanging.Cloth.FindContacts(Body);
		}
		for (int S = 0; S < StepsPerFrame; ++S)
		{
			Hanging.Cloth.Step(Body, StepSeconds, {});
		}
	}
}

} // namespace Zef::Peer
