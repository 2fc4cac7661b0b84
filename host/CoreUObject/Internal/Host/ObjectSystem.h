// SPDX-License-Identifier: MIT
/** Start and end of the object system. */
#pragma once

#include "CoreTypes.h"

namespace Host
{

/**
 * Makes the objects of all registered types and the transient package. Without this call they are made when first
 * needed; classes of libraries that are loaded later join by themselves.
 */
COREUOBJECT_API void InitObjectSystem();

/**
 * Destroys every object, classes included. References that plain classes still hold dangle afterwards; weak pointers
 * are stale. The system may be used again.
 */
COREUOBJECT_API void TeardownObjectSystem();

} // namespace Host
