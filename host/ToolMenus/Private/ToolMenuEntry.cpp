// SPDX-License-Identifier: MIT
#include "ToolMenuEntry.h"

#include "ToolMenus.h"

namespace
{
FToolMenuEntry MakeEntry(FName Name, EMultiBlockType Type, const TAttribute<FText>& Label,
	const TAttribute<FText>& ToolTip, const TAttribute<FSlateIcon>& Icon, FName HighlightName)
{
	FToolMenuEntry Entry(UToolMenus::Get()->CurrentOwner(), Name, Type);
	Entry.Label = Label;
	Entry.ToolTip = ToolTip;
	Entry.Icon = Icon;
	Entry.TutorialHighlightName = HighlightName;
	return Entry;
}

FName NameOf(const TSharedPtr<const FUICommandInfo>& Command, const TOptional<FName>& NameOverride)
{
	checkf(Command.IsValid(), TEXT("A menu entry needs a command; is its table registered?"));
	return NameOverride.Get(Command->GetCommandName());
}
} // namespace

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	return InitMenuEntryWithCommandList(InCommand, nullptr, InLabelOverride, InToolTipOverride, InIconOverride,
		InTutorialHighlightName, InNameOverride);
}

FToolMenuEntry FToolMenuEntry::InitMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	FToolMenuEntry Entry = MakeEntry(NameOf(InCommand, InNameOverride), EMultiBlockType::MenuEntry, InLabelOverride,
		InToolTipOverride, InIconOverride, InTutorialHighlightName);
	Entry.Action = FToolUIActionChoice(InCommand, InCommandList);
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
	const EUserInterfaceActionType UserInterfaceActionType, const FName InTutorialHighlightName)
{
	FToolMenuEntry Entry =
		MakeEntry(InName, EMultiBlockType::MenuEntry, InLabel, InToolTip, InIcon, InTutorialHighlightName);
	Entry.Action = InAction;
	Entry.UserInterfaceActionType = UserInterfaceActionType;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitToolBarButton(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const TAttribute<FSlateIcon>& InIconOverride, FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	FToolMenuEntry Entry = MakeEntry(NameOf(InCommand, InNameOverride), EMultiBlockType::ToolBarButton, InLabelOverride,
		InToolTipOverride, InIconOverride, InTutorialHighlightName);
	Entry.Action = FToolUIActionChoice(InCommand, nullptr);
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction,
	const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon,
	const EUserInterfaceActionType UserInterfaceActionType, FName InTutorialHighlightName)
{
	FToolMenuEntry Entry =
		MakeEntry(InName, EMultiBlockType::ToolBarButton, InLabel, InToolTip, InIcon, InTutorialHighlightName);
	Entry.Action = InAction;
	Entry.UserInterfaceActionType = UserInterfaceActionType;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
	const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, bool bInSimpleComboBox,
	FName InTutorialHighlightName)
{
	FToolMenuEntry Entry =
		MakeEntry(InName, EMultiBlockType::ToolBarComboButton, InLabel, InToolTip, InIcon, InTutorialHighlightName);
	Entry.Action = InAction;
	Entry.MakeMenu = InMenuContentGenerator;
	Entry.bSimpleComboBox = bInSimpleComboBox;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSubMenu(const FName InName, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick,
	const TAttribute<FSlateIcon>& InIcon, const bool bShouldCloseWindowAfterMenuSelection)
{
	checkf(!InName.IsNone(), TEXT("A sub menu needs a name"));
	FToolMenuEntry Entry = MakeEntry(InName, EMultiBlockType::MenuEntry, InLabel, InToolTip, InIcon, NAME_None);
	Entry.MakeMenu = InMakeMenu;
	Entry.bIsSubMenu = true;
	Entry.bOpenSubMenuOnClick = bInOpenSubMenuOnClick;
	Entry.bShouldCloseWindowAfterMenuSelection = bShouldCloseWindowAfterMenuSelection;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	FToolMenuEntry Entry(UToolMenus::Get()->CurrentOwner(), InName, EMultiBlockType::None);
	Entry.Construct = InConstruct;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSeparator(const FName InName)
{
	return FToolMenuEntry(UToolMenus::Get()->CurrentOwner(), InName, EMultiBlockType::Separator);
}

FToolMenuEntry FToolMenuEntry::InitWidget(
	const FName InName, const TSharedRef<SWidget>& InWidget, const FText& Label, bool bNoIndent, bool bSearchable)
{
	FToolMenuEntry Entry(UToolMenus::Get()->CurrentOwner(), InName, EMultiBlockType::Widget);
	Entry.Label = Label;
	Entry.Widget = InWidget;
	Entry.bNoIndent = bNoIndent;
	Entry.bSearchable = bSearchable;
	return Entry;
}
