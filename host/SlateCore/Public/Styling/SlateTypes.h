// SPDX-License-Identifier: MIT
#pragma once

// The styles of the widget kinds, and the states of a check mark.

#include "Brushes/SlateNoResource.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"

enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	Undetermined,
};

namespace ESlateCheckBoxType
{
enum Type : int
{
	/** A box with a mark. */
	CheckBox,
	/** A button that stays down. */
	ToggleButton,
};
}

/** How a piece of text looks. */
struct FTextBlockStyle : public FSlateWidgetStyle
{
	FSlateColor ColorAndOpacity = FSlateColor::UseForeground();
	/** Slate units; zero for no shadow. */
	FVector2D ShadowOffset = FVector2D(0.0, 0.0);
	FLinearColor ShadowColorAndOpacity = FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);
	/** Of the letters that a search found. */
	FLinearColor HighlightColor = FLinearColor(0.02f, 0.3f, 0.0f);
	/** Point size of the font. */
	float FontSize = 10.0f;
	bool bBold = false;

	static const FName TypeName;
	static const FTextBlockStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FTextBlockStyle& SetColorAndOpacity(const FSlateColor& InColorAndOpacity);
	FTextBlockStyle& SetShadowOffset(const FVector2D& InShadowOffset);
	FTextBlockStyle& SetShadowColorAndOpacity(const FLinearColor& InShadowColorAndOpacity);
	FTextBlockStyle& SetHighlightColor(const FLinearColor& InHighlightColor);
	FTextBlockStyle& SetFontSize(float InFontSize);
	FTextBlockStyle& SetBold(bool bInBold);
};

/** How a button looks in each of its states. */
struct FButtonStyle : public FSlateWidgetStyle
{
	FSlateBrush Normal = FSlateNoResource();
	FSlateBrush Hovered = FSlateNoResource();
	FSlateBrush Pressed = FSlateNoResource();
	FSlateBrush Disabled = FSlateNoResource();
	FSlateColor NormalForeground = FSlateColor::UseForeground();
	FSlateColor HoveredForeground = FSlateColor::UseForeground();
	FSlateColor PressedForeground = FSlateColor::UseForeground();
	FSlateColor DisabledForeground = FSlateColor::UseSubduedForeground();
	FMargin NormalPadding;
	FMargin PressedPadding;

	static const FName TypeName;
	static const FButtonStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FButtonStyle& SetNormal(const FSlateBrush& InNormal);
	FButtonStyle& SetHovered(const FSlateBrush& InHovered);
	FButtonStyle& SetPressed(const FSlateBrush& InPressed);
	FButtonStyle& SetDisabled(const FSlateBrush& InDisabled);
	FButtonStyle& SetNormalForeground(const FSlateColor& InColor);
	FButtonStyle& SetHoveredForeground(const FSlateColor& InColor);
	FButtonStyle& SetPressedForeground(const FSlateColor& InColor);
	FButtonStyle& SetDisabledForeground(const FSlateColor& InColor);
	FButtonStyle& SetNormalPadding(const FMargin& InPadding);
	FButtonStyle& SetPressedPadding(const FMargin& InPadding);
};

/** A button that opens a menu: the button, its arrow and the menu's frame. */
struct FComboButtonStyle : public FSlateWidgetStyle
{
	FButtonStyle ButtonStyle;
	/** Painting nothing: no arrow. */
	FSlateBrush DownArrowImage = FSlateNoResource();
	FSlateBrush MenuBorderBrush = FSlateNoResource();
	FMargin MenuBorderPadding;
	FMargin ContentPadding;
	FMargin DownArrowPadding;

	static const FName TypeName;
	static const FComboButtonStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FComboButtonStyle& SetButtonStyle(const FButtonStyle& InButtonStyle);
	FComboButtonStyle& SetDownArrowImage(const FSlateBrush& InDownArrowImage);
	FComboButtonStyle& SetMenuBorderBrush(const FSlateBrush& InMenuBorderBrush);
	FComboButtonStyle& SetMenuBorderPadding(const FMargin& InMenuBorderPadding);
	FComboButtonStyle& SetContentPadding(const FMargin& InContentPadding);
	FComboButtonStyle& SetDownArrowPadding(const FMargin& InDownArrowPadding);
};

