// SPDX-License-Identifier: MIT
#pragma once

// What the user does to tabs with the pointer.

#include "Host/DockNodes.h"
#include "Widgets/Docking/SDockTab.h"

namespace Host
{
enum class EDockPlace : uint8
{
	/** Into a stack. */
	Into,
	Left,
	Right,
	Above,
	Below,
};

/**
 * Whether the tab may go there: the target is live, takes tabs of that role and would change. Panels and documents stay
 * with their manager, major tabs with the global one; nomad tabs go anywhere. Only a stack has an inside.
 */
bool CanDock(const TSharedRef<SDockTab>& Tab, const TSharedRef<SDockNode>& Target, EDockPlace Place);

/**
 * Moves an open tab beside a part of a layout, in half of its room, or into a stack. It comes to the front, its content
 * as it was. What it leaves without any place is taken away.
 *
 * @param Index  among the open tabs of the stack; INDEX_NONE for behind them
 * @return false, with nothing changed, when CanDock says no
 */
bool DockTab(
	const TSharedRef<SDockTab>& Tab, const TSharedRef<SDockNode>& Target, EDockPlace Place, int32 Index = INDEX_NONE);

/**
 * Moves an open tab into a window of its own, at a position on the desktop.
 *
 * @param Size  of the inside; zero for a size by the tab's role
 * @return false when the tab is closed
 */
bool FloatTab(const TSharedRef<SDockTab>& Tab, const FVector2D& Position, const FVector2D& Size = FVector2D(0.0, 0.0));

/** Gives all nodes of a splitter new shares. False, with nothing changed, unless there is one above 0 for each. */
bool ResizeSplitter(SDockSplitter& Splitter, const TArray<float>& SizeCoefficients);

void ShowTabWell(SDockStack& Stack);
/** False when the stack has not exactly one open tab. */
bool HideTabWell(SDockStack& Stack);

/** A tab that the user drags. The tab, its window or the target may go before it is dropped. */
class FTabDrag
{
public:
	explicit FTabDrag(const TSharedRef<SDockTab>& Tab)
		: DraggedTab(Tab)
	{
	}

	/** Empty when the tab was closed meanwhile. */
	TSharedPtr<SDockTab> GetTab() const;
	bool CanDrop(const TWeakPtr<SDockNode>& Target, EDockPlace Place) const;
	/** See DockTab. */
	bool Drop(const TWeakPtr<SDockNode>& Target, EDockPlace Place, int32 Index = INDEX_NONE);
	/** See FloatTab. */
	bool DropOutside(const FVector2D& Position);

private:
	TWeakPtr<SDockTab> DraggedTab;
};

/** The areas of a manager: the primary one first when there is one. */
TArray<TSharedRef<SDockArea>> LiveAreas(const FTabManager& Manager);
/** The stack that the tab is open in; empty when it is closed or in no layout. */
TSharedPtr<SDockStack> StackOf(const SDockTab& Tab);
/** All open tabs of a manager, area by area. */
TArray<TSharedRef<SDockTab>> OpenTabs(const FTabManager& Manager);

/** Forgets all managers, tabs and nomad tabs; tells nobody. */
void ResetDocking();
} // namespace Host
