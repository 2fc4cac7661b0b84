// SPDX-License-Identifier: MIT
#pragma once

// Base of the styles that belong to one kind of widget.

#include "CoreMinimal.h"

struct FSlateWidgetStyle
{
	virtual ~FSlateWidgetStyle() = default;

	/** Name of the style's own type, by which a style set tells the kinds apart. */
	virtual const FName GetTypeName() const = 0;
};
