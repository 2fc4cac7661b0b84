// SPDX-License-Identifier: MIT

#include "Framework/Docking/TabManager.h"

#include "Docking/DockAccess.h"
#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogTabManager, Log, All);

using Host::FDockAccess;
using Host::SDockArea;
using Host::SDockStack;

FTabManager::FTabManager(const TSharedPtr<SDockTab>& InOwnerTab)
	: LocalWorkspaceMenuRoot(FWorkspaceItem::NewGroup(FText()))
	, OwnerTab(InOwnerTab)
{
}

FTabManager::~FTabManager() = default;

FTabSpawnerEntry& FTabManager::RegisterTabSpawner(
	const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab)
{
	ensureMsgf(!TabSpawners.Contains(TabId), TEXT("The tab '%s' is registered already"), *TabId.ToString());
	const TSharedRef<FTabSpawnerEntry> Entry = MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab, CanSpawnTab);
	UnregisterTabSpawner(TabId);
	TabSpawners.Add(TabId, Entry);
	return *Entry;
}

bool FTabManager::UnregisterTabSpawner(const FName TabId)
{
	const TSharedRef<FTabSpawnerEntry>* const Entry = TabSpawners.Find(TabId);
	if (!Entry)
	{
		return false;
	}
	if (const TSharedPtr<FWorkspaceItem> Group = (*Entry)->GetParent())
	{
		Group->RemoveItem(*Entry);
	}
	TabSpawners.Remove(TabId);
	return true;
}

void FTabManager::UnregisterAllTabSpawners()
{
	TArray<FName> Ids;
	TabSpawners.GetKeys(Ids);
	for (const FName Id : Ids)
	{
		UnregisterTabSpawner(Id);
	}
}

bool FTabManager::HasTabSpawner(FName TabId) const
{
	return FindTabSpawnerFor(TabId).IsValid();
}

TSharedPtr<FTabSpawnerEntry> FTabManager::FindTabSpawnerFor(FName TabId) const
{
	if (const TSharedRef<FTabSpawnerEntry>* const Entry = TabSpawners.Find(TabId))
	{
		return *Entry;
	}
	return FDockAccess::FindNomadSpawner(TabId);
}

TSharedRef<FWorkspaceItem> FTabManager::AddLocalWorkspaceMenuCategory(const FText& CategoryTitle)
{
	return LocalWorkspaceMenuRoot->AddGroup(CategoryTitle);
}

void FTabManager::ClearLocalWorkspaceMenuCategories()
{
	LocalWorkspaceMenuRoot->ClearItems();
}

TSharedPtr<SDockTab> FTabManager::TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive)
{
	TSharedPtr<SDockTab> Tab = FindExistingLiveTab(TabId);
	if (!Tab.IsValid())
	{
		Tab = FDockAccess::Spawn(*this, TabId, nullptr);
		if (!Tab.IsValid())
		{
			UE_LOG(LogTabManager, Warning, TEXT("The tab '%s' cannot be opened: %s"), *TabId.ToString(),
				HasTabSpawner(TabId.TabType) ? TEXT("its spawner does not want to") : TEXT("it is not registered"));
			return nullptr;
		}
		FDockAccess::PlaceTab(AsShared(), Tab.ToSharedRef(), [&](const FTabId& Id) { return Id == TabId; });
	}
	if (!bInvokeAsInactive)
	{
		FGlobalTabmanager::Get()->DrawAttention(Tab.ToSharedRef());
	}
	return Tab;
}

TSharedPtr<SDockTab> FTabManager::FindExistingLiveTab(const FTabId& TabId) const
{
	for (const TSharedRef<SDockTab>& Tab : Host::OpenTabs(*this))
	{
		if (Tab->GetLayoutIdentifier() == TabId)
		{
			return Tab;
		}
	}
	return nullptr;
}

TSharedPtr<SWidget> FTabManager::RestoreFrom(const TSharedRef<FLayout>& Layout, const TSharedPtr<SWindow>& ParentWindow,
	const bool, const EOutputCanBeNullptr RestoreAreaOutputCanBeNullptr)
{
	LayoutName = Layout->GetLayoutName();
	TSharedPtr<SDockArea> Primary;
	for (const TSharedRef<FArea>& Area : Layout->Areas)
	{
		if (Area->WindowPlacement != FArea::Placement_NoWindow)
		{
			FDockAccess::RestoreFloatingArea(AsShared(), Area);
		}
		else if (Area == Layout->PrimaryArea.Pin())
		{
			const bool bMustBeOpen = RestoreAreaOutputCanBeNullptr == EOutputCanBeNullptr::IfNoOpenTabValid;
			if (RestoreAreaOutputCanBeNullptr == EOutputCanBeNullptr::Never ||
				FDockAccess::HasTabToOpen(*this, *Area, bMustBeOpen))
			{
				Primary = FDockAccess::BuildArea(AsShared(), *Area);
				FDockAccess::OpenTabsOf(Primary.ToSharedRef(), *Area, ParentWindow);
			}
		}
	}
	bLayoutChanged = false;
	return Primary;
}

