// SPDX-License-Identifier: MIT
/** Boxes, overlays, borders and sized boxes. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** Null for a widget that is none of them. */
std::unique_ptr<FWidgetView> MakePanelView(FViewWorld& World, const TSharedRef<SWidget>& Model);

} // namespace Host
