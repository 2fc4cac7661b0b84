// SPDX-License-Identifier: MIT
/** Delegates: variables that functions of any kind can be bound to. */
#pragma once

#include "Delegates/TDelegate.h"
#include "Delegates/TMulticastDelegate.h"
#include "Delegates/DelegateCombinations.h"

using FSimpleDelegate = TDelegate<void()>;
using FSimpleMulticastDelegate = TMulticastDelegate<void()>;
