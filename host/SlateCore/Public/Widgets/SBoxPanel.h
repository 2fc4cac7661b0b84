// SPDX-License-Identifier: MIT
#pragma once

// Children in a row or in a column.

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

/** How much room a slot takes along the panel. */
struct FSizeParam
{
	enum ESizeRule
	{
		/** As much as the child wants. */
		SizeRule_Auto,
		/** A share of what is left, in proportion to Value. */
		SizeRule_Stretch,
	};

	ESizeRule SizeRule = SizeRule_Stretch;
	float Value = 1.0f;
};

/** The common part of both directions. */
class SBoxPanel : public SPanel
{
public:
	class FSlot : public FBasicLayoutWidgetSlot
	{
	public:
		/** @tparam Derived  the arguments of the row's or the column's slot */
		template <typename Derived>
		struct TSlotArguments : public TBasicLayoutSlotArguments<Derived>
		{
			FSizeParam Size;
		};

		template <typename Derived>
		void Construct(const TSlotArguments<Derived>& Arguments)
		{
			Size = Arguments.Size;
			ConstructLayout(Arguments);
		}

		const FSizeParam& GetSizeParam() const { return Size; }

	private:
		FSizeParam Size;
	};

	EOrientation GetOrientation() const { return Orientation; }

protected:
	explicit SBoxPanel(EOrientation InOrientation)
		: Orientation(InOrientation)
	{
	}

private:
	EOrientation Orientation;
};

/** The operations of a row or a column; `SlotType` brings the arguments. */
template <typename PanelType, typename InSlotType>
class TBoxPanel : public SBoxPanel
{
public:
	using FScopedWidgetSlotArguments = TScopedWidgetSlotArguments<TBoxPanel, InSlotType>;

	FChildren* GetChildren() override { return &Children; }

	int32 NumSlots() const { return Children.Num(); }
	const InSlotType& GetSlot(int32 SlotIndex) const { return Children[SlotIndex]; }

	/** Adds a slot at the end, or before `Index`; it stands at the end of the statement. */
	FScopedWidgetSlotArguments AddSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(*this, Index); }
	/** Index of the slot that went, or INDEX_NONE. */
	int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget) { return Children.Remove(SlotWidget); }
	void ClearChildren() { Children.Empty(); }

protected:
	explicit TBoxPanel(EOrientation InOrientation)
		: SBoxPanel(InOrientation)
		, Children(this)
	{
	}

	void AddSlotOf(const typename InSlotType::FSlotArguments& Arguments, int32 Index)
	{
		Children.AddSlot(Arguments, Index);
	}

private:
	friend FScopedWidgetSlotArguments;

	TPanelChildren<InSlotType> Children;
};

class FHorizontalBoxSlot : public SBoxPanel::FSlot
{
public:
	struct FSlotArguments : public SBoxPanel::FSlot::TSlotArguments<FSlotArguments>
	{
		FSlotArguments& AutoWidth()
		{
			Size = {FSizeParam::SizeRule_Auto, 0.0f};
			return *this;
		}
		FSlotArguments& FillWidth(float InStretch)
		{
			Size = {FSizeParam::SizeRule_Stretch, InStretch};
			return *this;
		}
	};
};

/** A row, left to right. */
class SHorizontalBox : public TBoxPanel<SHorizontalBox, FHorizontalBoxSlot>
{
public:
	using FSlot = FHorizontalBoxSlot;

	SLATE_BEGIN_ARGS(SHorizontalBox) {}
	SLATE_SLOT_ARGUMENT(FHorizontalBoxSlot, Slots)
	SLATE_END_ARGS()

	SHorizontalBox()
		: TBoxPanel(Orient_Horizontal)
	{
	}

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(); }

	void Construct(const FArguments& InArgs);
};

class FVerticalBoxSlot : public SBoxPanel::FSlot
{
public:
	struct FSlotArguments : public SBoxPanel::FSlot::TSlotArguments<FSlotArguments>
	{
		FSlotArguments& AutoHeight()
		{
			Size = {FSizeParam::SizeRule_Auto, 0.0f};
			return *this;
		}
		FSlotArguments& FillHeight(float InStretch)
		{
			Size = {FSizeParam::SizeRule_Stretch, InStretch};
			return *this;
		}
	};
};

/** A column, top to bottom. */
class SVerticalBox : public TBoxPanel<SVerticalBox, FVerticalBoxSlot>
{
public:
	using FSlot = FVerticalBoxSlot;

	SLATE_BEGIN_ARGS(SVerticalBox) {}
	SLATE_SLOT_ARGUMENT(FVerticalBoxSlot, Slots)
	SLATE_END_ARGS()

	SVerticalBox()
		: TBoxPanel(Orient_Vertical)
	{
	}

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(); }

	void Construct(const FArguments& InArgs);
};
