// SPDX-License-Identifier: MIT
#pragma once

// Base of the widgets that have no children.

#include "Widgets/SWidget.h"

class SLeafWidget : public SWidget
{
public:
	FChildren* GetChildren() override { return &FNoChildren::Get(); }
};
