// SPDX-License-Identifier: MIT
#pragma once

// A brush by the name of its style set and its key.

#include "Styling/SlateBrush.h"

struct FSlateIcon
{
	/** No icon. */
	FSlateIcon() = default;
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
		: StyleSetName(InStyleSetName)
		, StyleName(InStyleName)
		, bIsSet(true)
	{
	}

	bool IsSet() const { return bIsSet; }
	const FName& GetStyleSetName() const { return StyleSetName; }
	const FName& GetStyleName() const { return StyleName; }

	/** The brush; null when no icon is set, the style set is not registered or it lacks the key. */
	const FSlateBrush* GetIcon() const;

	bool operator==(const FSlateIcon& Other) const
	{
		return StyleSetName == Other.StyleSetName && StyleName == Other.StyleName && bIsSet == Other.bIsSet;
	}

private:
	FName StyleSetName;
	FName StyleName;
	bool bIsSet = false;
};
