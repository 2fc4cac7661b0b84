// SPDX-License-Identifier: MIT
#pragma once

// A button that opens a menu.

#include "Framework/Application/IMenu.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SCompoundWidget.h"

struct FButtonStyle;
struct FComboButtonStyle;

/** The child is what stands on the button; the menu is made at each opening. */
class SComboButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SComboButton)
		: _ComboButtonStyle(nullptr)
		, _ButtonStyle(nullptr)
		, _ContentPadding(FMargin(5.0f))
		, _HasDownArrow(true)
		, _IsFocusable(true)
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Center)
	{
	}
	/** Not owned; null for the application's. */
	SLATE_STYLE_ARGUMENT(FComboButtonStyle, ComboButtonStyle)
	/** In place of the one in the combo button's style. */
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_NAMED_SLOT(FArguments, ButtonContent)
	/** Used while OnGetMenuContent is not bound. */
	SLATE_NAMED_SLOT(FArguments, MenuContent)
	SLATE_EVENT(FOnGetContent, OnGetMenuContent)
	SLATE_EVENT(FOnIsOpenChanged, OnMenuOpenChanged)
	SLATE_ATTRIBUTE(FMargin, ContentPadding)
	SLATE_ARGUMENT(bool, HasDownArrow)
	SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
	~SComboButton() override;

	bool IsOpen() const { return Menu.IsValid(); }
	/** Opens the menu below the button, or closes it. @param bFocusMenu  the first widget in it that can gets the focus
	 */
	void SetIsOpen(bool InIsOpen, const bool bFocusMenu = true);
	void SetMenuContent(TSharedRef<SWidget> InContent) { MenuContent = InContent; }
	void SetOnGetMenuContent(FOnGetContent InOnGetMenuContent) { OnGetMenuContent = InOnGetMenuContent; }

	bool HasDownArrow() const { return bHasDownArrow; }
	/** Null for the application's. */
	const FComboButtonStyle* GetComboButtonStyle() const { return ComboButtonStyle; }
	const FButtonStyle* GetButtonStyle() const { return ButtonStyle; }

	bool SupportsKeyboardFocus() const override { return bFocusable; }
	/** Enter, the space bar and the arrow down open the menu. */
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	void MenuWasDismissed(TSharedRef<IMenu> InMenu);

	FOnGetContent OnGetMenuContent;
	FOnIsOpenChanged OnMenuOpenChanged;
	TSharedPtr<SWidget> MenuContent;
	TWeakPtr<IMenu> Menu;
	const FComboButtonStyle* ComboButtonStyle = nullptr;
	const FButtonStyle* ButtonStyle = nullptr;
	bool bHasDownArrow = true;
	bool bFocusable = true;
};
