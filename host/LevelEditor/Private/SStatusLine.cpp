// SPDX-License-Identifier: MIT

#include "Host/StatusLine.h"

#include "Styling/AppStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace Host
{
void SStatusLine::Construct(const FArguments&)
{
	Rebuild();
}

void SStatusLine::SetItem(FName Name, const TAttribute<FText>& Text, const TAttribute<FText>& ToolTip)
{
	FItem* Item = Items.FindByPredicate([Name](const FItem& Existing) { return Existing.Name == Name; });
	if (!Item)
	{
		Item = &Items.AddDefaulted_GetRef();
		Item->Name = Name;
	}
	Item->Text = Text;
	Item->ToolTip = ToolTip;
	Rebuild();
}

void SStatusLine::RemoveItem(FName Name)
{
	if (Items.RemoveAll([Name](const FItem& Item) { return Item.Name == Name; }) > 0)
	{
		Rebuild();
	}
}

FText SStatusLine::GetItem(FName Name) const
{
	const FItem* const Item = Items.FindByPredicate([Name](const FItem& Existing) { return Existing.Name == Name; });
	return Item ? Item->Text.Get() : FText::GetEmpty();
}

void SStatusLine::Rebuild()
{
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
	for (const FItem& Item : Items)
	{
		const TAttribute<FText> Text = Item.Text;
		Row->AddSlot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(8.0f,
				2.0f)[SNew(STextBlock)
						  .Tag(Item.Name)
						  .Text(Text)
						  .ToolTipText(Item.ToolTip)
						  .TextStyle(FAppStyle::Get(), TEXT("NormalText"))
						  .Visibility_Lambda(
							  [Text] { return Text.Get().IsEmpty() ? EVisibility::Collapsed : EVisibility::Visible; })];
	}
	ChildSlot[SNew(SBorder).BorderImage(FAppStyle::GetBrush("Brushes.Title"))[Row]];
}
} // namespace Host
