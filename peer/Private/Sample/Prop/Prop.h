// SPDX-License-Identifier: MIT
/** The sample's prop: a corner of a room with pouf, lamp, table and plant. */
#pragma once

#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

FProjectObject MakeProp();

} // namespace Zef::Peer
