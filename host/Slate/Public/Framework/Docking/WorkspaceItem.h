// SPDX-License-Identifier: MIT
#pragma once

// An entry or a group of the Window menu.

#include "CoreMinimal.h"

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

protected:
	explicit FWorkspaceItem(const FText& InDisplayName)
		: DisplayName(InDisplayName)
	{
	}

private:
	FText DisplayName;
	TArray<TSharedRef<FWorkspaceItem>> ChildItems;
	TWeakPtr<FWorkspaceItem> ParentItem;
};
