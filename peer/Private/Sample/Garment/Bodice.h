// SPDX-License-Identifier: MIT
/** The upper part of the dress, cut from a layer around the body. All in the symmetric pose. */
#pragma once

#include "Implicit/Field.h"
#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

/** Height of the seam between bodice and skirt. */
constexpr float WaistHeight = 107.5f;

/** A solid a finger's breadth larger than the trunk; its surface is the cloth of the bodice. */
FFieldPtr MakeBodiceSolid();

struct FBodice
{
	FTriangleMesh Front, Back;
	FTriangleMesh Binding; // piping along neck and armholes
	FTriangleMesh Placket; // strip under the buttons
	FTriangleMesh Buttons;
	FTriangleMesh Label; // inside, at the back of the neck
};
FBodice MakeBodice();

/** The seam at the waist as an even closed row of points, seen from above against the angle, from the back. */
std::vector<FVec3> MakeWaistLine(const IField& Bodice, int Points, float Lift);

} // namespace Zef::Peer
