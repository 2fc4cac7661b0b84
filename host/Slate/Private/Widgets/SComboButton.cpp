// SPDX-License-Identifier: MIT

#include "Widgets/Input/SComboButton.h"

#include "Framework/Application/SlateApplication.h"
#include "Host/Menus.h"
#include "Host/WidgetDriver.h"

void SComboButton::Construct(const FArguments& InArgs)
{
	ComboButtonStyle = InArgs._ComboButtonStyle;
	ButtonStyle = InArgs._ButtonStyle;
	OnGetMenuContent = InArgs._OnGetMenuContent;
	OnMenuOpenChanged = InArgs._OnMenuOpenChanged;
	MenuContent = InArgs._MenuContent.Widget;
	bHasDownArrow = InArgs._HasDownArrow;
	bFocusable = InArgs._IsFocusable;
	ChildSlot.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._ContentPadding)[InArgs._ButtonContent.Widget];
}

SComboButton::~SComboButton()
{
	if (const TSharedPtr<IMenu> Open = Menu.Pin())
	{
		Open->GetOnMenuDismissed().RemoveAll(this);
		Open->Dismiss();
	}
}

void SComboButton::SetIsOpen(bool InIsOpen, const bool bFocusMenu)
{
	if (InIsOpen == IsOpen())
	{
		return;
	}
	if (!InIsOpen)
	{
		Menu.Pin()->Dismiss();
		return;
	}
	const TSharedRef<SWidget> Content =
		OnGetMenuContent.IsBound() ? OnGetMenuContent.Execute() : MenuContent.ToSharedRef();
	const TSharedRef<IMenu> Opened = Host::OpenMenu(SharedThis(this), Content);
	Menu = Opened;
	Opened->GetOnMenuDismissed().AddSP(this, &SComboButton::MenuWasDismissed);
	OnMenuOpenChanged.ExecuteIfBound(true);
	if (bFocusMenu && IsOpen())
	{
		Host::FocusInto(Content);
	}
}

void SComboButton::MenuWasDismissed(TSharedRef<IMenu>)
{
	Menu.Reset();
	OnMenuOpenChanged.ExecuteIfBound(false);
}

FReply SComboButton::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key != EKeys::Enter && Key != EKeys::SpaceBar && Key != EKeys::Down)
	{
		return FReply::Unhandled();
	}
	SetIsOpen(true);
	return FReply::Handled();
}
