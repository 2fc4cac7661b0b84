// SPDX-License-Identifier: MIT

#include "Framework/Application/SlateApplication.h"

#include "Application/MenuHost.h"
#include "Docking/DockAccess.h"
#include "Host/Application.h"
#include "Host/Menus.h"
#include "Host/WidgetTimers.h"
#include "Host/WidgetTree.h"
#include "Host/Windows.h"
#include "Misc/ScopeExit.h"

TSharedPtr<FSlateApplication> FSlateApplication::CurrentApplication;

FSlateApplication::~FSlateApplication() = default;

TSharedRef<FSlateApplication> FSlateApplication::Create()
{
	checkf(!IsInitialized(), TEXT("There is an application already"));
	CurrentApplication = MakeShareable(new FSlateApplication());
	CurrentBaseApplication = CurrentApplication;
	return CurrentApplication.ToSharedRef();
}

void FSlateApplication::Shutdown()
{
	if (!IsInitialized())
	{
		return;
	}
	const TSharedRef<FSlateApplication> Self = CurrentApplication.ToSharedRef();
	Self->DismissAllMenus();
	while (Self->TopLevelWindows.Num() > 0)
	{
		Self->RequestDestroyWindow(Self->TopLevelWindows.Last());
	}
	Self->ClearKeyboardFocus(EFocusCause::Cleared);
	CurrentBaseApplication.Reset();
	CurrentApplication.Reset();
}

FSlateApplication& FSlateApplication::Get()
{
	checkf(IsInitialized(), TEXT("There is no application: FSlateApplication::Create makes it"));
	return *CurrentApplication;
}

void FSlateApplication::Tick()
{
	Host::RunDueCalls();
	Host::FDockAccess::SaveChangedLayouts();
}

TSharedRef<SWindow> FSlateApplication::AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately)
{
	using Host::FWindowAccess;
	if (!ensure(!FWindowAccess::IsAdded(*InSlateWindow) && FWindowAccess::IsOpen(*InSlateWindow)))
	{
		return InSlateWindow;
	}
	FWindowAccess::MarkAdded(*InSlateWindow);
	if (!InSlateWindow->GetParentWindow().IsValid())
	{
		TopLevelWindows.Add(InSlateWindow);
	}
	if (bShowImmediately)
	{
		InSlateWindow->ShowWindow();
		OnWindowActivated(InSlateWindow);
	}
	return InSlateWindow;
}

TSharedRef<SWindow> FSlateApplication::AddWindowAsNativeChild(
	TSharedRef<SWindow> InSlateWindow, TSharedRef<SWindow> InParentWindow, const bool bShowImmediately)
{
	Host::FWindowAccess::SetParent(InSlateWindow, InParentWindow);
	return AddWindow(InSlateWindow, bShowImmediately);
}

void FSlateApplication::AddModalWindow(
	TSharedRef<SWindow> InSlateWindow, const TSharedPtr<const SWidget> InParentWidget, bool)
{
	DismissAllMenus();
	const TSharedPtr<SWindow> Parent =
		InParentWidget.IsValid() ? FindWidgetWindow(InParentWidget.ToSharedRef()) : GetActiveTopLevelWindow();
	const TWeakPtr<SWindow> FormerWindow = ActiveWindow;
	ModalWindows.Add(InSlateWindow);
	ON_SCOPE_EXIT
	{
		ModalWindows.Remove(InSlateWindow);
	};
	if (Parent.IsValid() && Parent != InSlateWindow)
	{
		AddWindowAsNativeChild(InSlateWindow, Parent.ToSharedRef());
	}
	else
	{
		AddWindow(InSlateWindow);
	}
	Host::GetWindowSystem().RunModal(InSlateWindow);
	ModalWindows.Remove(InSlateWindow);
	if (const TSharedPtr<SWindow> Former = FormerWindow.Pin(); Former.IsValid() && Former->IsVisible())
	{
		OnWindowActivated(Former.ToSharedRef());
	}
}

