// SPDX-License-Identifier: MIT
/** Forward declarations of the shared pointers. */
#pragma once

#include "HAL/Platform.h"

/** Whether reference counts may be shared between threads. */
enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis;
