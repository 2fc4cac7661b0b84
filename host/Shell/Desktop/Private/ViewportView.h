// SPDX-License-Identifier: MIT
/** A 3D view: shows its pictures and hands its input to the model. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** The view of an editor viewport; null when the widget is another kind. */
std::unique_ptr<FWidgetView> MakeViewportView(FViewWorld& World, const TSharedRef<SWidget>& Model);

} // namespace Host
