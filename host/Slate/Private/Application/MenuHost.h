// SPDX-License-Identifier: MIT
#pragma once

// The top of a menu's widgets.

#include "Framework/Application/IMenu.h"
#include "Widgets/SCompoundWidget.h"

namespace Host
{
/** Holds the content of one menu. Keys that nobody in the menu handles end here; Escape closes the menu. */
class SMenuHost : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuHost) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	void SetMenu(const TSharedRef<IMenu>& InMenu) { Menu = InMenu; }
	TSharedPtr<IMenu> GetMenu() const { return Menu.Pin(); }
	TSharedRef<SWidget> GetContent() const { return ChildSlot.GetWidget(); }

private:
	TWeakPtr<IMenu> Menu;
};

/** The menu that the widget stands in; empty when in none. */
TSharedPtr<IMenu> FindMenu(const TSharedRef<SWidget>& Widget);
} // namespace Host
