// SPDX-License-Identifier: MIT
/** Operations on null-terminated texts. */
#pragma once

#include "Misc/Char.h"

namespace ESearchCase
{
enum Type
{
	CaseSensitive,
	IgnoreCase
};
}

namespace ESearchDir
{
enum Type
{
	FromStart,
	FromEnd
};
}

/**
 * Operations on null-terminated texts of one character type.
 *
 * Comparisons give a negative number, zero or a positive number. Case is ignored for ASCII letters. Numbers are read
 * from the start of the text, after blanks; what is no number gives 0.
 */
template <typename CharType>
struct CORE_API TCString
{
	static int32 Strlen(const CharType* String);
	static int32 Strcmp(const CharType* A, const CharType* B);
	static int32 Strncmp(const CharType* A, const CharType* B, SIZE_T Count);
	static int32 Stricmp(const CharType* A, const CharType* B);
	static int32 Strnicmp(const CharType* A, const CharType* B, SIZE_T Count);
	static const CharType* Strchr(const CharType* String, CharType Char);
	static const CharType* Strrchr(const CharType* String, CharType Char);
	static const CharType* Strstr(const CharType* String, const CharType* Find);
	static const CharType* Stristr(const CharType* String, const CharType* Find);
	/** Copies at most Count - 1 characters and ends the text. */
	static CharType* Strncpy(CharType* Dest, const CharType* Src, int32 Count);

	static int32 Atoi(const CharType* String);
	static int64 Atoi64(const CharType* String);
	static float Atof(const CharType* String);
	static double Atod(const CharType* String);
	static int32 Strtoi(const CharType* Start, CharType** End, int32 Base);
	static int64 Strtoi64(const CharType* Start, CharType** End, int32 Base);
	static uint64 Strtoui64(const CharType* Start, CharType** End, int32 Base);
	/** "True", "Yes", "On" and non-zero numbers, in any case. */
	static bool ToBool(const CharType* String);
	/** An optional sign, digits and at most one point, with at least one digit. */
	static bool IsNumeric(const CharType* String);
};

using FCString = TCString<TCHAR>;
using FCStringAnsi = TCString<ANSICHAR>;

extern template struct TCString<TCHAR>;
extern template struct TCString<ANSICHAR>;
