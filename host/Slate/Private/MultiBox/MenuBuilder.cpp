// SPDX-License-Identifier: MIT

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/MultiBoxes.h"

using namespace Host;

FBaseMenuBuilder::FBaseMenuBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection,
	TSharedPtr<const FUICommandList> InCommandList, bool bInCloseSelfOnly, TSharedPtr<FExtender> InExtender,
	const ISlateStyle* InStyleSet, FName InMenuName)
	: FMultiBoxBuilder(InType, FMultiBoxCustomization::None, bInShouldCloseWindowAfterMenuSelection, InCommandList,
		  MoveTemp(InExtender), InMenuName)
	, bCloseSelfOnly(bInCloseSelfOnly)
{
	MultiBox->SetStyle(InStyleSet, MultiBox->GetStyleName());
}

void FBaseMenuBuilder::AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const FSlateIcon& InIconOverride, FName InTutorialHighlightName)
{
	checkf(InCommand.IsValid(), TEXT("A menu entry needs a command; is its table registered?"));
	FMultiBoxItemInfo Info;
	Info.Label = InLabelOverride;
	Info.ToolTip = InToolTipOverride;
	Info.Icon = InIconOverride;
	Info.bCloseSelfOnly = bCloseSelfOnly;
	Info.HighlightName = InTutorialHighlightName;
	AddItem(Info, EMultiBlockType::MenuEntry, InExtensionHook, InCommand);
}

void FBaseMenuBuilder::AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const FSlateIcon& InIcon, const FUIAction& UIAction, FName InExtensionHook,
	const EUserInterfaceActionType UserInterfaceActionType, FName InTutorialHighlightName)
{
	FMultiBoxItemInfo Info;
	Info.Label = InLabel;
	Info.ToolTip = InToolTip;
	Info.Icon = InIcon;
	Info.ActionType = UserInterfaceActionType;
	Info.bCloseSelfOnly = bCloseSelfOnly;
	Info.HighlightName = InTutorialHighlightName;
	AddItem(Info, EMultiBlockType::MenuEntry, InExtensionHook, nullptr, UIAction);
}

void FBaseMenuBuilder::AddMenuEntry(const FUIAction& UIAction, const TSharedRef<SWidget> Contents,
	const FName& InExtensionHook, const TAttribute<FText>& InToolTip,
	const EUserInterfaceActionType UserInterfaceActionType, FName InTutorialHighlightName)
{
	FMultiBoxItemInfo Info;
	Info.ToolTip = InToolTip;
	Info.ActionType = UserInterfaceActionType;
	Info.Content = Contents;
	Info.bCloseSelfOnly = bCloseSelfOnly;
	Info.HighlightName = InTutorialHighlightName;
	AddItem(Info, EMultiBlockType::MenuEntry, InExtensionHook, nullptr, UIAction);
}

FMenuBuilder::FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection,
	TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, const bool bCloseSelfOnly,
	const ISlateStyle* InStyleSet, bool bInSearchable, FName InMenuName)
	: FBaseMenuBuilder(EMultiBoxType::Menu, bInShouldCloseWindowAfterMenuSelection, MoveTemp(InCommandList),
		  bCloseSelfOnly, MoveTemp(InExtender), InStyleSet, InMenuName)
	, bSearchable(bInSearchable)
{
}

TSharedRef<SWidget> FMenuBuilder::MakeWidget(
	FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, uint32 MaxHeight)
{
	return MultiBox->MakeWidget(bSearchable, InMakeMultiBoxBuilderOverride, static_cast<float>(MaxHeight));
}

void FMenuBuilder::BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText)
{
	OpenSection(InExtensionHook, InHeadingText);
}

void FMenuBuilder::EndSection()
{
	CloseSection();
}

void FMenuBuilder::AddMenuSeparator(FName InExtensionHook)
{
	AddSeparatorItem(InExtensionHook);
}

