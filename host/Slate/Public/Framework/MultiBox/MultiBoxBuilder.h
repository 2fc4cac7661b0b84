// SPDX-License-Identifier: MIT
#pragma once

// Builders of menus, menu bars and tool bars.

#include "Framework/MultiBox/MultiBox.h"
#include "Styling/CoreStyle.h"

namespace Host
{
struct FMultiBoxItemInfo;
}

/** What all builders share: the box, the stack of command lists, the extender, sections, separators and widgets. */
class FMultiBoxBuilder
{
public:
	virtual ~FMultiBoxBuilder() = default;

	FMultiBoxBuilder(const FMultiBoxBuilder&) = delete;
	FMultiBoxBuilder& operator=(const FMultiBoxBuilder&) = delete;

	TSharedRef<FMultiBox> GetMultiBox() const { return MultiBox; }
	/**
	 * The widget of what was added so far.
	 *
	 * @param InMakeMultiBoxBuilderOverride  arranges the blocks in place of the widget; null for the usual arrangement
	 * @param MaxHeight                      slate units
	 */
	virtual TSharedRef<SWidget> MakeWidget(
		FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = 1000);

	/** Commands that are added from now on are looked for in this list. */
	void PushCommandList(const TSharedRef<const FUICommandList>& CommandList) { CommandListStack.Add(CommandList); }
	void PopCommandList();

	const ISlateStyle* GetStyleSet() const { return MultiBox->GetStyleSet(); }
	const FName& GetStyleName() const { return MultiBox->GetStyleName(); }
	void SetStyle(const ISlateStyle* InStyleSet, const FName& InStyleName)
	{
		MultiBox->SetStyle(InStyleSet, InStyleName);
	}

protected:
	FMultiBoxBuilder(const EMultiBoxType InType, FMultiBoxCustomization InCustomization,
		const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList,
		TSharedPtr<FExtender> InExtender, FName InMenuName);

	/** Lets the extender add its pieces. */
	virtual void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition) = 0;

	/** Opens a section whose heading and separator appear with its first piece. */
	void OpenSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText);
	void CloseSection();
	/** Adds a piece between the additions before and after its hook. */
	void AddItem(Host::FMultiBoxItemInfo Info, EMultiBlockType BlockType, FName InExtensionHook,
		const TSharedPtr<const FUICommandInfo>& Command = nullptr, const FUIAction& Action = FUIAction());
	void AddSeparatorItem(FName InExtensionHook);
	void AddWidgetItem(const TSharedRef<SWidget>& Widget, const TAttribute<FText>& Label, bool bNoIndent,
		bool bSearchable, FName Name);

	TSharedRef<FMultiBox> MultiBox;
	TArray<TSharedPtr<const FUICommandList>> CommandListStack;
	/** Empty for none. */
	TSharedPtr<FExtender> Extender;
	FName MenuName;

private:
	void ApplySectionBeginning();

	FName SectionHook;
	TAttribute<FText> SectionHeading;
	bool bInSection = false;
	bool bSectionNeedsBeginning = false;
};

/** What menus and menu bars share. */
class FBaseMenuBuilder : public FMultiBoxBuilder
{
public:
	/** An entry for a command, with the command's own texts and icon where none are given. */
	void AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const FSlateIcon& InIconOverride = FSlateIcon(), FName InTutorialHighlightName = NAME_None);
	/** An entry with an action of its own. */
	void AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon,
		const FUIAction& UIAction, FName InExtensionHook = NAME_None,
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);
	/** An entry that shows a widget in place of a label. */
	void AddMenuEntry(const FUIAction& UIAction, const TSharedRef<SWidget> Contents,
		const FName& InExtensionHook = NAME_None, const TAttribute<FText>& InToolTip = TAttribute<FText>(),
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);

protected:
	FBaseMenuBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection,
		TSharedPtr<const FUICommandList> InCommandList, bool bInCloseSelfOnly, TSharedPtr<FExtender> InExtender,
		const ISlateStyle* InStyleSet, FName InMenuName);

	bool bCloseSelfOnly;
};

