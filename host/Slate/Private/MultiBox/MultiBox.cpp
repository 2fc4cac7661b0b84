// SPDX-License-Identifier: MIT

#include "Framework/MultiBox/MultiBox.h"

#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"
#include "Input/Events.h"
#include "Layout/Geometry.h"
#include "Styling/CoreStyle.h"
#include "Widgets/SBoxPanel.h"

using namespace Host;

namespace
{
/** Sub menus of sub menus are searched this deep, so that a menu that contains itself ends. */
constexpr int32 MaxSearchDepth = 4;

const FMultiBoxItemBlock* ToItemBlock(const FMultiBlock& Block)
{
	return dynamic_cast<const FMultiBoxItemBlock*>(&Block);
}

FName DefaultStyleName(EMultiBoxType Type)
{
	switch (Type)
	{
		case EMultiBoxType::MenuBar:
			return FName(TEXT("WindowMenuBar"));
		case EMultiBoxType::Menu:
			return FName(TEXT("Menu"));
		case EMultiBoxType::SlimHorizontalToolBar:
		case EMultiBoxType::SlimHorizontalUniformToolBar:
			return FName(TEXT("SlimToolBar"));
		default:
			return FName(TEXT("ToolBar"));
	}
}

struct FFoundItem
{
	TSharedRef<const FMultiBoxItemBlock> Block;
	FString Path;
};

void FindItems(const FMultiBox& Box, const TSharedRef<SMultiBoxWidget>& Owner, const FString& Text, const FString& Path,
	int32 Depth, TArray<FFoundItem>& Found)
{
	for (const TSharedRef<const FMultiBlock>& Block : Box.GetBlocks())
	{
		const FMultiBoxItemBlock* const Item = ToItemBlock(*Block);
		if (!Item || !Item->Info.bSearchable || Item->IsSeparator() || Item->GetType() == EMultiBlockType::Heading)
		{
			continue;
		}
		const TSharedRef<const FMultiBoxItemBlock> ItemRef = StaticCastSharedRef<const FMultiBoxItemBlock>(Block);
		const TSharedRef<SMultiBoxItem> Widget = SNew(SMultiBoxItem, ItemRef, Owner);
		const FString Label = Widget->GetLabel().ToString();
		if (!Label.IsEmpty() && Label.Contains(Text) && Widget->IsItemVisible())
		{
			Found.Add({ItemRef, Path});
		}
		if (Item->Info.Kind == EMultiBoxItem::SubMenu && Depth < MaxSearchDepth && Widget->IsItemEnabled())
		{
			for (const TSharedRef<SWidget>& SubMenu :
				FindWidgetsOfType(Widget->OpenMenu(), FName(TEXT("SMultiBoxWidget"))))
			{
				const TSharedPtr<FMultiBox> SubBox = StaticCastSharedRef<SMultiBoxWidget>(SubMenu)->GetMultiBox();
				FindItems(*SubBox, Owner, Text, Path + Label + TEXT(" > "), Depth + 1, Found);
			}
		}
	}
}
} // namespace

const FMultiBoxCustomization FMultiBoxCustomization::None{NAME_None};

FMultiBox::FMultiBox(EMultiBoxType InType, FMultiBoxCustomization InCustomization, bool bInShouldClose)
	: Type(InType)
	, Customization(InCustomization)
	, bShouldCloseWindowAfterMenuSelection(bInShouldClose)
	, StyleSet(&FCoreStyle::Get())
	, StyleName(DefaultStyleName(InType))
{
}

TSharedRef<FMultiBox> FMultiBox::Create(const EMultiBoxType InType, FMultiBoxCustomization InCustomization,
	const bool bInShouldCloseWindowAfterMenuSelection)
{
	return MakeShareable(new FMultiBox(InType, InCustomization, bInShouldCloseWindowAfterMenuSelection));
}

void FMultiBox::AddMultiBlock(TSharedRef<const FMultiBlock> InBlock)
{
	Blocks.Add(InBlock);
}

void FMultiBox::AddMultiBlockToFront(TSharedRef<const FMultiBlock> InBlock)
{
	Blocks.Insert(InBlock, 0);
}

