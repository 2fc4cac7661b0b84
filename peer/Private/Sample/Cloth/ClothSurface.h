// SPDX-License-Identifier: MIT
/** The smooth surface that is shown for a cloth: between its points everything follows cubic curves. */
#pragma once

#include "Sample/Cloth/Cloth.h"

namespace Zef::Peer
{

/** A part of a cloth as its own mesh: columns and rows counted in the cloth's points, both ends included. */
struct FClothPatch
{
	int FirstColumn = 0, LastColumn = 0; // of a closed cloth the last may go on over the seam
	int FirstRow = 0, LastRow = 0;
	int Finer = 2; // quads for each of the cloth's, along one side
};

/** Positions and normals [rows][columns], row by row. Normals are smooth across the borders of the patch. */
struct FClothSample
{
	std::vector<FVec3> Positions;
	std::vector<FVec3> Normals;
};
FClothSample SampleCloth(const FCloth& Cloth, const FClothPatch& Patch);

/** The patch as a mesh; texture coordinates are places in the flat pattern, see FCloth::PatternPlace. */
FTriangleMesh MeshOfCloth(const FCloth& Cloth, const FClothPatch& Patch);

/** How many vertices the patch has along a row and down a column. */
inline int PatchColumns(const FClothPatch& Patch)
{
	return (Patch.LastColumn - Patch.FirstColumn) * Patch.Finer + 1;
}
inline int PatchRows(const FClothPatch& Patch)
{
	return (Patch.LastRow - Patch.FirstRow) * Patch.Finer + 1;
}

} // namespace Zef::Peer
