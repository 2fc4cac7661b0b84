// SPDX-License-Identifier: MIT
// Where document tabs go.

#include "Docking/DockAccess.h"

using Host::FDockAccess;

namespace
{
/** Numbers of documents are given once, so that two never share an identifier. */
int32 LastDocument = 0;

TSharedPtr<SDockTab> FindLiveTabOfType(const FTabManager& Manager, FName TabType)
{
	for (const TSharedRef<SDockTab>& Tab : Host::OpenTabs(Manager))
	{
		if (Tab->GetLayoutIdentifier().TabType == TabType)
		{
			return Tab;
		}
	}
	return nullptr;
}
} // namespace

TSharedPtr<SDockTab> FTabManager::FRequireClosedTab::Search(
	const FTabManager&, FName, const TSharedRef<SDockTab>&) const
{
	return nullptr;
}

TSharedPtr<SDockTab> FTabManager::FLiveTabSearch::Search(
	const FTabManager& Manager, FName PlaceholderId, const TSharedRef<SDockTab>&) const
{
	return FindLiveTabOfType(Manager, SearchForTabId.IsNone() ? PlaceholderId : SearchForTabId);
}

TSharedPtr<SDockTab> FTabManager::FLastMajorOrNomadTab::Search(
	const FTabManager& Manager, FName, const TSharedRef<SDockTab>& UnmanagedTab) const
{
	TSharedPtr<SDockTab> Last;
	for (const TSharedRef<SDockTab>& Tab : Host::OpenTabs(Manager))
	{
		const bool bRole = Tab->GetTabRole() == ETabRole::MajorTab || Tab->GetTabRole() == ETabRole::NomadTab;
		const uint64 Order = FDockAccess::ActivationOrder(*Tab);
		if (bRole && Tab != UnmanagedTab && Order > (Last.IsValid() ? FDockAccess::ActivationOrder(*Last) : 0))
		{
			Last = Tab;
		}
	}
	return Last.IsValid() ? Last : FindLiveTabOfType(Manager, FallbackTabId);
}

void FTabManager::InsertNewDocumentTab(
	FName PlaceholderId, const FSearchPreference& SearchPreference, const TSharedRef<SDockTab>& UnmanagedTab)
{
	FDockAccess::InsertDocument(
		AsShared(), PlaceholderId, FTabId(PlaceholderId, ++LastDocument), SearchPreference, UnmanagedTab);
}

void FTabManager::InsertNewDocumentTab(
	FName PlaceholderId, ESearchPreference::Type SearchPreference, const TSharedRef<SDockTab>& UnmanagedTab)
{
	if (SearchPreference == ESearchPreference::PreferLiveTab)
	{
		InsertNewDocumentTab(PlaceholderId, FLiveTabSearch(), UnmanagedTab);
	}
	else
	{
		InsertNewDocumentTab(PlaceholderId, FRequireClosedTab(), UnmanagedTab);
	}
}

void FTabManager::InsertNewDocumentTab(FName PlaceholderId, FName NewTabId, const FSearchPreference& SearchPreference,
	const TSharedRef<SDockTab>& UnmanagedTab)
{
	FDockAccess::InsertDocument(AsShared(), PlaceholderId, FTabId(NewTabId), SearchPreference, UnmanagedTab);
}

void FDockAccess::InsertDocument(const TSharedRef<FTabManager>& Manager, FName PlaceholderId, const FTabId& NewId,
	const FTabManager::FSearchPreference& Preference, const TSharedRef<SDockTab>& Tab)
{
	if (!ensureMsgf(!IsClosed(*Tab) && !StackOf(*Tab).IsValid(), TEXT("The tab '%s' is in a layout or was closed"),
			*Tab->GetTabLabel().ToString()))
	{
		return;
	}
	SetIdentity(*Tab, Manager, NewId);
	const TSharedPtr<SDockTab> Beside = Preference.Search(*Manager, PlaceholderId, Tab);
	const TSharedPtr<SDockStack> Stack = Beside.IsValid() ? StackOf(*Beside) : nullptr;
	if (Stack.IsValid())
	{
		InsertTab(*Stack, Tab, Stack->GetTabs().Find(Beside.ToSharedRef()) + 1);
		MarkChanged(Manager);
	}
	else
	{
		PlaceTab(Manager, Tab, [&](const FTabId& Id) { return Id == NewId || Id == FTabId(PlaceholderId); });
	}
	FGlobalTabmanager::Get()->DrawAttention(Tab);
}
