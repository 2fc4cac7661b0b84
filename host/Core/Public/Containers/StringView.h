// SPDX-License-Identifier: MIT
/** Non-owning view of characters. */
#pragma once

#include "Containers/ContainersFwd.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"

namespace UE::Core::Private
{

int32 FindText(const TCHAR* Text, int32 TextLen, const TCHAR* Search, int32 SearchLen, ESearchCase::Type SearchCase,
	ESearchDir::Type SearchDir, int32 StartPosition);
int32 CompareText(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase);
int32 CompareText(const ANSICHAR* A, int32 LenA, const ANSICHAR* B, int32 LenB, ESearchCase::Type SearchCase);
uint32 HashTextIgnoringCase(const TCHAR* Text, int32 Len);

} // namespace UE::Core::Private

/** Pointer and length of characters that live elsewhere; not null-terminated. Comparison operators ignore case. */
template <typename CharType>
class TStringView
{
public:
	using ElementType = CharType;

	constexpr TStringView() = default;
	constexpr TStringView(const CharType* InData)
		: Data(InData)
		, Size(0)
	{
		while (InData && InData[Size])
		{
			++Size;
		}
	}
	constexpr TStringView(const CharType* InData, int32 InSize)
		: Data(InData)
		, Size(InSize)
	{
	}
	/** From a string type with Len() and operator*. */
	template <typename StringType>
	requires requires(const StringType& String)
	{
		static_cast<const CharType*>(*String);
		static_cast<int32>(String.Len());
	}
	TStringView(const StringType& String)
		: Data(*String)
		, Size(String.Len())
	{
	}

	constexpr const CharType* GetData() const { return Data; }
	constexpr int32 Len() const { return Size; }
	constexpr int32 Num() const { return Size; }
	constexpr bool IsEmpty() const { return Size == 0; }
	constexpr const CharType* begin() const { return Data; }
	constexpr const CharType* end() const { return Data + Size; }
	const CharType& operator[](int32 Index) const
	{
		checkf(Index >= 0 && Index < Size, TEXT("String index out of bounds: index %d into a string of length %d"),
			Index, Size);
		return Data[Index];
	}

	constexpr TStringView Mid(int32 Position, int32 CharCount = 0x7fffffff) const
	{
		const int32 First = Clamp(Position);
		const int32 Rest = Size - First;
		return TStringView(Data + First, CharCount < 0 ? 0 : (CharCount < Rest ? CharCount : Rest));
	}
	constexpr TStringView Left(int32 CharCount) const { return TStringView(Data, Clamp(CharCount)); }
	constexpr TStringView LeftChop(int32 CharCount) const { return Left(Size - (CharCount < 0 ? 0 : CharCount)); }
	constexpr TStringView Right(int32 CharCount) const { return Mid(Size - Clamp(CharCount)); }
	constexpr TStringView RightChop(int32 CharCount) const { return Mid(CharCount); }
	TStringView TrimStartAndEnd() const
	{
		int32 First = 0;
		int32 Last = Size;
		while (First < Last && TChar<CharType>::IsWhitespace(Data[First]))
		{
			++First;
		}
		while (Last > First && TChar<CharType>::IsWhitespace(Data[Last - 1]))
		{
			--Last;
		}
		return TStringView(Data + First, Last - First);
	}

	bool Equals(TStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return Size == Other.Size && Compare(Other, SearchCase) == 0;
	}
	int32 Compare(TStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return UE::Core::Private::CompareText(Data, Size, Other.Data, Other.Size, SearchCase);
	}
	bool StartsWith(TStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Left(Prefix.Size).Equals(Prefix, SearchCase);
	}
	bool EndsWith(TStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Right(Suffix.Size).Equals(Suffix, SearchCase);
	}
	int32 Find(
		TStringView Search, int32 StartPosition = 0, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return UE::Core::Private::FindText(
			Data, Size, Search.Data, Search.Size, SearchCase, ESearchDir::FromStart, StartPosition);
	}
	bool Contains(TStringView Search, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Find(Search, 0, SearchCase) != INDEX_NONE;
	}
	bool FindChar(CharType Char, int32& OutIndex) const
	{
		for (OutIndex = 0; OutIndex < Size; ++OutIndex)
		{
			if (Data[OutIndex] == Char)
			{
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}
	bool FindLastChar(CharType Char, int32& OutIndex) const
	{
		for (OutIndex = Size - 1; OutIndex >= 0; --OutIndex)
		{
			if (Data[OutIndex] == Char)
			{
				return true;
			}
		}
		return false;
	}

	friend bool operator==(TStringView A, TStringView B) { return A.Equals(B, ESearchCase::IgnoreCase); }
	friend bool operator<(TStringView A, TStringView B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }

private:
	constexpr int32 Clamp(int32 Index) const { return Index < 0 ? 0 : (Index < Size ? Index : Size); }

	const CharType* Data = nullptr;
	int32 Size = 0;
};

inline uint32 GetTypeHash(FStringView View)
{
	return UE::Core::Private::HashTextIgnoringCase(View.GetData(), View.Len());
}

constexpr FStringView operator""_SV(const TCHAR* String, std::size_t Size)
{
	return FStringView(String, static_cast<int32>(Size));
}
