// SPDX-License-Identifier: MIT
#include "Sample/Outfit/Shoes.h"

#include "Implicit/Polygonize.h"
#include "Implicit/Solids.h"
#include "Mesh/Clip.h"
#include "Mesh/Shapes.h"
#include "Sample/Body/Body.h"
#include "Sample/Body/Measures.h"

namespace Zef::Peer
{

namespace
{

/** The foot in a shoe that ends in a point, larger by Leather all around. */
FFieldPtr ShoeSolid(float Leather)
{
	auto Shoe = std::make_unique<FBlend>();
	Shoe->Join(MakeFoot(), 0);
	Shoe->Join(Ellipsoid({10.4f, 8.3f, 1.9f}, {4.6f, 3.5f, 1.7f}), 1.5f);
	Shoe->Join(RoundCone({10.5f, 8.3f, 1.8f}, {18.8f, 8.3f, 1.05f}, 1.9f, 0.75f), 2.6f);
	Shoe->Join(Ellipsoid({-3.4f, 7.55f, 3.6f}, {3.0f, 2.8f, 3.6f}), 2.0f);
	Shoe->Join(MakeLeg(), 0);
	return Raised(
		std::move(Shoe), [Leather](const FVec3&) { return Leather; }, Leather);
}

/** Above 0 below the shoe's opening: high at the heel, low at the sides, closed over the toes. */
float BelowOpening(const FVec3& P)
{
	const float Edge = 3.2f + 3.0f * SmoothStep(-1.0f, -6.0f, P.X) + 10.0f * SmoothStep(7.8f, 11.5f, P.X) * 0.5f +
					   3.0f * SmoothStep(7.0f, 8.6f, P.X);
	return std::min(Edge - P.Z, P.Z + 0.3f);
}

FTriangleMesh MakeUpper(const IField& Solid)
{
	auto Part = std::make_unique<FBlend>();
	const IField* Whole = &Solid;
	Part->Join(Function([Whole](const FVec3& P) { return Whole->At(P); }, FBox{{-9, 2, -1}, {22, 14, 10}}), 0);
	Part->Keep(HalfSpace({0, 0, 8.5f}, {0, 0, 1}), 0.01f);
	Part->Keep(HalfSpace({0, 0, -0.8f}, {0, 0, -1}), 0.01f);
	FPolygonizeOptions Options;
	Options.FinestCell = 0.5f;
	Options.CellSize = [&](const FVec3&, float) { return Options.FinestCell; };
	FTriangleMesh Upper = KeepWhere(Polygonize(*Part, Options), BelowOpening);
	for (std::size_t V = 0; V < Upper.Positions.size(); ++V)
	{
		const FVec3& P = Upper.Positions[V];
		Upper.UVs[V] = {P.X * 0.1f, (P.Z + std::fabs(P.Y - 8)) * 0.1f};
	}
	return Upper;
}

FTriangleMesh MakeEdging(const FTriangleMesh& Upper)
{
	FTriangleMesh Edging;
	for (const std::vector<std::uint32_t>& Loop : OpenEdges(Upper))
	{
		std::vector<FVec3> Points;
		float Highest = 0;
		for (const std::uint32_t V : Loop)
		{
			Points.push_back(Upper.Positions[V]);
			Highest = std::max(Highest, Upper.Positions[V].Z);
		}
		if (Highest > 3)
		{
			const std::vector<FVec3> Even = EvenLoop(Points, 0.5f, 3);
			Edging.Append(Tube(Even, std::vector<float>(Even.size(), 0.14f), 6, true));
		}
	}
	return Edging;
}

FTriangleMesh MakeSole(const IField& Solid)
{
	// The outline of the shoe a little above the floor, seen from a point within, as a plate with rounded edges.
	constexpr int Around = 96;
	constexpr float Level = 0.9f;
	const FVec3 Middle{5.0f, 8.0f, Level};
	std::vector<FVec3> Outline;
	for (int I = 0; I < Around; ++I)
	{
		// Denser towards the tip and the heel, where the outline turns.
		const float Even = -2 * Pi * static_cast<float>(I) / Around;
		const FVec3 Out = Normalized(FVec3{std::cos(Even) * 2.2f, std::sin(Even), 0});
		Outline.push_back(CastOnto(Solid, Middle + Out * 16, -Out, 16));
	}
	struct FRow
	{
		float Grow, Height;
	};
	const float Bottom = -Measures::SoleHeight;
	const FRow Profile[] = {{-0.3f, 0.35f}, {0.05f, 0.2f}, {0.12f, 0.0f}, {0.12f, Bottom + 0.15f}, {0.0f, Bottom}};
	constexpr int Rows = 5;
	FTriangleMesh Sole = Sheet(Around, Rows,
		[&](float U, float V)
		{
			const int Row = static_cast<int>(V * Rows + 0.5f);
			const FVec3& P = Outline[static_cast<std::size_t>(U * Around + 0.5f) % Around];
			if (Row == Rows)
			{
				return FVec3{Middle.X, Middle.Y, Bottom};
			}
			const FVec3 Out = Normalized(FVec3{P.X - Middle.X, P.Y - Middle.Y, 0});
			const FVec3 Edge = P + Out * Profile[Row].Grow;
			return FVec3{Edge.X, Edge.Y, Profile[Row].Height};
		});
	for (std::size_t V = 0; V < Sole.Positions.size(); ++V)
	{
		Sole.UVs[V] = {Sole.Positions[V].X * 0.1f, Sole.Positions[V].Y * 0.1f};
	}
	return Sole;
}

FTriangleMesh MakeStrap(const IField& Leg)
{
	constexpr int Around = 56;
	const FVec3 Axis{-1.9f, 7.6f, 0};
	return Sheet(Around, 4,
		[&](float U, float V)
		{
			const float Angle = Pi - 2 * Pi * U;
			const FVec3 Out{std::cos(Angle), std::sin(Angle), 0};
			// Higher behind than in front.
			const float Height = 11.6f - 0.9f * std::cos(Angle) + 0.5f - V;
			const FVec3 P = CastOnto(Leg, Axis + Out * 8 + FVec3{0, 0, Height}, -Out, 8);
			return P + Out * (0.12f + 0.12f * std::sin(Pi * V));
		});
}

FTriangleMesh MakeBuckle(const IField& Leg)
{
	// On the outside of the ankle.
	const FVec3 At = CastOnto(Leg, {-1.9f, 16, 11.6f}, {0, -1, 0}, 12) + FVec3{0, 0.32f, 0};
	std::vector<FVec3> Frame;
	for (int I = 0; I < 24; ++I)
	{
		const float Angle = 2 * Pi * static_cast<float>(I) / 24;
		const float C = std::cos(Angle), S = std::sin(Angle);
		// A square with round corners.
		const float Scale = 0.75f / std::pow(C * C * C * C + S * S * S * S, 0.25f);
		Frame.push_back(At + FVec3{Scale * C, 0, Scale * S});
	}
	return Tube(Frame, std::vector<float>(Frame.size(), 0.11f), 6, true);
}

FTriangleMesh BothFeet(FTriangleMesh Right)
{
	const FTriangleMesh Left = Mirrored(Right);
	Right.Append(Left);
	return Right;
}

} // namespace

FShoes MakeShoes()
{
	const FFieldPtr Solid = ShoeSolid(0.2f);
	const FFieldPtr Leg = MakeLeg();
	const FTriangleMesh Upper = MakeUpper(*Solid);
	FShoes Shoes;
	Shoes.Uppers = BothFeet(Upper);
	Shoes.Edging = BothFeet(MakeEdging(Upper));
	Shoes.Soles = BothFeet(MakeSole(*Solid));
	Shoes.Straps = BothFeet(MakeStrap(*Leg));
	Shoes.Buckles = BothFeet(MakeBuckle(*Leg));
	return Shoes;
}

} // namespace Zef::Peer
