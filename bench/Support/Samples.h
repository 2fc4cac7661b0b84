// SPDX-License-Identifier: MIT
/** What the measurements work on. */
#pragma once

#include "Zef/Records.h"
#include "ZEFTandemRecords.h"

#include <optional>
#include <string>

namespace Bench
{

/**
 * A cloth of 2 * Columns * Rows triangles in a gentle wave, in one surface and one section, its triangles row by row:
 * (Columns + 1) * (Rows + 1) vertices with all attributes.
 */
Zef::FSurfaceMesh MakeCloth(int Columns, int Rows);

/** A texture of Side * Side pixels, 8 bits each, of a weave with grain. */
Zef::FTexture MakeWeave(int Side, unsigned Seed);

/** A chain of joints, and for each vertex of the mesh so many different joints with weights that sum to 1. */
void AddSkin(Zef::FSurfaceMesh& Mesh, int Joints, int Influences);

/** The same object as the plug-in receives it. */
FZEFSurfaceMesh ToPlugin(const Zef::FSurfaceMesh& Mesh);

/**
 * The largest scanned or sculpted model of the shared data.
 * @param OutReason  why there is none
 */
std::optional<Zef::FSurfaceMesh> LoadScan(std::string& OutReason);

} // namespace Bench
