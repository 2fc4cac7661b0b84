// SPDX-License-Identifier: MIT
/** FString, a growing UTF-16 text. */
#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Misc/VarArgs.h"

class FString;
struct FStringFormatArg;
using FStringFormatNamedArguments = TMap<FString, FStringFormatArg>;
using FStringFormatOrderedArguments = TArray<FStringFormatArg>;

/**
 * Text of UTF-16 units with its own storage.
 *
 * The comparison operators ignore the case of ASCII letters, as hashing does; Equals and Compare tell cases apart
 * unless asked otherwise. operator* gives the null-terminated text. Where a view is taken, const TCHAR*, FString and
 * FStringView all serve.
 */
class CORE_API FString
{
public:
	using ElementType = TCHAR;
	using AllocatorType = FDefaultAllocator;

	FString() = default;
	FString(const FString&) = default;
	FString(FString&&) = default;
	FString& operator=(const FString&) = default;
	FString& operator=(FString&&) = default;
	FString(const TCHAR* Str);
	/** From UTF-8. */
	FString(const ANSICHAR* Str);
	FString(const UTF8CHAR* Str);
	FString(int32 Len, const TCHAR* Str);
	FString(int32 Len, const ANSICHAR* Str);
	explicit FString(FStringView View);
	FString& operator=(const TCHAR* Str);
	FString& operator=(FStringView View);

	static FString ConstructFromPtrSize(const TCHAR* Ptr, int32 Size) { return FString(Size, Ptr); }

	// Contents

