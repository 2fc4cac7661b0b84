// SPDX-License-Identifier: MIT
#pragma once

// A named part of a menu or a tool bar; extenders hook to its name.

#include "ToolMenuContext.h"
#include "ToolMenuEntry.h"

struct TOOLMENUS_API FToolMenuSection
{
	void InitSection(const FName InName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition);

	/** Adds the entry where its position says, or in place of the entry of its name. The reference ends with the next
	 * one. */
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);
	FToolMenuEntry& AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
		const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		const FName InTutorialHighlightName = NAME_None);
	FToolMenuEntry& AddMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = {}, const TAttribute<FText>& InToolTipOverride = {},
		const TAttribute<FSlateIcon>& InIconOverride = {}, const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());
	FToolMenuEntry& AddMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = {}, const TAttribute<FText>& InToolTipOverride = {},
		const TAttribute<FSlateIcon>& InIconOverride = {}, const FName InTutorialHighlightName = NAME_None);
	FToolMenuEntry& AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride = {},
		const TAttribute<FText>& InToolTipOverride = {}, const TAttribute<FSlateIcon>& InIconOverride = {},
		const FName InTutorialHighlightName = NAME_None, const TOptional<FName> InNameOverride = TOptional<FName>());
	/** Asked each time that the menu is generated; what it adds stands in place of the entry. */
	FToolMenuEntry& AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);
	FToolMenuEntry& AddSeparator(const FName InName);
	FToolMenuEntry& AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick = false,
		const TAttribute<FSlateIcon>& InIcon = {}, const bool bShouldCloseWindowAfterMenuSelection = true);

	/** Null when no entry has that name. The pointer ends with the next entry that is added. */
	FToolMenuEntry* FindEntry(const FName InName);
	const FToolMenuEntry* FindEntry(const FName InName) const;
	/** INDEX_NONE when no entry has that name. */
	int32 IndexOfBlock(const FName InName) const;
	/** Number of entries that went. */
	int32 RemoveEntry(const FName InName);
	int32 RemoveEntriesByOwner(const FToolMenuOwner InOwner);

	/** For delegates: the object of that class in the context of the menu that is generated. */
	template <typename TObjectType>
	TObjectType* FindContext() const
	{
		return Context.FindContext<TObjectType>();
	}

	FName Name;
	TAttribute<FText> Label;
	FToolMenuInsert InsertPosition;
	TArray<FToolMenuEntry> Blocks;
	/** Of the menu that is generated; empty before. */
	FToolMenuContext Context;
	FToolMenuOwner Owner;
};
