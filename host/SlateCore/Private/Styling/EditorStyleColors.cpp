// SPDX-License-Identifier: MIT

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "EditorStyle.h"
#include "Styling/SlateStyle.h"

void EditorStyle::AddColorsAndBrushes(FSlateStyleSet& Style)
{
	using namespace EditorColors;
	const auto Add = [&](const TCHAR* Name, const FColor& Color) { Style.Set(Name, FLinearColor(Color)); };
	Add(TEXT("Colors.Background"), Background);
	Add(TEXT("Colors.Title"), Title);
	Add(TEXT("Colors.Panel"), Panel);
	Add(TEXT("Colors.Header"), Header);
	Add(TEXT("Colors.Recessed"), Recessed);
	Add(TEXT("Colors.Input"), Input);
	Add(TEXT("Colors.InputOutline"), InputOutline);
	Add(TEXT("Colors.Dropdown"), Dropdown);
	Add(TEXT("Colors.DropdownOutline"), DropdownOutline);
	Add(TEXT("Colors.Hover"), Hover);
	Add(TEXT("Colors.Select"), Primary);
	Add(TEXT("Colors.SelectInactive"), SelectInactive);
	Add(TEXT("Colors.Primary"), Primary);
	Add(TEXT("Colors.PrimaryHover"), PrimaryHover);
	Add(TEXT("Colors.PrimaryPress"), PrimaryPress);
	Add(TEXT("Colors.Foreground"), Foreground);
	Add(TEXT("Colors.ForegroundHover"), ForegroundHover);
	Add(TEXT("Colors.ForegroundHeader"), ForegroundHover);
	Add(TEXT("Colors.ForegroundInverted"), ForegroundInverted);
	Add(TEXT("Colors.ForegroundSubdued"), ForegroundSubdued);
	Add(TEXT("Colors.Warning"), Warning);
	Add(TEXT("Colors.Error"), Error);
	Add(TEXT("Colors.Success"), Success);

	const auto AddBrush = [&](const TCHAR* Name, const FColor& Color)
	{ Style.Set(Name, new FSlateColorBrush(FLinearColor(Color))); };
	AddBrush(TEXT("Brushes.Background"), Background);
	AddBrush(TEXT("Brushes.Title"), Title);
	AddBrush(TEXT("Brushes.Panel"), Panel);
	AddBrush(TEXT("Brushes.Header"), Header);
	AddBrush(TEXT("Brushes.Recessed"), Recessed);
	AddBrush(TEXT("Brushes.Dropdown"), Dropdown);
	AddBrush(TEXT("Brushes.Hover"), Hover);
	AddBrush(TEXT("Brushes.Select"), Primary);
	AddBrush(TEXT("Menu.Background"), Dropdown);
	Style.Set(TEXT("NoBorder"), new FSlateNoResource());
	Style.Set(TEXT("NoBrush"), new FSlateNoResource());
	Style.Set(TEXT("ToolPanel.GroupBorder"),
		new FSlateRoundedBoxBrush(FLinearColor(Recessed), 4.0f, FLinearColor(Header), 1.0f));
	Style.Set(TEXT("NotificationList.ItemBackground"),
		new FSlateRoundedBoxBrush(FLinearColor(Dropdown), 6.0f, FLinearColor(DropdownOutline), 1.0f));

	Style.Set(TEXT("StandardDialog.SlotPadding"), FMargin(8.0f, 0.0f, 0.0f, 0.0f));
	Style.Set(TEXT("StandardDialog.MinDesiredSlotWidth"), 80.0f);
	Style.Set(TEXT("StandardDialog.MinDesiredSlotHeight"), 0.0f);
	Style.Set(TEXT("StandardDialog.ContentPadding"), FMargin(16.0f, 3.0f));
}
