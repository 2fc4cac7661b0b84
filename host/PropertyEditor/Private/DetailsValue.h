// SPDX-License-Identifier: MIT
// Values as text, and text as values.
#pragma once

#include "Host/Details.h"

class UEnum;

namespace Host
{
EDetailsValue KindOf(const FProperty& Property);

/** The enumeration of a Choice, else null. */
const UEnum* EnumOf(const FProperty& Property);
int64 ChoiceOf(const FProperty& Property, const void* Value);
/** Indices of the values of an enumeration that may be chosen. */
TArray<int32> ChoicesOf(const UEnum& Enum);

/** As a person reads it. */
FText TextOf(const FProperty& Property, const void* Value);

/**
 * Reads a value.
 *
 * @param Value      of that property; unchanged on failure
 * @param OutReason  why not, with what would do
 */
bool ReadValue(const FProperty& Property, const FString& Text, void* Value, UObject& Owner, FText& OutReason);

/** Limit of a number by its metadata. */
TOptional<double> LimitOf(const FProperty& Property, const TCHAR* Key);
} // namespace Host
