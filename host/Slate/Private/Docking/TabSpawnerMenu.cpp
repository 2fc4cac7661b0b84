// SPDX-License-Identifier: MIT
// The tabs of a manager as entries of a menu.
#include "Framework/Docking/TabManager.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
void AddEntry(FMenuBuilder& Menu, const TSharedRef<FTabManager>& Manager, const TSharedRef<FTabSpawnerEntry>& Entry)
{
	if (!Entry->ShouldAutoGenerateMenuEntry() || Entry->GetMenuType() == ETabSpawnerMenuType::Hidden)
	{
		return;
	}
	const TWeakPtr<FTabManager> WeakManager = Manager;
	const FName TabType = Entry->GetTabType();
	const TWeakPtr<FTabSpawnerEntry> WeakEntry = Entry;
	const FUIAction Action(FExecuteAction::CreateLambda(
							   [WeakManager, TabType]
							   {
								   if (const TSharedPtr<FTabManager> Owner = WeakManager.Pin())
								   {
									   Owner->TryInvokeTab(TabType);
								   }
							   }),
		FCanExecuteAction::CreateLambda(
			[WeakEntry]
			{
				const TSharedPtr<FTabSpawnerEntry> Pinned = WeakEntry.Pin();
				return Pinned.IsValid() && Pinned->GetMenuType() == ETabSpawnerMenuType::Enabled;
			}),
		FIsActionChecked::CreateLambda(
			[WeakManager, TabType]
			{
				const TSharedPtr<FTabManager> Owner = WeakManager.Pin();
				return Owner.IsValid() && Owner->FindExistingLiveTab(TabType).IsValid();
			}));
	Menu.AddMenuEntry(Entry->GetDisplayName(), Entry->GetTooltipText(), Entry->GetIcon(), Action, TabType,
		EUserInterfaceActionType::Check);
}
} // namespace

void FTabManager::PopulateLocalTabSpawnerMenu(FMenuBuilder& PopulateMe)
{
	for (const TSharedRef<FWorkspaceItem>& Item : LocalWorkspaceMenuRoot->GetChildItems())
	{
		if (const TSharedPtr<FTabSpawnerEntry> Entry = Item->AsSpawnerEntry())
		{
			AddEntry(PopulateMe, AsShared(), Entry.ToSharedRef());
			continue;
		}
		PopulateMe.BeginSection(NAME_None, Item->GetDisplayName());
		for (const TSharedRef<FWorkspaceItem>& Child : Item->GetChildItems())
		{
			if (const TSharedPtr<FTabSpawnerEntry> Entry = Child->AsSpawnerEntry())
			{
				AddEntry(PopulateMe, AsShared(), Entry.ToSharedRef());
			}
		}
		PopulateMe.EndSection();
	}
}
