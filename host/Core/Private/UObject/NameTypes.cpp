// SPDX-License-Identifier: MIT
#include "UObject/NameTypes.h"
#include "Containers/Map.h"
#include "Internationalization/Text.h"

#include <atomic>
#include <mutex>
#include <shared_mutex>

namespace
{

constexpr uint32 BlockBits = 12;
constexpr uint32 BlockSize = 1u << BlockBits;
constexpr uint32 MaxBlocks = 1u << 14;

struct FNameEntry
{
	FString Text;
	/** The first entry whose text is the same but for case; itself for that entry. */
	uint32 ComparisonIndex;
};

/**
 * All names of the program.
 *
 * Entries live in blocks that never move, so reading one by its index takes no lock. Two indices lead to them: one by
 * the text without case and one by the exact text.
 */
class FNameTable
{
public:
	FNameTable()
	{
		const TCHAR* NoneText = TEXT("None");
		check(FindOrAdd(NoneText, FNAME_Add).ComparisonIndex == 0);
	}

	struct FFound
	{
		uint32 ComparisonIndex = 0;
		uint32 DisplayIndex = 0;
	};

	/** Entry of a text; NAME_None when it is only looked up and not there. */
	FFound FindOrAdd(FStringView Text, EFindName FindType)
	{
		{
			std::shared_lock Lock(Mutex);
			if (const FFound* Found = Find(Text, FindType))
			{
				return *Found;
			}
		}
		if (FindType == FNAME_Find)
		{
			return FFound();
		}
		std::unique_lock Lock(Mutex);
		if (const FFound* Found = Find(Text, FindType))
		{
			return *Found;
		}
		return Add(Text);
	}

	const FNameEntry& Get(uint32 Index) const
	{
		return Blocks[Index >> BlockBits].load(std::memory_order_acquire)[Index & (BlockSize - 1)];
	}

private:
	/** Key that tells cases apart. */
	struct FExactText
	{
		FStringView View;

		bool operator==(const FExactText& Other) const { return View.Equals(Other.View, ESearchCase::CaseSensitive); }
		friend uint32 GetTypeHash(const FExactText& Key) { return GetTypeHash(Key.View); }
	};

	const FFound* Find(FStringView Text, EFindName FindType) const
	{
		if (const FFound* Exact = ByExactText.Find(FExactText{Text}))
		{
			return Exact;
		}
		return FindType == FNAME_Find ? ByText.Find(Text) : nullptr;
	}

	FFound Add(FStringView Text)
	{
		const uint32 Index = NumEntries;
		const uint32 Block = Index >> BlockBits;
		checkf(Block < MaxBlocks, TEXT("The table of names is full"));
		if ((Index & (BlockSize - 1)) == 0)
		{
			Blocks[Block].store(new FNameEntry[BlockSize], std::memory_order_release);
		}
		FNameEntry& Entry = Blocks[Block].load(std::memory_order_relaxed)[Index & (BlockSize - 1)];
		Entry.Text = FString(Text);
		const FStringView Stored(Entry.Text);

		const FFound* FirstCase = ByText.Find(Stored);
		const FFound Found{FirstCase ? FirstCase->ComparisonIndex : Index, Index};
		Entry.ComparisonIndex = Found.ComparisonIndex;
		if (!FirstCase)
		{
			ByText.Add(Stored, Found);
		}
		ByExactText.Add(FExactText{Stored}, Found);
		++NumEntries;
		return Found;
	}

	std::shared_mutex Mutex;
	std::atomic<FNameEntry*> Blocks[MaxBlocks] = {};
	uint32 NumEntries = 0;
	TMap<FStringView, FFound> ByText;
	TMap<FExactText, FFound> ByExactText;
};

FNameTable& Table()
{
	// Never destroyed: names in static objects are printed until the very end.
	static FNameTable& Instance = *new FNameTable();
	return Instance;
}

/** Number part of a name in the internal form, cut off from the text; 0 when there is none. */
int32 CutNumber(FStringView& Text)
{
	constexpr int32 MaxDigits = 10;
	int32 FirstDigit = Text.Len();
	while (FirstDigit > 0 && FChar::IsDigit(Text[FirstDigit - 1]))
	{
		--FirstDigit;
	}
	const int32 NumDigits = Text.Len() - FirstDigit;
	// Something has to stand before the underscore.
	if (NumDigits == 0 || NumDigits > MaxDigits || FirstDigit < 2 || Text[FirstDigit - 1] != '_')
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	if (NumDigits > 1 && Text[FirstDigit] == '0')
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	int64 Number = 0;
	for (int32 Index = FirstDigit; Index < Text.Len(); ++Index)
	{
		Number = Number * 10 + FChar::ConvertCharDigitToInt(Text[Index]);
	}
	constexpr int64 Limit = 0x7fffffff;
	if (NAME_EXTERNAL_TO_INTERNAL(Number) >= Limit)
	{
		return NAME_NO_NUMBER_INTERNAL;
	}
	Text = Text.Left(FirstDigit - 1);
	return static_cast<int32>(NAME_EXTERNAL_TO_INTERNAL(Number));
}

} // namespace

