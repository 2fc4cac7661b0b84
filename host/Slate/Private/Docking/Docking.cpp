// SPDX-License-Identifier: MIT

#include "Host/Docking.h"

#include "Docking/DockAccess.h"
#include "Host/Application.h"

namespace Host
{
namespace
{
bool IsLive(const TSharedRef<SDockNode>& Target)
{
	const TSharedPtr<SDockArea> Area = Target->GetArea();
	const TSharedPtr<FTabManager> Manager = Area.IsValid() ? Area->GetManager() : nullptr;
	return Manager.IsValid() && LiveAreas(*Manager).Contains(Area.ToSharedRef());
}

/** Whether tabs of that role may leave the one manager for the other. */
bool MayMove(const SDockTab& Tab, const TSharedPtr<FTabManager>& To)
{
	return Tab.GetTabManagerPtr() == To || Tab.GetTabRole() == ETabRole::NomadTab;
}

/** The windows of the tabs inside a major tab go along: the window that it leaves may be closed. */
void TakeWindowsAlong(const TSharedRef<SDockTab>& MajorTab)
{
	const TSharedPtr<FTabManager> Inner = FGlobalTabmanager::Get()->GetTabManagerForMajorTab(MajorTab);
	const TSharedPtr<SWindow> Around = MajorTab->GetParentWindow();
	if (!Inner.IsValid() || !Around.IsValid())
	{
		return;
	}
	for (const TSharedRef<SDockArea>& Area : LiveAreas(*Inner))
	{
		if (const TSharedPtr<SWindow> Window = Area->GetFloatingWindow())
		{
			MoveToParentWindow(Window.ToSharedRef(), Around.ToSharedRef());
		}
	}
}
} // namespace

TArray<TSharedRef<SDockArea>> LiveAreas(const FTabManager& Manager)
{
	return FDockAccess::LiveAreas(Manager);
}

TSharedPtr<SDockStack> StackOf(const SDockTab& Tab)
{
	const TSharedPtr<SWidget> Parent = Tab.GetParentWidget();
	return dynamic_cast<SDockStack*>(Parent.Get()) ? StaticCastSharedPtr<SDockStack>(Parent) : nullptr;
}

TArray<TSharedRef<SDockTab>> OpenTabs(const FTabManager& Manager)
{
	TArray<TSharedRef<SDockTab>> Tabs;
	for (const TSharedRef<SDockArea>& Area : LiveAreas(Manager))
	{
		Area->ForEachStack([&](const TSharedRef<SDockStack>& Stack) { Tabs.Append(Stack->GetTabs()); });
	}
	return Tabs;
}

bool CanDock(const TSharedRef<SDockTab>& Tab, const TSharedRef<SDockNode>& Target, EDockPlace Place)
{
	const TSharedPtr<SDockStack> From = StackOf(*Tab);
	if (!From.IsValid() || !IsLive(Target) || !MayMove(*Tab, Target->GetArea()->GetManager()))
	{
		return false;
	}
	const bool bStack = dynamic_cast<SDockStack*>(&Target.Get()) != nullptr;
	if (Place == EDockPlace::Into)
	{
		return bStack;
	}
	// A lone tab beside itself would stay where it is.
	return !(From == Target && From->NumTabs() == 1);
}

bool DockTab(const TSharedRef<SDockTab>& Tab, const TSharedRef<SDockNode>& Target, EDockPlace Place, int32 Index)
{
	if (!CanDock(Tab, Target, Place))
	{
		return false;
	}
	const TSharedRef<SDockStack> From = StackOf(*Tab).ToSharedRef();
	const TSharedRef<SDockArea> FromArea = From->GetArea().ToSharedRef();
	const TSharedRef<FTabManager> Manager = Target->GetArea()->GetManager().ToSharedRef();
	FDockAccess::MarkChanged(Tab->GetTabManagerPtr());
	FDockAccess::TakeOut(From, Tab, false);
	FDockAccess::SetIdentity(*Tab, Manager, Tab->GetLayoutIdentifier());
	TSharedPtr<SDockStack> Into;
	if (Place == EDockPlace::Into)
	{
		Into = StaticCastSharedRef<SDockStack>(Target);
	}
	else
	{
		Into = SNew(SDockStack);
		const bool bBefore = Place == EDockPlace::Left || Place == EDockPlace::Above;
		const bool bBeside = Place == EDockPlace::Left || Place == EDockPlace::Right;
		FDockAccess::SplitNode(Target, Into.ToSharedRef(), bBeside ? Orient_Horizontal : Orient_Vertical, bBefore);
	}
	FDockAccess::InsertTab(*Into, Tab, Index);
	TakeWindowsAlong(Tab);
	FDockAccess::RemoveEmpty(From);
	FDockAccess::CollapseIfEmpty(FromArea);
	Tab->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	FDockAccess::MarkChanged(Manager);
	return true;
}

bool FloatTab(const TSharedRef<SDockTab>& Tab, const FVector2D& Position, const FVector2D& Size)
{
	const TSharedPtr<SDockStack> From = StackOf(*Tab);
	const TSharedPtr<FTabManager> Manager = Tab->GetTabManagerPtr();
	if (!From.IsValid() || !Manager.IsValid() || !IsLive(From.ToSharedRef()))
	{
		return false;
	}
	const TSharedRef<SDockArea> FromArea = From->GetArea().ToSharedRef();
	FDockAccess::TakeOut(From.ToSharedRef(), Tab, false);
	const TSharedRef<SDockStack> Into =
		FDockAccess::NewFloatingStack(Manager.ToSharedRef(), Tab->GetTabRole(), &Position, Size);
	FDockAccess::InsertTab(*Into, Tab, INDEX_NONE);
	TakeWindowsAlong(Tab);
	FDockAccess::RemoveEmpty(From.ToSharedRef());
	FDockAccess::CollapseIfEmpty(FromArea);
	Tab->ActivateInParent(ETabActivationCause::UserClickedOnTab);
	FDockAccess::MarkChanged(Manager);
	return true;
}

bool ResizeSplitter(SDockSplitter& Splitter, const TArray<float>& SizeCoefficients)
{
	const bool bGood = SizeCoefficients.Num() == Splitter.NumNodes() &&
					   !SizeCoefficients.ContainsByPredicate([](float Size) { return !(Size > 0.0f); });
	if (!bGood)
	{
		return false;
	}
	for (int32 Index = 0; Index < SizeCoefficients.Num(); ++Index)
	{
		FDockAccess::SetSize(*Splitter.GetNode(Index), SizeCoefficients[Index]);
	}
	if (const TSharedPtr<SDockArea> Area = Splitter.GetArea())
	{
		FDockAccess::MarkChanged(Area->GetManager());
	}
	return true;
}

void ShowTabWell(SDockStack& Stack)
{
	FDockAccess::SetHideTabWell(Stack, false);
}

bool HideTabWell(SDockStack& Stack)
{
	if (Stack.NumTabs() != 1)
	{
		return false;
	}
	FDockAccess::SetHideTabWell(Stack, true);
	return true;
}

TSharedPtr<SDockTab> FTabDrag::GetTab() const
{
	const TSharedPtr<SDockTab> Tab = DraggedTab.Pin();
	return Tab.IsValid() && StackOf(*Tab).IsValid() ? Tab : nullptr;
}

bool FTabDrag::CanDrop(const TWeakPtr<SDockNode>& Target, EDockPlace Place) const
{
	const TSharedPtr<SDockTab> Tab = GetTab();
	const TSharedPtr<SDockNode> Node = Target.Pin();
	return Tab.IsValid() && Node.IsValid() && CanDock(Tab.ToSharedRef(), Node.ToSharedRef(), Place);
}

bool FTabDrag::Drop(const TWeakPtr<SDockNode>& Target, EDockPlace Place, int32 Index)
{
	return CanDrop(Target, Place) && DockTab(GetTab().ToSharedRef(), Target.Pin().ToSharedRef(), Place, Index);
}

bool FTabDrag::DropOutside(const FVector2D& Position)
{
	const TSharedPtr<SDockTab> Tab = GetTab();
	return Tab.IsValid() && FloatTab(Tab.ToSharedRef(), Position);
}

void ResetDocking()
{
	FDockAccess::Reset();
}
} // namespace Host
