// SPDX-License-Identifier: MIT
#pragma once

// The menus of the level editor's frame, for plug-ins to extend.

#include "Templates/SharedPointer.h"

class FTabManager;
class FUICommandList;
class SWidget;

namespace LevelEditorMenus
{
/** Registers the menus; what plug-ins added before stays. Nothing happens a second time. */
void Register();

TSharedRef<SWidget> MakeMenuBar(const TSharedRef<FUICommandList>& Commands, const TSharedRef<FTabManager>& TabManager);
TSharedRef<SWidget> MakeToolBar(const TSharedRef<FUICommandList>& Commands);
} // namespace LevelEditorMenus
