// SPDX-License-Identifier: MIT
/** Basic types and the macros that every header may use. */
#pragma once

#include "HAL/Platform.h"
#include "Misc/CoreMiscDefines.h"
#include "Misc/AssertionMacros.h"
