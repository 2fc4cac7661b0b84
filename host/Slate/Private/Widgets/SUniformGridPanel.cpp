// SPDX-License-Identifier: MIT

#include "Widgets/Layout/SUniformGridPanel.h"

void SUniformGridPanel::FSlot::Construct(const FSlotArguments& Arguments)
{
	Column = Arguments.Column;
	Row = Arguments.Row;
	ConstructLayout(Arguments);
}

SUniformGridPanel::FSlot::FSlotArguments SUniformGridPanel::Slot(int32 Column, int32 Row)
{
	FSlot::FSlotArguments Arguments;
	Arguments.Column = Column;
	Arguments.Row = Row;
	return Arguments;
}

void SUniformGridPanel::Construct(const FArguments& InArgs)
{
	SlotPadding = InArgs._SlotPadding;
	MinDesiredSlotWidth = InArgs._MinDesiredSlotWidth;
	MinDesiredSlotHeight = InArgs._MinDesiredSlotHeight;
	for (const FSlot::FSlotArguments& Arguments : InArgs._Slots)
	{
		Children.AddSlot(Arguments);
	}
}
