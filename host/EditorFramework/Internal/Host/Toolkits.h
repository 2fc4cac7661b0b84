// SPDX-License-Identifier: MIT
// The editor windows that are open, for the program around them.
#pragma once

#include "CoreMinimal.h"

class IToolkit;

namespace Host
{
/** In the order of opening. */
TArray<TSharedPtr<IToolkit>> OpenToolkits();

/** Closes every open toolkit without asking; at the end of the program. */
void CloseAllToolkits();
} // namespace Host
