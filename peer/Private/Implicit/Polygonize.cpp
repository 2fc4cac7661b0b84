// SPDX-License-Identifier: MIT
// The walk over cells, faces and edges is that of Ju, Losasso, Schaefer and Warren, "Dual Contouring of Hermite Data"
// (2002); vertices are placed by projection along the gradient in place of their error function.
#include "Implicit/Polygonize.h"

#include <array>
#include <unordered_map>

namespace Zef::Peer
{

namespace
{

constexpr std::uint32_t None = 0xffffffffu;

/** Child or corner number: bit 0 is x, bit 1 is y, bit 2 is z. */
struct FCell
{
	std::array<std::int32_t, 3> Low; // in finest cells
	std::int32_t Size;				 // in finest cells
	std::uint32_t FirstChild = None; // eight in a row
	std::uint32_t Vertex = None;
	std::uint8_t Inside = 0; // corners inside the solid, leaves only

	bool IsLeaf() const { return FirstChild == None; }
};

class FPolygonizer
{
public:
	FPolygonizer(const IField& Field, const FPolygonizeOptions& Options)
		: Field(Field)
		, Options(Options)
	{
	}

	FTriangleMesh Run()
	{
		const FBox Box = Field.Bounds().Grown(2 * Options.FinestCell);
		const FVec3 Extent = Box.Max - Box.Min;
		const float Largest = std::max({Extent.X, Extent.Y, Extent.Z});
		std::int32_t Size = 1;
		while (static_cast<float>(Size) * Options.FinestCell < Largest)
		{
			Size *= 2;
		}
		// Half a cell off the axes, so that a solid that is symmetric about one is cut symmetrically.
		const float Half = 0.5f * static_cast<float>(Size) * Options.FinestCell;
		Origin = Box.Center() - FVec3{Half, Half, Half};
		Corners.reserve(1 << 18);
		Cells.push_back({{0, 0, 0}, Size});
		Divide(0);
		WalkCell(0);
		return std::move(Mesh);
	}

private:
	FVec3 At(const std::array<std::int32_t, 3>& I) const
	{
		return Origin + FVec3{float(I[0]), float(I[1]), float(I[2])} * Options.FinestCell;
	}

	float Corner(const std::array<std::int32_t, 3>& I)
	{
		const std::uint64_t Key = (std::uint64_t(I[0]) << 42) | (std::uint64_t(I[1]) << 21) | std::uint64_t(I[2]);
		const auto [Found, bNew] = Corners.try_emplace(Key, 0.0f);
		if (bNew)
		{
			Found->second = Field.At(At(I));
		}
		return Found->second;
	}

	std::array<std::int32_t, 3> CornerPlace(const FCell& Cell, int Number) const
	{
		return {Cell.Low[0] + (Number & 1 ? Cell.Size : 0), Cell.Low[1] + (Number & 2 ? Cell.Size : 0),
			Cell.Low[2] + (Number & 4 ? Cell.Size : 0)};
	}

	void Divide(std::uint32_t Index)
	{
		// Blended functions may fall faster than distance does; a cell is given up only when even that cannot reach it.
		constexpr float Steepest = 1.7f;
		const FCell Cell = Cells[Index];
		const float Edge = static_cast<float>(Cell.Size) * Options.FinestCell;
		const FVec3 Center = At(Cell.Low) + FVec3{Edge, Edge, Edge} * 0.5f;
		const float HalfDiagonal = Edge * 0.8660254f;
		if (std::fabs(Field.At(Center)) > HalfDiagonal * Steepest)
		{
			return;
		}
		if (Cell.Size == 1 || Edge <= Options.CellSize(Center, HalfDiagonal) * 1.0001f)
		{
			std::uint8_t Inside = 0;
			for (int C = 0; C < 8; ++C)
			{
				Inside |= std::uint8_t((Corner(CornerPlace(Cell, C)) < 0) << C);
			}
			Cells[Index].Inside = Inside;
			return;
		}
		const auto First = static_cast<std::uint32_t>(Cells.size());
		Cells[Index].FirstChild = First;
		const std::int32_t Half = Cell.Size / 2;
		for (int C = 0; C < 8; ++C)
		{
			Cells.push_back(
				{{Cell.Low[0] + (C & 1 ? Half : 0), Cell.Low[1] + (C & 2 ? Half : 0), Cell.Low[2] + (C & 4 ? Half : 0)},
					Half});
		}
		for (std::uint32_t C = 0; C < 8; ++C)
		{
			Divide(First + C);
		}
	}

