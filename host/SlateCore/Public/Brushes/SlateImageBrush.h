// SPDX-License-Identifier: MIT
#pragma once

// A brush of an image file.

#include "Styling/SlateBrush.h"

struct FSlateImageBrush : public FSlateBrush
{
	/**
	 * @param InImageName  path of the image file; it is not read here, and a missing file is no fault
	 * @param InImageSize  slate units
	 */
	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize,
		const FSlateColor& InTint = FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), InImageSize, InTint, FMargin(0.0f))
	{
	}
};