void FMultiBox::SetStyle(const ISlateStyle* InStyleSet, const FName& InStyleName)
{
	check(InStyleSet);
	StyleSet = InStyleSet;
	StyleName = InStyleName;
}

TSharedRef<SMultiBoxWidget> FMultiBox::MakeWidget(
	bool bSearchable, FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, TAttribute<float> InMaxHeight)
{
	const TSharedRef<SMultiBoxWidget> Widget = SNew(SMultiBoxWidget);
	Widget->SetMultiBox(AsShared());
	Widget->SetSearchable(bSearchable);
	Widget->SetMaxHeight(InMaxHeight);
	if (InMakeMultiBoxBuilderOverride)
	{
		Widget->MakeOverride = *InMakeMultiBoxBuilderOverride;
	}
	Widget->BuildMultiBoxWidget();
	return Widget;
}

void SMultiBoxWidget::Construct(const FArguments&) {}

void SMultiBoxWidget::BuildMultiBoxWidget()
{
	check(MultiBox.IsValid());
	SearchText = FText::GetEmpty();
	const TSharedRef<SMultiBoxWidget> Self = SharedThis(this);
	if (MakeOverride.IsBound())
	{
		MakeOverride.Execute(MultiBox.ToSharedRef(), Self);
	}
	else if (MultiBox->GetType() == EMultiBoxType::Menu || MultiBox->GetType() == EMultiBoxType::VerticalToolBar)
	{
		const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
		for (const TSharedRef<const FMultiBlock>& Block : MultiBox->GetBlocks())
		{
			Column->AddSlot().AutoHeight()[Block->ConstructWidget(Self)];
		}
		ChildSlot[Column];
	}
	else
	{
		const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
		for (const TSharedRef<const FMultiBlock>& Block : MultiBox->GetBlocks())
		{
			Row->AddSlot().AutoWidth()[Block->ConstructWidget(Self)];
		}
		ChildSlot[Row];
	}
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SMultiBoxWidget::FilterMultiBoxEntries(const FText& InSearchText)
{
	if (!bSearchable || !MultiBox.IsValid() || InSearchText.EqualTo(SearchText))
	{
		return;
	}
	if (InSearchText.IsEmpty())
	{
		BuildMultiBoxWidget();
		return;
	}
	SearchText = InSearchText;
	BuildSearchResult();
	Invalidate(EInvalidateWidgetReason::Layout);
}

bool SMultiBoxWidget::SupportsKeyboardFocus() const
{
	return bSearchable || (MultiBox.IsValid() && MultiBox->bIsFocusable);
}

FReply SMultiBoxWidget::OnKeyChar(const FGeometry&, const FCharacterEvent& InCharacterEvent)
{
	constexpr TCHAR Backspace = 8;
	constexpr TCHAR Escape = 27;
	constexpr TCHAR FirstPrintable = 32;
	constexpr TCHAR DeleteCharacter = 127;
	const TCHAR Character = InCharacterEvent.GetCharacter();
	FString Text = SearchText.ToString();
	if (!bSearchable || InCharacterEvent.IsControlDown() || InCharacterEvent.IsAltDown())
	{
		return FReply::Unhandled();
	}
	if ((Character == Backspace || Character == Escape) && !Text.IsEmpty())
	{
		Text = Character == Escape ? FString() : Text.LeftChop(1);
	}
	else if (Character >= FirstPrintable && Character != DeleteCharacter)
	{
		Text += FString(1, &Character);
	}
	else
	{
		return FReply::Unhandled();
	}
	FilterMultiBoxEntries(FText::FromString(Text));
	return FReply::Handled();
}

void SMultiBoxWidget::BuildSearchResult()
{
	const TSharedRef<SMultiBoxWidget> Self = SharedThis(this);
	TArray<FFoundItem> Found;
	FindItems(*MultiBox, Self, SearchText.ToString(), FString(), 0, Found);
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	for (const FFoundItem& Item : Found)
	{
		Column->AddSlot().AutoHeight()[SNew(SMultiBoxItem, Item.Block, Self).Path(Item.Path)];
	}
	ChildSlot[Column];
}
