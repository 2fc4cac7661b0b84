// SPDX-License-Identifier: MIT

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "EditorStyle.h"
#include "Host/StyleResources.h"
#include "Styling/SlateStyle.h"
#include "Styling/ToolBarStyle.h"

using namespace EditorColors;

namespace
{
constexpr float Radius = 4.0f;

FSlateImageBrush Icon(const TCHAR* Name)
{
	return FSlateImageBrush(Host::StyleResourceDir() / TEXT("Icons") / (FString(Name) + TEXT(".png")),
		FVector2D(16.0, 16.0), FSlateColor::UseForeground());
}

/** @param Radii  top left, top right, bottom right, bottom left; slate units */
FButtonStyle MakeButton(
	const FColor& Normal, const FColor& Hovered, const FColor& Pressed, const FVector4& Radii, const FMargin& Padding)
{
	return FButtonStyle()
		.SetNormal(FSlateRoundedBoxBrush(FLinearColor(Normal), Radii))
		.SetHovered(FSlateRoundedBoxBrush(FLinearColor(Hovered), Radii))
		.SetPressed(FSlateRoundedBoxBrush(FLinearColor(Pressed), Radii))
		.SetDisabled(FSlateRoundedBoxBrush(FLinearColor(Recessed), Radii))
		.SetNormalForeground(FLinearColor(Foreground))
		.SetHoveredForeground(FLinearColor(ForegroundHover))
		.SetPressedForeground(FLinearColor(ForegroundHover))
		.SetDisabledForeground(FSlateColor::UseSubduedForeground())
		.SetNormalPadding(Padding)
		.SetPressedPadding(Padding);
}

FVector4 AllCorners()
{
	return FVector4(Radius, Radius, Radius, Radius);
}

/** No frame until the pointer is over it. */
FButtonStyle MakeFlatButton(const FMargin& Padding)
{
	return MakeButton(Panel, Hover, Recessed, AllCorners(), Padding)
		.SetNormal(FSlateNoResource())
		.SetDisabled(FSlateNoResource());
}

FComboButtonStyle MakeCombo(const FButtonStyle& Button)
{
	return FComboButtonStyle()
		.SetButtonStyle(Button)
		.SetDownArrowImage(Icon(TEXT("ChevronDown")))
		.SetDownArrowPadding(FMargin(2.0f, 0.0f, 0.0f, 0.0f))
		.SetMenuBorderBrush(FSlateRoundedBoxBrush(FLinearColor(Dropdown), 0.0f, FLinearColor(DropdownOutline), 1.0f))
		.SetMenuBorderPadding(FMargin(1.0f));
}

FToolBarStyle MakeToolBar(const FMargin& ButtonPadding)
{
	const FButtonStyle Button = MakeFlatButton(FMargin(6.0f, 4.0f));
	return FToolBarStyle()
		.SetBackground(FSlateColorBrush(FLinearColor(Panel)))
		.SetBackgroundPadding(FMargin(4.0f, 2.0f))
		.SetSeparatorBrush(FSlateColorBrush(FLinearColor(Background)))
		.SetSeparatorPadding(FMargin(6.0f, 2.0f))
		.SetButtonStyle(Button)
		.SetButtonPadding(ButtonPadding)
		.SetToggleButtonStyle(FCheckBoxStyle()
								  .SetCheckBoxType(ESlateCheckBoxType::ToggleButton)
								  .SetUncheckedHoveredImage(FSlateRoundedBoxBrush(FLinearColor(Hover), Radius))
								  .SetCheckedImage(FSlateRoundedBoxBrush(FLinearColor(Primary), Radius))
								  .SetCheckedHoveredImage(FSlateRoundedBoxBrush(FLinearColor(PrimaryHover), Radius))
								  .SetCheckedForegroundColor(FLinearColor(ForegroundHover))
								  .SetPadding(FMargin(6.0f, 4.0f)))
		.SetComboButtonStyle(MakeCombo(Button))
		.SetLabelStyle(FTextBlockStyle().SetFontSize(10.0f))
		.SetLabelPadding(FMargin(4.0f, 0.0f, 0.0f, 0.0f))
		.SetIconSize(FVector2D(16.0, 16.0));
}

void AddToolBars(FSlateStyleSet& Style)
{
	const FToolBarStyle Plain = MakeToolBar(FMargin(2.0f, 0.0f));
	Style.Set(TEXT("ToolBar"), Plain);
	Style.Set(TEXT("SlimToolBar"), Plain);
	Style.Set(TEXT("AssetEditorToolbar"), FToolBarStyle(Plain).SetIconSize(FVector2D(20.0, 20.0)));
	Style.Set(TEXT("ViewportToolbar"), FToolBarStyle(Plain).SetBackground(FSlateNoResource()));

	// A button and the arrow of its options share one plate.
	const FMargin Padding(8.0f, 4.0f);
	Style.Set(TEXT("Toolbar.BackplateLeft"),
		FToolBarStyle(Plain)
			.SetButtonPadding(FMargin(4.0f, 0.0f, 0.0f, 0.0f))
			.SetButtonStyle(MakeButton(Dropdown, Hover, Recessed, FVector4(Radius, 0.0, 0.0, Radius), Padding)));
	const FButtonStyle Right =
		MakeButton(Dropdown, Hover, Recessed, FVector4(0.0, Radius, Radius, 0.0), FMargin(2.0f, 4.0f));
	Style.Set(TEXT("Toolbar.BackplateRight"),
		FToolBarStyle(Plain).SetButtonPadding(FMargin(1.0f, 0.0f, 4.0f, 0.0f)).SetButtonStyle(Right));
	Style.Set(TEXT("Toolbar.BackplateRightCombo"), FToolBarStyle(Plain)
													   .SetButtonPadding(FMargin(1.0f, 0.0f, 4.0f, 0.0f))
													   .SetButtonStyle(Right)
													   .SetComboButtonStyle(MakeCombo(Right)));
	const FButtonStyle Callout = MakeButton(Dropdown, Hover, Recessed, AllCorners(), Padding);
	Style.Set(
		TEXT("CalloutToolbar"), FToolBarStyle(Plain).SetButtonStyle(Callout).SetComboButtonStyle(MakeCombo(Callout)));
}
} // namespace

