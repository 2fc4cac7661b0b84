// SPDX-License-Identifier: MIT
/** Menu bars, tool bars and menus that stand in a window. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** For SMultiBoxWidget; null for others. */
std::unique_ptr<FWidgetView> MakeMultiBoxView(FViewWorld& World, const TSharedRef<SWidget>& Model);

} // namespace Host
