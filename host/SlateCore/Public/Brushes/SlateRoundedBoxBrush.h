// SPDX-License-Identifier: MIT
#pragma once

// A brush of one colour with round corners and an outline.

#include "Styling/SlateBrush.h"

struct FSlateRoundedBoxBrush : public FSlateBrush
{
	/** @param InRadius  of all corners, slate units */
	FSlateRoundedBoxBrush(const FSlateColor& InColor, float InRadius,
		const FSlateColor& InOutlineColor = FLinearColor::Transparent, float InOutlineWidth = 0.0f)
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FVector2D(0.0, 0.0), InColor, FMargin())
	{
		OutlineSettings.CornerRadii = FVector4(InRadius, InRadius, InRadius, InRadius);
		OutlineSettings.Color = InOutlineColor;
		OutlineSettings.Width = InOutlineWidth;
	}

	/** @param InRadii  top left, top right, bottom right, bottom left; slate units */
	FSlateRoundedBoxBrush(const FSlateColor& InColor, const FVector4& InRadii,
		const FSlateColor& InOutlineColor = FLinearColor::Transparent, float InOutlineWidth = 0.0f)
		: FSlateRoundedBoxBrush(InColor, 0.0f, InOutlineColor, InOutlineWidth)
	{
		OutlineSettings.CornerRadii = InRadii;
	}
};
