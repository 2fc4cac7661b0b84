// SPDX-License-Identifier: MIT
#pragma once

// Walking a tree of widgets from outside.

#include "Templates/Function.h"
#include "Widgets/SWidget.h"

namespace Host
{
/** How often any widget asked to be drawn anew since the program started. */
uint64 WidgetInvalidationCount();

/** Visits the widget and all below it, parents before children, in the order of the slots. */
void ForEachWidget(const TSharedRef<SWidget>& Root, TFunctionRef<void(const TSharedRef<SWidget>&)> Visit);

/** All widgets of that exact class, by the name that SNew was given, in the order of ForEachWidget. */
TArray<TSharedRef<SWidget>> FindWidgetsOfType(const TSharedRef<SWidget>& Root, FName Type);
} // namespace Host
