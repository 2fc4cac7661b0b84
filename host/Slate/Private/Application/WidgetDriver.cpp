// SPDX-License-Identifier: MIT

#include "Host/WidgetDriver.h"

#include "Application/MenuHost.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Application.h"
#include "Host/Menus.h"
#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableTextBox.h"

namespace Host
{
struct FButtonAccess
{
	static FReply Click(SButton& Button) { return Button.Click(); }
};

struct FTextBoxAccess
{
	static void Edit(SEditableTextBox& Box, const FText& NewText) { Box.EditText(NewText); }
};

namespace
{
FString NameOf(const TSharedRef<SWidget>& Widget)
{
	FWidgetQuery Name = FWidgetQuery::ByType(Widget->GetType());
	const FString Text = TextOf(Widget);
	if (!Text.IsEmpty())
	{
		Name.Text = Text;
	}
	return Name.ToString();
}

FDriveResult Refuse(const TSharedRef<SWidget>& Widget, const TCHAR* Reason)
{
	return {FString::Printf(TEXT("%s %s"), *NameOf(Widget), Reason)};
}

void ApplyReply(const FReply& Reply)
{
	if (Reply.GetUserFocusRecepient().IsValid() && FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().SetKeyboardFocus(Reply.GetUserFocusRecepient(), Reply.GetFocusCause());
	}
}

void Focus(const TSharedRef<SWidget>& Widget)
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().SetKeyboardFocus(Widget, EFocusCause::Mouse);
	}
}

bool OpensMenu(const SMultiBoxItem& Item)
{
	return Item.GetKind() == EMultiBoxItem::SubMenu || Item.GetKind() == EMultiBoxItem::ComboButton;
}

/** Whether choosing the entry closes the menu that it stands in. */
bool ClosesMenu(const SMultiBoxItem& Item)
{
	for (TSharedPtr<SWidget> Above = Item.GetParentWidget(); Above.IsValid(); Above = Above->GetParentWidget())
	{
		if (const auto* const Box = dynamic_cast<const SMultiBoxWidget*>(Above.Get()))
		{
			return Box->GetMultiBox()->ShouldCloseWindowAfterMenuSelection();
		}
	}
	return false;
}

FDriveResult PressItem(const TSharedRef<SMultiBoxItem>& Item)
{
	if (OpensMenu(*Item))
	{
		OpenMenu(Item, Item->OpenMenu());
		return {};
	}
	// The menus go first: the action may open a window.
	if (const TSharedPtr<IMenu> Menu = FindMenu(Item); Menu.IsValid() && ClosesMenu(*Item))
	{
		if (Item->GetInfo().bCloseSelfOnly)
		{
			Menu->Dismiss();
		}
		else
		{
			FSlateApplication::Get().DismissAllMenus();
		}
	}
	return Item->Press() ? FDriveResult() : Refuse(Item, TEXT("does nothing"));
}

/** Presses one widget if it is of a kind that can be; false when it is not. */
bool TryPress(const TSharedRef<SWidget>& Widget, FDriveResult& OutResult)
{
	SWidget* const Raw = &Widget.Get();
	if (auto* const Button = dynamic_cast<SButton*>(Raw))
	{
		Focus(Widget);
		ApplyReply(FButtonAccess::Click(*Button));
	}
	else if (auto* const Combo = dynamic_cast<SComboButton*>(Raw))
	{
		Focus(Widget);
		Combo->SetIsOpen(!Combo->IsOpen());
	}
	else if (dynamic_cast<SMultiBoxItem*>(Raw))
	{
		OutResult = PressItem(StaticCastSharedRef<SMultiBoxItem>(Widget));
	}
	else if (auto* const Tab = dynamic_cast<SDockTab*>(Raw))
	{
		Tab->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	}
	else if (dynamic_cast<SEditableTextBox*>(Raw))
	{
		Focus(Widget);
	}
	else
	{
		return false;
	}
	return true;
}
} // namespace

FDriveResult Press(const TSharedRef<SWidget>& Widget)
{
	// A tab in the background is seen in its row.
	const TSharedPtr<SWidget> Parent = Widget->GetParentWidget();
	const bool bTab = dynamic_cast<SDockTab*>(&Widget.Get()) && Parent.IsValid();
	if (!IsVisibleInTree(bTab ? *Parent : *Widget))
	{
		return Refuse(Widget, TEXT("is not visible"));
	}
	if (!IsEnabledInTree(*Widget))
	{
		return Refuse(Widget, TEXT("is disabled"));
	}
	FDriveResult Result;
	for (TSharedPtr<SWidget> Taker = Widget; Taker.IsValid(); Taker = Taker->GetParentWidget())
	{
		// A click into the content of a tab or a menu is none on the tab or on what opened the menu.
		const bool bOutside = Taker != Widget && (dynamic_cast<SDockTab*>(Taker.Get()) != nullptr ||
													 dynamic_cast<SMenuHost*>(Taker.Get()) != nullptr);
		if (bOutside)
		{
			break;
		}
		if (TryPress(Taker.ToSharedRef(), Result))
		{
			return Result;
		}
	}
	return Refuse(Widget, TEXT("is nothing to press"));
}

