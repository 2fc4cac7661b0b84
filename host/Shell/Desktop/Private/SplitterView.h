// SPDX-License-Identifier: MIT
/** Parts of a layout beside each other or above each other. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** @param Model  an SDockSplitter */
std::unique_ptr<FWidgetView> MakeSplitterView(FViewWorld& World, const TSharedRef<SWidget>& Model);

} // namespace Host
