// SPDX-License-Identifier: MIT
#pragma once

// Delegates that several widgets share.

#include "Delegates/DelegateCombinations.h"
#include "Templates/SharedPointer.h"

class SWidget;

/** Makes the content of a menu at the moment that it opens. */
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent);
