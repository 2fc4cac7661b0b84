// SPDX-License-Identifier: MIT
#pragma once

// One entry of a section: a button, a sub menu, a separator, a widget, or what a delegate adds when the menu opens.

#include "Framework/Commands/UICommandInfo.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuMisc.h"
#include "ToolMenuOwner.h"

/** Made with one of the Init functions. Texts and icons that are not given are the command's. */
struct TOOLMENUS_API FToolMenuEntry
{
	FToolMenuEntry() = default;
	FToolMenuEntry(const FToolMenuOwner InOwner, const FName InName, EMultiBlockType InType)
		: Name(InName)
		, Type(InType)
		, Owner(InOwner)
	{
	}

	/** The entry's name is the command's unless another one is given. */
	static FToolMenuEntry InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = {}, const TAttribute<FText>& InToolTipOverride = {},
		const TAttribute<FSlateIcon>& InIconOverride = {}, const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());
	static FToolMenuEntry InitMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride = {},
		const TAttribute<FText>& InToolTipOverride = {}, const TAttribute<FSlateIcon>& InIconOverride = {},
		const FName InTutorialHighlightName = NAME_None, const TOptional<FName> InNameOverride = TOptional<FName>());
	static FToolMenuEntry InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel,
		const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		const FName InTutorialHighlightName = NAME_None);

	static FToolMenuEntry InitToolBarButton(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = {}, const TAttribute<FText>& InToolTipOverride = {},
		const TAttribute<FSlateIcon>& InIconOverride = {}, FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());
	static FToolMenuEntry InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction,
		const TAttribute<FText>& InLabel = {}, const TAttribute<FText>& InToolTip = {},
		const TAttribute<FSlateIcon>& InIcon = {},
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);
	static FToolMenuEntry InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
		const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel = {},
		const TAttribute<FText>& InToolTip = {}, const TAttribute<FSlateIcon>& InIcon = {},
		bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);

	/** What a sub menu opens is registered as the menu's name and the entry's, joined by a point. */
	static FToolMenuEntry InitSubMenu(const FName InName, const TAttribute<FText>& InLabel,
		const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick = false,
		const TAttribute<FSlateIcon>& InIcon = {}, const bool bShouldCloseWindowAfterMenuSelection = true);
	static FToolMenuEntry InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);
	static FToolMenuEntry InitSeparator(const FName InName);
	static FToolMenuEntry InitWidget(const FName InName, const TSharedRef<SWidget>& InWidget, const FText& Label,
		bool bNoIndent = false, bool bSearchable = true);

	/** The list in which the command is looked for, in place of those of the menu's context. */
	void SetCommandList(const TSharedPtr<const FUICommandList>& InCommandList) { Action.CommandList = InCommandList; }

	bool IsSubMenu() const { return bIsSubMenu; }
	bool IsDynamic() const { return Construct.IsBound(); }
	bool IsCommand() const { return Action.Command.IsValid(); }

	FName Name;
	EMultiBlockType Type = EMultiBlockType::None;
	EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button;
	FName TutorialHighlightName;
	FToolMenuInsert InsertPosition;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	/** Tool bar style in place of the bar's. */
	FName StyleNameOverride;
	bool bShouldCloseWindowAfterMenuSelection = true;
	FToolMenuOwner Owner;

private:
	friend class UToolMenus;

	FToolUIActionChoice Action;
	FNewToolMenuChoice MakeMenu;
	FNewToolMenuSectionDelegate Construct;
	TSharedPtr<SWidget> Widget;
	bool bIsSubMenu = false;
	bool bOpenSubMenuOnClick = false;
	bool bSimpleComboBox = false;
	bool bNoIndent = false;
	bool bSearchable = true;
};
