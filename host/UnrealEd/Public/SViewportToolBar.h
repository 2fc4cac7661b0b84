// SPDX-License-Identifier: MIT
// Base of the tool bars over viewports.
#pragma once

#include "Widgets/SCompoundWidget.h"

class SViewportToolBar : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SViewportToolBar) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&) {}
};
