// SPDX-License-Identifier: MIT
/** Reading and writing the pieces that values as text consist of. */
#pragma once

#include "Containers/UnrealString.h"

namespace Host
{

const TCHAR* SkipBlanks(const TCHAR* Text);

/** Appends a text, in quotes and with escapes when `bQuoted`. */
void AppendText(FString& Out, const FString& Text, bool bQuoted);

/**
 * Reads a text in quotes, or else everything up to the end, or up to "," or ")" of the list that it stands in.
 *
 * @param bInList  whether the text stands in a list
 * @return behind the text; null for quotes that are not closed
 */
const TCHAR* ReadText(const TCHAR* Text, bool bInList, FString& Out);

/** Reads letters, digits and the other characters of names and numbers. Empty when there is none. */
const TCHAR* ReadWord(const TCHAR* Text, FString& Out);

/** Shortest notation that reads back as the same number, with a point: "0.1", "2.0", "1e-07". */
FString NumberToText(double Number, bool bSingle);

/** Reads a number. @return behind it, or null when there is none */
const TCHAR* ReadNumber(const TCHAR* Text, double& Out);
const TCHAR* ReadInteger(const TCHAR* Text, int64& Out);

} // namespace Host