TSharedPtr<SWindow> FSlateApplication::GetActiveModalWindow() const
{
	return ModalWindows.Num() > 0 ? TSharedPtr<SWindow>(ModalWindows.Last()) : nullptr;
}

TSharedPtr<SWindow> FSlateApplication::GetActiveTopLevelWindow() const
{
	return ActiveWindow.Pin();
}

TSharedPtr<SWindow> FSlateApplication::FindWidgetWindow(TSharedRef<const SWidget> InWidget) const
{
	return Host::FindWindow(InWidget);
}

void FSlateApplication::RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy)
{
	using Host::FWindowAccess;
	if (!FWindowAccess::IsOpen(*WindowToDestroy))
	{
		return;
	}
	while (WindowToDestroy->GetChildWindows().Num() > 0)
	{
		const TSharedRef<SWindow> Child = WindowToDestroy->GetChildWindows().Last();
		RequestDestroyWindow(Child);
		FWindowAccess::SetParent(Child, nullptr);
	}
	for (const TSharedRef<IMenu>& Menu : TArray<TSharedRef<IMenu>>(MenuStack))
	{
		if (Menu->GetParentWindow() == WindowToDestroy)
		{
			Menu->Dismiss();
		}
	}
	LeaveWindow(WindowToDestroy);
	if (!FWindowAccess::NotifyClosed(WindowToDestroy))
	{
		return;
	}
	TopLevelWindows.Remove(WindowToDestroy);
	FWindowAccess::SetParent(WindowToDestroy, nullptr);
	if (FWindowAccess::IsAdded(*WindowToDestroy))
	{
		Host::GetWindowSystem().Destroy(WindowToDestroy);
	}
}

void FSlateApplication::LeaveWindow(const TSharedRef<SWindow>& Window)
{
	const TSharedPtr<SWidget> Focused = GetKeyboardFocusedWidget();
	if (Focused.IsValid() && FindWidgetWindow(Focused.ToSharedRef()) == Window)
	{
		ClearKeyboardFocus(EFocusCause::Cleared);
	}
	if (ActiveWindow.Pin() == Window)
	{
		ActiveWindow = Window->GetParentWindow();
	}
}

void FSlateApplication::OnWindowActivated(const TSharedRef<SWindow>& Window)
{
	if (ActiveWindow.Pin() == Window)
	{
		return;
	}
	ActiveWindow = Window;
	const TSharedPtr<SWidget> Remembered = Host::FWindowAccess::FocusedWidget(*Window).Pin();
	const bool bStillInside = Remembered.IsValid() && FindWidgetWindow(Remembered.ToSharedRef()) == Window;
	MoveFocus(bStillInside ? Remembered : nullptr, EFocusCause::WindowActivate);
}

bool FSlateApplication::SetKeyboardFocus(
	const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	TSharedPtr<SWidget> Taker = OptionalWidgetToFocus;
	while (Taker.IsValid() && !Taker->SupportsKeyboardFocus())
	{
		Taker = Taker->GetParentWidget();
	}
	if (!Taker.IsValid() || !Host::IsEnabledInTree(*Taker))
	{
		return false;
	}
	if (const TSharedPtr<SWindow> Window = FindWidgetWindow(Taker.ToSharedRef()))
	{
		ActiveWindow = Window;
		Host::FWindowAccess::FocusedWidget(*Window) = Taker;
	}
	MoveFocus(Taker, ReasonFocusIsChanging);
	return true;
}

void FSlateApplication::ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging)
{
	MoveFocus(nullptr, ReasonFocusIsChanging);
}

void FSlateApplication::MoveFocus(const TSharedPtr<SWidget>& Widget, EFocusCause Cause)
{
	const TSharedPtr<SWidget> Former = GetKeyboardFocusedWidget();
	if (Former == Widget)
	{
		return;
	}
	FocusedWidget = Widget;
	if (Former.IsValid())
	{
		Former->OnFocusLost(FFocusEvent(Cause, 0));
	}
	// The widget that lost the focus may have given it to another one.
	if (Widget.IsValid() && GetKeyboardFocusedWidget() == Widget)
	{
		Host::FDockAccess::FocusEntered(*Widget);
		Widget->OnFocusReceived(FGeometry(), FFocusEvent(Cause, 0));
	}
}

