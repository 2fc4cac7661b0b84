// SPDX-License-Identifier: MIT
/** Several files as one object. */
#pragma once

#include "Files/Build/Build.h"

namespace Zef::Peer
{

/**
 * Appends the surfaces, materials and textures of another file, the keys after those that are there.
 *
 * Joints of one name are one; others are appended below theirs. A vertex of the other file follows its joints to where
 * they stand here. Of two sequences the longer stays; a vertex animation does not go with a second file.
 */
void MergeInto(FReadObject& All, FReadObject Other);

/** Gives materials and textures keys that those of no other kind of object have, since the editor names them by these.
 */
void RenumberFor(EObjectType Type, FSurfaceMesh& Mesh);

} // namespace Zef::Peer
