// SPDX-License-Identifier: MIT

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/MultiBoxes.h"
#include "Styling/AppStyle.h"

using namespace Host;

FToolBarBuilder::FToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization,
	TSharedPtr<FExtender> InExtender, const bool InForceSmallIcons)
	: FToolBarBuilder(
		  EMultiBoxType::ToolBar, MoveTemp(InCommandList), InCustomization, MoveTemp(InExtender), InForceSmallIcons)
{
}

FToolBarBuilder::FToolBarBuilder(EMultiBoxType InType, TSharedPtr<const FUICommandList> InCommandList,
	FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender, const bool InForceSmallIcons)
	: FMultiBoxBuilder(InType, InCustomization, false, InCommandList, MoveTemp(InExtender), NAME_None)
	, bForceSmallIcons(InForceSmallIcons)
{
	MultiBox->SetStyle(&FAppStyle::Get(), MultiBox->GetStyleName());
}

FMultiBoxItemInfo FToolBarBuilder::MakeItemInfo(const TAttribute<FText>& Label, const TAttribute<FText>& ToolTip,
	const TAttribute<FSlateIcon>& Icon, FName HighlightName) const
{
	FMultiBoxItemInfo Info;
	Info.Label = Label;
	Info.ToolTip = ToolTip;
	Info.Icon = Icon;
	Info.StyleOverride = CurrentStyleOverride;
	Info.LabelVisibility = LabelVisibility;
	Info.bSmallIcon = bForceSmallIcons;
	Info.HighlightName = HighlightName;
	return Info;
}

void FToolBarBuilder::AddToolBarButton(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const TAttribute<FSlateIcon>& InIconOverride, FName InTutorialHighlightName, FNewMenuDelegate InCustomMenuDelegate)
{
	checkf(InCommand.IsValid(), TEXT("A tool bar button needs a command; is its table registered?"));
	FMultiBoxItemInfo Info = MakeItemInfo(InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName);
	Info.FillMenu = InCustomMenuDelegate;
	AddItem(Info, EMultiBlockType::ToolBarButton, InExtensionHook, InCommand);
}

void FToolBarBuilder::AddToolBarButton(const FUIAction& InAction, FName InExtensionHook,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const TAttribute<FSlateIcon>& InIconOverride, const EUserInterfaceActionType UserInterfaceActionType,
	FName InTutorialHighlightName)
{
	FMultiBoxItemInfo Info = MakeItemInfo(InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName);
	Info.ActionType = UserInterfaceActionType;
	AddItem(Info, EMultiBlockType::ToolBarButton, InExtensionHook, nullptr, InAction);
}

void FToolBarBuilder::AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const TAttribute<FSlateIcon>& InIconOverride, bool bInSimpleComboBox, FName InTutorialHighlightName)
{
	FMultiBoxItemInfo Info = MakeItemInfo(InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName);
	Info.Kind = EMultiBoxItem::ComboButton;
	Info.MakeMenu = InMenuContentGenerator;
	Info.bSimpleComboBox = bInSimpleComboBox;
	Info.bOpenOnClick = true;
	AddItem(Info, EMultiBlockType::ToolBarComboButton, NAME_None, nullptr, InAction);
}

void FToolBarBuilder::AddWidget(TSharedRef<SWidget> InWidget, FName InTutorialHighlightName, bool bSearchable)
{
	AddWidgetItem(InWidget, TAttribute<FText>(), false, bSearchable, InTutorialHighlightName);
}

void FToolBarBuilder::AddSeparator(FName InExtensionHook)
{
	AddSeparatorItem(InExtensionHook);
}

void FToolBarBuilder::BeginSection(FName InExtensionHook)
{
	OpenSection(InExtensionHook, TAttribute<FText>());
}

void FToolBarBuilder::EndSection()
{
	CloseSection();
}

void FToolBarBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	if (!InExtensionHook.IsNone() && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
}
