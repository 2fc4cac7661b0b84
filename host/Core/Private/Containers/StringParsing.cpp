// SPDX-License-Identifier: MIT
#include "Containers/UnrealString.h"

bool FString::Split(
	FStringView InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 Position = Find(InS, SearchCase, SearchDir);
	if (Position == INDEX_NONE)
	{
		return false;
	}
	// The sides may be this text itself, so both are made before either is assigned.
	FString NewLeft = Left(Position);
	FString NewRight = Mid(Position + InS.Len());
	if (LeftS)
	{
		*LeftS = MoveTemp(NewLeft);
	}
	if (RightS)
	{
		*RightS = MoveTemp(NewRight);
	}
	return true;
}

namespace
{

/** Cuts a text wherever FindDelimiter reports one: its position and length, or INDEX_NONE. */
template <typename FindDelimiterType>
int32 Cut(FStringView Text, TArray<FString>& OutArray, bool bCullEmpty, FindDelimiterType FindDelimiter)
{
	OutArray.Reset();
	int32 Position = 0;
	for (;;)
	{
		int32 DelimiterLen = 0;
		const int32 Delimiter = FindDelimiter(Position, DelimiterLen);
		const int32 End = Delimiter == INDEX_NONE ? Text.Len() : Delimiter;
		if (!bCullEmpty || End > Position)
		{
			OutArray.Emplace(Text.Mid(Position, End - Position));
		}
		if (Delimiter == INDEX_NONE)
		{
			return OutArray.Num();
		}
		Position = End + DelimiterLen;
	}
}

} // namespace

int32 FString::ParseIntoArray(TArray<FString>& OutArray, FStringView Delimiter, bool bCullEmpty) const
{
	// The array may hold this text.
	const FString Source = *this;
	const FStringView Text(Source);
	if (Text.IsEmpty())
	{
		OutArray.Reset();
		return 0;
	}
	return Cut(Text, OutArray, bCullEmpty,
		[&](int32 From, int32& OutLen)
		{
			OutLen = Delimiter.Len();
			return OutLen > 0 ? Text.Find(Delimiter, From) : static_cast<int32>(INDEX_NONE);
		});
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool bCullEmpty) const
{
	const FString Source = *this;
	const FStringView Text(Source);
	return Cut(Text, OutArray, bCullEmpty,
		[&](int32 From, int32& OutLen)
		{
			for (int32 Index = From; Index < Text.Len(); ++Index)
			{
				if (FChar::IsLinebreak(Text[Index]))
				{
					OutLen = Text.Mid(Index).StartsWith(TEXT("\r\n")) ? 2 : 1;
					return Index;
				}
			}
			return static_cast<int32>(INDEX_NONE);
		});
}

int32 FString::ParseIntoArrayWS(TArray<FString>& OutArray) const
{
	const FString Source = *this;
	const FStringView Text(Source);
	return Cut(Text, OutArray, true,
		[&](int32 From, int32& OutLen)
		{
			OutLen = 1;
			for (int32 Index = From; Index < Text.Len(); ++Index)
			{
				if (FChar::IsWhitespace(Text[Index]))
				{
					return Index;
				}
			}
			return static_cast<int32>(INDEX_NONE);
		});
}

bool FString::MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase) const
{
	const FStringView Text(*this);
	const auto AreEqual = [SearchCase](TCHAR A, TCHAR B)
	{ return A == B || (SearchCase == ESearchCase::IgnoreCase && FChar::ToLower(A) == FChar::ToLower(B)); };

	int32 TextIndex = 0;
	int32 WildIndex = 0;
	int32 LastStar = INDEX_NONE;
	int32 StarText = 0;
	while (TextIndex < Text.Len())
	{
		if (WildIndex < Wildcard.Len() && Wildcard[WildIndex] == '*')
		{
			LastStar = WildIndex++;
			StarText = TextIndex;
		}
		else if (WildIndex < Wildcard.Len() &&
				 (Wildcard[WildIndex] == '?' || AreEqual(Wildcard[WildIndex], Text[TextIndex])))
		{
			++WildIndex;
			++TextIndex;
		}
		else if (LastStar != INDEX_NONE)
		{
			// The last star takes one character more.
			WildIndex = LastStar + 1;
			TextIndex = ++StarText;
		}
		else
		{
			return false;
		}
	}
	while (WildIndex < Wildcard.Len() && Wildcard[WildIndex] == '*')
	{
		++WildIndex;
	}
	return WildIndex == Wildcard.Len();
}
