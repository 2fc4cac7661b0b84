// SPDX-License-Identifier: MIT
#include "Misc/CString.h"

#include <cstdlib>
#include <limits>
#include <type_traits>

namespace
{

template <typename CharType>
int32 Order(CharType A, CharType B)
{
	using FUnsigned = std::make_unsigned_t<std::conditional_t<sizeof(CharType) == 1, signed char, int16>>;
	return static_cast<int32>(static_cast<FUnsigned>(A)) - static_cast<int32>(static_cast<FUnsigned>(B));
}

/** Compares up to Count characters as Fold maps them. */
template <typename CharType, typename FoldType>
int32 CompareFolded(const CharType* A, const CharType* B, SIZE_T Count, FoldType Fold)
{
	for (SIZE_T Index = 0; Index < Count; ++Index)
	{
		const int32 Difference = Order(Fold(A[Index]), Fold(B[Index]));
		if (Difference != 0 || A[Index] == 0)
		{
			return Difference;
		}
	}
	return 0;
}

template <typename CharType, typename FoldType>
const CharType* FindFolded(const CharType* String, const CharType* Find, FoldType Fold)
{
	for (;; ++String)
	{
		SIZE_T Index = 0;
		while (Find[Index] && Fold(String[Index]) == Fold(Find[Index]))
		{
			++Index;
		}
		if (!Find[Index])
		{
			return String;
		}
		if (!*String)
		{
			return nullptr;
		}
	}
}

template <typename CharType>
CharType Same(CharType Char)
{
	return Char;
}

template <typename CharType>
int32 DigitValue(CharType Char)
{
	const CharType Lower = TChar<CharType>::ToLower(Char);
	if (TChar<CharType>::IsDigit(Char))
	{
		return Char - '0';
	}
	return Lower >= 'a' && Lower <= 'z' ? Lower - 'a' + 10 : 99;
}

constexpr uint64 MaxMagnitude = std::numeric_limits<uint64>::max();

/** Sign, base prefix and digits; a magnitude beyond 64 bits stays at the largest. */
template <typename CharType>
uint64 ParseMagnitude(const CharType* Start, const CharType** End, int32 Base, bool& bNegative)
{
	const CharType* Cursor = Start;
	while (TChar<CharType>::IsWhitespace(*Cursor))
	{
		++Cursor;
	}
	bNegative = *Cursor == '-';
	if (*Cursor == '-' || *Cursor == '+')
	{
		++Cursor;
	}
	const bool bHexPrefix =
		Cursor[0] == '0' && TChar<CharType>::ToLower(Cursor[1]) == 'x' && DigitValue(Cursor[2]) < 16;
	if ((Base == 0 || Base == 16) && bHexPrefix)
	{
		Base = 16;
		Cursor += 2;
	}
	else if (Base == 0)
	{
		Base = *Cursor == '0' ? 8 : 10;
	}

	uint64 Value = 0;
	const CharType* FirstDigit = Cursor;
	for (; DigitValue(*Cursor) < Base; ++Cursor)
	{
		const uint64 Digit = static_cast<uint64>(DigitValue(*Cursor));
		const bool bOverflow = Value > (MaxMagnitude - Digit) / static_cast<uint64>(Base);
		Value = bOverflow ? MaxMagnitude : Value * static_cast<uint64>(Base) + Digit;
	}
	if (End)
	{
		*End = Cursor == FirstDigit ? Start : Cursor;
	}
	return Value;
}

template <typename ResultType, typename CharType>
ResultType ParseSigned(const CharType* Start, CharType** End, int32 Base)
{
	bool bNegative = false;
	const CharType* Stop = Start;
	const uint64 Magnitude = ParseMagnitude(Start, &Stop, Base, bNegative);
	if (End)
	{
		*End = const_cast<CharType*>(Stop);
	}
	constexpr uint64 Largest = static_cast<uint64>(std::numeric_limits<ResultType>::max());
	if (bNegative)
	{
		return Magnitude > Largest ? std::numeric_limits<ResultType>::min() : -static_cast<ResultType>(Magnitude);
	}
	return Magnitude > Largest ? std::numeric_limits<ResultType>::max() : static_cast<ResultType>(Magnitude);
}

} // namespace

template <typename CharType>
int32 TCString<CharType>::Strlen(const CharType* String)
{
	int32 Length = 0;
	while (String[Length])
	{
		++Length;
	}
	return Length;
}

template <typename CharType>
int32 TCString<CharType>::Strcmp(const CharType* A, const CharType* B)
{
	return CompareFolded(A, B, static_cast<SIZE_T>(-1), Same<CharType>);
}

