// SPDX-License-Identifier: MIT

#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	for (const FSlot::FSlotArguments& Arguments : InArgs._Slots)
	{
		AddSlotOf(Arguments, INDEX_NONE);
	}
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	for (const FSlot::FSlotArguments& Arguments : InArgs._Slots)
	{
		AddSlotOf(Arguments, INDEX_NONE);
	}
}

void SOverlay::Construct(const FArguments& InArgs)
{
	for (const FOverlaySlot::FSlotArguments& Arguments : InArgs._Slots)
	{
		AddSlotOf(Arguments, INDEX_NONE);
	}
}

void SOverlay::AddSlotOf(const FOverlaySlot::FSlotArguments& Arguments, int32 ZOrder)
{
	int32 Index = Children.Num();
	if (ZOrder == INDEX_NONE)
	{
		ZOrder = Index > 0 ? Children[Index - 1].GetZOrder() + 1 : 0;
	}
	while (Index > 0 && Children[Index - 1].GetZOrder() > ZOrder)
	{
		--Index;
	}
	Children.AddSlot(Arguments, Index).SetZOrder(ZOrder);
}
