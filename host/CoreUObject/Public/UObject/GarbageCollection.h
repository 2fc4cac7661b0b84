// SPDX-License-Identifier: MIT
/** Which objects the usual collection keeps. */
#pragma once

#include "CoreGlobals.h"
#include "UObject/UObjectGlobals.h"

/** In the editor assets stay although nothing refers to them. */
#define GARBAGE_COLLECTION_KEEPFLAGS (GIsEditor ? RF_Standalone : RF_NoFlags)
