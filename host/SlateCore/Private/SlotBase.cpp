// SPDX-License-Identifier: MIT

#include "SlotBase.h"

#include "Host/WidgetTree.h"
#include "Layout/Children.h"
#include "Widgets/SNullWidget.h"

FSlotBase::~FSlotBase()
{
	DetachWidget();
}

void FSlotBase::AttachWidget(const TSharedRef<SWidget>& InWidget)
{
	DetachWidget();
	Widget = InWidget;
	// The null widget stands in many slots at once and belongs to none.
	if (Owner && InWidget != SNullWidget::NullWidget)
	{
		InWidget->Parent = Owner->AsShared();
	}
	if (Owner)
	{
		TellOwner(*Owner);
	}
}

void FSlotBase::TellOwner(SWidget& Owner)
{
	++Owner.StructureVersion;
	Host::FWidgetAccess::CountChange();
}

TSharedRef<SWidget> FSlotBase::GetWidget() const
{
	return Widget.IsValid() ? Widget.ToSharedRef() : SNullWidget::NullWidget;
}

TSharedPtr<SWidget> FSlotBase::DetachWidget()
{
	TSharedPtr<SWidget> Detached = Widget;
	Widget.Reset();
	// A child that has moved on to another slot keeps its new parent. The owner may be dying, so compare by address.
	if (Detached.IsValid() && Owner && Detached->Parent.HasSameObject(Owner))
	{
		Detached->Parent.Reset();
		TellOwner(*Owner);
	}
	return Detached;
}

FNoChildren& FNoChildren::Get()
{
	static FNoChildren Instance;
	return Instance;
}

TSharedRef<SWidget> FNoChildren::GetChildAt(int32) const
{
	checkf(false, TEXT("A leaf has no children"));
	return SNullWidget::NullWidget;
}

const FSlotBase& FNoChildren::GetSlotAt(int32) const
{
	static const FSlotBase NoSlot;
	checkf(false, TEXT("A leaf has no slots"));
	return NoSlot;
}
