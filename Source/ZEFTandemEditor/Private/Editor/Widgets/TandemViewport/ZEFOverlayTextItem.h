// SPDX-License-Identifier: MIT
/** One line of text over the preview. */
#pragma once

#include "CoreMinimal.h"

struct FOverlayTextItem
{
	FOverlayTextItem(const FText& InText, const FName& InStyle)
		: Text(InText)
		, Style(InStyle)
	{
	}

	FText Text;
	/** Of a text block, in the style set of the application. */
	FName Style;
};
