// SPDX-License-Identifier: MIT
#pragma once

// A named set of brushes, colours, sizes and widget styles.

#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"

/** Look-up by key. A missing key gives a default and, the first time, a line in the log, never null. */
class ISlateStyle
{
public:
	virtual ~ISlateStyle() = default;

	virtual const FName& GetStyleSetName() const = 0;

	/**
	 * The brush of `PropertyName` with `Specifier` (or nothing) appended. A missing one is the default brush, which
	 * paints nothing; one whose image file is missing is a placeholder that can be seen.
	 */
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	/** As GetBrush, but `DefaultBrush` and no log line when it is missing. */
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* const DefaultBrush = nullptr) const = 0;
	virtual FVector2D GetVector(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	virtual const FLinearColor& GetColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	virtual float GetFloat(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	virtual const FSlateColor GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	virtual const FMargin& GetMargin(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** The type's default when there is no style of that name and type. */
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr) const
	{
		if (Specifier)
		{
			PropertyName = FName(*(PropertyName.ToString() + FString(Specifier)));
		}
		const FSlateWidgetStyle* Found = GetWidgetStyleInternal(WidgetStyleType::TypeName, PropertyName);
		return Found ? *static_cast<const WidgetStyleType*>(Found) : WidgetStyleType::GetDefault();
	}

protected:
	/** Null when there is no style of that name and type. */
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(
		const FName DesiredTypeName, const FName StyleName) const = 0;
};
