// SPDX-License-Identifier: MIT
/** Modules as the host sees them. */
#pragma once

namespace Host
{

/** Shuts down all loaded modules, the last one started first. They can be loaded again afterwards. */
void ShutdownModules();

} // namespace Host
