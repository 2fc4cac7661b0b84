// SPDX-License-Identifier: MIT
#pragma once

// A button with any content.

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"

struct FButtonStyle;

namespace Host
{
struct FButtonAccess;
}

/** Clicked with the pointer, or with Enter or the space bar while it has the focus. */
class SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _ButtonStyle(nullptr)
		, _TextStyle(nullptr)
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _ContentPadding(FMargin(4.0f, 2.0f))
		, _IsFocusable(true)
	{
	}
	/** Shown when there is no content. */
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	/** Not owned; null for the application's. */
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, ContentPadding)
	SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetOnClicked(FOnClicked InOnClicked) { OnClicked = InOnClicked; }
	/** Held down at the moment. */
	bool IsPressed() const { return bPressed; }
	/** Null for the application's. */
	const FButtonStyle* GetButtonStyle() const { return ButtonStyle; }

	bool SupportsKeyboardFocus() const override { return bFocusable; }
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	void OnFocusLost(const FFocusEvent& InFocusEvent) override;

private:
	friend struct Host::FButtonAccess;

	FReply Click();

	FOnClicked OnClicked;
	const FButtonStyle* ButtonStyle = nullptr;
	bool bFocusable = true;
	bool bPressed = false;
};
