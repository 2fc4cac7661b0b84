// SPDX-License-Identifier: MIT
#pragma once

// A tab: a label, an icon and the content that shows when it is in front.

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

class SDockTab : public SBorder
{
public:
	DECLARE_DELEGATE_OneParam(FOnTabClosedCallback, TSharedRef<SDockTab>);
	DECLARE_DELEGATE_RetVal(bool, FCanCloseTab);

	SLATE_BEGIN_ARGS(SDockTab)
		: _TabRole(ETabRole::PanelTab)
		, _Icon(nullptr)
	{
	}
	SLATE_ARGUMENT(ETabRole, TabRole)
	SLATE_ATTRIBUTE(FText, Label)
	SLATE_ARGUMENT(const FSlateBrush*, Icon)
	SLATE_EVENT(FOnTabClosedCallback, OnTabClosed)
	SLATE_EVENT(FCanCloseTab, OnCanCloseTab)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	ETabRole GetTabRole() const { return TabRole; }
	FText GetTabLabel() const { return TabLabel.Get(); }
	void SetLabel(const TAttribute<FText>& InTabLabel) { TabLabel = InTabLabel; }
	const FSlateBrush* GetTabIcon() const { return TabIcon.Get(); }
	void SetTabIcon(const TAttribute<const FSlateBrush*> InTabIcon) { TabIcon = InTabIcon; }

	/** True when the tab was closed; its owner may refuse. A closed tab is not closed again. */
	bool RequestCloseTab();

private:
	ETabRole TabRole = ETabRole::PanelTab;
	TAttribute<FText> TabLabel;
	TAttribute<const FSlateBrush*> TabIcon = nullptr;
	FOnTabClosedCallback OnTabClosed;
	FCanCloseTab OnCanCloseTab;
	bool bClosed = false;
};