	const TCHAR* operator*() const { return Data.IsEmpty() ? TEXT("") : Data.GetData(); }
	int32 Len() const { return Data.IsEmpty() ? 0 : Data.Num() - 1; }
	bool IsEmpty() const { return Data.Num() <= 1; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	TCHAR& operator[](int32 Index)
	{
		CheckIndex(Index);
		return Data.GetData()[Index];
	}
	const TCHAR& operator[](int32 Index) const
	{
		CheckIndex(Index);
		return Data.GetData()[Index];
	}
	/** The characters and their terminating null; empty for an empty text. */
	TArray<TCHAR>& GetCharArray() { return Data; }
	const TArray<TCHAR>& GetCharArray() const { return Data; }
	SIZE_T GetAllocatedSize() const { return Data.GetAllocatedSize(); }
	TCHAR* begin() { return Data.GetData(); }
	const TCHAR* begin() const { return Data.GetData(); }
	TCHAR* end() { return Data.GetData() + Len(); }
	const TCHAR* end() const { return Data.GetData() + Len(); }

	void Empty(int32 Slack = 0) { Data.Empty(Slack ? Slack + 1 : 0); }
	void Reset(int32 NewReservedSize = 0) { Data.Reset(NewReservedSize ? NewReservedSize + 1 : 0); }
	void Reserve(int32 CharacterCount) { Data.Reserve(CharacterCount + 1); }
	void Shrink() { Data.Shrink(); }

	// Adding

	FString& Append(const TCHAR* Text, int32 Count);
	FString& Append(FStringView Text) { return Append(Text.GetData(), Text.Len()); }
	FString& AppendChars(const TCHAR* Text, int32 Count) { return Append(Text, Count); }
	FString& AppendChar(TCHAR Char);
	void AppendInt(int32 Number);
	FString& operator+=(FStringView Text) { return Append(Text); }
	FString& operator+=(const ANSICHAR* Text) { return Append(FString(Text)); }
	FString& operator+=(TCHAR Char) { return AppendChar(Char); }
	void InsertAt(int32 Index, TCHAR Char);
	void InsertAt(int32 Index, FStringView Text);
	void RemoveAt(int32 Index, int32 Count = 1, bool bAllowShrinking = true);
	/** Joins a path piece in place with exactly one "/" between; an empty piece leaves the text with a "/" at its end.
	 */
	void PathAppend(const TCHAR* Str, int32 StrLength);
	FString& operator/=(FStringView Text)
	{
		PathAppend(Text.GetData(), Text.Len());
		return *this;
	}

	// Comparing

	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool EndsWith(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool Contains(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	/** "*" stands for any characters, "?" for one. */
	bool MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool IsNumeric() const { return FCString::IsNumeric(**this); }
	bool ToBool() const { return FCString::ToBool(**this); }

	// Searching

	/**
	 * Index of a text, or INDEX_NONE.
	 *
	 * @param StartPosition  where the search starts; searching from the end, the last match that ends before it is
	 * found
	 */
	int32 Find(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	bool FindChar(TCHAR Char, int32& Index) const { return FStringView(*this).FindChar(Char, Index); }
	bool FindLastChar(TCHAR Char, int32& Index) const { return FStringView(*this).FindLastChar(Char, Index); }
	/** Cuts at the first (or last) InS, which goes to neither side. @return false, and no change, when it is not there
	 */
	bool Split(FStringView InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	/** Replaces OutArray by the pieces between delimiters. @return number of pieces */
	int32 ParseIntoArray(TArray<FString>& OutArray, FStringView Delimiter, bool bCullEmpty = true) const;
	int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool bCullEmpty = true) const;
	int32 ParseIntoArrayWS(TArray<FString>& OutArray) const;

	// Parts and changed copies; counts beyond the text are cut to it

	FString Left(int32 Count) const { return FString(FStringView(*this).Left(Count)); }
	FString LeftChop(int32 Count) const { return FString(FStringView(*this).LeftChop(Count)); }
	FString Right(int32 Count) const { return FString(FStringView(*this).Right(Count)); }
	FString RightChop(int32 Count) const { return FString(FStringView(*this).RightChop(Count)); }
	FString Mid(int32 Start, int32 Count = 0x7fffffff) const { return FString(FStringView(*this).Mid(Start, Count)); }
	void LeftInline(int32 Count, bool bAllowShrinking = true);
	void LeftChopInline(int32 Count, bool bAllowShrinking = true);
	void RightChopInline(int32 Count, bool bAllowShrinking = true);
	FString ToUpper() const;
	FString ToLower() const;
	void ToUpperInline();
	void ToLowerInline();
	FString TrimStart() const;
	FString TrimEnd() const;
	FString TrimStartAndEnd() const;
	void TrimStartAndEndInline();
	FString TrimQuotes() const;
	FString Reverse() const;
	FString LeftPad(int32 CharCount) const;
	FString RightPad(int32 CharCount) const;
	FString Replace(FStringView From, FStringView To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** @return number of replacements */
	int32 ReplaceInline(FStringView From, FStringView To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	void ReplaceCharInline(TCHAR From, TCHAR To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	// Making

	/**
	 * printf with the engine's conversions: %d %i %u %x %X %o %c %f %F %e %E %g %G %s %hs %S %p %%, flags, width and
	 * precision (also "*"). %s takes const TCHAR* (write *String), %hs and %S take const ANSICHAR*. An argument keeps
	 * its own width, so the length letters of the C library may be written or left out.
	 */
	template <typename... ArgTypes>
	static FString Printf(const TCHAR* Format, ArgTypes... Args)
	{
		const UE::Core::Private::FFormatArgument Arguments[] = {nullptr, Args...};
		FString Result;
		Result.AppendFormat(Format, Arguments + 1, sizeof...(Args));
		return Result;
	}
	template <typename... ArgTypes>
	FString& Appendf(const TCHAR* Format, ArgTypes... Args)
	{
		const UE::Core::Private::FFormatArgument Arguments[] = {nullptr, Args...};
		AppendFormat(Format, Arguments + 1, sizeof...(Args));
		return *this;
	}
	/** Puts arguments for {0}, {1}, ...; a number without an argument stays as written, "`{" is a plain brace. */
	static FString Format(const TCHAR* InFormatString, const FStringFormatOrderedArguments& InOrderedArguments);
	/** Puts arguments for {Name}. */
	static FString Format(const TCHAR* InFormatString, const FStringFormatNamedArguments& InNamedArguments);
	static FString FromInt(int32 Number);
	/** Digits in groups of three: 1,234. */
	static FString FormatAsNumber(int32 Number);
	/** Shortest plain notation with at most six digits behind the point and at least MinFractionalDigits. */
	static FString SanitizeFloat(double Number, int32 MinFractionalDigits = 1);
	static FString Chr(TCHAR Char);
	static FString ChrN(int32 NumCharacters, TCHAR Char);
	template <typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		return JoinBy(
			Range, Separator, [](const auto& Element) -> const auto& { return Element; });
	}
	template <typename RangeType, typename ProjectionType>
	static FString JoinBy(const RangeType& Range, const TCHAR* Separator, ProjectionType Projection)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += FStringView(Invoke(Projection, Element));
		}
		return Result;
	}

	/** Appends a print of typed arguments; the implementation of Printf. */
	void AppendFormat(const TCHAR* Format, const UE::Core::Private::FFormatArgument* Args, int32 NumArgs);

	friend bool operator==(const FString& A, const FString& B) { return A.Equals(B, ESearchCase::IgnoreCase); }
	friend bool operator==(const FString& A, const TCHAR* B) { return FStringView(A) == FStringView(B); }
	friend bool operator==(const FString& A, FStringView B) { return FStringView(A) == B; }
	friend bool operator<(const FString& A, const FString& B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }
	friend bool operator<=(const FString& A, const FString& B) { return !(B < A); }
	friend bool operator>(const FString& A, const FString& B) { return B < A; }
	friend bool operator>=(const FString& A, const FString& B) { return !(A < B); }

	friend FString operator+(const FString& A, const FString& B) { return Concat(A, B); }
	friend FString operator+(const FString& A, const TCHAR* B) { return Concat(A, B); }
	friend FString operator+(const FString& A, FStringView B) { return Concat(A, B); }
	friend FString operator+(const FString& A, TCHAR B) { return Concat(A, FStringView(&B, 1)); }
	friend FString operator+(FString&& A, const FString& B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(FString&& A, const TCHAR* B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(FString&& A, FStringView B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(FString&& A, TCHAR B) { return MoveTemp(A.AppendChar(B)); }
	friend FString operator+(const TCHAR* A, const FString& B) { return Concat(A, B); }
	friend FString operator+(FStringView A, const FString& B) { return Concat(A, B); }
	friend FString operator+(TCHAR A, const FString& B) { return Concat(FStringView(&A, 1), B); }
	friend FString operator/(const FString& A, FStringView B)
	{
		FString Result = A;
		Result.PathAppend(B.GetData(), B.Len());
		return Result;
	}
	friend FString operator/(const TCHAR* A, const FString& B) { return FString(A) / FStringView(B); }

	friend uint32 GetTypeHash(const FString& String) { return GetTypeHash(FStringView(String)); }

private:
	static FString Concat(FStringView A, FStringView B);
	void CheckIndex(int32 Index) const
	{
		checkf(
			IsValidIndex(Index), TEXT("String index out of bounds: index %d into a string of length %d"), Index, Len());
	}

	/** Characters with their terminating null, or nothing. */
	TArray<TCHAR> Data;
};

template <>
struct UE::Core::Private::TCanBitwiseRelocate<FString>
{
	static constexpr bool Value = true;
};

CORE_API FString LexToString(int32 Value);
CORE_API FString LexToString(uint32 Value);
CORE_API FString LexToString(int64 Value);
CORE_API FString LexToString(uint64 Value);
CORE_API FString LexToString(float Value);
CORE_API FString LexToString(double Value);
CORE_API FString LexToString(bool bValue);
inline FString LexToString(const FString& Value)
{
	return Value;
}
inline FString LexToString(const TCHAR* Value)
{
	return FString(Value);
}

CORE_API FString BytesToHex(const uint8* Bytes, int32 NumBytes);

#include "Containers/StringConv.h"
#include "Containers/StringFormatArg.h"
