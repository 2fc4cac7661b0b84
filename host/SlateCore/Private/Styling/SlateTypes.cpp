// SPDX-License-Identifier: MIT

#include "Styling/SlateTypes.h"
#include "Styling/ToolBarStyle.h"

const FName FTextBlockStyle::TypeName(TEXT("FTextBlockStyle"));

const FTextBlockStyle& FTextBlockStyle::GetDefault()
{
	static const FTextBlockStyle Default;
	return Default;
}

FTextBlockStyle& FTextBlockStyle::SetColorAndOpacity(const FSlateColor& InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetShadowOffset(const FVector2D& InShadowOffset)
{
	ShadowOffset = InShadowOffset;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetShadowColorAndOpacity(const FLinearColor& InShadowColorAndOpacity)
{
	ShadowColorAndOpacity = InShadowColorAndOpacity;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetHighlightColor(const FLinearColor& InHighlightColor)
{
	HighlightColor = InHighlightColor;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetFontSize(float InFontSize)
{
	FontSize = InFontSize;
	return *this;
}

FTextBlockStyle& FTextBlockStyle::SetBold(bool bInBold)
{
	bBold = bInBold;
	return *this;
}

const FName FButtonStyle::TypeName(TEXT("FButtonStyle"));

const FButtonStyle& FButtonStyle::GetDefault()
{
	static const FButtonStyle Default;
	return Default;
}

FButtonStyle& FButtonStyle::SetNormal(const FSlateBrush& InNormal)
{
	Normal = InNormal;
	return *this;
}

FButtonStyle& FButtonStyle::SetHovered(const FSlateBrush& InHovered)
{
	Hovered = InHovered;
	return *this;
}

FButtonStyle& FButtonStyle::SetPressed(const FSlateBrush& InPressed)
{
	Pressed = InPressed;
	return *this;
}

FButtonStyle& FButtonStyle::SetDisabled(const FSlateBrush& InDisabled)
{
	Disabled = InDisabled;
	return *this;
}

FButtonStyle& FButtonStyle::SetNormalForeground(const FSlateColor& InColor)
{
	NormalForeground = InColor;
	return *this;
}

FButtonStyle& FButtonStyle::SetHoveredForeground(const FSlateColor& InColor)
{
	HoveredForeground = InColor;
	return *this;
}

FButtonStyle& FButtonStyle::SetPressedForeground(const FSlateColor& InColor)
{
	PressedForeground = InColor;
	return *this;
}

FButtonStyle& FButtonStyle::SetDisabledForeground(const FSlateColor& InColor)
{
	DisabledForeground = InColor;
	return *this;
}

FButtonStyle& FButtonStyle::SetNormalPadding(const FMargin& InPadding)
{
	NormalPadding = InPadding;
	return *this;
}

FButtonStyle& FButtonStyle::SetPressedPadding(const FMargin& InPadding)
{
	PressedPadding = InPadding;
	return *this;
}

const FName FComboButtonStyle::TypeName(TEXT("FComboButtonStyle"));

const FComboButtonStyle& FComboButtonStyle::GetDefault()
{
	static const FComboButtonStyle Default;
	return Default;
}

FComboButtonStyle& FComboButtonStyle::SetButtonStyle(const FButtonStyle& InButtonStyle)
{
	ButtonStyle = InButtonStyle;
	return *this;
}

FComboButtonStyle& FComboButtonStyle::SetDownArrowImage(const FSlateBrush& InDownArrowImage)
{
	DownArrowImage = InDownArrowImage;
	return *this;
}

FComboButtonStyle& FComboButtonStyle::SetMenuBorderBrush(const FSlateBrush& InMenuBorderBrush)
{
	MenuBorderBrush = InMenuBorderBrush;
	return *this;
}

FComboButtonStyle& FComboButtonStyle::SetMenuBorderPadding(const FMargin& InMenuBorderPadding)
{
	MenuBorderPadding = InMenuBorderPadding;
	return *this;
}

FComboButtonStyle& FComboButtonStyle::SetContentPadding(const FMargin& InContentPadding)
{
	ContentPadding = InContentPadding;
	return *this;
}

FComboButtonStyle& FComboButtonStyle::SetDownArrowPadding(const FMargin& InDownArrowPadding)
{
	DownArrowPadding = InDownArrowPadding;
	return *this;
}

const FName FCheckBoxStyle::TypeName(TEXT("FCheckBoxStyle"));

const FCheckBoxStyle& FCheckBoxStyle::GetDefault()
{
	static const FCheckBoxStyle Default;
	return Default;
}

FCheckBoxStyle& FCheckBoxStyle::SetCheckBoxType(ESlateCheckBoxType::Type InCheckBoxType)
{
	CheckBoxType = InCheckBoxType;
	return *this;
}

FCheckBoxStyle& FCheckBoxStyle::SetUncheckedImage(const FSlateBrush& InImage)
{
	UncheckedImage = InImage;
	return *this;
}

FCheckBoxStyle& FCheckBoxStyle::SetUncheckedHoveredImage(const FSlateBrush& InImage)
{
	UncheckedHoveredImage = InImage;
	return *this;
}

FCheckBoxStyle& FCheckBoxStyle::SetCheckedImage(const FSlateBrush& InImage)
{
	CheckedImage = InImage;
	return *this;
}

FCheckBoxStyle& FCheckBoxStyle::SetCheckedHoveredImage(const FSlateBrush& InImage)
{
	CheckedHoveredImage = InImage;
	return *this;
}

FCheckBoxStyle& FCheckBoxStyle::SetUndeterminedImage(const FSlateBrush& InImage)
{
	UndeterminedImage = InImage;
	return *this;
}

FCheckBoxStyle& FCheckBoxStyle::SetPadding(const FMargin& InPadding)
{
	Padding = InPadding;
	return *this;
}

FCheckBoxStyle& FCheckBoxStyle::SetCheckedForegroundColor(const FSlateColor& InColor)
{
	CheckedForeground = InColor;
	return *this;
}

const FName FEditableTextBoxStyle::TypeName(TEXT("FEditableTextBoxStyle"));

const FEditableTextBoxStyle& FEditableTextBoxStyle::GetDefault()
{
	static const FEditableTextBoxStyle Default;
	return Default;
}

FEditableTextBoxStyle& FEditableTextBoxStyle::SetBackgroundImageNormal(const FSlateBrush& InImage)
{
	BackgroundImageNormal = InImage;
	return *this;
}

FEditableTextBoxStyle& FEditableTextBoxStyle::SetBackgroundImageHovered(const FSlateBrush& InImage)
{
	BackgroundImageHovered = InImage;
	return *this;
}

FEditableTextBoxStyle& FEditableTextBoxStyle::SetBackgroundImageFocused(const FSlateBrush& InImage)
{
	BackgroundImageFocused = InImage;
	return *this;
}

FEditableTextBoxStyle& FEditableTextBoxStyle::SetTextStyle(const FTextBlockStyle& InTextStyle)
{
	TextStyle = InTextStyle;
	return *this;
}

FEditableTextBoxStyle& FEditableTextBoxStyle::SetPadding(const FMargin& InPadding)
{
	Padding = InPadding;
	return *this;
}

const FName FSearchBoxStyle::TypeName(TEXT("FSearchBoxStyle"));

const FSearchBoxStyle& FSearchBoxStyle::GetDefault()
{
	static const FSearchBoxStyle Default;
	return Default;
}

FSearchBoxStyle& FSearchBoxStyle::SetTextBoxStyle(const FEditableTextBoxStyle& InTextBoxStyle)
{
	TextBoxStyle = InTextBoxStyle;
	return *this;
}

FSearchBoxStyle& FSearchBoxStyle::SetGlassImage(const FSlateBrush& InGlassImage)
{
	GlassImage = InGlassImage;
	return *this;
}

FSearchBoxStyle& FSearchBoxStyle::SetClearImage(const FSlateBrush& InClearImage)
{
	ClearImage = InClearImage;
	return *this;
}

const FName FTableRowStyle::TypeName(TEXT("FTableRowStyle"));

const FTableRowStyle& FTableRowStyle::GetDefault()
{
	static const FTableRowStyle Default;
	return Default;
}

FTableRowStyle& FTableRowStyle::SetEvenRowBackgroundBrush(const FSlateBrush& InBrush)
{
	EvenRowBackgroundBrush = InBrush;
	return *this;
}

FTableRowStyle& FTableRowStyle::SetEvenRowBackgroundHoveredBrush(const FSlateBrush& InBrush)
{
	EvenRowBackgroundHoveredBrush = InBrush;
	return *this;
}

FTableRowStyle& FTableRowStyle::SetOddRowBackgroundBrush(const FSlateBrush& InBrush)
{
	OddRowBackgroundBrush = InBrush;
	return *this;
}

FTableRowStyle& FTableRowStyle::SetOddRowBackgroundHoveredBrush(const FSlateBrush& InBrush)
{
	OddRowBackgroundHoveredBrush = InBrush;
	return *this;
}

FTableRowStyle& FTableRowStyle::SetActiveBrush(const FSlateBrush& InBrush)
{
	ActiveBrush = InBrush;
	return *this;
}

FTableRowStyle& FTableRowStyle::SetInactiveBrush(const FSlateBrush& InBrush)
{
	InactiveBrush = InBrush;
	return *this;
}

FTableRowStyle& FTableRowStyle::SetTextColor(const FSlateColor& InColor)
{
	TextColor = InColor;
	return *this;
}

FTableRowStyle& FTableRowStyle::SetSelectedTextColor(const FSlateColor& InColor)
{
	SelectedTextColor = InColor;
	return *this;
}

const FName FToolBarStyle::TypeName(TEXT("FToolBarStyle"));

const FToolBarStyle& FToolBarStyle::GetDefault()
{
	static const FToolBarStyle Default;
	return Default;
}

FToolBarStyle& FToolBarStyle::SetBackground(const FSlateBrush& InBackground)
{
	BackgroundBrush = InBackground;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetSeparatorBrush(const FSlateBrush& InSeparator)
{
	SeparatorBrush = InSeparator;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetButtonStyle(const FButtonStyle& InButton)
{
	ButtonStyle = InButton;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetToggleButtonStyle(const FCheckBoxStyle& InToggleButton)
{
	ToggleButton = InToggleButton;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetComboButtonStyle(const FComboButtonStyle& InComboButtonStyle)
{
	ComboButtonStyle = InComboButtonStyle;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetLabelStyle(const FTextBlockStyle& InLabelStyle)
{
	LabelStyle = InLabelStyle;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetIconSize(const FVector2D& InIconSize)
{
	IconSize = InIconSize;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetBackgroundPadding(const FMargin& InMargin)
{
	BackgroundPadding = InMargin;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetLabelPadding(const FMargin& InMargin)
{
	LabelPadding = InMargin;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetButtonPadding(const FMargin& InMargin)
{
	ButtonPadding = InMargin;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetSeparatorPadding(const FMargin& InMargin)
{
	SeparatorPadding = InMargin;
	return *this;
}

FToolBarStyle& FToolBarStyle::SetShowLabels(bool bInShowLabels)
{
	bShowLabels = bInShowLabels;
	return *this;
}
