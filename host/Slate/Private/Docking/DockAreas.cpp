// SPDX-License-Identifier: MIT
// Areas of tabs and the windows that they float in.

#include "Docking/DockAccess.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Windows.h"

namespace Host
{
namespace
{
/** Slate units: room for a whole editor, and for one panel. */
const FVector2D MajorWindowSize(1280.0, 800.0);
const FVector2D PanelWindowSize(480.0, 600.0);
} // namespace

void SDockArea::Construct(const FArguments&, const TSharedRef<FTabManager>& InManager, EOrientation InOrientation)
{
	Manager = InManager;
	Orientation = InOrientation;
	ConstructNode(1.0f);
}

TSharedRef<FTabManager::FLayoutNode> SDockArea::ToLayout() const
{
	const TSharedRef<FTabManager::FArea> Layout =
		bFloating ? FTabManager::NewArea(FVector2D(0.0, 0.0)) : FTabManager::NewPrimaryArea();
	FillLayout(*Layout);
	if (const TSharedPtr<SWindow> Window = FloatingWindow.Pin())
	{
		Layout->UnscaledWindowSize = Window->GetClientSizeInScreen();
		if (FWindowAccess::GetAutoCenter(*Window) == EAutoCenter::None)
		{
			Layout->SetWindow(Window->GetPositionInScreen(), Window->IsWindowMaximized());
		}
		Layout->bIsMaximized = Window->IsWindowMaximized();
	}
	return Layout;
}

namespace
{
TSharedRef<SDockNode> BuildNode(FTabManager::FLayoutNode& Layout);

void BuildChildren(SDockSplitter& Splitter, const FTabManager::FSplitter& Layout)
{
	for (const TSharedRef<FTabManager::FLayoutNode>& Child : Layout.GetChildNodes())
	{
		FDockAccess::InsertNode(Splitter, BuildNode(*Child), INDEX_NONE);
	}
}

TSharedRef<SDockNode> BuildNode(FTabManager::FLayoutNode& Layout)
{
	if (const TSharedPtr<FTabManager::FStack> Stack = Layout.AsStack())
	{
		return FDockAccess::BuildStack(*Stack);
	}
	const TSharedPtr<FTabManager::FSplitter> Splitter = Layout.AsSplitter();
	const TSharedRef<SDockSplitter> Built =
		SNew(SDockSplitter).Orientation(Splitter->GetOrientation()).SizeCoefficient(Splitter->GetSizeCoefficient());
	BuildChildren(*Built, *Splitter);
	return Built;
}

/** The stacks of a layout, in the order of ForEachStack. */
void CollectStacks(FTabManager::FLayoutNode& Layout, TArray<TSharedRef<FTabManager::FStack>>& OutStacks)
{
	if (const TSharedPtr<FTabManager::FStack> Stack = Layout.AsStack())
	{
		OutStacks.Add(Stack.ToSharedRef());
		return;
	}
	for (const TSharedRef<FTabManager::FLayoutNode>& Child : Layout.AsSplitter()->GetChildNodes())
	{
		CollectStacks(*Child, OutStacks);
	}
}
} // namespace

TSharedRef<SDockStack> FDockAccess::BuildStack(const FTabManager::FStack& Layout)
{
	const TSharedRef<SDockStack> Stack =
		SNew(SDockStack).HideTabWell(Layout.bHideTabWell).SizeCoefficient(Layout.GetSizeCoefficient());
	for (const FTabManager::FTab& Tab : Layout.Tabs)
	{
		AddPlace(*Stack, Tab.TabId);
	}
	return Stack;
}

TSharedRef<SDockArea> FDockAccess::BuildArea(const TSharedRef<FTabManager>& Manager, const FTabManager::FArea& Layout)
{
	const TSharedRef<SDockArea> Area = SNew(SDockArea, Manager, Layout.GetOrientation());
	Area->bFloating = Layout.WindowPlacement != FTabManager::FArea::Placement_NoWindow;
	BuildChildren(*Area, Layout);
	Manager->LiveAreas.Add(Area);
	return Area;
}

bool FDockAccess::HasPlace(FTabManager::FArea& Layout, TFunctionRef<bool(const FTabId&)> Test)
{
	TArray<TSharedRef<FTabManager::FStack>> Stacks;
	CollectStacks(Layout, Stacks);
	return Stacks.ContainsByPredicate([&](const TSharedRef<FTabManager::FStack>& Stack)
		{ return Stack->Tabs.ContainsByPredicate([&](const FTabManager::FTab& Tab) { return Test(Tab.TabId); }); });
}

void FDockAccess::OpenTabsOf(
	const TSharedRef<SDockArea>& Area, FTabManager::FArea& Layout, const TSharedPtr<SWindow>& Window)
{
	TArray<TSharedRef<SDockStack>> Stacks;
	Area->ForEachStack([&](const TSharedRef<SDockStack>& Stack) { Stacks.Add(Stack); });
	TArray<TSharedRef<FTabManager::FStack>> Layouts;
	CollectStacks(Layout, Layouts);
	for (int32 Index = 0; Index < Stacks.Num(); ++Index)
	{
		for (const FTabManager::FTab& Tab : Layouts[Index]->Tabs)
		{
			// The place may have been taken by a spawner that ran before, and the manager may be gone with it.
			const TSharedPtr<FTabManager> Manager = Area->GetManager();
			const int32 Place = FindClosedPlace(*Stacks[Index], [&](const FTabId& Id) { return Id == Tab.TabId; });
			if (!Manager.IsValid() || Tab.TabState != ETabState::OpenedTab || Place == INDEX_NONE)
			{
				continue;
			}
			if (Manager->FindExistingLiveTab(Tab.TabId).IsValid())
			{
				Stacks[Index]->Places.RemoveAt(Place);
				continue;
			}
			const TSharedPtr<SDockTab> Spawned = Spawn(*Manager, Tab.TabId, Window);
			const int32 PlaceNow = FindClosedPlace(*Stacks[Index], [&](const FTabId& Id) { return Id == Tab.TabId; });
			if (Spawned.IsValid() && PlaceNow != INDEX_NONE)
			{
				OpenAt(*Stacks[Index], PlaceNow, Spawned.ToSharedRef());
			}
		}
		for (const TSharedRef<SDockTab>& Tab : Stacks[Index]->GetTabs())
		{
			if (Tab->GetLayoutIdentifier() == Layouts[Index]->ForegroundTabId)
			{
				Stacks[Index]->SetForeground(Tab);
			}
		}
	}
}

bool FDockAccess::HasTabToOpen(const FTabManager& Manager, FTabManager::FArea& Layout, bool bMustBeOpen)
{
	TArray<TSharedRef<FTabManager::FStack>> Stacks;
	CollectStacks(Layout, Stacks);
	for (const TSharedRef<FTabManager::FStack>& Stack : Stacks)
	{
		for (const FTabManager::FTab& Tab : Stack->Tabs)
		{
			if ((!bMustBeOpen || Tab.TabState == ETabState::OpenedTab) && CanSpawn(Manager, Tab.TabId))
			{
				return true;
			}
		}
	}
	return false;
}

void FDockAccess::MakeWindow(const TSharedRef<SDockArea>& Area, const FTabManager::FArea& Layout)
{
	const TWeakPtr<SDockArea> WeakArea = Area;
	const bool bSpecified = Layout.WindowPlacement == FTabManager::FArea::Placement_Specified;
	const TSharedRef<SWindow> Window = SNew(SWindow)
										   .Title_Lambda([WeakArea] { return TitleOf(WeakArea.Pin()); })
										   .ScreenPosition(Layout.UnscaledWindowPosition)
										   .ClientSize(Layout.UnscaledWindowSize)
										   .AutoCenter(bSpecified ? EAutoCenter::None : EAutoCenter::PreferredWorkArea)
										   .IsInitiallyMaximized(Layout.bIsMaximized)[Area];
	Area->FloatingWindow = Window;
	Window->SetRequestDestroyWindowOverride(FRequestDestroyWindowOverride::CreateLambda(
		[WeakArea](const TSharedRef<SWindow>&)
		{
			const TSharedPtr<SDockArea> Pinned = WeakArea.Pin();
			if (Pinned.IsValid() && MayCloseArea(*Pinned))
			{
				CloseTabsOf(Pinned.ToSharedRef());
			}
		}));
	Window->SetOnWindowClosed(FOnWindowClosed::CreateLambda(
		[WeakArea](const TSharedRef<SWindow>&)
		{
			if (const TSharedPtr<SDockArea> Pinned = WeakArea.Pin())
			{
				AreaWindowWasDestroyed(Pinned.ToSharedRef());
			}
		}));
	if (!FSlateApplication::IsInitialized())
	{
		return;
	}
	const TSharedPtr<FTabManager> Manager = Area->GetManager();
	const TSharedPtr<SDockTab> Owner = Manager.IsValid() ? Manager->GetOwnerTab() : nullptr;
	TSharedPtr<SWindow> Parent = Owner.IsValid() ? Owner->GetParentWindow() : nullptr;
	if (!Parent.IsValid())
	{
		Parent = FGlobalTabmanager::Get()->GetRootWindow();
	}
	if (Parent.IsValid() && FWindowAccess::IsOpen(*Parent))
	{
		FSlateApplication::Get().AddWindowAsNativeChild(Window, Parent.ToSharedRef());
	}
	else
	{
		FSlateApplication::Get().AddWindow(Window);
	}
}

FText FDockAccess::TitleOf(const TSharedPtr<SDockArea>& Area)
{
	TSharedPtr<SDockTab> Front;
	if (Area.IsValid())
	{
		Area->ForEachStack(
			[&](const TSharedRef<SDockStack>& Stack)
			{
				const TSharedPtr<SDockTab> Tab = Stack->GetForegroundTab();
				if (Tab.IsValid() && (!Front.IsValid() || ActivationOrder(*Tab) > ActivationOrder(*Front)))
				{
					Front = Tab;
				}
			});
	}
	return Front.IsValid() ? Front->GetTabLabel() : FText();
}

TSharedRef<SDockStack> FDockAccess::NewFloatingStack(
	const TSharedRef<FTabManager>& Manager, ETabRole Role, const FVector2D* Position, const FVector2D& Size)
{
	const bool bMajor = Role == ETabRole::MajorTab || Role == ETabRole::NomadTab;
	const bool bSizeGiven = Size.X > 0.0 && Size.Y > 0.0;
	const TSharedRef<FTabManager::FArea> Layout =
		FTabManager::NewArea(bSizeGiven ? Size : (bMajor ? MajorWindowSize : PanelWindowSize));
	if (Position)
	{
		Layout->SetWindow(*Position, false);
	}
	Layout->Split(FTabManager::NewStack());
	const TSharedRef<SDockArea> Area = BuildArea(Manager, *Layout);
	MakeWindow(Area, *Layout);
	return StaticCastSharedRef<SDockStack>(Area->GetNode(0));
}

void FDockAccess::CollapseIfEmpty(const TSharedRef<SDockArea>& Area)
{
	const TSharedPtr<FTabManager> Manager = Area->GetManager();
	if (!Area->bFloating || Area->HasOpenTabs() || !Manager.IsValid())
	{
		return;
	}
	bool bHasPlaces = false;
	Area->ForEachStack([&](const TSharedRef<SDockStack>& Stack) { bHasPlaces |= Stack->Places.Num() > 0; });
	if (bHasPlaces)
	{
		Manager->CollapsedAreas.Add(StaticCastSharedRef<FTabManager::FArea>(ToLayout(*Area)));
	}
	Manager->LiveAreas.Remove(Area);
	Area->Manager.Reset();
	DestroyWindow(Area);
}

void FDockAccess::DestroyWindow(const TSharedRef<SDockArea>& Area)
{
	if (const TSharedPtr<SWindow> Window = Area->FloatingWindow.Pin())
	{
		Area->FloatingWindow.Reset();
		Window->SetRequestDestroyWindowOverride(FRequestDestroyWindowOverride());
		Window->SetOnWindowClosed(FOnWindowClosed());
		Window->RequestDestroyWindow();
	}
}

void FDockAccess::CloseTabsOf(const TSharedRef<SDockArea>& Area)
{
	TArray<TSharedRef<SDockTab>> Tabs;
	Area->ForEachStack([&](const TSharedRef<SDockStack>& Stack) { Tabs.Append(Stack->GetTabs()); });
	for (const TSharedRef<SDockTab>& Tab : Tabs)
	{
		CloseTab(Tab);
	}
}

void FDockAccess::AreaWindowWasDestroyed(const TSharedRef<SDockArea>& Area)
{
	CloseTabsOf(Area);
	// The last tab took the area along; one that never had a tab is still there.
	CollapseIfEmpty(Area);
}

void FDockAccess::DropArea(const TSharedRef<SDockArea>& Area)
{
	const TSharedPtr<FTabManager> Manager = Area->GetManager();
	if (!Manager.IsValid())
	{
		return;
	}
	Manager->LiveAreas.Remove(Area);
	Area->Manager.Reset();
	CloseTabsOf(Area);
	DestroyWindow(Area);
}

bool FDockAccess::MayCloseArea(SDockArea& Area)
{
	bool bMayClose = true;
	Area.ForEachStack(
		[&](const TSharedRef<SDockStack>& Stack)
		{
			for (const TSharedRef<SDockTab>& Tab : Stack->GetTabs())
			{
				bMayClose = bMayClose && Tab->CanCloseTab();
			}
		});
	return bMayClose;
}
} // namespace Host
