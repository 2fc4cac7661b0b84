// SPDX-License-Identifier: MIT
// The main menu that the windows of the editor have in common.
#pragma once

namespace Host
{
/**
 * Registers "MainFrame.MainMenu" with its menus File, Edit, Window and Help. The menus of editor windows have it as
 * their parent; their tabs go into the section "WindowLocalTabSpawners" of the Window menu. Call it before the tool
 * menus come up.
 */
void RegisterMainFrameMenu();
} // namespace Host
