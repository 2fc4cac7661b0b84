// SPDX-License-Identifier: MIT

#include "SStartPage.h"

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Host/MultiBoxes.h"
#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "ContentBrowser"

namespace
{
/** The same buttons once more, with a plate each. */
TSharedRef<SWidget> MakeButtons(const TArray<TSharedRef<Host::SMultiBoxItem>>& Items)
{
	FToolBarBuilder Builder(nullptr, FMultiBoxCustomization::None);
	Builder.SetIsFocusable(true);
	Builder.BeginStyleOverride("CalloutToolbar");
	for (const TSharedRef<Host::SMultiBoxItem>& Item : Items)
	{
		const Host::FMultiBoxItemBlock& Block = Item->GetBlock();
		if (Block.GetAction().IsValid() && Block.GetActionList().IsValid())
		{
			Builder.PushCommandList(Block.GetActionList().ToSharedRef());
			Builder.AddToolBarButton(
				Block.GetAction(), Block.GetExtensionHook(), Block.Info.Label, Block.Info.ToolTip, Block.Info.Icon);
			Builder.PopCommandList();
		}
		else
		{
			Builder.AddToolBarButton(Block.GetDirectActions(), Block.GetExtensionHook(), Block.Info.Label,
				Block.Info.ToolTip, Block.Info.Icon, Block.Info.ActionType);
		}
	}
	Builder.EndStyleOverride();
	return Builder.MakeWidget();
}

FText MakeHint(const TArray<TSharedRef<Host::SMultiBoxItem>>& Items)
{
	if (Items.Num() == 0)
	{
		return LOCTEXT("NoEditor",
			"No plug-in has added an editor to the tool bar. Start the program with --plugin and the folder of a "
			".uplugin file.");
	}
	return FText::Format(LOCTEXT("FirstRunHint",
							 "Open \"{0}\" to bring in avatars, garments and props. What you save there appears here."),
		Items[0]->GetLabel());
}
} // namespace

void SStartPage::Construct(const FArguments&, const TSharedRef<SWidget>& ToolBar)
{
	TArray<TSharedRef<Host::SMultiBoxItem>> Items;
	for (const TSharedRef<Host::SMultiBoxItem>& Item : Host::GetMultiBoxItems(ToolBar))
	{
		if (Item->GetSection() == FName(TEXT("Settings")) && Item->GetKind() == Host::EMultiBoxItem::Button)
		{
			Items.Add(Item);
		}
	}
	const ISlateStyle& Style = FAppStyle::Get();
	const TSharedRef<SVerticalBox> Page = SNew(SVerticalBox);
	Page->AddSlot()
		.AutoHeight()
		.HAlign(HAlign_Center)
		.Padding(0.0f, 0.0f, 0.0f, 8.0f)[SNew(STextBlock)
											 .Text(LOCTEXT("NoContent", "This project has no content yet"))
											 .TextStyle(Style, TEXT("LargeText"))];
	Page->AddSlot()
		.AutoHeight()
		.HAlign(HAlign_Center)
		.Padding(0.0f, 0.0f, 0.0f, 16.0f)[SNew(STextBlock)
											  .Tag("FirstRunHint")
											  .Text(MakeHint(Items))
											  .TextStyle(Style, TEXT("NormalText.Subdued"))
											  .Justification(ETextJustify::Center)];
	if (Items.Num() > 0)
	{
		Page->AddSlot().AutoHeight().HAlign(HAlign_Center)[MakeButtons(Items)];
	}
	ChildSlot[SNew(SBorder)
				  .BorderImage(FAppStyle::GetBrush("Brushes.Recessed"))
				  .HAlign(HAlign_Center)
				  .VAlign(VAlign_Center)[Page]];
}

#undef LOCTEXT_NAMESPACE
