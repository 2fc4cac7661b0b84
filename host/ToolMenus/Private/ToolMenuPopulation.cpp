// SPDX-License-Identifier: MIT
#include "ToolMenus.h"

#include "Styling/AppStyle.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Widgets/SNullWidget.h"

namespace
{
/** While it lives, an entry's own list of commands is asked in place of the builder's; an empty one changes nothing. */
class FPushedCommandList
{
public:
	FPushedCommandList(FMultiBoxBuilder& InBuilder, const TSharedPtr<const FUICommandList>& CommandList)
		: Builder(CommandList.IsValid() ? &InBuilder : nullptr)
	{
		if (Builder)
		{
			Builder->PushCommandList(CommandList.ToSharedRef());
		}
	}
	~FPushedCommandList()
	{
		if (Builder)
		{
			Builder->PopCommandList();
		}
	}
	FPushedCommandList(const FPushedCommandList&) = delete;
	FPushedCommandList& operator=(const FPushedCommandList&) = delete;

private:
	FMultiBoxBuilder* Builder;
};

TSharedRef<FToolBarBuilder> MakeToolBarBuilder(const UToolMenu& Generated)
{
	const TSharedPtr<FUICommandList> Commands = Generated.Context.GetCommandList();
	const TSharedPtr<FExtender> Extender = Generated.Context.GetAllExtenders();
	const FMultiBoxCustomization Fixed = FMultiBoxCustomization::None;
	const bool bSmall = Generated.bToolBarForceSmallIcons;
	switch (Generated.MenuType)
	{
		case EMultiBoxType::VerticalToolBar:
			return MakeShared<FVerticalToolBarBuilder>(Commands, Fixed, Extender, bSmall);
		case EMultiBoxType::SlimHorizontalToolBar:
		case EMultiBoxType::SlimHorizontalUniformToolBar:
			return MakeShared<FSlimHorizontalToolBarBuilder>(Commands, Fixed, Extender, bSmall);
		default:
			return MakeShared<FToolBarBuilder>(Commands, Fixed, Extender, bSmall);
	}
}
} // namespace

TArray<FToolMenuEntry> UToolMenus::ExpandEntries(const FToolMenuSection& Section)
{
	TArray<FToolMenuEntry> Entries;
	for (const FToolMenuEntry& Entry : Section.Blocks)
	{
		if (!Entry.IsDynamic())
		{
			Entries.Add(Entry);
			continue;
		}
		FToolMenuSection Added;
		Added.Name = Section.Name;
		Added.Context = Section.Context;
		Entry.Construct.Execute(Added);
		Entries.Append(Added.Blocks);
	}
	return Entries;
}

TSharedRef<FMultiBoxBuilder> UToolMenus::MakeBuilder(UToolMenu& Generated)
{
	const ISlateStyle* const Style = Generated.GetStyleSet() ? Generated.GetStyleSet() : &FAppStyle::Get();
	const TSharedPtr<FUICommandList> Commands = Generated.Context.GetCommandList();
	const TSharedPtr<FExtender> Extender = Generated.Context.GetAllExtenders();
	TSharedPtr<FMultiBoxBuilder> Result;
	if (Generated.MenuType == EMultiBoxType::Menu)
	{
		const TSharedRef<FMenuBuilder> Builder =
			MakeShared<FMenuBuilder>(Generated.bShouldCloseWindowAfterMenuSelection, Commands, Extender,
				Generated.bCloseSelfOnly, Style, Generated.bSearchable, Generated.MenuName);
		PopulateMenu(*Builder, Generated);
		Result = Builder;
	}
	else if (Generated.MenuType == EMultiBoxType::MenuBar)
	{
		const TSharedRef<FMenuBarBuilder> Builder =
			MakeShared<FMenuBarBuilder>(Commands, Extender, Style, Generated.MenuName);
		PopulateMenuBar(*Builder, Generated);
		Result = Builder;
	}
	else
	{
		const TSharedRef<FToolBarBuilder> Builder = MakeToolBarBuilder(Generated);
		PopulateToolBar(*Builder, Generated);
		Result = Builder;
	}
	if (!Generated.StyleName.IsNone())
	{
		Result->SetStyle(Style, Generated.StyleName);
	}
	return Result.ToSharedRef();
}

