// SPDX-License-Identifier: MIT
/** A joint animation as a binary glTF file. */
#pragma once

#include <string>

#include "Zef/Records.h"

namespace Zef::Peer
{

/**
 * The bytes of a .glb with the mesh, its skin and one clip, in metres, right-handed, Y up, looking along Z.
 *
 * Sections count their indices in the whole model: a surface's vertices begin at its VertexOffset, and influences are
 * those of the model. Materials and textures are left out. A frame that does not name a joint leaves it as it stands.
 * @return empty when the mesh has no joints or a section points beyond the vertices
 */
std::string WriteGlb(const FJointAnimation& Animation, const std::string& Name);

} // namespace Zef::Peer
