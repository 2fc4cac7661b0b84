// SPDX-License-Identifier: MIT
#pragma once

// Children on top of each other.

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

class SOverlay : public SPanel
{
public:
	class FOverlaySlot : public FBasicLayoutWidgetSlot
	{
	public:
		struct FSlotArguments : public TBasicLayoutSlotArguments<FSlotArguments>
		{
		};

		void Construct(const FSlotArguments& Arguments) { ConstructLayout(Arguments); }

		/** Slots of a higher order stand in front. */
		int32 GetZOrder() const { return ZOrder; }
		void SetZOrder(int32 InZOrder) { ZOrder = InZOrder; }

	private:
		int32 ZOrder = 0;
	};

	using FScopedWidgetSlotArguments = TScopedWidgetSlotArguments<SOverlay, FOverlaySlot>;

	SLATE_BEGIN_ARGS(SOverlay) {}
	SLATE_SLOT_ARGUMENT(FOverlaySlot, Slots)
	SLATE_END_ARGS()

	SOverlay()
		: Children(this)
	{
	}

	static FOverlaySlot::FSlotArguments Slot() { return FOverlaySlot::FSlotArguments(); }

	void Construct(const FArguments& InArgs);

	FChildren* GetChildren() override { return &Children; }
	int32 GetNumWidgets() const { return Children.Num(); }
	const FOverlaySlot& GetSlot(int32 SlotIndex) const { return Children[SlotIndex]; }

	/** Adds a slot in front of all, or in front of those of the same or a lower order; see SBoxPanel::AddSlot. */
	FScopedWidgetSlotArguments AddSlot(int32 ZOrder = INDEX_NONE) { return FScopedWidgetSlotArguments(*this, ZOrder); }
	/** True when the widget stood in a slot. */
	bool RemoveSlot(const TSharedRef<SWidget>& Widget) { return Children.Remove(Widget) != INDEX_NONE; }
	void ClearChildren() { Children.Empty(); }

private:
	friend FScopedWidgetSlotArguments;

	void AddSlotOf(const FOverlaySlot::FSlotArguments& Arguments, int32 ZOrder);

	TPanelChildren<FOverlaySlot> Children;
};
