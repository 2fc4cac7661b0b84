// SPDX-License-Identifier: MIT
#pragma once

// The line at the bottom of the level editor's frame.

#include "Styling/SlateBrush.h"
#include "Widgets/SCompoundWidget.h"

namespace Host
{
/** Short texts side by side, each under a name, from left to right in the order of adding. */
class SStatusLine : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SStatusLine) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Adds a text, or replaces the one of that name in its place. An empty text takes no room. */
	void SetItem(FName Name, const TAttribute<FText>& Text, const TAttribute<FText>& ToolTip = TAttribute<FText>());
	/** Nothing happens when there is none. */
	void RemoveItem(FName Name);
	/** What the line shows under that name now; empty when there is none. */
	FText GetItem(FName Name) const;

private:
	struct FItem
	{
		FName Name;
		TAttribute<FText> Text;
		TAttribute<FText> ToolTip;
	};

	void Rebuild();

	TArray<FItem> Items;
};
} // namespace Host