template <typename CharType>
int32 TCString<CharType>::Strncmp(const CharType* A, const CharType* B, SIZE_T Count)
{
	return CompareFolded(A, B, Count, Same<CharType>);
}

template <typename CharType>
int32 TCString<CharType>::Stricmp(const CharType* A, const CharType* B)
{
	return CompareFolded(A, B, static_cast<SIZE_T>(-1), TChar<CharType>::ToLower);
}

template <typename CharType>
int32 TCString<CharType>::Strnicmp(const CharType* A, const CharType* B, SIZE_T Count)
{
	return CompareFolded(A, B, Count, TChar<CharType>::ToLower);
}

template <typename CharType>
const CharType* TCString<CharType>::Strchr(const CharType* String, CharType Char)
{
	for (; *String != Char; ++String)
	{
		if (!*String)
		{
			return nullptr;
		}
	}
	return String;
}

template <typename CharType>
const CharType* TCString<CharType>::Strrchr(const CharType* String, CharType Char)
{
	const CharType* Found = nullptr;
	for (;; ++String)
	{
		if (*String == Char)
		{
			Found = String;
		}
		if (!*String)
		{
			return Found;
		}
	}
}

template <typename CharType>
const CharType* TCString<CharType>::Strstr(const CharType* String, const CharType* Find)
{
	return FindFolded(String, Find, Same<CharType>);
}

template <typename CharType>
const CharType* TCString<CharType>::Stristr(const CharType* String, const CharType* Find)
{
	return FindFolded(String, Find, TChar<CharType>::ToLower);
}

template <typename CharType>
CharType* TCString<CharType>::Strncpy(CharType* Dest, const CharType* Src, int32 Count)
{
	int32 Index = 0;
	for (; Index + 1 < Count && Src[Index]; ++Index)
	{
		Dest[Index] = Src[Index];
	}
	if (Count > 0)
	{
		Dest[Index] = 0;
	}
	return Dest;
}

template <typename CharType>
int32 TCString<CharType>::Atoi(const CharType* String)
{
	return Strtoi(String, nullptr, 10);
}

template <typename CharType>
int64 TCString<CharType>::Atoi64(const CharType* String)
{
	return Strtoi64(String, nullptr, 10);
}

template <typename CharType>
float TCString<CharType>::Atof(const CharType* String)
{
	return static_cast<float>(Atod(String));
}

template <typename CharType>
double TCString<CharType>::Atod(const CharType* String)
{
	// Numbers are ASCII, so the text is narrowed up to the first character that no number holds.
	constexpr int32 MaxLength = 512;
	char Narrow[MaxLength];
	int32 Length = 0;
	while (Length + 1 < MaxLength && String[Length] > 0 && String[Length] < 0x7F)
	{
		Narrow[Length] = static_cast<char>(String[Length]);
		++Length;
	}
	Narrow[Length] = '\0';
	return std::strtod(Narrow, nullptr);
}

template <typename CharType>
int32 TCString<CharType>::Strtoi(const CharType* Start, CharType** End, int32 Base)
{
	return ParseSigned<int32>(Start, End, Base);
}

template <typename CharType>
int64 TCString<CharType>::Strtoi64(const CharType* Start, CharType** End, int32 Base)
{
	return ParseSigned<int64>(Start, End, Base);
}

template <typename CharType>
uint64 TCString<CharType>::Strtoui64(const CharType* Start, CharType** End, int32 Base)
{
	bool bNegative = false;
	const CharType* Stop = Start;
	const uint64 Magnitude = ParseMagnitude(Start, &Stop, Base, bNegative);
	if (End)
	{
		*End = const_cast<CharType*>(Stop);
	}
	return bNegative ? 0 - Magnitude : Magnitude;
}

template <typename CharType>
bool TCString<CharType>::ToBool(const CharType* String)
{
	constexpr CharType True[] = {'t', 'r', 'u', 'e', 0};
	constexpr CharType Yes[] = {'y', 'e', 's', 0};
	constexpr CharType On[] = {'o', 'n', 0};
	return Stricmp(String, True) == 0 || Stricmp(String, Yes) == 0 || Stricmp(String, On) == 0 || Atoi(String) != 0;
}

template <typename CharType>
bool TCString<CharType>::IsNumeric(const CharType* String)
{
	if (*String == '-' || *String == '+')
	{
		++String;
	}
	bool bHasPoint = false;
	bool bHasDigit = false;
	for (; *String; ++String)
	{
		if (*String == '.' && !bHasPoint)
		{
			bHasPoint = true;
		}
		else if (TChar<CharType>::IsDigit(*String))
		{
			bHasDigit = true;
		}
		else
		{
			return false;
		}
	}
	return bHasDigit;
}

template struct TCString<TCHAR>;
template struct TCString<ANSICHAR>;
