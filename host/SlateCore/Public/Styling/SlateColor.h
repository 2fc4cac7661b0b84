// SPDX-License-Identifier: MIT
#pragma once

// A colour that is either given or taken from the style around the widget.

#include "CoreMinimal.h"

struct FSlateColor
{
	/** White. */
	FSlateColor() = default;
	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor)
	{
	}
	explicit FSlateColor(const FColor& InColor)
		: SpecifiedColor(InColor)
	{
	}

	static FSlateColor UseForeground() { return FSlateColor(ERule::Foreground); }
	static FSlateColor UseSubduedForeground() { return FSlateColor(ERule::SubduedForeground); }

	/** True when the colour was given and does not follow the style. */
	bool IsColorSpecified() const { return Rule == ERule::Specified; }
	/** The given colour; white when the style decides. */
	const FLinearColor& GetSpecifiedColor() const { return SpecifiedColor; }

	bool operator==(const FSlateColor& Other) const
	{
		return Rule == Other.Rule && (Rule != ERule::Specified || SpecifiedColor == Other.SpecifiedColor);
	}
	bool operator!=(const FSlateColor& Other) const { return !(*this == Other); }

private:
	enum class ERule : uint8
	{
		Specified,
		Foreground,
		SubduedForeground,
	};

	explicit FSlateColor(ERule InRule)
		: Rule(InRule)
	{
	}

	FLinearColor SpecifiedColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	ERule Rule = ERule::Specified;
};
