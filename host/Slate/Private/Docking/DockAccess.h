// SPDX-License-Identifier: MIT
#pragma once

// The workings of docking, over the fields of managers, nodes and tabs.

#include "Host/Docking.h"

namespace Host
{
struct FDockAccess
{
	using FLayoutNode = FTabManager::FLayoutNode;

	// Tabs (DockTabs.cpp)

	/** Empty when nobody makes it. */
	static TSharedPtr<SDockTab> Spawn(FTabManager& Manager, const FTabId& Id, const TSharedPtr<SWindow>& Window);
	static bool CanSpawn(const FTabManager& Manager, const FTabId& Id);
	static void SetIdentity(SDockTab& Tab, const TSharedRef<FTabManager>& Manager, const FTabId& Id);
	static void Activate(const TSharedRef<SDockTab>& Tab, ETabActivationCause Cause);
	/** Rises with each activation of any tab. */
	static uint64 ActivationOrder(const SDockTab& Tab);
	static bool IsClosed(const SDockTab& Tab);
	/** Without asking. */
	static void CloseTab(const TSharedRef<SDockTab>& Tab);
	static void MarkUsed(SDockTab& Tab);
	/** Nobody below the tab keeps the keyboard focus. */
	static void ReleaseFocus(const SDockTab& Tab);
	static bool MayCloseInside(const SDockTab& Tab);
	/** The keyboard focus came to a widget: the tabs around it were used. */
	static void FocusEntered(SWidget& Widget);

	// Stacks and splitters (DockNodes.cpp)

	static void AddPlace(SDockStack& Stack, const FTabId& Id) { Stack.Places.Add({Id, nullptr}); }
	/** Opens a tab at a new place. @param ChildIndex  among the open tabs; INDEX_NONE for behind all */
	static void InsertTab(SDockStack& Stack, const TSharedRef<SDockTab>& Tab, int32 ChildIndex);
	static void OpenAt(SDockStack& Stack, int32 PlaceIndex, const TSharedRef<SDockTab>& Tab);
	/** Takes a tab out, with its place or so that the place stays. */
	static void TakeOut(const TSharedRef<SDockStack>& Stack, const TSharedRef<SDockTab>& Tab, bool bKeepPlace);
	/** Index of a place without a tab, by test; INDEX_NONE when there is none. */
	static int32 FindClosedPlace(const SDockStack& Stack, TFunctionRef<bool(const FTabId&)> Test);
	static void SetForeground(SDockStack& Stack, const TSharedPtr<SDockTab>& Tab) { Stack.SetForeground(Tab); }
	static void SetHideTabWell(SDockStack& Stack, bool bHide) { Stack.bHideTabWell = bHide; }
	static void SetSize(SDockNode& Node, float SizeCoefficient) { Node.SizeCoefficient = SizeCoefficient; }
	static void InsertNode(SDockSplitter& Splitter, const TSharedRef<SDockNode>& Node, int32 Index);
	static void RemoveNode(SDockSplitter& Splitter, const TSharedRef<SDockNode>& Node);
	/** Puts the stack on a side of the node, in half of its room. */
	static void SplitNode(const TSharedRef<SDockNode>& Node, const TSharedRef<SDockNode>& NewNode,
		EOrientation Orientation, bool bBefore);
	/** Takes away what has no places any more, from the stack upwards, and splitters of one node. */
	static void RemoveEmpty(const TSharedRef<SDockStack>& Stack);
	static TSharedRef<FLayoutNode> ToLayout(const SDockNode& Node) { return Node.ToLayout(); }

	// Areas (DockAreas.cpp)

	static TSharedRef<SDockStack> BuildStack(const FTabManager::FStack& Layout);
	/** A live area whose places are all closed. */
	static TSharedRef<SDockArea> BuildArea(const TSharedRef<FTabManager>& Manager, const FTabManager::FArea& Layout);
	/** Opens the tabs that were open in the layout and can be spawned. */
	static void OpenTabsOf(
		const TSharedRef<SDockArea>& Area, FTabManager::FArea& Layout, const TSharedPtr<SWindow>& Window);
	/** Whether a tab of the layout can be spawned. @param bMustBeOpen  and was open */
	static bool HasTabToOpen(const FTabManager& Manager, FTabManager::FArea& Layout, bool bMustBeOpen);
	static bool HasPlace(FTabManager::FArea& Layout, TFunctionRef<bool(const FTabId&)> Test);
	static void MakeWindow(const TSharedRef<SDockArea>& Area, const FTabManager::FArea& Layout);
	/** Label of the tab that was used last of those in front. */
	static FText TitleOf(const TSharedPtr<SDockArea>& Area);
	/** A new area in a window of its own, with one empty stack. @param Position  null for anywhere */
	static TSharedRef<SDockStack> NewFloatingStack(
		const TSharedRef<FTabManager>& Manager, ETabRole Role, const FVector2D* Position, const FVector2D& Size);
	/** A floating area without open tabs loses its window; its places are kept. */
	static void CollapseIfEmpty(const TSharedRef<SDockArea>& Area);
	static void DestroyWindow(const TSharedRef<SDockArea>& Area);
	static void AreaWindowWasDestroyed(const TSharedRef<SDockArea>& Area);
	/** Without asking. */
	static void CloseTabsOf(const TSharedRef<SDockArea>& Area);
	/** Takes an area with all its tabs and places from its manager. */
	static void DropArea(const TSharedRef<SDockArea>& Area);
	static bool MayCloseArea(SDockArea& Area);

	// Managers (TabManager.cpp)

	static TArray<TSharedRef<SDockArea>> LiveAreas(const FTabManager& Manager);
	static TSharedPtr<FTabSpawnerEntry> FindNomadSpawner(FName TabId);
	static void RestoreFloatingArea(
		const TSharedRef<FTabManager>& Manager, const TSharedRef<FTabManager::FArea>& Layout);
	static void MarkChanged(const TSharedPtr<FTabManager>& Manager);
	static void SaveChangedLayouts();
	/** The stack and place of a closed tab, whose collapsed area is opened for it; empty when there is none. */
	static TSharedPtr<SDockStack> FindClosedPlace(
		const TSharedRef<FTabManager>& Manager, TFunctionRef<bool(const FTabId&)> Test, int32& OutPlace);
	/** Opens a tab at its former place or in a window of its own. */
	static void PlaceTab(const TSharedRef<FTabManager>& Manager, const TSharedRef<SDockTab>& Tab,
		TFunctionRef<bool(const FTabId&)> IsItsPlace);
	/** See FTabManager::InsertNewDocumentTab. */
	static void InsertDocument(const TSharedRef<FTabManager>& Manager, FName PlaceholderId, const FTabId& NewId,
		const FTabManager::FSearchPreference& Preference, const TSharedRef<SDockTab>& Tab);
	static bool IsDocumentPlace(const FTabManager& Manager, const FTabId& Id);
	static void ForgetSubManager(const SDockTab& MajorTab);
	static void Reset();
};
} // namespace Host
