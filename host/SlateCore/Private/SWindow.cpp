// SPDX-License-Identifier: MIT

#include "Widgets/SWindow.h"

void SWindow::Construct(const FArguments& InArgs)
{
	Title = InArgs._Title;
	ClientSize = InArgs._ClientSize;
	SizingRule = InArgs._SizingRule;
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

void SWindow::RequestDestroyWindow()
{
	if (!bOpen)
	{
		return;
	}
	bOpen = false;
	// The handler may hold the last reference to the window.
	const TSharedRef<SWindow> Self = StaticCastSharedRef<SWindow>(AsShared());
	OnWindowClosed.ExecuteIfBound(Self);
}
