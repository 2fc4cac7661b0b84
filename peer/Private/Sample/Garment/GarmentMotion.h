// SPDX-License-Identifier: MIT
/** The garments over the walk. */
#pragma once

#include "Sample/Garment/GarmentPieces.h"

namespace Zef::Peer
{

/** One frame of all pieces' vertices for each frame of the walk; the last leads over to the first. Takes seconds. */
std::vector<FMeshSequenceFrame> SimulateWalk(const FFigure& Figure, const FGarmentPieces& Garment);

} // namespace Zef::Peer
