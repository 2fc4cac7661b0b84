// SPDX-License-Identifier: MIT
/** The single things of the prop. All stand on the floor around the figure, who looks along +X. */
#pragma once

#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

// Lamp and pouf to her left, table and plant to her right.
constexpr FVec3 PoufPlace{-14, -66, 0};
constexpr FVec3 LampPlace{-44, -58, 0};
constexpr FVec3 TablePlace{-14, 59, 0};
constexpr FVec3 PlantPlace{-50, 72, 0};

FTriangleMesh MakePouf();
FTriangleMesh MakeSheepskin();
FTriangleMesh MakeCushion(FTriangleMesh& Piping);

void MakePlant(FTriangleMesh& Leaves, FTriangleMesh& Stems);
FTriangleMesh MakePot();
FTriangleMesh MakeSoil();
void MakeGrasses(FTriangleMesh& Stalks, FTriangleMesh& Ears);

void MakeTable(FTriangleMesh& Top, FTriangleMesh& Frame);
FTriangleMesh MakeBook();
FTriangleMesh MakePapers();
FTriangleMesh MakeVase();
void MakeLamp(FTriangleMesh& Metal, FTriangleMesh& Globe, FTriangleMesh& Base);

} // namespace Zef::Peer
