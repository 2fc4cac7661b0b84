// SPDX-License-Identifier: MIT

#include "Widgets/SWindow.h"

#include "Application/SlateApplicationBase.h"
#include "Host/WidgetTree.h"
#include "Host/Windows.h"

void SWindow::Construct(const FArguments& InArgs)
{
	Title = InArgs._Title;
	ScreenPosition = InArgs._ScreenPosition;
	ClientSize = InArgs._ClientSize;
	SizingRule = InArgs._SizingRule;
	AutoCenter = InArgs._AutoCenter;
	bTopmost = InArgs._IsTopmostWindow;
	bSupportsMaximize = InArgs._SupportsMaximize;
	bSupportsMinimize = InArgs._SupportsMinimize;
	bHasCloseButton = InArgs._HasCloseButton;
	bMaximized = InArgs._IsInitiallyMaximized;
	SetContent(InArgs._Content.Widget);
}

TSharedRef<const SWidget> SWindow::GetContent() const
{
	return ChildSlot.GetWidget();
}

void SWindow::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

void SWindow::MoveWindowTo(FVector2D NewPosition)
{
	ScreenPosition = NewPosition;
	AutoCenter = EAutoCenter::None;
}

void SWindow::Resize(FVector2D NewClientSize)
{
	ClientSize = NewClientSize;
}

void SWindow::ShowWindow()
{
	if (bOpen && bAdded && !bShown)
	{
		bShown = true;
		Host::GetWindowSystem().Show(SharedThis(this));
	}
}

void SWindow::HideWindow()
{
	if (bShown)
	{
		bShown = false;
		Host::GetWindowSystem().Hide(SharedThis(this));
	}
}

void SWindow::BringToFront(bool)
{
	if (bShown)
	{
		Host::GetWindowSystem().BringToFront(SharedThis(this));
		Host::WindowWasActivated(SharedThis(this));
	}
}

bool SWindow::IsActive() const
{
	return FSlateApplicationBase::IsInitialized() &&
		   FSlateApplicationBase::Get().GetActiveTopLevelWindow().Get() == this;
}

void SWindow::RequestDestroyWindow()
{
	if (!bOpen)
	{
		return;
	}
	// The handlers may hold the last reference to the window.
	const TSharedRef<SWindow> Self = SharedThis(this);
	if (RequestDestroyWindowOverride.IsBound())
	{
		RequestDestroyWindowOverride.Execute(Self);
	}
	else if (FSlateApplicationBase::IsInitialized())
	{
		FSlateApplicationBase::Get().RequestDestroyWindow(Self);
	}
	else
	{
		Host::FWindowAccess::NotifyClosed(Self);
	}
}

namespace Host
{
void FWindowAccess::SetParent(const TSharedRef<SWindow>& Window, const TSharedPtr<SWindow>& Parent)
{
	if (const TSharedPtr<SWindow> Former = Window->ParentWindow.Pin())
	{
		Former->ChildWindows.Remove(Window);
	}
	Window->ParentWindow = Parent;
	if (Parent.IsValid())
	{
		Parent->ChildWindows.Add(Window);
	}
}

bool FWindowAccess::NotifyClosed(const TSharedRef<SWindow>& Window)
{
	if (!Window->bOpen)
	{
		return false;
	}
	Window->bOpen = false;
	Window->bShown = false;
	Window->OnWindowClosed.ExecuteIfBound(Window);
	return true;
}

void WindowWasMoved(SWindow& Window, const FVector2D& Position, const FVector2D& Size, bool bMaximized)
{
	FWindowAccess::SetRect(Window, Position, Size, bMaximized);
}

void CloseWindowByUser(const TSharedRef<SWindow>& Window)
{
	if (Window->HasCloseBox())
	{
		Window->RequestDestroyWindow();
	}
}
} // namespace Host