FName::FName(const TCHAR* Name, EFindName FindType)
{
	Set(FStringView(Name), FindType);
}

FName::FName(const ANSICHAR* Name, EFindName FindType)
{
	Set(FString(Name), FindType);
}

FName::FName(int32 Len, const TCHAR* Name, EFindName FindType)
{
	Set(FStringView(Name, Len), FindType);
}

FName::FName(const FString& Name, EFindName FindType)
{
	Set(Name, FindType);
}

FName::FName(FStringView Name, EFindName FindType)
{
	Set(Name, FindType);
}

FName::FName(const TCHAR* Name, int32 InNumber)
{
	const FNameTable::FFound Found = Table().FindOrAdd(FStringView(Name), FNAME_Add);
	ComparisonIndex.Value = Found.ComparisonIndex;
	DisplayIndex.Value = Found.DisplayIndex;
	Number = InNumber;
}

FName::FName(const FName& Other, int32 InNumber)
	: ComparisonIndex(Other.ComparisonIndex)
	, DisplayIndex(Other.DisplayIndex)
	, Number(InNumber)
{
}

void FName::Set(FStringView Name, EFindName FindType)
{
	checkf(Name.Len() < NAME_SIZE, TEXT("A name may have at most %d characters, this one has %d"), NAME_SIZE - 1,
		Name.Len());
	if (Name.IsEmpty())
	{
		return;
	}
	const int32 NumberPart = CutNumber(Name);
	const FNameTable::FFound Found = Table().FindOrAdd(Name, FindType);
	const bool bIsMissing =
		FindType == FNAME_Find && Found.ComparisonIndex == 0 && !Name.Equals(TEXT("None"), ESearchCase::IgnoreCase);
	ComparisonIndex.Value = Found.ComparisonIndex;
	DisplayIndex.Value = Found.DisplayIndex;
	Number = bIsMissing ? NAME_NO_NUMBER_INTERNAL : NumberPart;
}

FString FName::ToString() const
{
	FString Result;
	AppendString(Result);
	return Result;
}

void FName::ToString(FString& Out) const
{
	Out.Reset();
	AppendString(Out);
}

void FName::AppendString(FString& Out) const
{
	Out.Append(Table().Get(DisplayIndex.Value).Text);
	if (Number != NAME_NO_NUMBER_INTERNAL)
	{
		Out.AppendChar('_');
		Out.AppendInt(NAME_INTERNAL_TO_EXTERNAL(Number));
	}
}

uint32 FName::GetStringLength() const
{
	return static_cast<uint32>(ToString().Len());
}

FString FName::GetPlainNameString() const
{
	return Table().Get(DisplayIndex.Value).Text;
}

bool FName::operator==(const TCHAR* Other) const
{
	return ToString() == Other;
}

bool FName::IsEqual(const FName& Other, ENameCase CompareMethod, bool bCompareNumber) const
{
	const bool bSameText = CompareMethod == ENameCase::IgnoreCase ? ComparisonIndex == Other.ComparisonIndex
																  : DisplayIndex == Other.DisplayIndex;
	return bSameText && (!bCompareNumber || Number == Other.Number);
}

int32 FName::Compare(const FName& Other) const
{
	if (ComparisonIndex == Other.ComparisonIndex)
	{
		return Number == Other.Number ? 0 : (Number < Other.Number ? -1 : 1);
	}
	return Table()
		.Get(ComparisonIndex.Value)
		.Text.Compare(Table().Get(Other.ComparisonIndex.Value).Text, ESearchCase::IgnoreCase);
}

bool FName::IsValidXName(const FString& InvalidChars, FText* OutReason) const
{
	const FString Text = ToString();
	FString Found;
	for (const TCHAR Char : Text)
	{
		int32 Index = INDEX_NONE;
		if (InvalidChars.FindChar(Char, Index) && !Found.FindChar(Char, Index))
		{
			Found.AppendChar(Char);
		}
	}
	if (!Found.IsEmpty() && OutReason)
	{
		*OutReason =
			FText::FromString(FString::Printf(TEXT("The name may not contain the following characters: %s"), *Found));
	}
	return Found.IsEmpty();
}
