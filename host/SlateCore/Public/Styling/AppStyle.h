// SPDX-License-Identifier: MIT
#pragma once

// The style set of the application itself.

#include "Styling/ISlateStyle.h"

class FAppStyle
{
public:
	static const ISlateStyle& Get();
	/** "EditorStyle". */
	static const FName GetAppStyleSetName();

	static const FSlateBrush* GetBrush(FName PropertyName, const ANSICHAR* Specifier = nullptr)
	{
		return Get().GetBrush(PropertyName, Specifier);
	}
	static FSlateColor GetSlateColor(FName PropertyName, const ANSICHAR* Specifier = nullptr)
	{
		return Get().GetSlateColor(PropertyName, Specifier);
	}
	static FMargin GetMargin(FName PropertyName, const ANSICHAR* Specifier = nullptr)
	{
		return Get().GetMargin(PropertyName, Specifier);
	}
	static float GetFloat(FName PropertyName, const ANSICHAR* Specifier = nullptr)
	{
		return Get().GetFloat(PropertyName, Specifier);
	}

	static const FSlateBrush* GetOptionalBrush(
		FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* const DefaultBrush = nullptr)
	{
		return Get().GetOptionalBrush(PropertyName, Specifier, DefaultBrush);
	}
	static FVector2D GetVector(FName PropertyName, const ANSICHAR* Specifier = nullptr)
	{
		return Get().GetVector(PropertyName, Specifier);
	}
	static const FLinearColor& GetColor(FName PropertyName, const ANSICHAR* Specifier = nullptr)
	{
		return Get().GetColor(PropertyName, Specifier);
	}

	template <typename WidgetStyleType>
	static const WidgetStyleType& GetWidgetStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr)
	{
		return Get().GetWidgetStyle<WidgetStyleType>(PropertyName, Specifier);
	}

	FAppStyle() = delete;
};