void FTabManager::CloseAllAreas()
{
	for (const TSharedRef<SDockArea>& Area : Host::LiveAreas(*this))
	{
		FDockAccess::DropArea(Area);
	}
	LiveAreas.Empty();
	CollapsedAreas.Empty();
}

TSharedRef<FTabManager::FLayout> FTabManager::PersistLayout() const
{
	const TSharedRef<FLayout> Layout = NewLayout(LayoutName);
	for (const TSharedRef<SDockArea>& Area : Host::LiveAreas(*this))
	{
		Layout->AddArea(StaticCastSharedRef<FArea>(FDockAccess::ToLayout(*Area)));
	}
	for (const TSharedRef<FArea>& Area : CollapsedAreas)
	{
		Layout->AddArea(Area);
	}
	return Layout;
}

void FTabManager::SavePersistentLayout()
{
	bLayoutChanged = false;
	if (OnPersistLayout.IsBound())
	{
		OnPersistLayout.Execute(PersistLayout());
	}
}

void FTabManager::SetMenuMultiBox(const TSharedPtr<FMultiBox> NewMenuMutliBox, const TSharedPtr<SWidget> NewMenuWidget)
{
	MenuMultiBox = NewMenuMutliBox;
	MenuWidget = NewMenuWidget;
}

namespace Host
{
TArray<TSharedRef<SDockArea>> FDockAccess::LiveAreas(const FTabManager& Manager)
{
	TArray<TSharedRef<SDockArea>> Areas;
	for (const TWeakPtr<SDockArea>& Weak : Manager.LiveAreas)
	{
		if (const TSharedPtr<SDockArea> Area = Weak.Pin())
		{
			Areas.Insert(Area.ToSharedRef(), Area->IsFloating() ? Areas.Num() : 0);
		}
	}
	return Areas;
}

void FDockAccess::RestoreFloatingArea(
	const TSharedRef<FTabManager>& Manager, const TSharedRef<FTabManager::FArea>& Layout)
{
	if (!HasTabToOpen(*Manager, *Layout, true))
	{
		Manager->CollapsedAreas.Add(Layout);
		return;
	}
	const TSharedRef<SDockArea> Area = BuildArea(Manager, *Layout);
	MakeWindow(Area, *Layout);
	OpenTabsOf(Area, *Layout, Area->GetFloatingWindow());
	CollapseIfEmpty(Area);
}

TSharedPtr<SDockStack> FDockAccess::FindClosedPlace(
	const TSharedRef<FTabManager>& Manager, TFunctionRef<bool(const FTabId&)> Test, int32& OutPlace)
{
	TSharedPtr<SDockStack> Found;
	const auto LookInto = [&](SDockArea& Area)
	{
		Area.ForEachStack(
			[&](const TSharedRef<SDockStack>& Stack)
			{
				const int32 Place = Found.IsValid() ? INDEX_NONE : FindClosedPlace(*Stack, Test);
				if (Place != INDEX_NONE)
				{
					Found = Stack;
					OutPlace = Place;
				}
			});
	};
	for (const TSharedRef<SDockArea>& Area : LiveAreas(*Manager))
	{
		LookInto(*Area);
	}
	for (int32 Index = 0; Index < Manager->CollapsedAreas.Num() && !Found.IsValid(); ++Index)
	{
		const TSharedRef<FTabManager::FArea> Layout = Manager->CollapsedAreas[Index];
		if (!HasPlace(*Layout, Test))
		{
			continue;
		}
		Manager->CollapsedAreas.RemoveAt(Index);
		const TSharedRef<SDockArea> Area = BuildArea(Manager, *Layout);
		MakeWindow(Area, *Layout);
		LookInto(*Area);
	}
	return Found;
}

void FDockAccess::PlaceTab(const TSharedRef<FTabManager>& Manager, const TSharedRef<SDockTab>& Tab,
	TFunctionRef<bool(const FTabId&)> IsItsPlace)
{
	int32 Place = INDEX_NONE;
	if (const TSharedPtr<SDockStack> Stack = FindClosedPlace(Manager, IsItsPlace, Place))
	{
		OpenAt(*Stack, Place, Tab);
	}
	else
	{
		InsertTab(*NewFloatingStack(Manager, Tab->GetTabRole(), nullptr, FVector2D(0.0, 0.0)), Tab, INDEX_NONE);
	}
	MarkChanged(Manager);
}

bool FDockAccess::IsDocumentPlace(const FTabManager& Manager, const FTabId& Id)
{
	return !Manager.HasTabSpawner(Id.TabType) && Id.InstanceId != INDEX_NONE;
}

void FDockAccess::MarkChanged(const TSharedPtr<FTabManager>& Manager)
{
	if (Manager.IsValid())
	{
		Manager->bLayoutChanged = true;
	}
}
} // namespace Host
