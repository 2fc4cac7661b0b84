// SPDX-License-Identifier: MIT
#pragma once

// A picture.

#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Widgets/SLeafWidget.h"

class SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage)
		: _Image(nullptr)
		, _ColorAndOpacity(FSlateColor(FLinearColor::White))
	{
	}
	/** Not owned. */
	SLATE_ATTRIBUTE(const FSlateBrush*, Image)
	/** The picture is multiplied with it. */
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Null shows nothing. */
	const FSlateBrush* GetImage() const { return Image.Get(); }
	void SetImage(TAttribute<const FSlateBrush*> InImage) { Image = InImage; }
	FSlateColor GetColorAndOpacity() const { return ColorAndOpacity.Get(); }
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity) { ColorAndOpacity = InColorAndOpacity; }

private:
	TAttribute<const FSlateBrush*> Image = nullptr;
	TAttribute<FSlateColor> ColorAndOpacity;
};
