// SPDX-License-Identifier: MIT

#include "Widgets/Input/SButton.h"

#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
bool IsAcceptKey(const FKeyEvent& Event)
{
	return Event.GetKey() == EKeys::Enter || Event.GetKey() == EKeys::SpaceBar;
}
} // namespace

void SButton::Construct(const FArguments& InArgs)
{
	TSharedRef<SWidget> Inside = InArgs._Content.Widget;
	if (Inside == SNullWidget::NullWidget && InArgs._Text.IsSet())
	{
		Inside = SNew(STextBlock).Text(InArgs._Text).TextStyle(InArgs._TextStyle);
	}
	SBorder::Construct(
		SBorder::FArguments().HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._ContentPadding)[Inside]);
	OnClicked = InArgs._OnClicked;
	ButtonStyle = InArgs._ButtonStyle;
	bFocusable = InArgs._IsFocusable;
}

FReply SButton::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent))
	{
		return FReply::Unhandled();
	}
	bPressed = true;
	return FReply::Handled();
}

FReply SButton::OnKeyUp(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	// A key that went down elsewhere presses nothing here.
	if (!IsAcceptKey(InKeyEvent) || !bPressed)
	{
		return FReply::Unhandled();
	}
	bPressed = false;
	return Click();
}

void SButton::OnFocusLost(const FFocusEvent&)
{
	bPressed = false;
}

FReply SButton::Click()
{
	return OnClicked.IsBound() ? OnClicked.Execute() : FReply::Handled();
}
