// SPDX-License-Identifier: MIT
/** Texts. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** For STextBlock; null for others. */
std::unique_ptr<FWidgetView> MakeTextView(FViewWorld& World, const TSharedRef<SWidget>& Model);
} // namespace Host
