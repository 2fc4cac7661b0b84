// SPDX-License-Identifier: MIT
/** Hair combed back into a low bun, in the symmetric pose. */
#pragma once

#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

/** The cap of hair on the skull; v of its texture runs along the strands from the face to the bun. */
FTriangleMesh MakeHairCap();

/** The bun; v of its texture runs around it. */
FTriangleMesh MakeBun();

} // namespace Zef::Peer
