// SPDX-License-Identifier: MIT
/** The sample's two garments, a dress and a sheer capelet, as the one object that the link carries. */
#pragma once

#include <memory>

#include "Sample/Avatar/Figure.h"
#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

/** The figure is kept for the cloth sequence, which is simulated when it is asked for. */
FProjectObject MakeGarment(std::shared_ptr<const FFigure> Figure);

} // namespace Zef::Peer
