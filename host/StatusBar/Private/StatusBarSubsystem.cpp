// SPDX-License-Identifier: MIT
#include "StatusBarSubsystem.h"

#include "SStatusBar.h"
#include "Widgets/Docking/SDockTab.h"

TSharedRef<SWidget> UStatusBarSubsystem::MakeStatusBarWidget(
	const FName StatusBarName, const TSharedRef<SDockTab>& /*InParentTab*/)
{
	const TSharedRef<SStatusBar> Widget = SNew(SStatusBar);
	FStatusBar& Bar = StatusBars.FindOrAdd(StatusBarName);
	Bar.Widget = Widget;
	Widget->SetDrawers(Bar.Drawers);
	return Widget;
}

void UStatusBarSubsystem::RegisterDrawer(const FName StatusBarName, FWidgetDrawerConfig&& Drawer, const int32 SlotIndex)
{
	FStatusBar& Bar = StatusBars.FindOrAdd(StatusBarName);
	Bar.Drawers.RemoveAll([&Drawer](const FWidgetDrawerConfig& Entry) { return Entry.UniqueId == Drawer.UniqueId; });
	const int32 Index = SlotIndex == INDEX_NONE ? Bar.Drawers.Num() : FMath::Min(SlotIndex, Bar.Drawers.Num());
	Bar.Drawers.Insert(MoveTemp(Drawer), Index);
	if (const TSharedPtr<SStatusBar> Widget = Bar.Widget.Pin())
	{
		Widget->SetDrawers(Bar.Drawers);
	}
}

void UStatusBarSubsystem::UnregisterDrawer(const FName StatusBarName, const FName DrawerId)
{
	FStatusBar* const Bar = StatusBars.Find(StatusBarName);
	if (!Bar)
	{
		return;
	}
	Bar->Drawers.RemoveAll([DrawerId](const FWidgetDrawerConfig& Entry) { return Entry.UniqueId == DrawerId; });
	if (const TSharedPtr<SStatusBar> Widget = Bar->Widget.Pin())
	{
		Widget->SetDrawers(Bar->Drawers);
	}
}

bool UStatusBarSubsystem::TryToggleDrawer(const FName DrawerId)
{
	for (const TPair<FName, FStatusBar>& Entry : StatusBars)
	{
		const TSharedPtr<SStatusBar> Widget = Entry.Value.Widget.Pin();
		if (Widget.IsValid() && Widget->ToggleDrawer(DrawerId))
		{
			return true;
		}
	}
	return false;
}
