// SPDX-License-Identifier: MIT
#pragma once

// The widgets that a layout of tabs is made of, as far as they are drawn and asked.

#include "Framework/Docking/TabManager.h"
#include "Templates/Function.h"
#include "Widgets/SPanel.h"

namespace Host
{
class SDockSplitter;

/**
 * A part of a live layout. A part without open tabs is collapsed: it keeps the places of closed tabs and takes no room.
 * Changed by the operations of Host/Docking.h.
 */
class SDockNode : public SPanel
{
public:
	FChildren* GetChildren() override { return &Children; }
	/** Share of the room, in proportion to the neighbours that are not collapsed. */
	float GetSizeCoefficient() const { return SizeCoefficient; }
	virtual bool HasOpenTabs() const = 0;
	/** The part is as large as its content wants: each open tab asks for it. */
	virtual bool IsAutosized() const = 0;
	/** In the order of the children. */
	virtual void ForEachStack(TFunctionRef<void(const TSharedRef<SDockStack>&)> Visit) = 0;
	/** The splitter that the part stands in; empty for an area and for a part that was taken out. */
	TSharedPtr<SDockSplitter> GetSplitter() const;
	/** Empty for a part that was taken out. */
	TSharedPtr<SDockArea> GetArea();

protected:
	friend struct FDockAccess;

	/** A child that fills its place. */
	class FDockSlot : public FSlotBase
	{
	public:
		struct FSlotArguments
		{
			TSharedPtr<SWidget> Child;
		};
		void Construct(const FSlotArguments& Arguments) { AttachWidget(Arguments.Child.ToSharedRef()); }
	};

	SDockNode()
		: Children(this)
	{
	}
	void ConstructNode(float InSizeCoefficient);
	virtual TSharedRef<FTabManager::FLayoutNode> ToLayout() const = 0;
	EVisibility GetNodeVisibility() const;

	TPanelChildren<FDockSlot> Children;
	float SizeCoefficient = 1.0f;
};

/** Parts beside each other or above each other. */
class SDockSplitter : public SDockNode
{
public:
	SLATE_BEGIN_ARGS(SDockSplitter)
		: _Orientation(Orient_Horizontal)
		, _SizeCoefficient(1.0f)
	{
	}
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_ARGUMENT(float, SizeCoefficient)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	EOrientation GetOrientation() const { return Orientation; }
	int32 NumNodes() const { return Children.Num(); }
	TSharedRef<SDockNode> GetNode(int32 Index) const;
	int32 FindNode(const SDockNode& Node) const;

	bool HasOpenTabs() const override;
	bool IsAutosized() const override;
	void ForEachStack(TFunctionRef<void(const TSharedRef<SDockStack>&)> Visit) override;

protected:
	friend struct FDockAccess;

	TSharedRef<FTabManager::FLayoutNode> ToLayout() const override;
	void FillLayout(FTabManager::FSplitter& Layout) const;

	EOrientation Orientation = Orient_Horizontal;
};

/** The outermost splitter. */
class SDockArea : public SDockSplitter
{
public:
	SLATE_BEGIN_ARGS(SDockArea) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<FTabManager>& InManager, EOrientation InOrientation);

	/** Empty when the manager is gone or has closed the area. */
	TSharedPtr<FTabManager> GetManager() const { return Manager.Pin(); }
	/** The window that holds only this area; empty for a primary area. */
	TSharedPtr<SWindow> GetFloatingWindow() const { return FloatingWindow.Pin(); }
	bool IsFloating() const { return bFloating; }

private:
	friend struct FDockAccess;

	TSharedRef<FTabManager::FLayoutNode> ToLayout() const override;

	TWeakPtr<FTabManager> Manager;
	TWeakPtr<SWindow> FloatingWindow;
	bool bFloating = false;
};

/** Tabs on top of each other. The children are the open ones. */
class SDockStack : public SDockNode
{
public:
	SLATE_BEGIN_ARGS(SDockStack)
		: _HideTabWell(false)
		, _SizeCoefficient(1.0f)
	{
	}
	SLATE_ARGUMENT(bool, HideTabWell)
	SLATE_ARGUMENT(float, SizeCoefficient)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** The open tabs, from left to right. */
	TArray<TSharedRef<SDockTab>> GetTabs() const;
	int32 NumTabs() const { return Children.Num(); }
	/** Empty when no tab is open. */
	TSharedPtr<SDockTab> GetForegroundTab() const { return Foreground.Pin(); }
	/** The row of tabs is not shown: it was hidden, and there is one tab only. */
	bool IsTabWellHidden() const { return bHideTabWell && Children.Num() == 1; }

	bool HasOpenTabs() const override { return Children.Num() > 0; }
	bool IsAutosized() const override;
	void ForEachStack(TFunctionRef<void(const TSharedRef<SDockStack>&)> Visit) override { Visit(SharedThis(this)); }

private:
	friend struct FDockAccess;

	/** Where a tab is or was. */
	struct FPlace
	{
		FTabId Id;
		/** Empty for a closed tab. */
		TSharedPtr<SDockTab> Tab;
	};

	TSharedRef<FTabManager::FLayoutNode> ToLayout() const override;
	int32 FindPlace(TFunctionRef<bool(const FPlace&)> Test) const;
	int32 FindPlace(const SDockTab& Tab) const;
	/** Number of open tabs before the place. */
	int32 ChildIndexOf(int32 PlaceIndex) const;
	void Open(int32 PlaceIndex, const TSharedRef<SDockTab>& Tab);
	/** Takes the tab of the place out of the children; the place stays, closed. */
	void Close(int32 PlaceIndex);
	void SetForeground(const TSharedPtr<SDockTab>& Tab);

	TArray<FPlace> Places;
	TWeakPtr<SDockTab> Foreground;
	bool bHideTabWell = false;
};
} // namespace Host
