// SPDX-License-Identifier: MIT
// The row at the bottom of an editor window: its drawers' buttons, and above them the drawer that is open.
#pragma once

#include "CoreMinimal.h"
#include "WidgetDrawerConfig.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBox;

class SStatusBar : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SStatusBar) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Shows other drawers; the open one closes when it is not among them. */
	void SetDrawers(const TArray<FWidgetDrawerConfig>& InDrawers);
	/** False when the bar has no such drawer. */
	bool ToggleDrawer(FName DrawerId);
	/** None when all are closed. */
	FName GetOpenDrawer() const { return OpenDrawer; }

private:
	void CloseDrawer();
	bool IsDrawerOpen(FName DrawerId) const { return OpenDrawer == DrawerId; }

	TArray<FWidgetDrawerConfig> Drawers;
	TSharedPtr<SBox> DrawerBox;
	TSharedPtr<SBox> ButtonBox;
	FName OpenDrawer;
};
