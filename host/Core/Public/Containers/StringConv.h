// SPDX-License-Identifier: MIT
/** Conversions between narrow and wide texts. */
#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"

/**
 * Narrow copy of a wide text in UTF-8; lives as long as the object, in most uses to the end of the full expression.
 *
 * A half of a surrogate pair becomes U+FFFD.
 */
class CORE_API FTCHARToUTF8
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source);
	FTCHARToUTF8(const TCHAR* Source, int32 SourceLen);
	explicit FTCHARToUTF8(FStringView Source)
		: FTCHARToUTF8(Source.GetData(), Source.Len())
	{
	}

	const ANSICHAR* Get() const { return Buffer.GetData(); }
	operator const ANSICHAR*() const { return Get(); }
	/** Number of bytes without the terminating null. */
	int32 Length() const { return Buffer.Num() - 1; }

private:
	TArray<ANSICHAR, TInlineAllocator<128>> Buffer;
};

/** Wide copy of a UTF-8 text; a byte that is no part of a character becomes U+FFFD. */
class CORE_API FUTF8ToTCHAR
{
public:
	explicit FUTF8ToTCHAR(const ANSICHAR* Source);
	FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen);
	explicit FUTF8ToTCHAR(const UTF8CHAR* Source)
		: FUTF8ToTCHAR(reinterpret_cast<const ANSICHAR*>(Source))
	{
	}

	const TCHAR* Get() const { return Buffer.GetData(); }
	operator const TCHAR*() const { return Get(); }
	/** Number of UTF-16 units without the terminating null. */
	int32 Length() const { return Buffer.Num() - 1; }

private:
	TArray<TCHAR, TInlineAllocator<128>> Buffer;
};

namespace UE::Core::Private
{

/** A text that needs no conversion. */
template <typename CharType>
class TStringPassthru
{
public:
	TStringPassthru(const CharType* InText, int32 InLen)
		: Text(InText)
		, TextLen(InLen)
	{
	}
	const CharType* Get() const { return Text; }
	int32 Length() const { return TextLen; }

private:
	const CharType* Text;
	int32 TextLen;
};

} // namespace UE::Core::Private

/** Text in another character type: StringCast<ANSICHAR>(*String).Get(). */
template <typename To, typename From>
auto StringCast(const From* Str, int32 Len)
{
	if constexpr (sizeof(To) == sizeof(From))
	{
		return UE::Core::Private::TStringPassthru<To>(reinterpret_cast<const To*>(Str), Len);
	}
	else if constexpr (sizeof(To) == 1)
	{
		return FTCHARToUTF8(Str, Len);
	}
	else
	{
		return FUTF8ToTCHAR(reinterpret_cast<const ANSICHAR*>(Str), Len);
	}
}
template <typename To, typename From>
auto StringCast(const From* Str)
{
	return StringCast<To>(Str, TStringView<From>(Str).Len());
}

// The results live to the end of the full expression.
#define TCHAR_TO_UTF8(Str) (const_cast<ANSICHAR*>(FTCHARToUTF8(static_cast<const TCHAR*>(Str)).Get()))
#define TCHAR_TO_ANSI(Str) TCHAR_TO_UTF8(Str)
#define UTF8_TO_TCHAR(Str) (const_cast<TCHAR*>(FUTF8ToTCHAR(reinterpret_cast<const ANSICHAR*>(Str)).Get()))
#define ANSI_TO_TCHAR(Str) UTF8_TO_TCHAR(Str)
