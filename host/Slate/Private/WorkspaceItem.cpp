// SPDX-License-Identifier: MIT

#include "Framework/Docking/WorkspaceItem.h"

TSharedRef<FWorkspaceItem> FWorkspaceItem::NewGroup(const FText& DisplayName)
{
	return MakeShareable(new FWorkspaceItem(DisplayName));
}

TSharedRef<FWorkspaceItem> FWorkspaceItem::AddGroup(const FText& InDisplayName)
{
	const TSharedRef<FWorkspaceItem> Group = NewGroup(InDisplayName);
	AddItem(Group);
	return Group;
}

void FWorkspaceItem::AddItem(const TSharedRef<FWorkspaceItem>& ItemToAdd)
{
	ItemToAdd->ParentItem = AsShared();
	ChildItems.Add(ItemToAdd);
}

void FWorkspaceItem::RemoveItem(const TSharedRef<FWorkspaceItem>& ItemToRemove)
{
	if (ChildItems.Remove(ItemToRemove) > 0)
	{
		ItemToRemove->ParentItem.Reset();
	}
}

void FWorkspaceItem::ClearItems()
{
	for (const TSharedRef<FWorkspaceItem>& Item : ChildItems)
	{
		Item->ParentItem.Reset();
	}
	ChildItems.Empty();
}
