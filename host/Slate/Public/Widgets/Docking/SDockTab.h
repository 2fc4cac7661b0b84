// SPDX-License-Identifier: MIT
#pragma once

// A tab: a label, an icon and the content that shows when it is in front.

#include "Framework/Docking/TabManager.h"
#include "Styling/SlateBrush.h"
#include "Widgets/Layout/SBorder.h"

enum ETabRole : uint8
{
	MajorTab,
	PanelTab,
	NomadTab,
	DocumentTab,
	NumRoles,
};

/** Why a tab comes to the front. */
enum class ETabActivationCause : uint8
{
	UserClickedOnTab,
	SetDirectly,
};

/**
 * Lives in a stack of a tab manager's area, or alone until it is put into one. A closed tab is not opened again: the
 * next one of its kind is another object.
 */
class SDockTab : public SBorder
{
public:
	DECLARE_DELEGATE_OneParam(FOnTabClosedCallback, TSharedRef<SDockTab>);
	DECLARE_DELEGATE_TwoParams(FOnTabActivatedCallback, TSharedRef<SDockTab>, ETabActivationCause);
	DECLARE_DELEGATE_RetVal(bool, FCanCloseTab);

	SLATE_BEGIN_ARGS(SDockTab)
		: _ContentPadding(FMargin(2.0f))
		, _TabRole(ETabRole::PanelTab)
		, _ShouldAutosize(false)
		, _CanEverClose(true)
		, _Icon(nullptr)
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(FMargin, ContentPadding)
	SLATE_ARGUMENT(ETabRole, TabRole)
	SLATE_ATTRIBUTE(FText, Label)
	/** The tab's stack is as large as the content wants, and has no handle. */
	SLATE_ARGUMENT(bool, ShouldAutosize)
	SLATE_ARGUMENT(bool, CanEverClose)
	SLATE_ARGUMENT(const FSlateBrush*, Icon)
	SLATE_EVENT(FOnTabClosedCallback, OnTabClosed)
	SLATE_EVENT(FOnTabActivatedCallback, OnTabActivated)
	SLATE_EVENT(FCanCloseTab, OnCanCloseTab)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
	~SDockTab() override;

	ETabRole GetTabRole() const { return TabRole; }
	FText GetTabLabel() const { return TabLabel.Get(); }
	void SetLabel(const TAttribute<FText>& InTabLabel) { TabLabel = InTabLabel; }
	const FSlateBrush* GetTabIcon() const { return TabIcon.Get(); }
	void SetTabIcon(const TAttribute<const FSlateBrush*> InTabIcon) { TabIcon = InTabIcon; }
	bool ShouldAutosize() const { return bShouldAutosize; }
	void SetShouldAutosize(bool bInShouldAutosize) { bShouldAutosize = bInShouldAutosize; }

	void SetOnTabClosed(const FOnTabClosedCallback& InHandler) { OnTabClosed = InHandler; }
	void SetOnTabActivated(const FOnTabActivatedCallback& InHandler) { OnTabActivated = InHandler; }
	void SetCanCloseTab(const FCanCloseTab& InHandler) { OnCanCloseTab = InHandler; }

	/** Whether the tab may ever close, its owner and all tabs inside it let it. */
	bool CanCloseTab() const;
	/**
	 * Closes the tab, after the tabs inside it, and tells its owner.
	 *
	 * @return false when it, or one inside it, may not close, or it is closed already; then nothing happens
	 */
	bool RequestCloseTab();

	/** Brings the tab to the front of its stack. */
	void ActivateInParent(ETabActivationCause InActivationCause);
	/** In front of its stack. */
	bool IsForeground() const;
	/** The tab that was used last, of all. */
	bool IsActive() const;
	/** On the application's clock; 0 when it never was in front. */
	double GetLastActivationTime() const { return LastActivationTime; }

	const FTabId& GetLayoutIdentifier() const { return LayoutIdentifier; }
	/** Empty outside of a layout. */
	TSharedPtr<FTabManager> GetTabManagerPtr() const { return MyTabManager.Pin(); }
	TSharedPtr<SWindow> GetParentWindow() const;
	/** Whether a tab of that identifier is open in the same stack. @param TreatIndexNoneAsWildcard  any number does */
	bool HasSiblingTab(const FTabId& SiblingTabId, const bool TreatIndexNoneAsWildcard = true) const;

private:
	friend struct Host::FDockAccess;

	TSharedPtr<Host::SDockStack> GetStack() const;
	EVisibility GetTabVisibility() const;

	ETabRole TabRole = ETabRole::PanelTab;
	TAttribute<FText> TabLabel;
	TAttribute<const FSlateBrush*> TabIcon;
	FOnTabClosedCallback OnTabClosed;
	FOnTabActivatedCallback OnTabActivated;
	FCanCloseTab OnCanCloseTab;
	FTabId LayoutIdentifier;
	TWeakPtr<FTabManager> MyTabManager;
	double LastActivationTime = 0.0;
	/** Rises with each use of any tab: times may be equal. */
	uint64 ActivationOrder = 0;
	bool bShouldAutosize = false;
	bool bCanEverClose = true;
	bool bClosed = false;
};
