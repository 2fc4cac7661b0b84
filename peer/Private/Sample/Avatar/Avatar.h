// SPDX-License-Identifier: MIT
/** The sample's avatar. */
#pragma once

#include "Sample/Avatar/Figure.h"
#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

FProjectObject MakeAvatar(const FFigure& Figure);

} // namespace Zef::Peer
