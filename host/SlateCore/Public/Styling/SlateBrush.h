// SPDX-License-Identifier: MIT
#pragma once

// What a widget is painted with: nothing, a colour or an image file.

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"

namespace ESlateBrushDrawType
{
enum Type : int
{
	NoDrawType,
	Box,
	Border,
	Image,
	RoundedBox,
};
}

/** Corners and outline of a rounded box. */
struct FSlateBrushOutlineSettings
{
	/** Top left, top right, bottom right, bottom left; slate units. */
	FVector4 CornerRadii = FVector4(0.0, 0.0, 0.0, 0.0);
	FSlateColor Color = FLinearColor::Transparent;
	/** Slate units; 0 for no outline. */
	float Width = 0.0f;
};

struct FSlateBrush
{
	/** Width and height, slate units. */
	FVector2D ImageSize = FVector2D(32.0, 32.0);
	FMargin Margin;
	FSlateColor TintColor = FLinearColor::White;
	ESlateBrushDrawType::Type DrawAs = ESlateBrushDrawType::Image;
	/** Of a rounded box. */
	FSlateBrushOutlineSettings OutlineSettings;

	FSlateBrush() = default;
	virtual ~FSlateBrush() = default;

	/** Path of the image file; none when the brush has no image. */
	FName GetResourceName() const { return ResourceName; }
	const FVector2D& GetImageSize() const { return ImageSize; }
	ESlateBrushDrawType::Type GetDrawType() const { return DrawAs; }

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FVector2D& InImageSize,
		const FSlateColor& InTint, const FMargin& InMargin)
		: ImageSize(InImageSize)
		, Margin(InMargin)
		, TintColor(InTint)
		, DrawAs(InDrawType)
		, ResourceName(InResourceName)
	{
	}

private:
	FName ResourceName;
};
