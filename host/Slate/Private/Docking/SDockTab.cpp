// SPDX-License-Identifier: MIT

#include "Widgets/Docking/SDockTab.h"

#include "Docking/DockAccess.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Clock.h"
#include "Host/WidgetTree.h"

void SDockTab::Construct(const FArguments& InArgs)
{
	SBorder::Construct(SBorder::FArguments().Padding(InArgs._ContentPadding)[InArgs._Content.Widget]);
	TabRole = InArgs._TabRole;
	TabLabel = InArgs._Label;
	if (InArgs._Icon)
	{
		TabIcon = InArgs._Icon;
	}
	OnTabClosed = InArgs._OnTabClosed;
	OnTabActivated = InArgs._OnTabActivated;
	OnCanCloseTab = InArgs._OnCanCloseTab;
	bShouldAutosize = InArgs._ShouldAutosize;
	bCanEverClose = InArgs._CanEverClose;
	SetVisibility(TAttribute<EVisibility>::CreateSP(this, &SDockTab::GetTabVisibility));
}

SDockTab::~SDockTab() = default;

EVisibility SDockTab::GetTabVisibility() const
{
	const TSharedPtr<Host::SDockStack> Stack = GetStack();
	return !Stack.IsValid() || Stack->GetForegroundTab().Get() == this ? EVisibility::Visible : EVisibility::Collapsed;
}

TSharedPtr<Host::SDockStack> SDockTab::GetStack() const
{
	const TSharedPtr<SWidget> Parent = GetParentWidget();
	return dynamic_cast<Host::SDockStack*>(Parent.Get()) ? StaticCastSharedPtr<Host::SDockStack>(Parent) : nullptr;
}

bool SDockTab::CanCloseTab() const
{
	return bCanEverClose && (!OnCanCloseTab.IsBound() || OnCanCloseTab.Execute()) &&
		   Host::FDockAccess::MayCloseInside(*this);
}

bool SDockTab::RequestCloseTab()
{
	if (bClosed || !CanCloseTab() || bClosed)
	{
		return false;
	}
	Host::FDockAccess::CloseTab(SharedThis(this));
	return true;
}

void SDockTab::ActivateInParent(ETabActivationCause InActivationCause)
{
	if (!bClosed)
	{
		Host::FDockAccess::Activate(SharedThis(this), InActivationCause);
	}
}

bool SDockTab::IsForeground() const
{
	const TSharedPtr<Host::SDockStack> Stack = GetStack();
	return Stack.IsValid() && Stack->GetForegroundTab().Get() == this;
}

bool SDockTab::IsActive() const
{
	return FGlobalTabmanager::Get()->GetActiveTab().Get() == this;
}

TSharedPtr<SWindow> SDockTab::GetParentWindow() const
{
	return Host::FindWindow(SharedThis(this));
}

bool SDockTab::HasSiblingTab(const FTabId& SiblingTabId, const bool TreatIndexNoneAsWildcard) const
{
	const TSharedPtr<Host::SDockStack> Stack = GetStack();
	if (!Stack.IsValid())
	{
		return false;
	}
	return Stack->GetTabs().ContainsByPredicate(
		[&](const TSharedRef<SDockTab>& Tab)
		{
			const FTabId& Id = Tab->GetLayoutIdentifier();
			const bool bAnyNumber = TreatIndexNoneAsWildcard && SiblingTabId.InstanceId == INDEX_NONE;
			return &Tab.Get() != this && (Id == SiblingTabId || (bAnyNumber && Id.TabType == SiblingTabId.TabType));
		});
}

