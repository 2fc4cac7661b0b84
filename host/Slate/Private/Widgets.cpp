// SPDX-License-Identifier: MIT

#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

void STextBlock::Construct(const FArguments& InArgs)
{
	BoundText = InArgs._Text;
	HighlightText = InArgs._HighlightText;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	Justification = InArgs._Justification;
	SetTextStyle(InArgs._TextStyle);
}

FSlateColor STextBlock::GetColorAndOpacity() const
{
	return ColorAndOpacity.IsSet() ? ColorAndOpacity.Get() : TextStyle.ColorAndOpacity;
}

void STextBlock::SetTextStyle(const FTextBlockStyle* InTextStyle)
{
	TextStyle = InTextStyle ? *InTextStyle : FTextBlockStyle::GetDefault();
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SBorder::Construct(const FArguments& InArgs)
{
	BorderImage = InArgs._BorderImage;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}
