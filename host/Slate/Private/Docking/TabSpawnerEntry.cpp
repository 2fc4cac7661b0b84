// SPDX-License-Identifier: MIT

#include "Framework/Docking/TabManager.h"

FTabSpawnerEntry::FTabSpawnerEntry(
	const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod, const FCanSpawnTab& InCanSpawnTab)
	: FWorkspaceItem(FText::FromName(InTabType))
	, TabType(InTabType)
	, OnSpawnTab(InSpawnTabMethod)
	, CanSpawnTab(InCanSpawnTab)
{
}

FTabSpawnerEntry& FTabSpawnerEntry::SetDisplayName(const FText& InDisplayName)
{
	DisplayName = InDisplayName;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetTooltipText(const FText& InTooltipText)
{
	TooltipText = InTooltipText;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetGroup(const TSharedRef<FWorkspaceItem>& InGroup)
{
	if (const TSharedPtr<FWorkspaceItem> Former = GetParent())
	{
		Former->RemoveItem(AsShared());
	}
	InGroup->AddItem(AsShared());
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetIcon(const FSlateIcon& InIcon)
{
	Icon = InIcon;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType)
{
	MenuType = InMenuType;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetAutoGenerateMenuEntry(bool bInAutoGenerateMenuEntry)
{
	bAutoGenerateMenuEntry = bInAutoGenerateMenuEntry;
	return *this;
}

TSharedPtr<FTabSpawnerEntry> FTabSpawnerEntry::AsSpawnerEntry()
{
	return SharedThis(this);
}
