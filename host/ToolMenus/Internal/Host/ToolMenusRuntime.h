// SPDX-License-Identifier: MIT
#pragma once

// The life of the tool menus, driven by the engine's loop.

namespace Host
{
/** Brings the tool menus up: runs the start-up callbacks in the order of registering. Nothing happens a second time. */
void StartToolMenus();
/** One frame: widgets that are to be refreshed are generated anew. */
void TickToolMenus();
/** Forgets every menu and start-up callback, as before the first use. */
void ResetToolMenus();
} // namespace Host