FDriveResult Press(const TSharedRef<SWidget>& Root, const FWidgetQuery& Query)
{
	const TSharedPtr<SWidget> Widget = FindWidget(Root, Query);
	return Widget.IsValid() ? Press(Widget.ToSharedRef())
							: FDriveResult{FString::Printf(TEXT("There is no visible %s"), *Query.ToString())};
}

FDriveResult TypeInto(const TSharedRef<SWidget>& Widget, const FString& Text)
{
	auto* const Box = dynamic_cast<SEditableTextBox*>(&Widget.Get());
	if (!Box || Box->IsReadOnly())
	{
		return Refuse(Widget, Box ? TEXT("is read-only") : TEXT("takes no text"));
	}
	const FDriveResult Pressed = Press(Widget);
	if (!Pressed)
	{
		return Pressed;
	}
	for (const TCHAR Character : Text)
	{
		FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(Character, FModifierKeysState(), 0, false));
	}
	return {};
}

void EditTextByUser(SEditableTextBox& Box, const FText& NewText)
{
	FTextBoxAccess::Edit(Box, NewText);
}

FDriveResult ChooseFromMenu(const TSharedRef<SWidget>& Opener, const TArray<FString>& Labels)
{
	if (Labels.Num() == 0)
	{
		return {TEXT("No entry is named")};
	}
	const FDriveResult Opened = Press(Opener);
	if (!Opened)
	{
		return Opened;
	}
	for (int32 Index = 0; Index < Labels.Num(); ++Index)
	{
		const TArray<TSharedRef<IMenu>> Menus = OpenMenus();
		const TSharedPtr<SWidget> Content = Menus.Num() > 0 ? Menus.Last()->GetContent() : nullptr;
		const TSharedPtr<SMultiBoxItem> Item =
			Content.IsValid() ? FindMultiBoxItem(Content.ToSharedRef(), FText::FromString(Labels[Index])) : nullptr;
		FDriveResult Result;
		if (!Item.IsValid())
		{
			Result.WhyNot =
				FString::Printf(TEXT("The menu of %s has no entry '%s'; it has: %s"), *NameOf(Opener), *Labels[Index],
					Content.IsValid() ? *FString::Join(DescribeMultiBox(Content.ToSharedRef()), TEXT(", "))
									  : TEXT("nothing"));
		}
		else if (Index + 1 < Labels.Num() && !OpensMenu(*Item))
		{
			Result = Refuse(Item.ToSharedRef(), TEXT("opens no menu"));
		}
		else
		{
			Result = Press(StaticCastSharedRef<SWidget>(Item.ToSharedRef()));
		}
		if (!Result)
		{
			FSlateApplication::Get().DismissAllMenus();
			return Result;
		}
	}
	return {};
}

bool PressKey(const FKey& Key, const FModifierKeysState& Modifiers, TCHAR Character)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const bool bHandled = Application.ProcessKeyDownEvent(FKeyEvent(Key, Modifiers, 0, false, Character, 0));
	bool bTyped = false;
	if (Character != 0)
	{
		bTyped = Application.ProcessKeyCharEvent(FCharacterEvent(Character, Modifiers, 0, false));
	}
	const bool bReleased = Application.ProcessKeyUpEvent(FKeyEvent(Key, Modifiers, 0, false, Character, 0));
	SetModifierKeys(FModifierKeysState());
	return bHandled || bTyped || bReleased;
}

namespace
{
/** Those that take the focus, in order. */
TArray<TSharedRef<SWidget>> Focusable(const TSharedRef<SWidget>& Root)
{
	TArray<TSharedRef<SWidget>> Found;
	for (const TSharedRef<SWidget>& Widget : FindWidgets(Root, FWidgetQuery()))
	{
		if (Widget->SupportsKeyboardFocus() && IsEnabledInTree(*Widget))
		{
			Found.Add(Widget);
		}
	}
	return Found;
}
} // namespace

bool FocusInto(const TSharedRef<SWidget>& Root)
{
	const TArray<TSharedRef<SWidget>> Takers = Focusable(Root);
	return Takers.Num() > 0 && FSlateApplication::Get().SetKeyboardFocus(Takers[0], EFocusCause::SetDirectly);
}

bool FocusNext(bool bBackwards)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWidget> Focused = Application.GetKeyboardFocusedWidget();
	TSharedPtr<SWidget> Root = Application.GetActiveTopLevelWindow();
	for (TSharedPtr<SWidget> Above = Focused; Above.IsValid(); Above = Above->GetParentWidget())
	{
		Root = Above;
		if (dynamic_cast<SMenuHost*>(Above.Get()))
		{
			break;
		}
	}
	const TArray<TSharedRef<SWidget>> Takers =
		Root.IsValid() ? Focusable(Root.ToSharedRef()) : TArray<TSharedRef<SWidget>>();
	if (Takers.Num() == 0)
	{
		return false;
	}
	const int32 Index = Focused.IsValid() ? Takers.Find(Focused.ToSharedRef()) : INDEX_NONE;
	const int32 Next = Index == INDEX_NONE ? (bBackwards ? Takers.Num() - 1 : 0)
										   : (Index + (bBackwards ? Takers.Num() - 1 : 1)) % Takers.Num();
	return Application.SetKeyboardFocus(Takers[Next], EFocusCause::Navigation);
}
} // namespace Host
