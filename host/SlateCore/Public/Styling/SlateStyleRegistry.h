// SPDX-License-Identifier: MIT
#pragma once

// The style sets that are known by name.

#include "Styling/ISlateStyle.h"

class FSlateStyleRegistry
{
public:
	/** Not owned. A second set of the same name is a failed check. */
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const FName StyleSetName);

	/** Null when no set has that name. */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);
};
