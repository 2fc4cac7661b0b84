// SPDX-License-Identifier: MIT

#include "Widgets/Layout/SScrollBorder.h"

void SScrollBorder::Construct(const FArguments& InArgs, TSharedRef<IScrollableWidget> InScrollableWidget)
{
	ScrollableWidget = InScrollableWidget;
	ChildSlot[InArgs._Content.Widget];
}
