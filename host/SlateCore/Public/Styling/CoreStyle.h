// SPDX-License-Identifier: MIT
#pragma once

// The style set that widgets fall back to.

#include "Styling/ISlateStyle.h"

class FCoreStyle
{
public:
	/** The set "CoreStyle". */
	static const ISlateStyle& Get();

	FCoreStyle() = delete;
};
