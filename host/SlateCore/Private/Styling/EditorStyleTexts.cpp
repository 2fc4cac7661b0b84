// SPDX-License-Identifier: MIT

#include "EditorStyle.h"
#include "Styling/SlateStyle.h"

void EditorStyle::AddTexts(FSlateStyleSet& Style)
{
	using namespace EditorColors;
	const FTextBlockStyle Normal = FTextBlockStyle()
									   .SetColorAndOpacity(FSlateColor::UseForeground())
									   .SetHighlightColor(FLinearColor(PrimaryHover))
									   .SetFontSize(10.0f);
	Style.Set(TEXT("NormalText"), Normal);
	Style.Set(TEXT("NormalText.Important"), FTextBlockStyle(Normal).SetBold(true));
	Style.Set(
		TEXT("NormalText.Subdued"), FTextBlockStyle(Normal).SetColorAndOpacity(FSlateColor::UseSubduedForeground()));
	Style.Set(TEXT("SmallText"), FTextBlockStyle(Normal).SetFontSize(8.0f));
	Style.Set(TEXT("SmallText.Subdued"),
		FTextBlockStyle(Normal).SetFontSize(8.0f).SetColorAndOpacity(FSlateColor::UseSubduedForeground()));
	Style.Set(TEXT("LargeText"), FTextBlockStyle(Normal).SetFontSize(14.0f));
	Style.Set(TEXT("ContentBrowser.TopBar.Font"), FTextBlockStyle(Normal).SetBold(true));
	Style.Set(TEXT("RichTextBlock.Bold"), FTextBlockStyle(Normal).SetBold(true));
	Style.Set(TEXT("Menu.Heading"),
		FTextBlockStyle(Normal).SetFontSize(8.0f).SetColorAndOpacity(FLinearColor(ForegroundSubdued)));
	// Text over a picture: white with a dark edge reads on any background.
	Style.Set(TEXT("TextBlock.ShadowedText"), FTextBlockStyle(Normal)
												  .SetColorAndOpacity(FLinearColor::White)
												  .SetShadowOffset(FVector2D(1.0, 1.0))
												  .SetShadowColorAndOpacity(FLinearColor(0.0f, 0.0f, 0.0f, 0.9f)));
	Style.Set(TEXT("NotificationList.FontBold"), FTextBlockStyle(Normal).SetBold(true).SetFontSize(12.0f));
}
