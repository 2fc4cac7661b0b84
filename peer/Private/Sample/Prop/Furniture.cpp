// SPDX-License-Identifier: MIT
#include "Sample/Prop/Pieces.h"

#include "Math/Rotation.h"
#include "Mesh/Shapes.h"

namespace Zef::Peer
{

namespace
{

constexpr FVec3 OnTable = {TablePlace.X + 5, TablePlace.Y - 7, 54};

FTriangleMesh MakeBox(const FVec3& Center, const FVec3& HalfSize, float Degrees)
{
	FTriangleMesh Box;
	const FVec4 Turn = AxisAngle({0, 0, 1}, Degrees);
	for (int Axis = 0; Axis < 3; ++Axis)
	{
		for (const float Sign : {-1.0f, 1.0f})
		{
			const auto Part = [&](int A, float Value) {
				return A == 0 ? FVec3{Value, 0, 0} : (A == 1 ? FVec3{0, Value, 0} : FVec3{0, 0, Value});
			};
			const FVec3 Normal = Part(Axis, Sign);
			const FVec3 Right = Part((Axis + 1) % 3, Sign);
			// Right, down and out as a picture on this side needs them.
			const FVec3 Down = Cross(Normal, Right);
			const auto First = static_cast<std::uint32_t>(Box.Positions.size());
			for (const FVec2& Corner : {FVec2{-1, -1}, FVec2{-1, 1}, FVec2{1, 1}, FVec2{1, -1}})
			{
				const FVec3 P = (Normal + Right * Corner.X + Down * Corner.Y) * HalfSize;
				Box.Add(
					Center + Rotate(Turn, P), Rotate(Turn, Normal), {0.5f + 0.5f * Corner.X, 0.5f + 0.5f * Corner.Y});
			}
			Box.AddQuad(First, First + 1, First + 2, First + 3);
		}
	}
	return Box;
}

} // namespace

void MakeTable(FTriangleMesh& Top, FTriangleMesh& Frame)
{
	Top = Lathe(TablePlace,
		{{0, 54}, {18.6f, 54}, {19.2f, 53.8f}, {19.5f, 53.2f}, {19.2f, 52.5f}, {18.6f, 52.2f}, {0, 52.2f}}, 72);
	for (int L = 0; L < 3; ++L)
	{
		const FVec3 Out = Rotate(AxisAngle({0, 0, 1}, 120 * static_cast<float>(L) + 20), {1, 0, 0});
		const std::vector<FVec3> Leg =
			Smoothed({TablePlace + Out * 13 + FVec3{0, 0, 52.2f}, TablePlace + Out * 5 + FVec3{0, 0, 28},
						 TablePlace + Out * 15 + FVec3{0, 0, 0.6f}},
				10);
		Frame.Append(Tube(Leg, std::vector<float>(Leg.size(), 0.75f), 10));
	}
	std::vector<FVec3> Ring;
	for (int I = 0; I < 40; ++I)
	{
		const float Angle = 2 * Pi * static_cast<float>(I) / 40;
		Ring.push_back(TablePlace + FVec3{5.4f * std::cos(Angle), 5.4f * std::sin(Angle), 28});
	}
	Frame.Append(Tube(Ring, std::vector<float>(Ring.size(), 0.5f), 8, true));
}

FTriangleMesh MakeBook()
{
	return MakeBox(OnTable + FVec3{0, 0, 1.4f}, {8.2f, 5.6f, 1.4f}, 24);
}

FTriangleMesh MakePapers()
{
	return MakeBox(OnTable + FVec3{0, 0, 3.6f}, {7.0f, 4.9f, 0.8f}, 8);
}

FTriangleMesh MakeVase()
{
	const FVec3 Foot = TablePlace + FVec3{-3, 3, 54};
	return Lathe(Foot,
		{{3.3f, 21}, {3.0f, 18.5f}, {2.5f, 16}, {2.9f, 13.5f}, {4.9f, 10}, {5.9f, 6.5f}, {5.3f, 2.8f}, {3.6f, 0.5f},
			{3.2f, 0}, {0, 0}},
		48);
}

void MakeLamp(FTriangleMesh& Metal, FTriangleMesh& Globe, FTriangleMesh& Base)
{
	Base = Lathe(LampPlace, {{0, 5}, {12.5f, 5}, {13.4f, 4.7f}, {13.8f, 4}, {13.8f, 0.6f}, {13.2f, 0}, {0, 0}}, 64);
	const std::vector<FVec3> Pole =
		Smoothed({LampPlace + FVec3{0, 0, 5}, LampPlace + FVec3{0, 0, 90}, LampPlace + FVec3{1, -1, 148},
					 LampPlace + FVec3{8, -6, 172}, LampPlace + FVec3{20, -14, 174}, LampPlace + FVec3{24, -17, 168}},
			8);
	Metal.Append(Tube(Pole, std::vector<float>(Pole.size(), 0.85f), 12));
	const FVec3 Hanging = Pole.back() - FVec3{0, 0, 14.5f};
	Metal.Append(Lathe(Hanging, {{0, 15}, {2.2f, 14.8f}, {3.6f, 13.2f}, {4.2f, 11}, {4.2f, 10.4f}}, 32));
	Globe = Ball(Hanging, {12, 12, 12}, 48, 32);
}

} // namespace Zef::Peer
