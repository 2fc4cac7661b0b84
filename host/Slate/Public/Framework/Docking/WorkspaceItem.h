// SPDX-License-Identifier: MIT
#pragma once

// An entry or a group of the Window menu.

#include "CoreMinimal.h"

struct FTabSpawnerEntry;

/** A node of the tree that the menu is made of: a parent keeps its children. */
class FWorkspaceItem : public TSharedFromThis<FWorkspaceItem>
{
public:
	static TSharedRef<FWorkspaceItem> NewGroup(const FText& DisplayName);
	virtual ~FWorkspaceItem() = default;

	/** Makes a group and adds it. */
	TSharedRef<FWorkspaceItem> AddGroup(const FText& DisplayName);
	void AddItem(const TSharedRef<FWorkspaceItem>& ItemToAdd);
	void RemoveItem(const TSharedRef<FWorkspaceItem>& ItemToRemove);
	void ClearItems();

	const FText& GetDisplayName() const { return DisplayName; }
	const TArray<TSharedRef<FWorkspaceItem>>& GetChildItems() const { return ChildItems; }
	TSharedPtr<FWorkspaceItem> GetParent() const { return ParentItem.Pin(); }
	/** The tab that the entry opens; empty for a group. */
	virtual TSharedPtr<FTabSpawnerEntry> AsSpawnerEntry() { return nullptr; }

protected:
	explicit FWorkspaceItem(const FText& InDisplayName)
		: DisplayName(InDisplayName)
	{
	}

	FText DisplayName;

private:
	TArray<TSharedRef<FWorkspaceItem>> ChildItems;
	TWeakPtr<FWorkspaceItem> ParentItem;
};
