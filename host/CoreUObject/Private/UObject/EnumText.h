// SPDX-License-Identifier: MIT
/** Values of enumerations as text. */
#pragma once

#include "UObject/Class.h"

namespace Host
{

/** Reads the name of a value, or its number. @return behind it, or null when there is neither */
const TCHAR* ReadEnumValue(const TCHAR* Buffer, const UEnum* Enum, int64& OutValue);

/** Appends the name of a value, or its number when it has none. @param Enum  may be null */
void AppendEnumValue(FString& Out, const UEnum* Enum, int64 Value);

} // namespace Host
