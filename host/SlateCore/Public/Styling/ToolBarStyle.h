// SPDX-License-Identifier: MIT
#pragma once

// How a tool bar and what stands in it look.

#include "Styling/SlateTypes.h"

struct FToolBarStyle : public FSlateWidgetStyle
{
	FSlateBrush BackgroundBrush = FSlateNoResource();
	FSlateBrush SeparatorBrush = FSlateNoResource();
	FButtonStyle ButtonStyle;
	FCheckBoxStyle ToggleButton;
	FComboButtonStyle ComboButtonStyle;
	FTextBlockStyle LabelStyle;
	/** Slate units. */
	FVector2D IconSize = FVector2D(16.0, 16.0);
	FMargin BackgroundPadding;
	FMargin LabelPadding;
	FMargin ButtonPadding;
	FMargin SeparatorPadding;
	bool bShowLabels = true;

	static const FName TypeName;
	static const FToolBarStyle& GetDefault();
	const FName GetTypeName() const override { return TypeName; }

	FToolBarStyle& SetBackground(const FSlateBrush& InBackground);
	FToolBarStyle& SetSeparatorBrush(const FSlateBrush& InSeparator);
	FToolBarStyle& SetButtonStyle(const FButtonStyle& InButton);
	FToolBarStyle& SetToggleButtonStyle(const FCheckBoxStyle& InToggleButton);
	FToolBarStyle& SetComboButtonStyle(const FComboButtonStyle& InComboButtonStyle);
	FToolBarStyle& SetLabelStyle(const FTextBlockStyle& InLabelStyle);
	FToolBarStyle& SetIconSize(const FVector2D& InIconSize);
	FToolBarStyle& SetBackgroundPadding(const FMargin& InMargin);
	FToolBarStyle& SetLabelPadding(const FMargin& InMargin);
	FToolBarStyle& SetButtonPadding(const FMargin& InMargin);
	FToolBarStyle& SetSeparatorPadding(const FMargin& InMargin);
	FToolBarStyle& SetShowLabels(bool bInShowLabels);
};
