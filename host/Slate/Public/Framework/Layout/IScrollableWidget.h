// SPDX-License-Identifier: MIT
#pragma once

// A widget that shows a part of what it holds.

#include "CoreMinimal.h"

class SWidget;

class IScrollableWidget
{
public:
	virtual ~IScrollableWidget() = default;

	virtual TSharedRef<SWidget> GetScrollWidget() = 0;
};
