// SPDX-License-Identifier: MIT
#include "Sample/Prop/Pieces.h"

#include "Math/Rotation.h"
#include "Mesh/Shapes.h"
#include "Texture/Image.h"

namespace Zef::Peer
{

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

FTriangleMesh MakeCushion(FTriangleMesh& Piping)
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
	Piping = Tube(Edge, std::vector<float>(Edge.size(), 0.35f), 8, true);
	return Cushion;
}

} // namespace Zef::Peer