TSharedPtr<SWidget> FSlateApplication::GetKeyboardFocusedWidget() const
{
	return FocusedWidget.Pin();
}

TArray<TSharedRef<SWidget>> FSlateApplication::KeyPath() const
{
	TSharedPtr<SWidget> Widget = GetKeyboardFocusedWidget();
	const TSharedPtr<SWindow> Modal = GetActiveModalWindow();
	if (Modal.IsValid() && !(Widget.IsValid() && Host::FindWindow(Widget.ToSharedRef()) == Modal))
	{
		Widget = Modal;
	}
	// What was taken out of its window has no keys to take while there is a window.
	const bool bLost = Widget.IsValid() && ActiveWindow.IsValid() && !Host::FindWindow(Widget.ToSharedRef()).IsValid();
	if (!Widget.IsValid() || bLost)
	{
		Widget = ActiveWindow.Pin();
	}
	TArray<TSharedRef<SWidget>> Path;
	while (Widget.IsValid())
	{
		Path.Add(Widget.ToSharedRef());
		Widget = dynamic_cast<const Host::SMenuHost*>(Widget.Get()) ? nullptr : Widget->GetParentWidget();
	}
	// A disabled widget takes those below it along.
	for (int32 Index = Path.Num() - 1; Index >= 0; --Index)
	{
		if (!Path[Index]->IsEnabled())
		{
			Path.RemoveAt(0, Index + 1);
			break;
		}
	}
	return Path;
}

template <typename EventType>
bool FSlateApplication::RouteKey(const EventType& Event, FReply (SWidget::*Handler)(const FGeometry&, const EventType&))
{
	ModifierKeys = Event.GetModifierKeys();
	for (const TSharedRef<SWidget>& Widget : KeyPath())
	{
		const FReply Reply = (Widget.Get().*Handler)(FGeometry(), Event);
		if (!Reply.IsEventHandled())
		{
			continue;
		}
		if (Reply.GetUserFocusRecepient().IsValid())
		{
			SetKeyboardFocus(Reply.GetUserFocusRecepient(), Reply.GetFocusCause());
		}
		return true;
	}
	return false;
}

bool FSlateApplication::ProcessKeyDownEvent(const FKeyEvent& InKeyEvent)
{
	if (RouteKey(InKeyEvent, &SWidget::OnKeyDown))
	{
		return true;
	}
	if (InKeyEvent.GetKey() == EKeys::Escape && AnyMenusVisible())
	{
		MenuStack.Last()->Dismiss();
		return true;
	}
	return false;
}

bool FSlateApplication::ProcessKeyUpEvent(const FKeyEvent& InKeyEvent)
{
	return RouteKey(InKeyEvent, &SWidget::OnKeyUp);
}

bool FSlateApplication::ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent)
{
	return RouteKey(InCharacterEvent, &SWidget::OnKeyChar);
}

void FSlateApplication::DismissAllMenus()
{
	while (MenuStack.Num() > 0)
	{
		MenuStack.Last()->Dismiss();
	}
}

void FSlateApplication::DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu)
{
	if (const TSharedPtr<IMenu> Menu = Host::FindMenu(InWidgetInMenu))
	{
		Menu->Dismiss();
	}
}

void Host::MoveToParentWindow(const TSharedRef<SWindow>& Window, const TSharedRef<SWindow>& Parent)
{
	if (Window != Parent && FWindowAccess::IsOpen(*Window) && FWindowAccess::IsOpen(*Parent))
	{
		FWindowAccess::SetParent(Window, Parent);
		if (FSlateApplication::IsInitialized())
		{
			FApplicationAccess::TopLevelWindows(FSlateApplication::Get()).Remove(Window);
		}
	}
}

void Host::SetModifierKeys(const FModifierKeysState& State)
{
	FApplicationAccess::SetModifierKeys(FSlateApplication::Get(), State);
}