namespace Host
{
namespace
{
uint64 LastActivation = 0;
} // namespace

bool FDockAccess::CanSpawn(const FTabManager& Manager, const FTabId& Id)
{
	const TSharedPtr<FTabSpawnerEntry> Entry = Manager.FindTabSpawnerFor(Id.TabType);
	return Entry.IsValid() && Entry->OnSpawnTab.IsBound() &&
		   (!Entry->CanSpawnTab.IsBound() || Entry->CanSpawnTab.Execute(FSpawnTabArgs(nullptr, Id)));
}

TSharedPtr<SDockTab> FDockAccess::Spawn(FTabManager& Manager, const FTabId& Id, const TSharedPtr<SWindow>& Window)
{
	if (!CanSpawn(Manager, Id))
	{
		return nullptr;
	}
	const TSharedRef<FTabSpawnerEntry> Entry = Manager.FindTabSpawnerFor(Id.TabType).ToSharedRef();
	const TSharedRef<SDockTab> Tab = Entry->OnSpawnTab.Execute(FSpawnTabArgs(Window, Id));
	if (!ensureMsgf(!Tab->bClosed && !Tab->GetStack().IsValid(), TEXT("The spawner of '%s' gave a tab that was used"),
			*Id.ToString()))
	{
		return nullptr;
	}
	SetIdentity(*Tab, Manager.AsShared(), Id);
	if (!Tab->TabLabel.IsSet())
	{
		Tab->TabLabel = Entry->GetDisplayName();
	}
	if (!Tab->GetTabIcon() && Entry->GetIcon().IsSet())
	{
		Tab->TabIcon = Entry->GetIcon().GetIcon();
	}
	Entry->SpawnedTab = Tab;
	return Tab;
}

void FDockAccess::SetIdentity(SDockTab& Tab, const TSharedRef<FTabManager>& Manager, const FTabId& Id)
{
	Tab.MyTabManager = Manager;
	Tab.LayoutIdentifier = Id;
}

void FDockAccess::Activate(const TSharedRef<SDockTab>& Tab, ETabActivationCause Cause)
{
	if (const TSharedPtr<SDockStack> Stack = Tab->GetStack(); Stack.IsValid() && Stack->GetForegroundTab() != Tab)
	{
		Stack->SetForeground(Tab);
		MarkChanged(Tab->GetTabManagerPtr());
	}
	MarkUsed(*Tab);
	FGlobalTabmanager::Get()->SetActiveTab(Tab);
	Tab->OnTabActivated.ExecuteIfBound(Tab, Cause);
}

void FDockAccess::MarkUsed(SDockTab& Tab)
{
	Tab.LastActivationTime = AppTime();
	Tab.ActivationOrder = ++LastActivation;
}

uint64 FDockAccess::ActivationOrder(const SDockTab& Tab)
{
	return Tab.ActivationOrder;
}

bool FDockAccess::IsClosed(const SDockTab& Tab)
{
	return Tab.bClosed;
}

void FDockAccess::CloseTab(const TSharedRef<SDockTab>& Tab)
{
	if (Tab->bClosed)
	{
		return;
	}
	Tab->bClosed = true;
	const TSharedPtr<FTabManager> Inner = FGlobalTabmanager::Get()->GetTabManagerForMajorTab(Tab);
	if (Inner.IsValid())
	{
		Inner->SavePersistentLayout();
	}
	const TSharedPtr<SDockStack> Stack = Tab->GetStack();
	const TSharedPtr<SDockArea> Area = Stack.IsValid() ? Stack->GetArea() : nullptr;
	if (Stack.IsValid())
	{
		ReleaseFocus(*Tab);
		TakeOut(Stack.ToSharedRef(), Tab, true);
		MarkChanged(Tab->GetTabManagerPtr());
	}
	Tab->OnTabClosed.ExecuteIfBound(Tab);
	if (Inner.IsValid())
	{
		Inner->CloseAllAreas();
		ForgetSubManager(*Tab);
	}
	if (Stack.IsValid())
	{
		RemoveEmpty(Stack.ToSharedRef());
	}
	if (Area.IsValid())
	{
		CollapseIfEmpty(Area.ToSharedRef());
	}
}

void FDockAccess::ReleaseFocus(const SDockTab& Tab)
{
	if (!FSlateApplication::IsInitialized())
	{
		return;
	}
	const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
	if (Focused.IsValid() && IsBelow(*Focused, Tab))
	{
		FSlateApplication::Get().ClearKeyboardFocus(EFocusCause::Cleared);
	}
}

bool FDockAccess::MayCloseInside(const SDockTab& Tab)
{
	const TSharedPtr<SDockTab> Self = StaticCastSharedRef<SDockTab>(const_cast<SDockTab&>(Tab).AsShared());
	const TSharedPtr<FTabManager> Inner = FGlobalTabmanager::Get()->GetTabManagerForMajorTab(Self);
	if (!Inner.IsValid())
	{
		return true;
	}
	for (const TSharedRef<SDockTab>& Each : OpenTabs(*Inner))
	{
		// Panels that never close by themselves go with the tab around them.
		if (Each->bCanEverClose && !Each->CanCloseTab())
		{
			return false;
		}
	}
	return true;
}

void FDockAccess::FocusEntered(SWidget& Widget)
{
	bool bInnermost = true;
	for (TSharedPtr<SWidget> Above = Widget.AsShared(); Above.IsValid(); Above = Above->GetParentWidget())
	{
		if (auto* const Tab = dynamic_cast<SDockTab*>(Above.Get()))
		{
			MarkUsed(*Tab);
			if (bInnermost)
			{
				FGlobalTabmanager::Get()->SetActiveTab(StaticCastSharedPtr<SDockTab>(Above));
				bInnermost = false;
			}
		}
	}
}
} // namespace Host