struct FCheckBoxStyle : public FSlateWidgetStyle
{
	ESlateCheckBoxType::Type CheckBoxType = ESlateCheckBoxType::CheckBox;
	FSlateBrush UncheckedImage = FSlateNoResource();
	FSlateBrush UncheckedHoveredImage = FSlateNoResource();
	FSlateBrush CheckedImage = FSlateNoResource();
	FSlateBrush CheckedHoveredImage = FSlateNoResource();
	FSlateBrush UndeterminedImage = FSlateNoResource();
	FMargin Padding;
	FSlateColor ForegroundColor = FSlateColor::UseForeground();
	FSlateColor CheckedForeground = FSlateColor::UseForeground();

	static const FName TypeName;
	static const FCheckBoxStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FCheckBoxStyle& SetCheckBoxType(ESlateCheckBoxType::Type InCheckBoxType);
	FCheckBoxStyle& SetUncheckedImage(const FSlateBrush& InImage);
	FCheckBoxStyle& SetUncheckedHoveredImage(const FSlateBrush& InImage);
	FCheckBoxStyle& SetCheckedImage(const FSlateBrush& InImage);
	FCheckBoxStyle& SetCheckedHoveredImage(const FSlateBrush& InImage);
	FCheckBoxStyle& SetUndeterminedImage(const FSlateBrush& InImage);
	FCheckBoxStyle& SetPadding(const FMargin& InPadding);
	FCheckBoxStyle& SetCheckedForegroundColor(const FSlateColor& InColor);
};

/** A field for one line of text. */
struct FEditableTextBoxStyle : public FSlateWidgetStyle
{
	FSlateBrush BackgroundImageNormal = FSlateNoResource();
	FSlateBrush BackgroundImageHovered = FSlateNoResource();
	FSlateBrush BackgroundImageFocused = FSlateNoResource();
	FTextBlockStyle TextStyle;
	FSlateColor ForegroundColor = FSlateColor::UseForeground();
	FMargin Padding;

	static const FName TypeName;
	static const FEditableTextBoxStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FEditableTextBoxStyle& SetBackgroundImageNormal(const FSlateBrush& InImage);
	FEditableTextBoxStyle& SetBackgroundImageHovered(const FSlateBrush& InImage);
	FEditableTextBoxStyle& SetBackgroundImageFocused(const FSlateBrush& InImage);
	FEditableTextBoxStyle& SetTextStyle(const FTextBlockStyle& InTextStyle);
	FEditableTextBoxStyle& SetPadding(const FMargin& InPadding);
};

struct FSearchBoxStyle : public FSlateWidgetStyle
{
	FEditableTextBoxStyle TextBoxStyle;
	FSlateBrush GlassImage = FSlateNoResource();
	FSlateBrush ClearImage = FSlateNoResource();

	static const FName TypeName;
	static const FSearchBoxStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FSearchBoxStyle& SetTextBoxStyle(const FEditableTextBoxStyle& InTextBoxStyle);
	FSearchBoxStyle& SetGlassImage(const FSlateBrush& InGlassImage);
	FSearchBoxStyle& SetClearImage(const FSlateBrush& InClearImage);
};

/** A row of a list or a tree. */
struct FTableRowStyle : public FSlateWidgetStyle
{
	FSlateBrush EvenRowBackgroundBrush = FSlateNoResource();
	FSlateBrush EvenRowBackgroundHoveredBrush = FSlateNoResource();
	FSlateBrush OddRowBackgroundBrush = FSlateNoResource();
	FSlateBrush OddRowBackgroundHoveredBrush = FSlateNoResource();
	/** Of a selected row while its list has the keyboard. */
	FSlateBrush ActiveBrush = FSlateNoResource();
	/** Of a selected row while it has not. */
	FSlateBrush InactiveBrush = FSlateNoResource();
	FSlateColor TextColor = FSlateColor::UseForeground();
	FSlateColor SelectedTextColor = FSlateColor::UseForeground();

	static const FName TypeName;
	static const FTableRowStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FTableRowStyle& SetEvenRowBackgroundBrush(const FSlateBrush& InBrush);
	FTableRowStyle& SetEvenRowBackgroundHoveredBrush(const FSlateBrush& InBrush);
	FTableRowStyle& SetOddRowBackgroundBrush(const FSlateBrush& InBrush);
	FTableRowStyle& SetOddRowBackgroundHoveredBrush(const FSlateBrush& InBrush);
	FTableRowStyle& SetActiveBrush(const FSlateBrush& InBrush);
	FTableRowStyle& SetInactiveBrush(const FSlateBrush& InBrush);
	FTableRowStyle& SetTextColor(const FSlateColor& InColor);
	FTableRowStyle& SetSelectedTextColor(const FSlateColor& InColor);
};
