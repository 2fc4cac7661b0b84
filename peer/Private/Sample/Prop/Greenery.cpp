// SPDX-License-Identifier: MIT
#include "Sample/Prop/Pieces.h"

#include "Math/Rotation.h"
#include "Mesh/Shapes.h"
#include "Texture/Image.h"

namespace Zef::Peer
{

namespace
{

/** A leaf from its stalk on, hanging over by its own weight; the picture's V runs from stalk to tip. */
FTriangleMesh MakeLeaf(const FVec3& Root, float Degrees, float Rise, float Long, float Wide, float Droop)
{
	const FVec3 Out = Rotate(AxisAngle({0, 0, 1}, Degrees), {1, 0, 0});
	const FVec3 Across{-Out.Y, Out.X, 0};
	return Sheet(6, 14,
		[&](float U, float V)
		{
			const float Bend = (Rise - Droop * V) * DegreesToRadians;
			const float Before = (Rise - 0.5f * Droop * V) * DegreesToRadians;
			const FVec3 Spine = Root + (Out * std::cos(Before) + FVec3{0, 0, std::sin(Before)}) * (Long * V);
			const float Half = Wide * std::pow(std::max(std::sin(Pi * std::pow(0.03f + 0.97f * V, 0.85f)), 0.0f), 0.8f);
			const float Side = 2 * U - 1;
			const FVec3 Up = FVec3{0, 0, std::cos(Bend)} - Out * std::sin(Bend);
			return Spine + Across * (Half * Side) +
				   Up * (0.22f * Half * Side * Side + 0.25f * std::sin(V * 16 + 5 * Side) * V * std::fabs(Side));
		});
}

} // namespace

void MakePlant(FTriangleMesh& Leaves, FTriangleMesh& Stems)
{
	const FVec3 Ground = PlantPlace + FVec3{0, 0, 42};
	for (int S = 0; S < 3; ++S)
	{
		const float Way = 120 * static_cast<float>(S) + 35;
		const FVec3 Lean = Rotate(AxisAngle({0, 0, 1}, Way), {1, 0, 0});
		const float Tall = 78.0f - 17.0f * static_cast<float>(S);
		const std::vector<FVec3> Path = Smoothed(
			{Ground + Lean * 3, Ground + Lean * 5 + FVec3{0, 0, Tall * 0.5f}, Ground + Lean * 11 + FVec3{0, 0, Tall}},
			8);
		std::vector<float> Radii;
		for (std::size_t I = 0; I < Path.size(); ++I)
		{
			Radii.push_back(1.1f - 0.7f * static_cast<float>(I) / static_cast<float>(Path.size()));
		}
		Stems.Append(Tube(Path, Radii, 8));
		const int Count = 9 - S;
		for (int L = 0; L < Count; ++L)
		{
			const float T = 0.28f + 0.72f * static_cast<float>(L) / static_cast<float>(Count - 1);
			const FVec3 Root = Path[static_cast<std::size_t>(T * static_cast<float>(Path.size() - 1))];
			const float Turn = 137.5f * static_cast<float>(L) + Way + 20 * Hash(L, S, 92);
			const float Size = Lerp(1.0f, 0.68f, T) * (0.9f + 0.2f * Hash(L, S, 93));
			Leaves.Append(
				MakeLeaf(Root, Turn, Lerp(18.0f, 68.0f, T * T), 30 * Size, 8.6f * Size, Lerp(75.0f, 40.0f, T)));
		}
	}
}

FTriangleMesh MakePot()
{
	return Lathe(PlantPlace,
		{{14.5f, 43}, {17.2f, 43}, {17.6f, 43}, {17.6f, 42.4f}, {17.2f, 34}, {16.2f, 22}, {14.2f, 8}, {12.8f, 1},
			{12.0f, 0}, {0, 0}},
		72);
}

FTriangleMesh MakeSoil()
{
	return Lathe(PlantPlace, {{0, 41.5f}, {17, 41.5f}}, 32);
}

void MakeGrasses(FTriangleMesh& Stalks, FTriangleMesh& Ears)
{
	const FVec3 Foot = TablePlace + FVec3{-3, 3, 55};
	for (int G = 0; G < 7; ++G)
	{
		const FVec3 Out = Rotate(AxisAngle({0, 0, 1}, 51.4f * static_cast<float>(G) + 15), {1, 0, 0});
		const float Wide = 6 + 7 * Hash(G, 0, 94), Tall = 38 + 12 * Hash(G, 1, 94);
		const std::vector<FVec3> Path =
			Smoothed({Foot + Out * -1.5f, Foot + Out * 1.2f + FVec3{0, 0, 16},
						 Foot + Out * (0.5f * Wide) + FVec3{0, 0, Tall * 0.75f}, Foot + Out * Wide + FVec3{0, 0, Tall}},
				8);
		Stalks.Append(Tube(Path, std::vector<float>(Path.size(), 0.12f), 5));
		const FVec3 Tip = Path.back(), Way = Normalized(Tip - Path[Path.size() - 4]);
		const std::vector<FVec3> Ear =
			Smoothed({Tip, Tip + Way * 3.5f + FVec3{0, 0, -0.2f}, Tip + Way * 7 + FVec3{0, 0, -1.4f}}, 6);
		std::vector<float> Radii;
		for (std::size_t I = 0; I < Ear.size(); ++I)
		{
			Radii.push_back(
				0.12f + 0.95f * std::sin(0.999f * Pi *
										 std::pow(static_cast<float>(I) / static_cast<float>(Ear.size() - 1), 0.7f)));
		}
		Ears.Append(Tube(Ear, Radii, 8));
	}
}

} // namespace Zef::Peer
