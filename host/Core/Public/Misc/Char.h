// SPDX-License-Identifier: MIT
/** Classes and case of single characters. */
#pragma once

#include "HAL/Platform.h"

/** Case mapping and classes cover ASCII; every other character is a letter of one case, except for blanks. */
template <typename CharType>
struct TChar
{
	static constexpr CharType ToUpper(CharType Char)
	{
		return Char >= 'a' && Char <= 'z' ? static_cast<CharType>(Char - ('a' - 'A')) : Char;
	}
	static constexpr CharType ToLower(CharType Char)
	{
		return Char >= 'A' && Char <= 'Z' ? static_cast<CharType>(Char + ('a' - 'A')) : Char;
	}
	static constexpr bool IsUpper(CharType Char) { return Char >= 'A' && Char <= 'Z'; }
	static constexpr bool IsLower(CharType Char) { return Char >= 'a' && Char <= 'z'; }
	static constexpr bool IsDigit(CharType Char) { return Char >= '0' && Char <= '9'; }
	static constexpr bool IsAlpha(CharType Char)
	{
		return IsUpper(Char) || IsLower(Char) || (sizeof(CharType) > 1 && static_cast<uint32>(Char) >= 0xC0u);
	}
	static constexpr bool IsAlnum(CharType Char) { return IsAlpha(Char) || IsDigit(Char); }
	static constexpr bool IsHexDigit(CharType Char)
	{
		return IsDigit(Char) || (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F');
	}
	static constexpr bool IsWhitespace(CharType Char)
	{
		return Char == ' ' || (Char >= '\t' && Char <= '\r') ||
			   (sizeof(CharType) > 1 && (static_cast<uint32>(Char) == 0xA0u || static_cast<uint32>(Char) == 0x3000u));
	}
	static constexpr bool IsLinebreak(CharType Char) { return Char == '\n' || Char == '\r'; }
	static constexpr bool IsPunct(CharType Char)
	{
		return (Char >= '!' && Char <= '/') || (Char >= ':' && Char <= '@') || (Char >= '[' && Char <= '`') ||
			   (Char >= '{' && Char <= '~');
	}
	static constexpr bool IsPrint(CharType Char) { return static_cast<uint32>(Char) >= 0x20u && Char != 0x7F; }
	static constexpr bool IsIdentifier(CharType Char) { return IsAlnum(Char) || Char == '_'; }
	static constexpr int32 ConvertCharDigitToInt(CharType Char) { return static_cast<int32>(Char) - '0'; }
};

using FChar = TChar<TCHAR>;
using FCharAnsi = TChar<ANSICHAR>;