	std::uint32_t VertexOf(std::uint32_t Index, const FVec3& Crossing)
	{
		FCell& Cell = Cells[Index];
		if (Cell.Vertex != None)
		{
			return Cell.Vertex;
		}
		FVec3 Sum;
		int Count = 0;
		for (int Axis = 0; Axis < 3; ++Axis)
		{
			for (int C = 0; C < 8; ++C)
			{
				const int Other = C | (1 << Axis);
				if (Other == C || ((Cell.Inside >> C) & 1) == ((Cell.Inside >> Other) & 1))
				{
					continue;
				}
				Sum += CrossingOn(CornerPlace(Cell, C), CornerPlace(Cell, Other));
				++Count;
			}
		}
		// A coarse cell may show no crossing at its own corners where its finer neighbour has one.
		const FVec3 Start = Count > 0 ? Sum * (1.0f / static_cast<float>(Count)) : Crossing;
		const float Edge = static_cast<float>(Cell.Size) * Options.FinestCell;
		const FVec3 Low = At(Cell.Low);
		FVec3 P = ProjectOnto(Field, Start, 2);
		const FVec3 Clamped{
			Clamp(P.X, Low.X, Low.X + Edge), Clamp(P.Y, Low.Y, Low.Y + Edge), Clamp(P.Z, Low.Z, Low.Z + Edge)};
		if (Distance(P, Clamped) > 0.25f * Edge)
		{
			P = Start;
		}
		Cell.Vertex = Mesh.Add(P, Normalized(GradientOf(Field, P)));
		return Cell.Vertex;
	}

	FVec3 CrossingOn(const std::array<std::int32_t, 3>& A, const std::array<std::int32_t, 3>& B)
	{
		const float ValueA = Corner(A), ValueB = Corner(B);
		const float T = ValueA == ValueB ? 0.5f : Clamp(ValueA / (ValueA - ValueB), 0.0f, 1.0f);
		return Lerp(At(A), At(B), T);
	}

	std::uint32_t ChildOr(std::uint32_t Index, int Number) const
	{
		return Cells[Index].IsLeaf() ? Index : Cells[Index].FirstChild + std::uint32_t(Number);
	}

	void WalkCell(std::uint32_t Index)
	{
		if (Cells[Index].IsLeaf())
		{
			return;
		}
		const std::uint32_t F = Cells[Index].FirstChild;
		for (std::uint32_t C = 0; C < 8; ++C)
		{
			WalkCell(F + C);
		}
		for (int Axis = 0; Axis < 3; ++Axis)
		{
			const int Bit = 1 << Axis;
			for (int C = 0; C < 8; ++C)
			{
				if (!(C & Bit))
				{
					WalkFace(F + std::uint32_t(C), F + std::uint32_t(C | Bit), Axis);
				}
			}
		}
		for (int Axis = 0; Axis < 3; ++Axis)
		{
			const int U = 1 << ((Axis + 1) % 3), V = 1 << ((Axis + 2) % 3);
			for (const int At : {0, 1 << Axis})
			{
				WalkEdge({F + std::uint32_t(At), F + std::uint32_t(At | U), F + std::uint32_t(At | V),
							 F + std::uint32_t(At | U | V)},
					Axis);
			}
		}
	}

