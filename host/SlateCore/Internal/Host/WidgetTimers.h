// SPDX-License-Identifier: MIT
#pragma once

// What widgets do later.

#include "Templates/Function.h"
#include "Widgets/SWidget.h"

namespace Host
{
/** Names one call; 0 names none. */
using FWidgetCall = uint64;

/**
 * Calls the function once, at the application's first tick when that much time has passed; 0 seconds for the next tick.
 * The call is dropped when the widget is gone.
 */
FWidgetCall CallLater(const TSharedRef<SWidget>& Widget, double Seconds, TFunction<void()> Function);
/** Nothing happens for a call that was made or cancelled. */
void CancelCall(FWidgetCall Call);

/** Makes the calls that are due, the oldest first; called by the application's tick. Calls that they ask for wait. */
void RunDueCalls();
} // namespace Host
