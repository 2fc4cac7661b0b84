// SPDX-License-Identifier: MIT
// The look of a master as part of its JSON file.
#pragma once

#include "Host/MaterialLook.h"
#include "JsonReader.h"

namespace Host
{
/** Reads the object "look"; what it leaves out stays as it is. */
void ReadMaterialLook(const FJsonReader& Reader, FMaterialLook& OutLook);
} // namespace Host
