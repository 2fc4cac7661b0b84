// SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"

namespace UE::Core::Private
{

namespace
{

template <typename CharType>
int32 CompareRanges(const CharType* A, int32 LenA, const CharType* B, int32 LenB, ESearchCase::Type SearchCase)
{
	const SIZE_T Shorter = static_cast<SIZE_T>(LenA < LenB ? LenA : LenB);
	for (SIZE_T Index = 0; Index < Shorter; ++Index)
	{
		CharType CharA = A[Index];
		CharType CharB = B[Index];
		if (SearchCase == ESearchCase::IgnoreCase)
		{
			CharA = TChar<CharType>::ToLower(CharA);
			CharB = TChar<CharType>::ToLower(CharB);
		}
		if (CharA != CharB)
		{
			return CharA < CharB ? -1 : 1;
		}
	}
	return LenA == LenB ? 0 : (LenA < LenB ? -1 : 1);
}

} // namespace

int32 CompareText(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase)
{
	return CompareRanges(A, LenA, B, LenB, SearchCase);
}

int32 CompareText(const ANSICHAR* A, int32 LenA, const ANSICHAR* B, int32 LenB, ESearchCase::Type SearchCase)
{
	return CompareRanges(A, LenA, B, LenB, SearchCase);
}

int32 FindText(const TCHAR* Text, int32 TextLen, const TCHAR* Search, int32 SearchLen, ESearchCase::Type SearchCase,
	ESearchDir::Type SearchDir, int32 StartPosition)
{
	const int32 LastStart = TextLen - SearchLen;
	const auto IsMatchAt = [&](int32 Start)
	{ return CompareText(Text + Start, SearchLen, Search, SearchLen, SearchCase) == 0; };

	if (SearchDir == ESearchDir::FromStart)
	{
		for (int32 Start = StartPosition < 0 ? 0 : StartPosition; Start <= LastStart; ++Start)
		{
			if (IsMatchAt(Start))
			{
				return Start;
			}
		}
		return INDEX_NONE;
	}

	int32 Start = StartPosition == INDEX_NONE || StartPosition > TextLen ? TextLen : StartPosition;
	for (Start -= SearchLen; Start >= 0; --Start)
	{
		if (IsMatchAt(Start))
		{
			return Start;
		}
	}
	return INDEX_NONE;
}

uint32 HashTextIgnoringCase(const TCHAR* Text, int32 Len)
{
	uint32 Hash = 2166136261u;
	for (int32 Index = 0; Index < Len; ++Index)
	{
		Hash = (Hash ^ FChar::ToLower(Text[Index])) * 16777619u;
	}
	return Hash;
}

} // namespace UE::Core::Private

FString::FString(const TCHAR* Str)
{
	Append(FStringView(Str));
}

FString::FString(const ANSICHAR* Str)
{
	if (Str)
	{
		const FUTF8ToTCHAR Wide(Str);
		Append(Wide.Get(), Wide.Length());
	}
}

FString::FString(const UTF8CHAR* Str)
	: FString(reinterpret_cast<const ANSICHAR*>(Str))
{
}

FString::FString(int32 Len, const TCHAR* Str)
{
	Append(Str, Len);
}

FString::FString(int32 Len, const ANSICHAR* Str)
{
	const FUTF8ToTCHAR Wide(Str, Len);
	Append(Wide.Get(), Wide.Length());
}

FString::FString(FStringView View)
{
	Append(View.GetData(), View.Len());
}

FString& FString::operator=(const TCHAR* Str)
{
	return *this = FStringView(Str);
}

FString& FString::operator=(FStringView View)
{
	// The view may show a part of this text.
	FString Copy(View);
	return *this = MoveTemp(Copy);
}

FString& FString::Append(const TCHAR* Text, int32 Count)
{
	if (Count <= 0)
	{
		return *this;
	}
	const int32 OldLen = Len();
	if (Text >= Data.GetData() && Text < Data.GetData() + Data.Num())
	{
		const int32 Offset = static_cast<int32>(Text - Data.GetData());
		Data.AddUninitialized(Count);
		Text = Data.GetData() + Offset;
	}
	else
	{
		Data.AddUninitialized(Data.IsEmpty() ? Count + 1 : Count);
	}
	FMemory::Memmove(Data.GetData() + OldLen, Text, sizeof(TCHAR) * static_cast<SIZE_T>(Count));
	Data.GetData()[OldLen + Count] = 0;
	return *this;
}

FString& FString::AppendChar(TCHAR Char)
{
	// A null would end the text for every reader of a null-terminated text.
	return Char ? Append(&Char, 1) : *this;
}

void FString::AppendInt(int32 Number)
{
	*this += FromInt(Number);
}

void FString::InsertAt(int32 Index, TCHAR Char)
{
	InsertAt(Index, FStringView(&Char, 1));
}

void FString::InsertAt(int32 Index, FStringView Text)
{
	if (Text.IsEmpty())
	{
		return;
	}
	if (IsEmpty())
	{
		Append(Text);
		return;
	}
	const FString Copy(Text);
	Data.Insert(*Copy, Copy.Len(), Index);
}

void FString::RemoveAt(int32 Index, int32 Count, bool bAllowShrinking)
{
	const int32 Rest = Len() - Index;
	Data.RemoveAt(Index, Count < Rest ? Count : Rest, bAllowShrinking);
}

void FString::PathAppend(const TCHAR* Str, int32 StrLength)
{
	const auto IsSlash = [](TCHAR Char) { return Char == '/' || Char == '\\'; };
	const bool bEndsWithSlash = !IsEmpty() && IsSlash(Data[Len() - 1]);
	const bool bStartsWithSlash = StrLength > 0 && IsSlash(*Str);
	const FString Piece(StrLength, Str);
	if (!IsEmpty() && !bEndsWithSlash && !bStartsWithSlash)
	{
		AppendChar('/');
	}
	Append(FStringView(Piece).RightChop(bEndsWithSlash && bStartsWithSlash ? 1 : 0));
}

