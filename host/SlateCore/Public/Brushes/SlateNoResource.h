// SPDX-License-Identifier: MIT
#pragma once

// A brush that paints nothing.

#include "Styling/SlateBrush.h"

struct FSlateNoResource : public FSlateBrush
{
	explicit FSlateNoResource(const FVector2D& InImageSize = FVector2D(0.0, 0.0))
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, NAME_None, InImageSize, FLinearColor::White, FMargin())
	{
	}
};
