// SPDX-License-Identifier: MIT
#pragma once

// Menus that hang on widgets.

#include "Framework/Application/IMenu.h"
#include "Misc/Optional.h"
#include "Widgets/SWidget.h"

namespace Host
{
/**
 * Opens a menu. It closes with those that do not hang on it, when the parent leaves its window, or by Dismiss. Menus
 * that are open already stay only when the parent stands in them.
 *
 * @param Parent    the widget that the menu hangs on
 * @param Position  slate units on the desktop; unset for beside the parent
 */
TSharedRef<IMenu> OpenMenu(const TSharedRef<SWidget>& Parent, const TSharedRef<SWidget>& Content,
	const TOptional<FVector2D>& Position = TOptional<FVector2D>());

/** The widget that the menu hangs on; empty when it is gone. */
TSharedPtr<SWidget> GetMenuParent(const IMenu& Menu);

/** From the one that was opened first to the one on top. */
TArray<TSharedRef<IMenu>> OpenMenus();
} // namespace Host
