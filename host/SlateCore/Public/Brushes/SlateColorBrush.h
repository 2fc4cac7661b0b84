// SPDX-License-Identifier: MIT
#pragma once

// A brush of one colour.

#include "Styling/SlateBrush.h"

struct FSlateColorBrush : public FSlateBrush
{
	FSlateColorBrush(const FSlateColor& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FVector2D(0.0, 0.0), InColor, FMargin())
	{
	}
};
