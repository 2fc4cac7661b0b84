// SPDX-License-Identifier: MIT

#include "Host/WidgetTree.h"

#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

namespace Host
{
namespace
{
uint64 InvalidationCount = 0;
uint64 StructureCount = 0;

/** Whether the test holds for the widget and for all above it. */
template <typename TestType>
bool AllUpwards(const SWidget& Widget, TestType Test)
{
	if (!Test(Widget))
	{
		return false;
	}
	for (TSharedPtr<SWidget> Above = Widget.GetParentWidget(); Above.IsValid(); Above = Above->GetParentWidget())
	{
		if (!Test(*Above))
		{
			return false;
		}
	}
	return true;
}
} // namespace

uint64 WidgetInvalidationCount()
{
	return InvalidationCount;
}

uint64 WidgetStructureCount()
{
	return StructureCount;
}

uint32 StructureVersion(const SWidget& Widget)
{
	return FWidgetAccess::StructureVersion(Widget);
}

void FWidgetAccess::CountChange()
{
	++StructureCount;
}

void FWidgetAccess::CountInvalidation()
{
	++InvalidationCount;
}

void ForEachWidget(const TSharedRef<SWidget>& Root, TFunctionRef<void(const TSharedRef<SWidget>&)> Visit)
{
	Visit(Root);
	const FChildren& Children = *Root->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		ForEachWidget(Children.GetChildAt(Index), Visit);
	}
}

TArray<TSharedRef<SWidget>> FindWidgetsOfType(const TSharedRef<SWidget>& Root, FName Type)
{
	TArray<TSharedRef<SWidget>> Found;
	ForEachWidget(Root,
		[&](const TSharedRef<SWidget>& Widget)
		{
			if (Widget->GetType() == Type)
			{
				Found.Add(Widget);
			}
		});
	return Found;
}

FSlotLayout SlotLayout(const SWidget& Parent, int32 ChildIndex)
{
	FSlotLayout Layout;
	// Asking for the children changes nothing, but the engine's operation is not const.
	const FSlotBase& Slot = const_cast<SWidget&>(Parent).GetChildren()->GetSlotAt(ChildIndex);
	if (const auto* const Basic = dynamic_cast<const FBasicLayoutWidgetSlot*>(&Slot))
	{
		Layout.Padding = Basic->GetPadding();
		Layout.HAlign = Basic->GetHorizontalAlignment();
		Layout.VAlign = Basic->GetVerticalAlignment();
	}
	if (const auto* const InBox = dynamic_cast<const SBoxPanel::FSlot*>(&Slot))
	{
		Layout.Size = InBox->GetSizeParam();
	}
	if (const auto* const InOverlay = dynamic_cast<const SOverlay::FOverlaySlot*>(&Slot))
	{
		Layout.ZOrder = InOverlay->GetZOrder();
	}
	return Layout;
}

TSharedPtr<SWindow> FindWindow(const TSharedRef<const SWidget>& Widget)
{
	for (TSharedPtr<const SWidget> Above = Widget; Above.IsValid(); Above = Above->GetParentWidget())
	{
		if (const auto* const Window = dynamic_cast<const SWindow*>(Above.Get()))
		{
			return StaticCastSharedRef<SWindow>(const_cast<SWindow*>(Window)->AsShared());
		}
	}
	return nullptr;
}

bool IsEnabledInTree(const SWidget& Widget)
{
	return AllUpwards(Widget, [](const SWidget& Each) { return Each.IsEnabled(); });
}

bool IsVisibleInTree(const SWidget& Widget)
{
	return AllUpwards(Widget, [](const SWidget& Each) { return Each.GetVisibility().IsVisible(); });
}

bool IsBelow(const SWidget& Widget, const SWidget& Ancestor)
{
	return !AllUpwards(Widget, [&](const SWidget& Each) { return &Each != &Ancestor; });
}
} // namespace Host