// Delegates may add to the menu while it is read, so each reads a copy of the sections.

void UToolMenus::PopulateMenu(FMenuBuilder& Builder, UToolMenu& Generated)
{
	for (const FToolMenuSection& Section : TArray<FToolMenuSection>(Generated.Sections))
	{
		Builder.BeginSection(Section.Name, Section.Label);
		for (const FToolMenuEntry& Entry : ExpandEntries(Section))
		{
			PopulateMenuEntry(Builder, Generated, Entry);
		}
		Builder.EndSection();
	}
}

void UToolMenus::PopulateMenuBar(FMenuBarBuilder& Builder, UToolMenu& Generated)
{
	for (const FToolMenuSection& Section : TArray<FToolMenuSection>(Generated.Sections))
	{
		for (const FToolMenuEntry& Entry : ExpandEntries(Section))
		{
			PopulateMenuBarEntry(Builder, Generated, Entry);
		}
	}
}

void UToolMenus::PopulateToolBar(FToolBarBuilder& Builder, UToolMenu& Generated)
{
	Builder.SetIsFocusable(Generated.bToolBarIsFocusable);
	for (const FToolMenuSection& Section : TArray<FToolMenuSection>(Generated.Sections))
	{
		Builder.BeginSection(Section.Name);
		for (const FToolMenuEntry& Entry : ExpandEntries(Section))
		{
			PopulateToolBarEntry(Builder, Generated, Entry);
		}
		Builder.EndSection();
	}
}

FNewMenuDelegate UToolMenus::MakeSubMenuFiller(UToolMenu& Generated, const FToolMenuEntry& Entry)
{
	if (Entry.MakeMenu.NewMenuLegacy.IsBound())
	{
		return Entry.MakeMenu.NewMenuLegacy;
	}
	const TWeakObjectPtr<UToolMenu> WeakMenu(&Generated);
	return FNewMenuDelegate::CreateWeakLambda(this,
		[this, WeakMenu, Entry](FMenuBuilder& SubBuilder)
		{
			if (UToolMenu* const Parent = WeakMenu.Get())
			{
				PopulateMenu(SubBuilder, *GenerateSubMenu(*Parent, Entry));
			}
		});
}

FOnGetContent UToolMenus::MakeContentGenerator(UToolMenu& Generated, const FToolMenuEntry& Entry)
{
	const FNewToolMenuChoice& Choice = Entry.MakeMenu;
	if (Choice.OnGetContent.IsBound())
	{
		return Choice.OnGetContent;
	}
	if (Choice.NewToolMenuWidget.IsBound())
	{
		const FToolMenuContext Context = Generated.Context;
		const FNewToolMenuWidget MakeWidget = Choice.NewToolMenuWidget;
		return FOnGetContent::CreateLambda([MakeWidget, Context]
			{ return MakeWidget.IsBound() ? MakeWidget.Execute(Context) : SNullWidget::NullWidget; });
	}
	const FNewMenuDelegate FillMenu = MakeSubMenuFiller(Generated, Entry);
	const TSharedPtr<FUICommandList> Commands = Generated.Context.GetCommandList();
	const TSharedPtr<FExtender> Extender = Generated.Context.GetAllExtenders();
	const bool bCloses = Entry.bShouldCloseWindowAfterMenuSelection;
	return FOnGetContent::CreateLambda(
		[FillMenu, Commands, Extender, bCloses]
		{
			FMenuBuilder Builder(bCloses, Commands, Extender);
			FillMenu.ExecuteIfBound(Builder);
			return Builder.MakeWidget();
		});
}

