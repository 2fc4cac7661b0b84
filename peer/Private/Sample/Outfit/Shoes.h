// SPDX-License-Identifier: MIT
/** Flat shoes with an ankle strap, made over the foot. Both feet, in the symmetric pose. */
#pragma once

#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

struct FShoes
{
	FTriangleMesh Uppers, Edging, Soles, Straps, Buckles;
};
FShoes MakeShoes();

} // namespace Zef::Peer