class FMenuBuilder : public FBaseMenuBuilder
{
public:
	/**
	 * @param bInShouldCloseWindowAfterMenuSelection  choosing an entry closes the menu
	 * @param bCloseSelfOnly                          it closes this menu and not those that it was opened from
	 * @param bInSearchable                           typing filters the entries
	 */
	FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList,
		TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool bCloseSelfOnly = false,
		const ISlateStyle* InStyleSet = &FCoreStyle::Get(), bool bInSearchable = true, FName InMenuName = NAME_None);

	TSharedRef<SWidget> MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr,
		uint32 MaxHeight = 1000) override;

	/** A section must be closed before the next one begins. An empty one leaves no trace. */
	void BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText = TAttribute<FText>());
	void EndSection();
	void AddMenuSeparator(FName InExtensionHook = NAME_None);
	void AddSeparator(FName InExtensionHook = NAME_None) { AddMenuSeparator(InExtensionHook); }

	/** An entry that opens a menu, which is filled each time that it opens. */
	void AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
		const FNewMenuDelegate& InSubMenu, const bool bInOpenSubMenuOnClick = false,
		const FSlateIcon& InIcon = FSlateIcon(), const bool bInShouldCloseWindowAfterMenuSelection = true,
		FName InExtensionHook = NAME_None, FName InTutorialHighlightName = NAME_None);
	/** The same for an entry that also has an action of its own. */
	void AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
		const FNewMenuDelegate& InSubMenu, const FUIAction& InUIAction, FName InExtensionHook,
		const EUserInterfaceActionType InUserInterfaceActionType, const bool bInOpenSubMenuOnClick = false,
		const FSlateIcon& InIcon = FSlateIcon(), const bool bInShouldCloseWindowAfterMenuSelection = true,
		FName InTutorialHighlightName = NAME_None);
	/** An entry that opens a widget. */
	void AddWrapperSubMenu(const FText& InMenuLabel, const FText& InToolTip, const FOnGetContent& InSubMenu,
		const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection = true);
	/** A widget with an optional label in front of it. */
	void AddWidget(TSharedRef<SWidget> InWidget, const FText& Label, bool bNoIndent = false, bool bInSearchable = true,
		const TAttribute<FText>& InToolTip = TAttribute<FText>());

protected:
	void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition) override;

private:
	bool bSearchable;
};

class FMenuBarBuilder : public FBaseMenuBuilder
{
public:
	explicit FMenuBarBuilder(TSharedPtr<const FUICommandList> InCommandList,
		TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const ISlateStyle* InStyleSet = &FCoreStyle::Get(),
		FName InMenuName = NAME_None);

	void AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
		const FNewMenuDelegate& InPullDownMenu, FName InExtensionHook = NAME_None,
		FName InTutorialHighlightName = NAME_None);
	void AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
		const FOnGetContent& InMenuContentGenerator, FName InExtensionHook = NAME_None,
		FName InTutorialHighlightName = NAME_None);

protected:
	void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition) override;
};

class FToolBarBuilder : public FMultiBoxBuilder
{
public:
	FToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization,
		TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool InForceSmallIcons = false);

	/** Buttons that are added from now on can take the keyboard, as then does the whole bar. */
	void SetIsFocusable(bool bInIsFocusable) { MultiBox->bIsFocusable = bInIsFocusable; }
	/** Of the labels of what is added from now on. */
	void SetLabelVisibility(EVisibility InLabelVisibility) { LabelVisibility = InLabelVisibility; }
	/** What is added until EndStyleOverride has that tool bar style in place of the bar's own. */
	void BeginStyleOverride(FName StyleOverrideName) { CurrentStyleOverride = StyleOverrideName; }
	void EndStyleOverride() { CurrentStyleOverride = NAME_None; }

	void AddToolBarButton(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(),
		FName InTutorialHighlightName = NAME_None, FNewMenuDelegate InCustomMenuDelegate = FNewMenuDelegate());
	void AddToolBarButton(const FUIAction& InAction, FName InExtensionHook = NAME_None,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(),
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);
	/** A button that opens what the generator makes. @param bInSimpleComboBox  a narrow one, with its arrow alone */
	void AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false,
		FName InTutorialHighlightName = NAME_None);
	void AddWidget(TSharedRef<SWidget> InWidget, FName InTutorialHighlightName = NAME_None, bool bSearchable = true);
	void AddSeparator(FName InExtensionHook = NAME_None);
	/** A section must be closed before the next one begins. An empty one leaves no trace. */
	void BeginSection(FName InExtensionHook);
	void EndSection();

protected:
	FToolBarBuilder(EMultiBoxType InType, TSharedPtr<const FUICommandList> InCommandList,
		FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender, const bool InForceSmallIcons);

	void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition) override;

private:
	Host::FMultiBoxItemInfo MakeItemInfo(const TAttribute<FText>& Label, const TAttribute<FText>& ToolTip,
		const TAttribute<FSlateIcon>& Icon, FName HighlightName) const;

	FName CurrentStyleOverride;
	TOptional<EVisibility> LabelVisibility;
	bool bForceSmallIcons;
};

/** A tool bar of one line, its labels beside the icons. */
class FSlimHorizontalToolBarBuilder : public FToolBarBuilder
{
public:
	FSlimHorizontalToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList,
		FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(),
		const bool InForceSmallIcons = false)
		: FToolBarBuilder(EMultiBoxType::SlimHorizontalToolBar, MoveTemp(InCommandList), InCustomization,
			  MoveTemp(InExtender), InForceSmallIcons)
	{
	}
};

/** A tool bar from top to bottom. */
class FVerticalToolBarBuilder : public FToolBarBuilder
{
public:
	FVerticalToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization,
		TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool InForceSmallIcons = false)
		: FToolBarBuilder(EMultiBoxType::VerticalToolBar, MoveTemp(InCommandList), InCustomization,
			  MoveTemp(InExtender), InForceSmallIcons)
	{
	}
};
