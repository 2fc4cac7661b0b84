// SPDX-License-Identifier: MIT
#pragma once

// The styles of the widget kinds, and the states of a check mark.

#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"

enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	Undetermined,
};

/** How a piece of text looks. */
struct FTextBlockStyle : public FSlateWidgetStyle
{
	FSlateColor ColorAndOpacity = FSlateColor::UseForeground();
	/** Slate units; zero for no shadow. */
	FVector2D ShadowOffset = FVector2D(0.0, 0.0);
	FLinearColor ShadowColorAndOpacity = FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);
	/** Point size of the font. */
	float FontSize = 10.0f;

	static const FName TypeName;

	static const FTextBlockStyle& GetDefault();

	const FName GetTypeName() const override { return TypeName; }

	FTextBlockStyle& SetColorAndOpacity(const FSlateColor& InColorAndOpacity);
	FTextBlockStyle& SetShadowOffset(const FVector2D& InShadowOffset);
	FTextBlockStyle& SetShadowColorAndOpacity(const FLinearColor& InShadowColorAndOpacity);
	FTextBlockStyle& SetFontSize(float InFontSize);
};
