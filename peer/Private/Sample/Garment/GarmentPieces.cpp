// SPDX-License-Identifier: MIT
#include "Sample/Garment/GarmentPieces.h"

#include "Mesh/Clip.h"
#include "Mesh/Shapes.h"
#include "Sample/Garment/Bodice.h"

namespace Zef::Peer
{

namespace
{

constexpr int SettleFrames = 45;
constexpr int LaceRows = 4, BandRows = 3;
constexpr int Gores = 6;

} // namespace

FGarmentPieces::FGarmentPieces(const FFigure& Figure, const FGarmentMaterials& Materials)
	: SkirtCloth(MakeSkirtCloth(Figure))
	, CapeletCloth(MakeCapeletCloth(Figure))
{
	FBodyCollider Body(Figure);
	Settle(SkirtCloth, Figure, Body, SettleFrames);
	Settle(CapeletCloth, Figure, Body, SettleFrames);

	FBodice Bodice = MakeBodice();
	AddSkin(Figure, "Dress/Bodice Front", Materials.Herringbone, std::move(Bodice.Front));
	AddSkin(Figure, "Dress/Bodice Back", Materials.Herringbone, std::move(Bodice.Back));
	AddSkin(Figure, "Dress/Placket", Materials.Satin, std::move(Bodice.Placket));
	// The piping comes from a tool that writes each triangle by itself: something for the welding to do.
	ComputeTangents(Bodice.Binding);
	SeparateTriangles(Bodice.Binding);
	AddSkin(Figure, "Dress/Binding", Materials.Velvet, std::move(Bodice.Binding));
	AddSkin(Figure, "Dress/Buttons", Materials.Pearl, std::move(Bodice.Buttons));
	AddSkin(Figure, "Dress/Label", Materials.Label, std::move(Bodice.Label));
	AddSkirt(Materials);
	AddCapelet(Figure, Materials);
}

void FGarmentPieces::AddSkin(const FFigure& Figure, const std::string& Surface, int Material, FTriangleMesh Mesh)
{
	FGarmentPiece Piece;
	Piece.Surface = Surface;
	Piece.Material = Material;
	if (Mesh.Tangents.empty())
	{
		ComputeTangents(Mesh);
	}
	Piece.Symmetric = std::move(Mesh);
	Piece.Weights = WeightsOf(Figure.Skeleton, Piece.Symmetric);
	Piece.Mesh = Piece.Symmetric;
	ApplyMoves(Piece.Mesh, Piece.Weights, Figure.StandingMoves);
	Pieces.push_back(std::move(Piece));
}

void FGarmentPieces::AddHanging(const std::string& Surface, int Material, EMover Mover, const FClothPatch& Patch)
{
	FGarmentPiece Piece;
	Piece.Surface = Surface;
	Piece.Material = Material;
	Piece.Mover = Mover;
	Piece.Patch = Patch;
	Piece.Mesh = MeshOfCloth(Mover == EMover::Skirt ? SkirtCloth.Cloth : CapeletCloth.Cloth, Patch);
	ComputeTangents(Piece.Mesh);
	Pieces.push_back(std::move(Piece));
}

void FGarmentPieces::AddBand(
	const std::string& Surface, int Material, EMover Mover, const FClothPatch& Patch, float Repeats)
{
	AddHanging(Surface, Material, Mover, Patch);
	// A band's picture runs along it, once from its upper edge to its lower one.
	FTriangleMesh& Mesh = Pieces.back().Mesh;
	const int Columns = PatchColumns(Patch), Rows = PatchRows(Patch);
	for (int R = 0; R < Rows; ++R)
	{
		for (int C = 0; C < Columns; ++C)
		{
			Mesh.UVs[static_cast<std::size_t>(R * Columns + C)] = {
				Repeats * static_cast<float>(C) / static_cast<float>(Columns - 1),
				static_cast<float>(R) / static_cast<float>(Rows - 1)};
		}
	}
	ComputeTangents(Mesh);
}

void FGarmentPieces::AddSkirt(const FGarmentMaterials& Materials)
{
	const int Columns = SkirtCloth.Cloth.Columns(), Last = SkirtCloth.Cloth.Rows() - 1;
	const int Width = Columns / Gores;
	// The columns count from the middle of the back to the right; the third gore is the front one.
	for (const bool bFront : {true, false})
	{
		for (int G = 0; G < Gores; ++G)
		{
			const bool bInFront = G >= 1 && G <= 3;
			if (bInFront != bFront)
			{
				continue;
			}
			const int First = Width / 2 + G * Width;
			const bool bMiddle = G == 2 || G == 5;
			AddHanging(bFront ? "Dress/Skirt Front" : "Dress/Skirt Back", bMiddle ? Materials.Skirt : Materials.Bias,
				EMover::Skirt, {First, First + Width, 0, Last - LaceRows - BandRows});
		}
	}
	AddBand(
		"Dress/Hem", Materials.Brocade, EMover::Skirt, {0, Columns, Last - LaceRows - BandRows, Last - LaceRows}, 12);
	AddBand("Dress/Lace", Materials.Lace, EMover::Skirt, {0, Columns, Last - LaceRows, Last}, 14);
}

void FGarmentPieces::AddCapelet(const FFigure& Figure, const FGarmentMaterials& Materials)
{
	const int LastColumn = CapeletCloth.Cloth.Columns() - 1, LastRow = CapeletCloth.Cloth.Rows() - 1;
	AddHanging("Capelet/Panel", Materials.Organza, EMover::Capelet, {0, LastColumn, 0, LastRow - 1});
	AddBand("Capelet/Trim", Materials.Sequins, EMover::Capelet, {0, LastColumn, LastRow - 1, LastRow}, 24);

	// A ribbon along the neck, closed across the opening by the brooch.
	const std::vector<FVec3> Ribbon = EvenLoop(CapeletCloth.SeamPlaces, 0.6f, 3);
	AddSkin(
		Figure, "Capelet/Ribbon", Materials.Velvet, Tube(Ribbon, std::vector<float>(Ribbon.size(), 0.32f), 8, true));
	const FVec3 Front =
		(CapeletCloth.SeamPlaces.front() + CapeletCloth.SeamPlaces.back()) * 0.5f + FVec3{0.25f, 0, -0.1f};
	const auto Placed = [&](FTriangleMesh Mesh)
	{
		// The chest slopes: the brooch looks up a little.
		const FVec4 Turn = AxisAngle({0, 1, 0}, -28);
		for (std::size_t V = 0; V < Mesh.Positions.size(); ++V)
		{
			Mesh.Positions[V] = Front + Rotate(Turn, Mesh.Positions[V]);
			Mesh.Normals[V] = Rotate(Turn, Mesh.Normals[V]);
		}
		return Mesh;
	};
	AddSkin(Figure, "Capelet/Brooch", Materials.Gem, Placed(Ball({0.25f, 0, 0}, {0.5f, 1.15f, 0.85f}, 24, 16)));
	std::vector<FVec3> Oval;
	for (int I = 0; I < 40; ++I)
	{
		const float Angle = 2 * Pi * static_cast<float>(I) / 40;
		Oval.push_back({0.25f, 1.2f * std::cos(Angle), 0.9f * std::sin(Angle)});
	}
	AddSkin(Figure, "Capelet/Brooch", Materials.Setting,
		Placed(Tube(Oval, std::vector<float>(Oval.size(), 0.17f), 8, true)));
}

} // namespace Zef::Peer
