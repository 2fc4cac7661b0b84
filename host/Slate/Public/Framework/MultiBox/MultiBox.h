// SPDX-License-Identifier: MIT
#pragma once

// What a menu or a tool bar consists of, and the widget that shows it.

#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Widgets/SCompoundWidget.h"

class FMultiBox;
class FMultiBoxBuilder;
class ISlateStyle;
class SMultiBoxWidget;

/** One piece of a menu or a tool bar: an entry, a button, a separator, a heading or a widget. */
class FMultiBlock : public TSharedFromThis<FMultiBlock>
{
public:
	virtual ~FMultiBlock() = default;

	EMultiBlockType GetType() const { return Type; }
	bool IsSeparator() const { return Type == EMultiBlockType::Separator; }
	/** The command; empty when the block has an action of its own, or none. */
	TSharedPtr<const FUICommandInfo> GetAction() const { return Action; }
	/** Where the command is looked for. */
	TSharedPtr<const FUICommandList> GetActionList() const { return ActionList; }
	/** The action of a block without a command. */
	const FUIAction& GetDirectActions() const { return DirectActions; }
	FName GetExtensionHook() const { return ExtensionHook; }

protected:
	FMultiBlock(EMultiBlockType InType, FName InExtensionHook, const TSharedPtr<const FUICommandInfo>& InAction,
		const TSharedPtr<const FUICommandList>& InActionList, const FUIAction& InDirectActions)
		: Type(InType)
		, ExtensionHook(InExtensionHook)
		, Action(InAction)
		, ActionList(InActionList)
		, DirectActions(InDirectActions)
	{
	}

	/** The widget that stands for the block. */
	virtual TSharedRef<SWidget> ConstructWidget(const TSharedRef<SMultiBoxWidget>& Owner) const = 0;

private:
	friend class SMultiBoxWidget;

	EMultiBlockType Type;
	FName ExtensionHook;
	TSharedPtr<const FUICommandInfo> Action;
	TSharedPtr<const FUICommandList> ActionList;
	FUIAction DirectActions;
};

/** An ordered list of blocks, as a builder made it. */
class FMultiBox : public TSharedFromThis<FMultiBox>
{
public:
	/** In place of the default widget of each block. */
	DECLARE_DELEGATE_TwoParams(
		FOnMakeMultiBoxBuilderOverride, const TSharedRef<FMultiBox>&, const TSharedRef<SMultiBoxWidget>&);

	static TSharedRef<FMultiBox> Create(const EMultiBoxType InType, FMultiBoxCustomization InCustomization,
		const bool bInShouldCloseWindowAfterMenuSelection);

	EMultiBoxType GetType() const { return Type; }
	FName GetCustomizationName() const { return Customization.GetCustomizationName(); }
	bool ShouldCloseWindowAfterMenuSelection() const { return bShouldCloseWindowAfterMenuSelection; }
	const TArray<TSharedRef<const FMultiBlock>>& GetBlocks() const { return Blocks; }
	void AddMultiBlock(TSharedRef<const FMultiBlock> InBlock);
	void AddMultiBlockToFront(TSharedRef<const FMultiBlock> InBlock);

	const ISlateStyle* GetStyleSet() const { return StyleSet; }
	const FName& GetStyleName() const { return StyleName; }
	/** @param InStyleSet  not owned */
	void SetStyle(const ISlateStyle* InStyleSet, const FName& InStyleName);

	/** A new widget of the blocks that are there now. Several can show the same box. */
	TSharedRef<SMultiBoxWidget> MakeWidget(bool bSearchable = false,
		FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr,
		TAttribute<float> InMaxHeight = TAttribute<float>());

	bool bIsFocusable = false;

private:
	FMultiBox(EMultiBoxType InType, FMultiBoxCustomization InCustomization, bool bInShouldClose);

	EMultiBoxType Type;
	FMultiBoxCustomization Customization;
	bool bShouldCloseWindowAfterMenuSelection;
	TArray<TSharedRef<const FMultiBlock>> Blocks;
	const ISlateStyle* StyleSet;
	FName StyleName;
};

/** A menu, a menu bar or a tool bar: a row or a column with one widget for each block. */
class SMultiBoxWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMultiBoxWidget) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	TSharedPtr<FMultiBox> GetMultiBox() const { return MultiBox; }
	/** Takes effect with the next BuildMultiBoxWidget. */
	void SetMultiBox(TSharedRef<FMultiBox> InMultiBox) { MultiBox = InMultiBox; }
	/** Makes the widgets of the blocks anew, and ends a search. */
	void BuildMultiBoxWidget();

	/** Whether typing filters the entries. */
	void SetSearchable(bool bInSearchable) { bSearchable = bInSearchable; }
	bool GetSearchable() const { return bSearchable; }
	FText GetSearchText() const { return SearchText; }
	/**
	 * Shows the entries whose label contains the text, those of sub menus too, which then carry the way to them:
	 * "Save > as StaticMesh". An empty text shows the menu as it was built.
	 */
	void FilterMultiBoxEntries(const FText& InSearchText);

	/** Slate units; 0 for no limit. */
	void SetMaxHeight(const TAttribute<float>& InMaxHeight) { MaxHeight = InMaxHeight; }
	float GetMaxHeight() const { return MaxHeight.Get(0.0f); }

	bool SupportsKeyboardFocus() const override;
	/** In a searchable menu: adds the character to the search; the backspace takes one away, escape ends the search. */
	FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;

private:
	friend class FMultiBox;

	void BuildSearchResult();

	TSharedPtr<FMultiBox> MultiBox;
	FMultiBox::FOnMakeMultiBoxBuilderOverride MakeOverride;
	TAttribute<float> MaxHeight;
	FText SearchText;
	bool bSearchable = false;
};
