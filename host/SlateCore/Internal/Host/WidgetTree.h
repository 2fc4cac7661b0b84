// SPDX-License-Identifier: MIT
#pragma once

// Walking a tree of widgets from outside.

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Templates/Function.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWidget.h"

class SWindow;

namespace Host
{
/** How often any widget asked to be drawn anew since the program started. */
uint64 WidgetInvalidationCount();
/** How often the children of any widget changed since the program started. */
uint64 WidgetStructureCount();
/** How often the children of that widget changed; those of its children do not count. */
uint32 StructureVersion(const SWidget& Widget);

/** Visits the widget and all below it, parents before children, in the order of the slots. */
void ForEachWidget(const TSharedRef<SWidget>& Root, TFunctionRef<void(const TSharedRef<SWidget>&)> Visit);

/** All widgets of that exact class, by the name that SNew was given, in the order of ForEachWidget. */
TArray<TSharedRef<SWidget>> FindWidgetsOfType(const TSharedRef<SWidget>& Root, FName Type);

/** How a parent lays one child out. */
struct FSlotLayout
{
	FMargin Padding;
	EHorizontalAlignment HAlign = HAlign_Fill;
	EVerticalAlignment VAlign = VAlign_Fill;
	/** Along the direction of a box; Stretch with 1 elsewhere. */
	FSizeParam Size;
	/** Of an overlay; 0 elsewhere. */
	int32 ZOrder = 0;
};
/** @param ChildIndex  as in GetChildren() */
FSlotLayout SlotLayout(const SWidget& Parent, int32 ChildIndex);

/** The window that the widget stands in, through menus to the window that they hang on; empty when in none. */
TSharedPtr<SWindow> FindWindow(const TSharedRef<const SWidget>& Widget);
/** The widget and all its parents are enabled. */
bool IsEnabledInTree(const SWidget& Widget);
/** The widget and all its parents are visible; it need not stand in a window. */
bool IsVisibleInTree(const SWidget& Widget);
/** Whether `Ancestor` is the widget or stands above it. */
bool IsBelow(const SWidget& Widget, const SWidget& Ancestor);

/** For the widget classes themselves. */
struct FWidgetAccess
{
	static void CountChange();
	static void CountInvalidation();
	static uint32 StructureVersion(const SWidget& Widget) { return Widget.StructureVersion; }
	/** Makes a widget that stands in no slot, as a menu does, belong to another one. */
	static void SetParent(SWidget& Widget, const TSharedPtr<SWidget>& Parent) { Widget.Parent = Parent; }
};
} // namespace Host
