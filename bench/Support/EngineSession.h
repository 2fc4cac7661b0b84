// SPDX-License-Identifier: MIT
/** A running engine with the plug-in mounted, for the life of the program. */
#pragma once

#include <string>

namespace Bench
{

/** Boots it at the first call. @return why it cannot run, or nothing */
std::string StartEngine();

/** Drops the objects of the last run. */
void CollectObjects();

} // namespace Bench
