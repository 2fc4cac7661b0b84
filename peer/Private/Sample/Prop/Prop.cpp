// SPDX-License-Identifier: MIT
#include "Sample/Prop/Prop.h"

#include "Implicit/Polygonize.h"
#include "Implicit/Solids.h"
#include "Mesh/Shapes.h"
#include "Sample/Prop/PropMaterials.h"
#include "Texture/Image.h"

namespace Zef::Peer
{

namespace
{

constexpr int FirstKey = 300;
constexpr int Translucent = 1;
// On the floor around the figure, who looks along +X: lamp and pouf to her left, table and plant to her right.
constexpr FVec3 PoufPlace{-14, -66, 0};
constexpr FVec3 LampPlace{-44, -58, 0};
constexpr FVec3 TablePlace{-14, 59, 0};
constexpr FVec3 PlantPlace{-50, 72, 0};

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

FTriangleMesh MakePouf()
{
	// A round body with knitted bulges between its seams.
	constexpr int Columns = 96, Rows = 28;
	return Sheet(Columns, Rows,
		[](float U, float V)
		{
			const float Around = -2 * Pi * U, Down = Pi * (0.02f + 0.96f * V);
			const float Bulge = 1 + 0.018f * std::cos(12 * Around);
			const float Round = std::pow(std::sin(Down), 0.55f) * 29.0f * Bulge;
			const float Height =
				18.5f + 18.5f * std::copysign(std::pow(std::fabs(std::cos(Down)), 0.75f), std::cos(Down));
			return PoufPlace + FVec3{Round * std::cos(Around), Round * std::sin(Around), Height};
		});
}

FTriangleMesh MakeSheepskin()
{
	// Lies over the pouf and hangs down a little on one side; the edge is uneven.
	constexpr int Columns = 72, Rows = 14;
	return Sheet(Columns, Rows,
		[](float U, float V)
		{
			const float Around = -2 * Pi * U;
			const float Edge =
				21 + 2.2f * std::sin(3 * Around + 0.5f) + 1.3f * std::sin(7 * Around) + 4 * std::cos(Around);
			const float Way = Edge * std::max(V, 0.001f);
			const float Over = std::max(Way - 17.0f, 0.0f);
			const float Radius = Way - 0.45f * Over;
			const float Rough = 0.9f * Noise3({U * 40, V * 12, 3}, 91) * SmoothStep(1.0f, 0.85f, V);
			return PoufPlace + FVec3{Radius * std::cos(Around) + 1, Radius * std::sin(Around),
								   37.6f + Rough - 0.085f * Over * Over};
		});
}

FTriangleMesh MakeCushion(FTriangleMesh* Piping)
{
	constexpr int Cells = 28;
	const FVec3 Center = PoufPlace + FVec3{-9, 0, 51.5f};
	const FVec4 Turn = Multiply(AxisAngle({0, 0, 1}, 12), AxisAngle({0, 1, 0}, -22));
	const auto Side = [&](float Sign)
	{
		return Sheet(Cells, Cells,
			[&](float U, float V)
			{
				const float X = 2 * U - 1, Y = (2 * V - 1);
				const float Puff = std::pow(std::max((1 - X * X) * (1 - Y * Y), 0.0f), 0.42f);
				const float Waist = 1 - 0.07f * (1 - X * X) * Y * Y - 0.07f * (1 - Y * Y) * X * X;
				const FVec3 P{Sign * 6.2f * Puff, -Sign * 17 * X * Waist, -17 * Y * Waist};
				return Center + Rotate(Turn, P);
			});
	};
	FTriangleMesh Cushion = Side(1);
	Cushion.Append(Side(-1));
	std::vector<FVec3> Edge;
	for (int I = 0; I < 96; ++I)
	{
		const float T = static_cast<float>(I) / 24;
		const int Corner = static_cast<int>(T);
		const float S = 2 * (T - static_cast<float>(Corner)) - 1;
		const FVec2 Sides[] = {{S, -1}, {1, S}, {-S, 1}, {-1, -S}};
		const FVec2 At = Sides[Corner];
		const float Waist = 1 - 0.07f * (1 - S * S);
		Edge.push_back(Center + Rotate(Turn, {0, 17 * At.X * Waist, 17 * At.Y * Waist}));
	}
	*Piping = Tube(Edge, std::vector<float>(Edge.size(), 0.35f), 8, true);
	return Cushion;
}

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

FTriangleMesh MakeVase()
{
	const FVec3 Foot = TablePlace + FVec3{-3, 3, 54};
	return Lathe(Foot,
		{{3.3f, 21}, {3.0f, 18.5f}, {2.5f, 16}, {2.9f, 13.5f}, {4.9f, 10}, {5.9f, 6.5f}, {5.3f, 2.8f}, {3.6f, 0.5f},
			{3.2f, 0}, {0, 0}},
		48);
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

} // namespace

FProjectObject MakeProp()
{
	FAssembly Assembly(FirstKey);
	const FPropMaterials Materials = AddPropMaterials(Assembly);

	Assembly.AddSurface("Pouf", {{MakePouf(), Materials.Knit, {}}});
	Assembly.AddSurface("Sheepskin", {{MakeSheepskin(), Materials.Sheepskin, {}}});
	FTriangleMesh Piping;
	FTriangleMesh Cushion = MakeCushion(&Piping);
	Assembly.AddSurface(
		"Cushion", {{std::move(Cushion), Materials.Velvet, {}}, {std::move(Piping), Materials.Piping, {}}});
	FTriangleMesh LampMetal, Globe, LampBase;
	MakeLamp(LampMetal, Globe, LampBase);
	Assembly.AddSurface("Lamp", {{std::move(LampMetal), Materials.Brass, {}}, {std::move(Globe), Materials.Globe, {}},
									{std::move(LampBase), Materials.Marble, {}}});
	FTriangleMesh TableTop, TableFrame;
	MakeTable(TableTop, TableFrame);
	Assembly.AddSurface(
		"Table", {{std::move(TableTop), Materials.Marble, {}}, {std::move(TableFrame), Materials.Brass, {}}});
	const FVec3 OnTable = TablePlace + FVec3{5, -7, 54};
	Assembly.AddSurface(
		"Book", {{MakeBox(OnTable + FVec3{0, 0, 1.4f}, {8.2f, 5.6f, 1.4f}, 24), Materials.Cover, {}},
					{MakeBox(OnTable + FVec3{0, 0, 3.6f}, {7.0f, 4.9f, 0.8f}, 8), Materials.Paper, {}}});
	FTriangleMesh Stalks, Ears;
	MakeGrasses(Stalks, Ears);
	Assembly.AddSurface("Grasses", {{std::move(Stalks), Materials.Stem, {}}, {std::move(Ears), Materials.Paper, {}}});
	FTriangleMesh Leaves, Stems;
	MakePlant(Leaves, Stems);
	Assembly.AddSurface("Plant",
		{{std::move(Leaves), Materials.Leaf, {}}, {std::move(Stems), Materials.Stem, {}},
			{MakePot(), Materials.Clay, {}}, {Lathe(PlantPlace, {{0, 41.5f}, {17, 41.5f}}, 32), Materials.Soil, {}}});
	Assembly.AddSurface("Vase", {{MakeVase(), Materials.Glass, {}}}, Translucent);

	FProjectObject Prop;
	Prop.Type = EObjectType::Prop;
	Prop.Source = "sample corner of a room";
	Prop.Mesh = Assembly.Take();
	return Prop;
}

} // namespace Zef::Peer
