// SPDX-License-Identifier: MIT
#pragma once

// The widget that shows nothing.

#include "Widgets/SWidget.h"

class SNullWidget
{
public:
	/** One for all: compare with it to ask whether a slot is empty. It has no parent. */
	static TSharedRef<SWidget> NullWidget;
};
