// SPDX-License-Identifier: MIT

#include "Host/Menus.h"

#include "Application/MenuHost.h"
#include "Host/Application.h"
#include "Host/WidgetTree.h"
#include "Host/Windows.h"

namespace Host
{
namespace
{
class FHostMenu : public IMenu
{
public:
	FHostMenu(const TSharedRef<SWidget>& InParent, const TSharedRef<SMenuHost>& InHost)
		: Parent(InParent)
		, MenuHost(InHost)
	{
		FWidgetAccess::SetParent(*InHost, InParent);
	}

	TSharedPtr<SWidget> GetContent() const override
	{
		return MenuHost.IsValid() ? TSharedPtr<SWidget>(MenuHost->GetContent()) : nullptr;
	}

	TSharedPtr<SWindow> GetParentWindow() const override
	{
		const TSharedPtr<SWidget> Pinned = Parent.Pin();
		return Pinned.IsValid() ? FindWindow(Pinned.ToSharedRef()) : nullptr;
	}

	void Dismiss() override
	{
		if (!MenuHost.IsValid())
		{
			return;
		}
		const TSharedRef<IMenu> Self = AsShared();
		if (FSlateApplication::IsInitialized())
		{
			FSlateApplication& Application = FSlateApplication::Get();
			TArray<TSharedRef<IMenu>>& Stack = FApplicationAccess::MenuStack(Application);
			const int32 Index = Stack.Find(Self);
			while (Index != INDEX_NONE && Stack.Num() > Index + 1)
			{
				Stack.Last()->Dismiss();
			}
			Stack.Remove(Self);
			const TSharedPtr<SWidget> Focused = Application.GetKeyboardFocusedWidget();
			if (Focused.IsValid() && IsBelow(*Focused, *MenuHost) &&
				!Application.SetKeyboardFocus(Parent.Pin(), EFocusCause::SetDirectly))
			{
				Application.ClearKeyboardFocus(EFocusCause::Cleared);
			}
		}
		MenuHost.Reset();
		GetWindowSystem().CloseMenu(Self);
		TellDismissed();
	}

	FOnMenuDismissed& GetOnMenuDismissed() override { return OnDismissed; }

	TWeakPtr<SWidget> Parent;

private:
	TSharedPtr<SMenuHost> MenuHost;
	FOnMenuDismissed OnDismissed;
};
} // namespace

void SMenuHost::Construct(const FArguments& InArgs)
{
	ChildSlot[InArgs._Content.Widget];
}

FReply SMenuHost::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	const TSharedPtr<IMenu> Open = Menu.Pin();
	if (InKeyEvent.GetKey() == EKeys::Escape && Open.IsValid())
	{
		Open->Dismiss();
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

TSharedPtr<IMenu> FindMenu(const TSharedRef<SWidget>& Widget)
{
	for (TSharedPtr<SWidget> Above = Widget; Above.IsValid(); Above = Above->GetParentWidget())
	{
		if (const auto* const InMenu = dynamic_cast<const SMenuHost*>(Above.Get()))
		{
			return InMenu->GetMenu();
		}
	}
	return nullptr;
}

TSharedRef<IMenu> OpenMenu(
	const TSharedRef<SWidget>& Parent, const TSharedRef<SWidget>& Content, const TOptional<FVector2D>& Position)
{
	const TSharedRef<SMenuHost> MenuHost = SNew(SMenuHost)[Content];
	const TSharedRef<FHostMenu> Menu = MakeShared<FHostMenu>(Parent, MenuHost);
	MenuHost->SetMenu(Menu);
	TArray<TSharedRef<IMenu>>& Stack = FApplicationAccess::MenuStack(FSlateApplication::Get());
	const TSharedPtr<IMenu> HangsOn = FindMenu(Parent);
	while (Stack.Num() > 0 && Stack.Last() != HangsOn)
	{
		Stack.Last()->Dismiss();
	}
	Stack.Add(Menu);
	GetWindowSystem().OpenMenu(Menu, Position);
	return Menu;
}

TSharedPtr<SWidget> GetMenuParent(const IMenu& Menu)
{
	return static_cast<const FHostMenu&>(Menu).Parent.Pin();
}

TArray<TSharedRef<IMenu>> OpenMenus()
{
	return FSlateApplication::IsInitialized() ? FApplicationAccess::MenuStack(FSlateApplication::Get())
											  : TArray<TSharedRef<IMenu>>();
}
} // namespace Host
