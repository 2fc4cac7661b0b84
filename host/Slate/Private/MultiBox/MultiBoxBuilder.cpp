// SPDX-License-Identifier: MIT

#include "Framework/MultiBox/MultiBoxBuilder.h"

#include "Host/MultiBoxes.h"

using namespace Host;

FMultiBoxBuilder::FMultiBoxBuilder(const EMultiBoxType InType, FMultiBoxCustomization InCustomization,
	const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList,
	TSharedPtr<FExtender> InExtender, FName InMenuName)
	: MultiBox(FMultiBox::Create(InType, InCustomization, bInShouldCloseWindowAfterMenuSelection))
	, Extender(MoveTemp(InExtender))
	, MenuName(InMenuName)
{
	CommandListStack.Add(InCommandList);
}

TSharedRef<SWidget> FMultiBoxBuilder::MakeWidget(
	FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, uint32 MaxHeight)
{
	return MultiBox->MakeWidget(false, InMakeMultiBoxBuilderOverride, static_cast<float>(MaxHeight));
}

void FMultiBoxBuilder::PopCommandList()
{
	checkf(CommandListStack.Num() > 1, TEXT("There is no pushed command list to pop"));
	CommandListStack.Pop();
}

void FMultiBoxBuilder::OpenSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText)
{
	checkf(!bInSection, TEXT("The section '%s' begins before the section '%s' ended"), *InExtensionHook.ToString(),
		*SectionHook.ToString());
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	SectionHook = InExtensionHook;
	SectionHeading = InHeadingText;
	bInSection = true;
	bSectionNeedsBeginning = true;
	ApplyHook(InExtensionHook, EExtensionHook::First);
}

void FMultiBoxBuilder::CloseSection()
{
	checkf(bInSection, TEXT("No section is open"));
	const FName Closed = SectionHook;
	SectionHook = NAME_None;
	SectionHeading = TAttribute<FText>();
	bInSection = false;
	bSectionNeedsBeginning = false;
	ApplyHook(Closed, EExtensionHook::After);
}

void FMultiBoxBuilder::ApplySectionBeginning()
{
	if (!bSectionNeedsBeginning)
	{
		return;
	}
	bSectionNeedsBeginning = false;
	const TArray<TSharedRef<const FMultiBlock>>& Blocks = MultiBox->GetBlocks();
	FMultiBoxItemInfo Info;
	Info.Section = SectionHook;
	if (Blocks.Num() > 0 && !Blocks.Last()->IsSeparator())
	{
		Info.Kind = EMultiBoxItem::Separator;
		MultiBox->AddMultiBlock(MakeShared<FMultiBoxItemBlock>(EMultiBlockType::Separator, SectionHook, Info));
	}
	if (!SectionHeading.Get().IsEmpty())
	{
		Info.Kind = EMultiBoxItem::Heading;
		Info.Label = SectionHeading;
		MultiBox->AddMultiBlock(MakeShared<FMultiBoxItemBlock>(EMultiBlockType::Heading, SectionHook, Info));
	}
}

void FMultiBoxBuilder::AddItem(FMultiBoxItemInfo Info, EMultiBlockType BlockType, FName InExtensionHook,
	const TSharedPtr<const FUICommandInfo>& Command, const FUIAction& Action)
{
	checkf(BlockType != EMultiBlockType::None, TEXT("A piece of a menu needs a type"));
	ApplySectionBeginning();
	Info.Section = SectionHook;
	Info.Extender = Extender;
	const TSharedRef<const FMultiBlock> Block = MakeShared<FMultiBoxItemBlock>(
		BlockType, InExtensionHook, MoveTemp(Info), Command, CommandListStack.Last(), Action);
	// A section's hook was applied when the section began.
	const bool bHasHook = !InExtensionHook.IsNone() && InExtensionHook != SectionHook;
	if (bHasHook)
	{
		ApplyHook(InExtensionHook, EExtensionHook::Before);
	}
	MultiBox->AddMultiBlock(Block);
	if (bHasHook)
	{
		ApplyHook(InExtensionHook, EExtensionHook::After);
	}
}

void FMultiBoxBuilder::AddSeparatorItem(FName InExtensionHook)
{
	FMultiBoxItemInfo Info;
	Info.Kind = EMultiBoxItem::Separator;
	AddItem(Info, EMultiBlockType::Separator, InExtensionHook);
}

void FMultiBoxBuilder::AddWidgetItem(
	const TSharedRef<SWidget>& Widget, const TAttribute<FText>& Label, bool bNoIndent, bool bSearchable, FName Name)
{
	FMultiBoxItemInfo Info;
	Info.Kind = EMultiBoxItem::Widget;
	Info.Label = Label;
	Info.Content = Widget;
	Info.bNoIndent = bNoIndent;
	Info.bSearchable = bSearchable;
	Info.HighlightName = Name;
	AddItem(Info, EMultiBlockType::Widget, NAME_None);
}