	/** Low and High share a face square to Axis. */
	void WalkFace(std::uint32_t Low, std::uint32_t High, int Axis)
	{
		if (Cells[Low].IsLeaf() && Cells[High].IsLeaf())
		{
			return;
		}
		const int Bit = 1 << Axis;
		const int U = 1 << ((Axis + 1) % 3), V = 1 << ((Axis + 2) % 3);
		for (const int At : {0, U, V, U | V})
		{
			WalkFace(ChildOr(Low, At | Bit), ChildOr(High, At), Axis);
		}
		// Edges within the face run along the two other axes.
		for (const int Along : {(Axis + 1) % 3, (Axis + 2) % 3})
		{
			const int Across = 3 - Axis - Along;
			for (const int At : {0, 1 << Along})
			{
				std::array<std::uint32_t, 4> Four;
				for (int K = 0; K < 4; ++K)
				{
					// Position of the K-th cell around the edge, in the order of WalkEdge.
					const int StepU = K & 1, StepV = K >> 1;
					const int OnAxis = (Along + 1) % 3 == Axis ? StepU : StepV;
					const int OnAcross = (Along + 1) % 3 == Across ? StepU : StepV;
					const std::uint32_t Side = OnAxis ? High : Low;
					Four[std::size_t(K)] = ChildOr(Side, At | (OnAxis ? 0 : Bit) | (OnAcross << Across));
				}
				WalkEdge(Four, Along);
			}
		}
	}

	/** Four cells around an edge along Axis; number 1 is one step along the next axis, 2 along the one after it. */
	void WalkEdge(const std::array<std::uint32_t, 4>& Four, int Axis)
	{
		bool bLeaves = true;
		for (std::uint32_t Index : Four)
		{
			bLeaves = bLeaves && Cells[Index].IsLeaf();
		}
		if (bLeaves)
		{
			Emit(Four, Axis);
			return;
		}
		const int U = 1 << ((Axis + 1) % 3), V = 1 << ((Axis + 2) % 3);
		for (const int At : {0, 1 << Axis})
		{
			WalkEdge({ChildOr(Four[0], At | U | V), ChildOr(Four[1], At | V), ChildOr(Four[2], At | U),
						 ChildOr(Four[3], At)},
				Axis);
		}
	}

	void Emit(const std::array<std::uint32_t, 4>& Four, int Axis)
	{
		const int U = 1 << ((Axis + 1) % 3), V = 1 << ((Axis + 2) % 3);
		constexpr int Count = 4;
		const int Toward[Count] = {U | V, V, U, 0};
		// The smallest cell has the edge whole; in it the edge lies at the corner towards the other three.
		int Smallest = 0;
		for (int K = 1; K < Count; ++K)
		{
			if (Cells[Four[std::size_t(K)]].Size < Cells[Four[std::size_t(Smallest)]].Size)
			{
				Smallest = K;
			}
		}
		const FCell& Cell = Cells[Four[std::size_t(Smallest)]];
		const auto From = CornerPlace(Cell, Toward[Smallest]);
		const auto To = CornerPlace(Cell, Toward[Smallest] | (1 << Axis));
		if (Cell.Inside == 0 || Cell.Inside == 0xff)
		{
			return;
		}
		const bool bFromInside = Corner(From) < 0;
		if (bFromInside == (Corner(To) < 0))
		{
			return;
		}
		const FVec3 Crossing = CrossingOn(From, To);
		std::array<std::uint32_t, 4> Ring;
		int Corners = 0;
		for (const int K : {0, 1, 3, 2})
		{
			const std::uint32_t Vertex = VertexOf(Four[std::size_t(K)], Crossing);
			if (Corners == 0 || (Ring[std::size_t(Corners - 1)] != Vertex && Ring[0] != Vertex))
			{
				Ring[std::size_t(Corners++)] = Vertex;
			}
		}
		if (Corners < 3)
		{
			return;
		}
		// Counted U, then V around the axis, the ring's front looks back along the axis.
		if (bFromInside)
		{
			std::reverse(Ring.begin(), Ring.begin() + Corners);
		}
		if (Corners == 4)
		{
			Mesh.AddQuad(Ring[0], Ring[1], Ring[2], Ring[3]);
		}
		else
		{
			Mesh.AddTriangle(Ring[0], Ring[1], Ring[2]);
		}
	}

	const IField& Field;
	const FPolygonizeOptions& Options;
	FVec3 Origin;
	std::vector<FCell> Cells;
	std::unordered_map<std::uint64_t, float> Corners;
	FTriangleMesh Mesh;
};

} // namespace

FTriangleMesh Polygonize(const IField& Field, const FPolygonizeOptions& Options)
{
	return FPolygonizer(Field, Options).Run();
}

} // namespace Zef::Peer
