// SPDX-License-Identifier: MIT
/** Buttons, buttons with a menu, and text boxes. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** For SButton, SComboButton and SEditableTextBox with what derives from them; null for others. */
std::unique_ptr<FWidgetView> MakeInputView(FViewWorld& World, const TSharedRef<SWidget>& Model);

} // namespace Host
