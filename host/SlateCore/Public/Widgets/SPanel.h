// SPDX-License-Identifier: MIT
#pragma once

// Base of the widgets that arrange any number of children.

#include "Widgets/SWidget.h"

class SPanel : public SWidget
{
};
