// SPDX-License-Identifier: MIT
#pragma once

// The pieces of menus and tool bars, to be found, read and operated by a shell or a test.

#include "Framework/MultiBox/MultiBoxBuilder.h"

namespace Host
{
/** What a piece does. */
enum class EMultiBoxItem : uint8
{
	/** Runs an action when pressed; may have a check mark. */
	Button,
	/** Opens a menu. */
	SubMenu,
	/** A button with a menu. */
	ComboButton,
	Heading,
	Separator,
	/** A widget, the item's only child. */
	Widget,
};

/** All that a builder was told about one piece. */
struct FMultiBoxItemInfo
{
	EMultiBoxItem Kind = EMultiBoxItem::Button;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	EUserInterfaceActionType ActionType = EUserInterfaceActionType::Button;
	/** Name of the section that the piece stands in; none outside of sections. */
	FName Section;
	/** Tool bar style in place of the bar's own; none to keep that. */
	FName StyleOverride;
	FName HighlightName;
	FNewMenuDelegate FillMenu;
	FOnGetContent MakeMenu;
	TSharedPtr<SWidget> Content;
	/** For the menu that the piece opens. */
	TSharedPtr<FExtender> Extender;
	TOptional<EVisibility> LabelVisibility;
	bool bOpenOnClick = false;
	bool bMenuClosesWindow = true;
	bool bCloseSelfOnly = false;
	bool bSimpleComboBox = false;
	bool bSmallIcon = false;
	bool bNoIndent = false;
	bool bSearchable = true;
};

class FMultiBoxItemBlock : public FMultiBlock
{
public:
	FMultiBoxItemBlock(EMultiBlockType InType, FName InExtensionHook, FMultiBoxItemInfo InInfo,
		const TSharedPtr<const FUICommandInfo>& InCommand = nullptr,
		const TSharedPtr<const FUICommandList>& InCommandList = nullptr, const FUIAction& InAction = FUIAction())
		: FMultiBlock(InType, InExtensionHook, InCommand, InCommandList, InAction)
		, Info(MoveTemp(InInfo))
	{
	}

	const FMultiBoxItemInfo Info;

protected:
	TSharedRef<SWidget> ConstructWidget(const TSharedRef<SMultiBoxWidget>& Owner) const override;
};

/**
 * One piece of a menu, a menu bar or a tool bar. Its state is asked of the command list or the action each time; the
 * widget's IsEnabled, visibility and tool tip give the same answers.
 */
class SMultiBoxItem : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMultiBoxItem) {}
	/** The way through the menus to an item that a search found; empty for an item in its place. */
	SLATE_ARGUMENT(FString, Path)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<const FMultiBoxItemBlock>& InBlock,
		const TSharedRef<SMultiBoxWidget>& InOwner);

	EMultiBoxItem GetKind() const { return Block->Info.Kind; }
	/** The hook that the piece was added with, else the name of its command. */
	FName GetItemName() const;
	FName GetSection() const { return Block->Info.Section; }
	/** What the piece reads; of a heading its text. */
	FText GetLabel() const;
	/** The tool tip, with the keys of the command in brackets at its end. */
	FText GetToolTip() const;
	/** The keys of the command; empty when there are none. */
	FText GetChordText() const;
	/** Null for no icon. */
	const FSlateBrush* GetIcon() const;
	bool IsLabelShown() const;
	EUserInterfaceActionType GetActionType() const;
	bool IsCheckable() const;
	ECheckBoxState GetCheckState() const;
	bool IsItemEnabled() const;
	/** What the action says; a parent may still be hidden. */
	bool IsItemVisible() const;
	EVisibility GetItemVisibility() const;
	/** Tool bar or menu style that the piece is drawn with. */
	FName GetStyleName() const;
	const FMultiBoxItemInfo& GetInfo() const { return Block->Info; }
	const FMultiBoxItemBlock& GetBlock() const { return *Block; }

	/** Runs the action if it may; true when it ran. The open menu that the piece stands in closes before. */
	bool Press();
	/** What the piece opens, made anew each time; the null widget when it opens nothing. */
	TSharedRef<SWidget> OpenMenu() const;

private:
	void CloseMenu();

	TSharedPtr<const FMultiBoxItemBlock> Block;
	TWeakPtr<SMultiBoxWidget> Owner;
	FString Path;
};

/** The pieces in the tree of widgets, in order; menus that are not open have none. */
TArray<TSharedRef<SMultiBoxItem>> GetMultiBoxItems(const TSharedRef<SWidget>& Root);
/** The first visible piece that reads so; empty when there is none. */
TSharedPtr<SMultiBoxItem> FindMultiBoxItem(const TSharedRef<SWidget>& Root, const FText& Label);
/** The first piece of that name; empty when there is none. */
TSharedPtr<SMultiBoxItem> FindMultiBoxItemByName(const TSharedRef<SWidget>& Root, FName Name);
/**
 * The visible pieces, one string each: the label, "---" for a separator, "# Text" for a heading, "<Widget>" for a
 * widget; in front "[x] " or "[ ] " when it can be checked, behind " >" for a sub menu and " v" for a combo button;
 * all of it in round brackets when it is disabled.
 */
TArray<FString> DescribeMultiBox(const TSharedRef<SWidget>& Root);
} // namespace Host