void FMenuBuilder::AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
	const FNewMenuDelegate& InSubMenu, const bool bInOpenSubMenuOnClick, const FSlateIcon& InIcon,
	const bool bInShouldCloseWindowAfterMenuSelection, FName InExtensionHook, FName InTutorialHighlightName)
{
	AddSubMenu(InMenuLabel, InToolTip, InSubMenu, FUIAction(), InExtensionHook, EUserInterfaceActionType::Button,
		bInOpenSubMenuOnClick, InIcon, bInShouldCloseWindowAfterMenuSelection, InTutorialHighlightName);
}

void FMenuBuilder::AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
	const FNewMenuDelegate& InSubMenu, const FUIAction& InUIAction, FName InExtensionHook,
	const EUserInterfaceActionType InUserInterfaceActionType, const bool bInOpenSubMenuOnClick,
	const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection, FName InTutorialHighlightName)
{
	FMultiBoxItemInfo Info;
	Info.Kind = EMultiBoxItem::SubMenu;
	Info.Label = InMenuLabel;
	Info.ToolTip = InToolTip;
	Info.Icon = InIcon;
	Info.ActionType = InUserInterfaceActionType;
	Info.FillMenu = InSubMenu;
	Info.bOpenOnClick = bInOpenSubMenuOnClick;
	Info.bMenuClosesWindow = bInShouldCloseWindowAfterMenuSelection;
	Info.bCloseSelfOnly = bCloseSelfOnly;
	Info.HighlightName = InTutorialHighlightName;
	AddItem(Info, EMultiBlockType::MenuEntry, InExtensionHook, nullptr, InUIAction);
}

void FMenuBuilder::AddWrapperSubMenu(const FText& InMenuLabel, const FText& InToolTip, const FOnGetContent& InSubMenu,
	const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection)
{
	FMultiBoxItemInfo Info;
	Info.Kind = EMultiBoxItem::SubMenu;
	Info.Label = InMenuLabel;
	Info.ToolTip = InToolTip;
	Info.Icon = InIcon;
	Info.MakeMenu = InSubMenu;
	Info.bMenuClosesWindow = bInShouldCloseWindowAfterMenuSelection;
	Info.bCloseSelfOnly = bCloseSelfOnly;
	AddItem(Info, EMultiBlockType::MenuEntry, NAME_None);
}

void FMenuBuilder::AddWidget(TSharedRef<SWidget> InWidget, const FText& Label, bool bNoIndent, bool bInSearchable,
	const TAttribute<FText>& InToolTip)
{
	if (InToolTip.IsSet())
	{
		InWidget->SetToolTipText(InToolTip);
	}
	AddWidgetItem(InWidget, Label, bNoIndent, bInSearchable, NAME_None);
}

void FMenuBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	if (!InExtensionHook.IsNone() && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
}

FMenuBarBuilder::FMenuBarBuilder(TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender,
	const ISlateStyle* InStyleSet, FName InMenuName)
	: FBaseMenuBuilder(
		  EMultiBoxType::MenuBar, false, MoveTemp(InCommandList), false, MoveTemp(InExtender), InStyleSet, InMenuName)
{
}

void FMenuBarBuilder::AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
	const FNewMenuDelegate& InPullDownMenu, FName InExtensionHook, FName InTutorialHighlightName)
{
	FMultiBoxItemInfo Info;
	Info.Kind = EMultiBoxItem::SubMenu;
	Info.Label = InMenuLabel;
	Info.ToolTip = InToolTip;
	Info.FillMenu = InPullDownMenu;
	Info.bOpenOnClick = true;
	Info.HighlightName = InTutorialHighlightName;
	AddItem(Info, EMultiBlockType::MenuEntry, InExtensionHook);
}

void FMenuBarBuilder::AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
	const FOnGetContent& InMenuContentGenerator, FName InExtensionHook, FName InTutorialHighlightName)
{
	FMultiBoxItemInfo Info;
	Info.Kind = EMultiBoxItem::SubMenu;
	Info.Label = InMenuLabel;
	Info.ToolTip = InToolTip;
	Info.MakeMenu = InMenuContentGenerator;
	Info.bOpenOnClick = true;
	Info.HighlightName = InTutorialHighlightName;
	AddItem(Info, EMultiBlockType::MenuEntry, InExtensionHook);
}

void FMenuBarBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	if (!InExtensionHook.IsNone() && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
}
