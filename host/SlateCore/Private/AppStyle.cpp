// SPDX-License-Identifier: MIT

#include "Styling/AppStyle.h"

#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"

namespace
{
class FHostAppStyle : public FSlateStyleSet
{
public:
	FHostAppStyle()
		: FSlateStyleSet(FAppStyle::GetAppStyleSetName())
	{
		FTextBlockStyle Normal;
		Set(TEXT("NormalText"), Normal);
		// Text over a picture: white with a dark edge reads on any background.
		Set(TEXT("TextBlock.ShadowedText"), FTextBlockStyle(Normal)
												.SetColorAndOpacity(FLinearColor::White)
												.SetShadowOffset(FVector2D(1.0, 1.0))
												.SetShadowColorAndOpacity(FLinearColor(0.0f, 0.0f, 0.0f, 0.9f)));
		Set(TEXT("NoBorder"), new FSlateNoResource());
		Set(TEXT("NoBrush"), new FSlateNoResource());
	}
};
} // namespace

const ISlateStyle& FCoreStyle::Get()
{
	static const FSlateStyleSet Style(TEXT("CoreStyle"));
	return Style;
}

const ISlateStyle& FAppStyle::Get()
{
	static const FHostAppStyle Style;
	return Style;
}

const FName FAppStyle::GetAppStyleSetName()
{
	static const FName Name(TEXT("EditorStyle"));
	return Name;
}
