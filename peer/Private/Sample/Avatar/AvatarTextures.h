// SPDX-License-Identifier: MIT
/** Pictures for skin, eyes and hair. */
#pragma once

#include "Zef/Records.h"

namespace Zef::Peer
{

FTexture MakeSkinColor();
FTexture MakeSkinRoughness();
FTexture MakeIris();
FTexture MakeHairColor();
FTexture MakeHairNormal();

} // namespace Zef::Peer
