// SPDX-License-Identifier: MIT
// The width of a bone number in vertex data.
#pragma once

#include "CoreTypes.h"

/** Number of a bone in vertex data and bone maps. */
typedef uint16 FBoneIndexType;