void EditorStyle::AddWidgets(FSlateStyleSet& Style)
{
	const FButtonStyle Button = MakeButton(Dropdown, Hover, Recessed, AllCorners(), FMargin(12.0f, 4.0f));
	Style.Set(TEXT("Button"), Button);
	Style.Set(TEXT("PrimaryButton"), MakeButton(Primary, PrimaryHover, PrimaryPress, AllCorners(), FMargin(12.0f, 4.0f))
										 .SetNormalForeground(FLinearColor(ForegroundHover)));
	Style.Set(TEXT("SimpleButton"), MakeFlatButton(FMargin(4.0f)));
	Style.Set(TEXT("ComboButton"), MakeCombo(Button));
	Style.Set(TEXT("SimpleComboButton"), MakeCombo(MakeFlatButton(FMargin(4.0f))));
	AddToolBars(Style);

	const FSlateRoundedBoxBrush Box(FLinearColor(Input), 2.0f, FLinearColor(InputOutline), 1.0f);
	const FSlateRoundedBoxBrush FocusedBox(FLinearColor(Input), 2.0f, FLinearColor(PrimaryHover), 1.0f);
	Style.Set(TEXT("Checkbox"), FCheckBoxStyle()
									.SetUncheckedImage(Box)
									.SetUncheckedHoveredImage(FocusedBox)
									.SetCheckedImage(Icon(TEXT("Check")))
									.SetCheckedHoveredImage(Icon(TEXT("Check")))
									.SetUndeterminedImage(Box)
									.SetPadding(FMargin(4.0f, 0.0f)));
	const FEditableTextBoxStyle Field = FEditableTextBoxStyle()
											.SetBackgroundImageNormal(Box)
											.SetBackgroundImageHovered(Box)
											.SetBackgroundImageFocused(FocusedBox)
											.SetTextStyle(FTextBlockStyle().SetFontSize(10.0f))
											.SetPadding(FMargin(8.0f, 3.0f));
	Style.Set(TEXT("NormalEditableTextBox"), Field);
	Style.Set(TEXT("SearchBox"), FSearchBoxStyle()
									 .SetTextBoxStyle(Field)
									 .SetGlassImage(Icon(TEXT("Search")))
									 .SetClearImage(Icon(TEXT("Close"))));
	Style.Set(TEXT("TableView.Row"), FTableRowStyle()
										 .SetEvenRowBackgroundBrush(FSlateColorBrush(FLinearColor(Recessed)))
										 .SetOddRowBackgroundBrush(FSlateColorBrush(FLinearColor(Recessed)))
										 .SetEvenRowBackgroundHoveredBrush(FSlateColorBrush(FLinearColor(Header)))
										 .SetOddRowBackgroundHoveredBrush(FSlateColorBrush(FLinearColor(Header)))
										 .SetActiveBrush(FSlateColorBrush(FLinearColor(Primary)))
										 .SetInactiveBrush(FSlateColorBrush(FLinearColor(SelectInactive)))
										 .SetTextColor(FLinearColor(Foreground))
										 .SetSelectedTextColor(FLinearColor(ForegroundInverted)));
}
