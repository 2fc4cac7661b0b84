// SPDX-License-Identifier: MIT
#pragma once

// A slot with padding and alignment, and the chain of calls that describes one.

#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "SlotBase.h"
#include "Types/SlateEnums.h"

/**
 * `Panel::Slot().HAlign(...).Padding(...)[ Widget ]`: each call stores its value and gives the same object back.
 *
 * @tparam ArgumentsType  the class that derives from this one
 */
template <typename ArgumentsType>
class TBasicLayoutSlotArguments
{
public:
	ArgumentsType& HAlign(EHorizontalAlignment InHAlignment)
	{
		HorizontalAlignment = InHAlignment;
		return Self();
	}
	ArgumentsType& VAlign(EVerticalAlignment InVAlignment)
	{
		VerticalAlignment = InVAlignment;
		return Self();
	}
	ArgumentsType& Padding(const TAttribute<FMargin>& InPadding)
	{
		SlotPadding = InPadding;
		return Self();
	}
	ArgumentsType& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }
	ArgumentsType& Padding(float Horizontal, float Vertical)
	{
		return Padding(TAttribute<FMargin>(FMargin(Horizontal, Vertical)));
	}
	ArgumentsType& Padding(float Left, float Top, float Right, float Bottom)
	{
		return Padding(TAttribute<FMargin>(FMargin(Left, Top, Right, Bottom)));
	}
	ArgumentsType& operator[](const TSharedRef<SWidget>& InChild)
	{
		Child = InChild;
		return Self();
	}

	TSharedPtr<SWidget> Child;
	TAttribute<FMargin> SlotPadding = FMargin();
	EHorizontalAlignment HorizontalAlignment = HAlign_Fill;
	EVerticalAlignment VerticalAlignment = VAlign_Fill;

private:
	ArgumentsType& Self() { return static_cast<ArgumentsType&>(*this); }
};

/** The slot itself. */
class FBasicLayoutWidgetSlot : public FSlotBase
{
public:
	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }
	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }
	FMargin GetPadding() const { return SlotPadding.Get(); }

	void SetHorizontalAlignment(EHorizontalAlignment InAlignment) { HorizontalAlignment = InAlignment; }
	void SetVerticalAlignment(EVerticalAlignment InAlignment) { VerticalAlignment = InAlignment; }
	void SetPadding(TAttribute<FMargin> InPadding) { SlotPadding = InPadding; }

protected:
	template <typename ArgumentsType>
	void ConstructLayout(const TBasicLayoutSlotArguments<ArgumentsType>& Arguments)
	{
		HorizontalAlignment = Arguments.HorizontalAlignment;
		VerticalAlignment = Arguments.VerticalAlignment;
		SlotPadding = Arguments.SlotPadding;
		if (Arguments.Child.IsValid())
		{
			AttachWidget(Arguments.Child.ToSharedRef());
		}
	}

private:
	TAttribute<FMargin> SlotPadding = FMargin();
	EHorizontalAlignment HorizontalAlignment = HAlign_Fill;
	EVerticalAlignment VerticalAlignment = VAlign_Fill;
};

/**
 * What `AddSlot()` of a panel returns. The slot is made when this object dies, at the end of the statement.
 *
 * @tparam PanelType  has AddSlotOf(const SlotType::FSlotArguments&, int32 Index) and befriends this class
 */
template <typename PanelType, typename SlotType>
class TScopedWidgetSlotArguments : public SlotType::FSlotArguments
{
public:
	TScopedWidgetSlotArguments(PanelType& InPanel, int32 InIndex)
		: Panel(InPanel)
		, Index(InIndex)
	{
	}
	~TScopedWidgetSlotArguments() { Panel.AddSlotOf(*this, Index); }

	TScopedWidgetSlotArguments(const TScopedWidgetSlotArguments&) = delete;
	TScopedWidgetSlotArguments& operator=(const TScopedWidgetSlotArguments&) = delete;

private:
	PanelType& Panel;
	int32 Index;
};
