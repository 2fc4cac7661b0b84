// SPDX-License-Identifier: MIT
#pragma once

// Base of the widgets that are made of one child.

#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SWidget.h"

class SCompoundWidget : public SWidget
{
public:
	FChildren* GetChildren() override { return &ChildSlot; }

protected:
	/** `ChildSlot.HAlign(HAlign_Fill)[ Child ]` */
	class FCompoundWidgetOneChildSlot : public TSingleSlotChildren<FBasicLayoutWidgetSlot>
	{
	public:
		FCompoundWidgetOneChildSlot& HAlign(EHorizontalAlignment InAlignment)
		{
			SetHorizontalAlignment(InAlignment);
			return *this;
		}
		FCompoundWidgetOneChildSlot& VAlign(EVerticalAlignment InAlignment)
		{
			SetVerticalAlignment(InAlignment);
			return *this;
		}
		FCompoundWidgetOneChildSlot& Padding(const TAttribute<FMargin>& InPadding)
		{
			SetPadding(InPadding);
			return *this;
		}
		FCompoundWidgetOneChildSlot& operator[](const TSharedRef<SWidget>& InChild)
		{
			AttachWidget(InChild);
			return *this;
		}
	};

	SCompoundWidget() { ChildSlot.SetOwner(*this); }

	FCompoundWidgetOneChildSlot ChildSlot;
};
