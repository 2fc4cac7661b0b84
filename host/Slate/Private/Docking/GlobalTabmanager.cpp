// SPDX-License-Identifier: MIT
// The manager of the major tabs.

#include "Docking/DockAccess.h"
#include "Widgets/SWindow.h"

using Host::FDockAccess;

FGlobalTabmanager::FGlobalTabmanager()
	: FTabManager(nullptr)
{
}

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Instance = MakeShareable(new FGlobalTabmanager());
	return Instance;
}

TSharedRef<FTabManager> FGlobalTabmanager::NewTabManager(const TSharedRef<SDockTab>& InOwnerTab)
{
	SubManagers.RemoveAll([](const FSubManager& Each) { return !Each.MajorTab.IsValid() || !Each.Manager.IsValid(); });
	const TSharedRef<FTabManager> Manager = MakeShareable(new FTabManager(InOwnerTab));
	SubManagers.Add({InOwnerTab, Manager});
	return Manager;
}

TSharedPtr<FTabManager> FGlobalTabmanager::GetTabManagerForMajorTab(const TSharedPtr<SDockTab> MajorTab) const
{
	for (const FSubManager& Each : SubManagers)
	{
		if (MajorTab.IsValid() && Each.MajorTab.Pin() == MajorTab)
		{
			return Each.Manager.Pin();
		}
	}
	return nullptr;
}

FTabSpawnerEntry& FGlobalTabmanager::RegisterNomadTabSpawner(
	const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab)
{
	ensureMsgf(!NomadTabSpawners.Contains(TabId), TEXT("The tab '%s' is registered already"), *TabId.ToString());
	UnregisterNomadTabSpawner(TabId);
	return *NomadTabSpawners.Add(TabId, MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab, CanSpawnTab));
}

bool FGlobalTabmanager::UnregisterNomadTabSpawner(const FName TabId)
{
	const TSharedRef<FTabSpawnerEntry>* const Entry = NomadTabSpawners.Find(TabId);
	if (!Entry)
	{
		return false;
	}
	if (const TSharedPtr<FWorkspaceItem> Group = (*Entry)->GetParent())
	{
		Group->RemoveItem(*Entry);
	}
	NomadTabSpawners.Remove(TabId);
	return true;
}

void FGlobalTabmanager::SetActiveTab(const TSharedPtr<SDockTab>& NewActiveTab)
{
	ActiveTab = NewActiveTab;
}

void FGlobalTabmanager::DrawAttention(const TSharedRef<SDockTab>& TabToHighlight)
{
	// From the inside out: a tab's manager knows the major tab around it.
	TArray<TSharedRef<SDockTab>> Nested;
	for (TSharedPtr<SDockTab> Tab = TabToHighlight; Tab.IsValid();)
	{
		Nested.Insert(Tab.ToSharedRef(), 0);
		const TSharedPtr<FTabManager> Manager = Tab->GetTabManagerPtr();
		const TSharedPtr<SDockTab> Owner = Manager.IsValid() ? Manager->GetOwnerTab() : nullptr;
		Tab = Nested.Contains(Owner) ? nullptr : Owner;
	}
	for (const TSharedRef<SDockTab>& Tab : Nested)
	{
		Tab->ActivateInParent(ETabActivationCause::SetDirectly);
	}
	if (const TSharedPtr<SWindow> Window = TabToHighlight->GetParentWindow())
	{
		Window->BringToFront();
	}
}

void FGlobalTabmanager::SaveAllVisualState()
{
	SavePersistentLayout();
	for (const FSubManager& Each : TArray<FSubManager>(SubManagers))
	{
		if (const TSharedPtr<FTabManager> Manager = Each.Manager.Pin())
		{
			Manager->SavePersistentLayout();
		}
	}
}

TSharedPtr<FTabSpawnerEntry> FDockAccess::FindNomadSpawner(FName TabId)
{
	const TSharedRef<FTabSpawnerEntry>* const Entry = FGlobalTabmanager::Get()->NomadTabSpawners.Find(TabId);
	return Entry ? TSharedPtr<FTabSpawnerEntry>(*Entry) : nullptr;
}

void FDockAccess::ForgetSubManager(const SDockTab& MajorTab)
{
	FGlobalTabmanager::Get()->SubManagers.RemoveAll(
		[&](const FGlobalTabmanager::FSubManager& Each) { return Each.MajorTab.HasSameObject(&MajorTab); });
}

void FDockAccess::SaveChangedLayouts()
{
	const TSharedRef<FGlobalTabmanager>& Global = FGlobalTabmanager::Get();
	TArray<TSharedRef<FTabManager>> Changed;
	if (Global->bLayoutChanged)
	{
		Changed.Add(Global);
	}
	for (const FGlobalTabmanager::FSubManager& Each : Global->SubManagers)
	{
		const TSharedPtr<FTabManager> Manager = Each.Manager.Pin();
		if (Manager.IsValid() && Manager->bLayoutChanged)
		{
			Changed.Add(Manager.ToSharedRef());
		}
	}
	for (const TSharedRef<FTabManager>& Manager : Changed)
	{
		Manager->SavePersistentLayout();
	}
}

void FDockAccess::Reset()
{
	const TSharedRef<FGlobalTabmanager>& Global = FGlobalTabmanager::Get();
	for (const TSharedRef<SDockArea>& Area : LiveAreas(*Global))
	{
		DestroyWindow(Area);
	}
	Global->LiveAreas.Empty();
	Global->CollapsedAreas.Empty();
	Global->UnregisterAllTabSpawners();
	Global->NomadTabSpawners.Empty();
	Global->ClearLocalWorkspaceMenuCategories();
	Global->SubManagers.Empty();
	Global->OnPersistLayout.Unbind();
	Global->SetMenuMultiBox(nullptr, nullptr);
	Global->ActiveTab.Reset();
	Global->RootWindow.Reset();
	Global->LayoutName = FName();
	Global->bLayoutChanged = false;
}
