// SPDX-License-Identifier: MIT
#include "ToolMenuSection.h"

#include "ToolMenuInsertion.h"
#include "ToolMenus.h"

void FToolMenuSection::InitSection(
	const FName InName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	Name = InName;
	Label = InLabel;
	InsertPosition = InPosition;
	Owner = UToolMenus::Get()->CurrentOwner();
}

FToolMenuEntry& FToolMenuSection::AddEntry(const FToolMenuEntry& Args)
{
	const int32 Existing = IndexOfBlock(Args.Name);
	if (Existing != INDEX_NONE)
	{
		Blocks[Existing] = Args;
		return Blocks[Existing];
	}
	const int32 Index = FindInsertIndex(Blocks, Args.InsertPosition);
	Blocks.Insert(Args, Index);
	return Blocks[Index];
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
	const EUserInterfaceActionType UserInterfaceActionType, const FName InTutorialHighlightName)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(
		InName, InLabel, InToolTip, InIcon, InAction, UserInterfaceActionType, InTutorialHighlightName));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(
		InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InNameOverride,
	const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const FName InTutorialHighlightName)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(
		InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	return AddEntry(FToolMenuEntry::InitMenuEntryWithCommandList(InCommand, InCommandList, InLabelOverride,
		InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride));
}

FToolMenuEntry& FToolMenuSection::AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	return AddEntry(FToolMenuEntry::InitDynamicEntry(InName, InConstruct));
}

FToolMenuEntry& FToolMenuSection::AddSeparator(const FName InName)
{
	return AddEntry(FToolMenuEntry::InitSeparator(InName));
}

FToolMenuEntry& FToolMenuSection::AddSubMenu(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick,
	const TAttribute<FSlateIcon>& InIcon, const bool bShouldCloseWindowAfterMenuSelection)
{
	return AddEntry(FToolMenuEntry::InitSubMenu(
		InName, InLabel, InToolTip, InMakeMenu, bInOpenSubMenuOnClick, InIcon, bShouldCloseWindowAfterMenuSelection));
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	const int32 Index = IndexOfBlock(InName);
	return Index == INDEX_NONE ? nullptr : &Blocks[Index];
}

const FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName) const
{
	const int32 Index = IndexOfBlock(InName);
	return Index == INDEX_NONE ? nullptr : &Blocks[Index];
}

int32 FToolMenuSection::IndexOfBlock(const FName InName) const
{
	if (InName.IsNone())
	{
		return INDEX_NONE;
	}
	return Blocks.IndexOfByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}

int32 FToolMenuSection::RemoveEntry(const FName InName)
{
	return Blocks.RemoveAll([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}

int32 FToolMenuSection::RemoveEntriesByOwner(const FToolMenuOwner InOwner)
{
	return Blocks.RemoveAll([InOwner](const FToolMenuEntry& Entry) { return Entry.Owner == InOwner; });
}
