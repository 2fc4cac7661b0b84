// SPDX-License-Identifier: MIT
#pragma once

// Children in cells that are all of one size.

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

class SUniformGridPanel : public SPanel
{
public:
	class FSlot : public FBasicLayoutWidgetSlot
	{
	public:
		struct FSlotArguments : public TBasicLayoutSlotArguments<FSlotArguments>
		{
			int32 Column = 0;
			int32 Row = 0;
		};

		void Construct(const FSlotArguments& Arguments);

		int32 GetColumn() const { return Column; }
		int32 GetRow() const { return Row; }

	private:
		int32 Column = 0;
		int32 Row = 0;
	};

	SLATE_BEGIN_ARGS(SUniformGridPanel)
		: _SlotPadding(FMargin(0.0f))
		, _MinDesiredSlotWidth(0.0f)
		, _MinDesiredSlotHeight(0.0f)
	{
	}
	SLATE_SLOT_ARGUMENT(FSlot, Slots)
	/** Around each cell's child. */
	SLATE_ATTRIBUTE(FMargin, SlotPadding)
	/** Slate units. */
	SLATE_ATTRIBUTE(float, MinDesiredSlotWidth)
	SLATE_ATTRIBUTE(float, MinDesiredSlotHeight)
	SLATE_END_ARGS()

	SUniformGridPanel()
		: Children(this)
	{
	}

	/** @param Column  from 0, as is Row; a cell may hold several children */
	static FSlot::FSlotArguments Slot(int32 Column, int32 Row);

	void Construct(const FArguments& InArgs);

	FChildren* GetChildren() override { return &Children; }
	const FSlot& GetSlot(int32 SlotIndex) const { return Children[SlotIndex]; }
	FMargin GetSlotPadding() const { return SlotPadding.Get(); }
	void SetSlotPadding(TAttribute<FMargin> InSlotPadding) { SlotPadding = InSlotPadding; }
	float GetMinDesiredSlotWidth() const { return MinDesiredSlotWidth.Get(); }
	float GetMinDesiredSlotHeight() const { return MinDesiredSlotHeight.Get(); }
	void ClearChildren() { Children.Empty(); }

private:
	TPanelChildren<FSlot> Children;
	TAttribute<FMargin> SlotPadding;
	TAttribute<float> MinDesiredSlotWidth;
	TAttribute<float> MinDesiredSlotHeight;
};
