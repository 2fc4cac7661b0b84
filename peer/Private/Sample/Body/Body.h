// SPDX-License-Identifier: MIT
/** The figure's body as a solid, in the pose of Measures.h. */
#pragma once

#include "Implicit/Field.h"
#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

/** Parts of the right side, to be mirrored; each is a solid of its own. */
FFieldPtr MakeTrunk();
FFieldPtr MakeLeg();
FFieldPtr MakeFoot();
FFieldPtr MakeArm();
FFieldPtr MakeHand();
FFieldPtr MakeHead();

/** All of it. */
FFieldPtr MakeBody();

/** Its skin: about 60,000 triangles, finer on face and hands. */
FTriangleMesh MakeBodySkin(const IField& Body);

} // namespace Zef::Peer