void UToolMenus::PopulateMenuEntry(FMenuBuilder& Builder, UToolMenu& Generated, const FToolMenuEntry& Entry)
{
	const FSlateIcon Icon = Entry.Icon.Get();
	if (Entry.Type == EMultiBlockType::Separator)
	{
		Builder.AddSeparator(Entry.Name);
	}
	else if (Entry.Type == EMultiBlockType::Widget)
	{
		Builder.AddWidget(Entry.Widget.ToSharedRef(), Entry.Label.Get(), Entry.bNoIndent, Entry.bSearchable);
	}
	else if (Entry.IsSubMenu() && (Entry.MakeMenu.NewToolMenuWidget.IsBound() || Entry.MakeMenu.OnGetContent.IsBound()))
	{
		Builder.AddWrapperSubMenu(Entry.Label.Get(), Entry.ToolTip.Get(), MakeContentGenerator(Generated, Entry), Icon,
			Entry.bShouldCloseWindowAfterMenuSelection);
	}
	else if (Entry.IsSubMenu())
	{
		Builder.AddSubMenu(Entry.Label, Entry.ToolTip, MakeSubMenuFiller(Generated, Entry), Entry.bOpenSubMenuOnClick,
			Icon, Entry.bShouldCloseWindowAfterMenuSelection, Entry.Name, Entry.TutorialHighlightName);
	}
	else if (const FUIAction* const Action = Entry.Action.GetUIAction())
	{
		Builder.AddMenuEntry(Entry.Label, Entry.ToolTip, Icon, *Action, Entry.Name, Entry.UserInterfaceActionType,
			Entry.TutorialHighlightName);
	}
	else
	{
		const FPushedCommandList Pushed(Builder, Entry.Action.CommandList);
		Builder.AddMenuEntry(
			Entry.Action.Command, Entry.Name, Entry.Label, Entry.ToolTip, Icon, Entry.TutorialHighlightName);
	}
}

void UToolMenus::PopulateMenuBarEntry(FMenuBarBuilder& Builder, UToolMenu& Generated, const FToolMenuEntry& Entry)
{
	if (Entry.IsSubMenu() && (Entry.MakeMenu.NewToolMenuWidget.IsBound() || Entry.MakeMenu.OnGetContent.IsBound()))
	{
		Builder.AddPullDownMenu(Entry.Label, Entry.ToolTip, MakeContentGenerator(Generated, Entry), Entry.Name,
			Entry.TutorialHighlightName);
	}
	else if (Entry.IsSubMenu())
	{
		Builder.AddPullDownMenu(
			Entry.Label, Entry.ToolTip, MakeSubMenuFiller(Generated, Entry), Entry.Name, Entry.TutorialHighlightName);
	}
	else if (const FUIAction* const Action = Entry.Action.GetUIAction())
	{
		Builder.AddMenuEntry(Entry.Label, Entry.ToolTip, Entry.Icon.Get(), *Action, Entry.Name,
			Entry.UserInterfaceActionType, Entry.TutorialHighlightName);
	}
	else
	{
		const FPushedCommandList Pushed(Builder, Entry.Action.CommandList);
		Builder.AddMenuEntry(Entry.Action.Command, Entry.Name, Entry.Label, Entry.ToolTip, Entry.Icon.Get(),
			Entry.TutorialHighlightName);
	}
}

void UToolMenus::PopulateToolBarEntry(FToolBarBuilder& Builder, UToolMenu& Generated, const FToolMenuEntry& Entry)
{
	if (!Entry.StyleNameOverride.IsNone())
	{
		Builder.BeginStyleOverride(Entry.StyleNameOverride);
	}
	const FUIAction* const Action = Entry.Action.GetUIAction();
	if (Entry.Type == EMultiBlockType::Separator)
	{
		Builder.AddSeparator(Entry.Name);
	}
	else if (Entry.Type == EMultiBlockType::Widget)
	{
		Builder.AddWidget(Entry.Widget.ToSharedRef(), Entry.TutorialHighlightName, Entry.bSearchable);
	}
	else if (Entry.Type == EMultiBlockType::ToolBarComboButton || Entry.IsSubMenu())
	{
		Builder.AddComboButton(Action ? *Action : FUIAction(), MakeContentGenerator(Generated, Entry), Entry.Label,
			Entry.ToolTip, Entry.Icon, Entry.bSimpleComboBox, Entry.TutorialHighlightName);
	}
	else if (Action)
	{
		Builder.AddToolBarButton(*Action, Entry.Name, Entry.Label, Entry.ToolTip, Entry.Icon,
			Entry.UserInterfaceActionType, Entry.TutorialHighlightName);
	}
	else
	{
		const FPushedCommandList Pushed(Builder, Entry.Action.CommandList);
		Builder.AddToolBarButton(
			Entry.Action.Command, Entry.Name, Entry.Label, Entry.ToolTip, Entry.Icon, Entry.TutorialHighlightName);
	}
	if (!Entry.StyleNameOverride.IsNone())
	{
		Builder.EndStyleOverride();
	}
}
