// SPDX-License-Identifier: MIT
/** What is laid upon the face: lips, brows, lashes, eyeballs. In the symmetric pose. */
#pragma once

#include "Implicit/Field.h"
#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

FTriangleMesh MakeLips(const IField& Body);
FTriangleMesh MakeBrows(const IField& Body);
FTriangleMesh MakeLashes(const IField& Body);

/** The right eye or the left one; the texture's middle is where she looks. */
FTriangleMesh MakeEyeball(bool bRight);

/** Shallow plates on the finger tips. */
FTriangleMesh MakeNails(const IField& Body);

} // namespace Zef::Peer
