// SPDX-License-Identifier: MIT
#pragma once

// A line of text.

#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

class STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _TextStyle(&FTextBlockStyle::GetDefault())
		, _Justification(ETextJustify::Left)
	{
	}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HighlightText)
	/** Overrides the style's colour. */
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	FText GetText() const { return BoundText.Get(); }
	void SetText(const TAttribute<FText>& InText) { BoundText = InText; }
	FText GetHighlightText() const { return HighlightText.Get(); }
	void SetHighlightText(TAttribute<FText> InText) { HighlightText = InText; }
	/** The colour that was set, else the style's. */
	FSlateColor GetColorAndOpacity() const;
	void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity) { ColorAndOpacity = InColorAndOpacity; }
	const FTextBlockStyle& GetTextStyle() const { return TextStyle; }
	void SetTextStyle(const FTextBlockStyle* InTextStyle);
	ETextJustify::Type GetJustification() const { return Justification.Get(); }

private:
	TAttribute<FText> BoundText;
	TAttribute<FText> HighlightText;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<ETextJustify::Type> Justification = ETextJustify::Left;
	FTextBlockStyle TextStyle;
};
