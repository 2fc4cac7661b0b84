// SPDX-License-Identifier: MIT
#pragma once

// Shows that there is more above or below.

#include "Framework/Layout/IScrollableWidget.h"
#include "Widgets/SCompoundWidget.h"

/** A frame around a scrolled widget. */
class SScrollBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SScrollBorder) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	/** @param InScrollableWidget  the widget whose ends are shown, in most cases the content itself */
	void Construct(const FArguments& InArgs, TSharedRef<IScrollableWidget> InScrollableWidget);

	/** Empty when the widget is gone. */
	TSharedPtr<IScrollableWidget> GetScrollableWidget() const { return ScrollableWidget.Pin(); }

private:
	TWeakPtr<IScrollableWidget> ScrollableWidget;
};
