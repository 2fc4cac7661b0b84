// SPDX-License-Identifier: MIT
#include "Sample/Cloth/ClothSurface.h"

#include <algorithm>

namespace Zef::Peer
{

namespace
{

/** Weights of four points in a row for a place between the middle two, and for the slope there (Catmull and Rom). */
struct FCubic
{
	float Value[4], Slope[4];

	explicit FCubic(float T)
	{
		const float T2 = T * T, T3 = T2 * T;
		Value[0] = 0.5f * (-T3 + 2 * T2 - T);
		Value[1] = 0.5f * (3 * T3 - 5 * T2 + 2);
		Value[2] = 0.5f * (-3 * T3 + 4 * T2 + T);
		Value[3] = 0.5f * (T3 - T2);
		Slope[0] = 0.5f * (-3 * T2 + 4 * T - 1);
		Slope[1] = 0.5f * (9 * T2 - 10 * T);
		Slope[2] = 0.5f * (-9 * T2 + 8 * T + 1);
		Slope[3] = 0.5f * (3 * T2 - 2 * T);
	}
};

/** The cloth's point; beyond an open edge the cloth goes on straight. */
FVec3 PointOf(const FCloth& Cloth, int Column, int Row)
{
	const int Columns = Cloth.Columns(), Rows = Cloth.Rows();
	if (Row < 0)
	{
		return PointOf(Cloth, Column, 0) * 2 - PointOf(Cloth, Column, 1);
	}
	if (Row >= Rows)
	{
		return PointOf(Cloth, Column, Rows - 1) * 2 - PointOf(Cloth, Column, Rows - 2);
	}
	if (Cloth.IsClosed())
	{
		Column = (Column % Columns + Columns) % Columns;
	}
	else if (Column < 0)
	{
		return PointOf(Cloth, 0, Row) * 2 - PointOf(Cloth, 1, Row);
	}
	else if (Column >= Columns)
	{
		return PointOf(Cloth, Columns - 1, Row) * 2 - PointOf(Cloth, Columns - 2, Row);
	}
	return Cloth.Positions[Cloth.At(Column, Row)];
}

} // namespace

FClothSample SampleCloth(const FCloth& Cloth, const FClothPatch& Patch)
{
	std::vector<FCubic> Cubics;
	for (int F = 0; F <= Patch.Finer; ++F)
	{
		Cubics.emplace_back(static_cast<float>(F) / static_cast<float>(Patch.Finer));
	}
	const int Columns = PatchColumns(Patch), Rows = PatchRows(Patch);
	FClothSample Sample;
	Sample.Positions.reserve(static_cast<std::size_t>(Columns * Rows));
	Sample.Normals.reserve(static_cast<std::size_t>(Columns * Rows));
	for (int R = 0; R < Rows; ++R)
	{
		const int BaseRow = Patch.FirstRow + std::min(R / Patch.Finer, Patch.LastRow - Patch.FirstRow - 1);
		const FCubic& Down = Cubics[static_cast<std::size_t>(R - (BaseRow - Patch.FirstRow) * Patch.Finer)];
		for (int C = 0; C < Columns; ++C)
		{
			const int BaseColumn =
				Patch.FirstColumn + std::min(C / Patch.Finer, Patch.LastColumn - Patch.FirstColumn - 1);
			const FCubic& Along = Cubics[static_cast<std::size_t>(C - (BaseColumn - Patch.FirstColumn) * Patch.Finer)];
			FVec3 Position, SlopeAlong, SlopeDown;
			for (int J = 0; J < 4; ++J)
			{
				FVec3 RowValue, RowSlope;
				for (int I = 0; I < 4; ++I)
				{
					const FVec3 P = PointOf(Cloth, BaseColumn + I - 1, BaseRow + J - 1);
					RowValue += P * Along.Value[I];
					RowSlope += P * Along.Slope[I];
				}
				Position += RowValue * Down.Value[J];
				SlopeAlong += RowSlope * Down.Value[J];
				SlopeDown += RowValue * Down.Slope[J];
			}
			Sample.Positions.push_back(Position);
			// Columns run right and rows down on the front: the engine's front is then this product.
			Sample.Normals.push_back(Normalized(Cross(SlopeAlong, SlopeDown)));
		}
	}
	return Sample;
}

FTriangleMesh MeshOfCloth(const FCloth& Cloth, const FClothPatch& Patch)
{
	FClothSample Sample = SampleCloth(Cloth, Patch);
	FTriangleMesh Mesh;
	Mesh.Positions = std::move(Sample.Positions);
	Mesh.Normals = std::move(Sample.Normals);
	const int Columns = PatchColumns(Patch), Rows = PatchRows(Patch);
	for (int R = 0; R < Rows; ++R)
	{
		for (int C = 0; C < Columns; ++C)
		{
			const float Column =
				static_cast<float>(Patch.FirstColumn) + static_cast<float>(C) / static_cast<float>(Patch.Finer);
			const float Row =
				static_cast<float>(Patch.FirstRow) + static_cast<float>(R) / static_cast<float>(Patch.Finer);
			const float Middle = 0.5f * static_cast<float>(Patch.FirstColumn + Patch.LastColumn);
			Mesh.UVs.push_back(Cloth.PatternPlace(Column - Middle, Row));
		}
	}
	for (int R = 0; R + 1 < Rows; ++R)
	{
		for (int C = 0; C + 1 < Columns; ++C)
		{
			const auto A = static_cast<std::uint32_t>(R * Columns + C), B = A + static_cast<std::uint32_t>(Columns);
			Mesh.AddQuad(A, B, B + 1, A + 1);
		}
	}
	return Mesh;
}

} // namespace Zef::Peer
