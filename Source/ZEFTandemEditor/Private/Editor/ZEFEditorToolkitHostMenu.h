// SPDX-License-Identifier: MIT
/** The main menu of a toolkit that stands in a tab of its own. */
#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FExtender;
class FTabManager;
class FZEFEditorToolkit;

namespace ZEFEditorToolkitHostMenu
{

/** Registers the toolkit's menu as a child of the main frame's, with the toolkit's own commands, unless it is. */
void RegisterDefaultMenu(const FZEFEditorToolkit& Toolkit);

/** Lists the manager's tabs, under their categories, in the Window menu. */
TSharedRef<FExtender> MakeTabsExtender(const TSharedPtr<FTabManager>& TabManager);

} // namespace ZEFEditorToolkitHostMenu
