// SPDX-License-Identifier: MIT
/** Areas, splitters and stacks of tabs. */
#pragma once

#include "Host/DockNodes.h"
#include "WidgetView.h"

#include <functional>

namespace Host
{

/** For SDockArea, SDockSplitter and SDockStack; null for others. */
std::unique_ptr<FWidgetView> MakeDockView(FViewWorld& World, const TSharedRef<SWidget>& Model);

/** The part of a layout that a native widget shows or stands in; all empty when it stands in none. */
struct FDockTarget
{
	TSharedPtr<SDockStack> Stack;
	QWidget* StackNative = nullptr;
	/** Null while the row of tabs is hidden. */
	QWidget* TabBar = nullptr;
	/** Place among the tabs of the bar for a position in it. */
	std::function<int32(const QPoint&)> IndexAt;
	TSharedPtr<SDockArea> Area;
	QWidget* AreaNative = nullptr;
};
FDockTarget DockTargetAt(const FViewWorld& World, QWidget* Native);

} // namespace Host
