// SPDX-License-Identifier: MIT
/** The built-in project: a dressed figure with a few things beside her, generated, the same in every run. */
#pragma once

#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

/**
 * Garment, avatar, outfit and prop. The figure is 175 cm tall, stands on z = 0 at the origin, and faces +X, where the
 * editor's camera starts; her left is -Y. The avatar walks in place for 60 frames at 30 per second, and the garments
 * have a cloth sequence over that walk, which is simulated when it is first asked for (seconds).
 */
FProject MakeSampleProject();

} // namespace Zef::Peer