FString FString::Concat(FStringView A, FStringView B)
{
	FString Result;
	Result.Reserve(A.Len() + B.Len());
	Result.Append(A);
	Result.Append(B);
	return Result;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return FStringView(*this).Equals(Other, SearchCase);
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return FStringView(*this).Compare(Other, SearchCase);
}

bool FString::StartsWith(FStringView Prefix, ESearchCase::Type SearchCase) const
{
	return FStringView(*this).StartsWith(Prefix, SearchCase);
}

bool FString::EndsWith(FStringView Suffix, ESearchCase::Type SearchCase) const
{
	return FStringView(*this).EndsWith(Suffix, SearchCase);
}

bool FString::Contains(FStringView SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
}

int32 FString::Find(
	FStringView SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	return UE::Core::Private::FindText(
		**this, Len(), SubStr.GetData(), SubStr.Len(), SearchCase, SearchDir, StartPosition);
}

void FString::LeftInline(int32 Count, bool bAllowShrinking)
{
	const int32 NewLen = Count < 0 ? 0 : Count;
	if (NewLen < Len())
	{
		RemoveAt(NewLen, Len() - NewLen, bAllowShrinking);
	}
}

void FString::LeftChopInline(int32 Count, bool bAllowShrinking)
{
	LeftInline(Len() - (Count < 0 ? 0 : Count), bAllowShrinking);
}

void FString::RightChopInline(int32 Count, bool bAllowShrinking)
{
	if (Count > 0 && !IsEmpty())
	{
		RemoveAt(0, Count, bAllowShrinking);
	}
}

FString FString::ToUpper() const
{
	FString Result = *this;
	Result.ToUpperInline();
	return Result;
}

FString FString::ToLower() const
{
	FString Result = *this;
	Result.ToLowerInline();
	return Result;
}

void FString::ToUpperInline()
{
	for (TCHAR& Char : Data)
	{
		Char = FChar::ToUpper(Char);
	}
}

void FString::ToLowerInline()
{
	for (TCHAR& Char : Data)
	{
		Char = FChar::ToLower(Char);
	}
}

FString FString::TrimStart() const
{
	int32 First = 0;
	while (First < Len() && FChar::IsWhitespace(Data[First]))
	{
		++First;
	}
	return RightChop(First);
}

FString FString::TrimEnd() const
{
	int32 Last = Len();
	while (Last > 0 && FChar::IsWhitespace(Data[Last - 1]))
	{
		--Last;
	}
	return Left(Last);
}

FString FString::TrimStartAndEnd() const
{
	return FString(FStringView(*this).TrimStartAndEnd());
}

void FString::TrimStartAndEndInline()
{
	*this = FStringView(*this).TrimStartAndEnd();
}

FString FString::TrimQuotes() const
{
	FStringView View(*this);
	if (View.StartsWith(TEXT("\"")))
	{
		View = View.RightChop(1);
	}
	if (View.EndsWith(TEXT("\"")))
	{
		View = View.LeftChop(1);
	}
	return FString(View);
}

FString FString::Reverse() const
{
	FString Result = *this;
	for (int32 Front = 0, Back = Len() - 1; Front < Back; ++Front, --Back)
	{
		Swap(Result[Front], Result[Back]);
	}
	return Result;
}

FString FString::LeftPad(int32 CharCount) const
{
	return ChrN(CharCount - Len(), ' ') + *this;
}

FString FString::RightPad(int32 CharCount) const
{
	return *this + ChrN(CharCount - Len(), ' ');
}

FString FString::Replace(FStringView From, FStringView To, ESearchCase::Type SearchCase) const
{
	FString Result = *this;
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

int32 FString::ReplaceInline(FStringView From, FStringView To, ESearchCase::Type SearchCase)
{
	int32 NumReplaced = 0;
	if (From.IsEmpty())
	{
		return NumReplaced;
	}
	FString Result;
	const FStringView Rest(*this);
	int32 Position = 0;
	for (;;)
	{
		const int32 Match = Rest.Find(From, Position, SearchCase);
		if (Match == INDEX_NONE)
		{
			break;
		}
		Result.Append(Rest.Mid(Position, Match - Position));
		Result.Append(To);
		Position = Match + From.Len();
		++NumReplaced;
	}
	if (NumReplaced > 0)
	{
		Result.Append(Rest.Mid(Position));
		*this = MoveTemp(Result);
	}
	return NumReplaced;
}

void FString::ReplaceCharInline(TCHAR From, TCHAR To, ESearchCase::Type SearchCase)
{
	const bool bIgnoreCase = SearchCase == ESearchCase::IgnoreCase;
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		TCHAR& Char = Data[Index];
		if (Char == From || (bIgnoreCase && FChar::ToLower(Char) == FChar::ToLower(From)))
		{
			Char = To;
		}
	}
}

bool FString::RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase)
{
	if (Prefix.IsEmpty() || !StartsWith(Prefix, SearchCase))
	{
		return false;
	}
	RightChopInline(Prefix.Len());
	return true;
}

bool FString::RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase)
{
	if (Suffix.IsEmpty() || !EndsWith(Suffix, SearchCase))
	{
		return false;
	}
	LeftChopInline(Suffix.Len());
	return true;
}

FString FString::Chr(TCHAR Char)
{
	return FString(1, &Char);
}

FString FString::ChrN(int32 NumCharacters, TCHAR Char)
{
	FString Result;
	for (int32 Index = 0; Index < NumCharacters; ++Index)
	{
		Result.AppendChar(Char);
	}
	return Result;
}
