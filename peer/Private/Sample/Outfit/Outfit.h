// SPDX-License-Identifier: MIT
/** The sample's outfit: shoes, belt and earrings. */
#pragma once

#include "Sample/Avatar/Figure.h"
#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

FProjectObject MakeOutfit(const FFigure& Figure);

} // namespace Zef::Peer
