// SPDX-License-Identifier: MIT
/** The properties of the selected objects. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** For details views; null for others. */
std::unique_ptr<FWidgetView> MakeDetailsView(FViewWorld& World, const TSharedRef<SWidget>& Model);

} // namespace Host
