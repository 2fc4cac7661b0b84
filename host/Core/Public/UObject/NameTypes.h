// SPDX-License-Identifier: MIT
/** FName, a name that compares in constant time. */
#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

/** Names that the program knows before any text is added. */
enum class EName : uint32
{
	None = 0
};
inline constexpr EName NAME_None = EName::None;

/** Longest name in characters, the terminating null included. */
inline constexpr int32 NAME_SIZE = 1024;

/** A number part is stored with one added, so that zero says that there is none. */
inline constexpr int32 NAME_NO_NUMBER_INTERNAL = 0;
#define NAME_INTERNAL_TO_EXTERNAL(Number) ((Number)-1)
#define NAME_EXTERNAL_TO_INTERNAL(Number) ((Number) + 1)
inline constexpr int32 NAME_NO_NUMBER = NAME_INTERNAL_TO_EXTERNAL(NAME_NO_NUMBER_INTERNAL);

/** Characters that the name of an object may not hold. */
#define INVALID_NAME_CHARACTERS TEXT("\"' ,\n\r\t")
#define INVALID_OBJECTNAME_CHARACTERS TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")
#define INVALID_OBJECTPATH_CHARACTERS TEXT("\"' ,|&!~\n\r\t@#(){}[]=;^%$`")
/** Characters that the long name of a package may not hold. */
#define INVALID_LONGPACKAGE_CHARACTERS TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#")

enum class ENameCase : uint8
{
	CaseSensitive,
	IgnoreCase
};

enum EFindName
{
	/** Gives NAME_None when no such name was added before. */
	FNAME_Find,
	FNAME_Add
};

/** Place of a text in the table of names; the same for texts that differ in case only. */
struct FNameEntryId
{
	uint32 Value = 0;

	bool IsNone() const { return Value == 0; }
	bool operator==(const FNameEntryId& Other) const = default;
	bool operator<(const FNameEntryId& Other) const { return Value < Other.Value; }
	uint32 ToUnstableInt() const { return Value; }
	friend uint32 GetTypeHash(FNameEntryId Id) { return Id.Value; }
};

/**
 * Text in a table that the whole program shares, with an optional number behind it.
 *
 * "Shirt_3" is the text "Shirt" with the number 3; digits with a leading zero, or beyond 2147483645, belong to the
 * text. Names that differ in case only are equal; each keeps the case that it was made with for printing. Names may be
 * made on any thread, and never go away.
 */
class CORE_API FName
{
public:
	constexpr FName() = default;
	constexpr FName(EName Name)
		: ComparisonIndex{static_cast<uint32>(Name)}
		, DisplayIndex{static_cast<uint32>(Name)}
	{
	}
	FName(const TCHAR* Name, EFindName FindType = FNAME_Add);
	FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	FName(int32 Len, const TCHAR* Name, EFindName FindType = FNAME_Add);
	explicit FName(const FString& Name, EFindName FindType = FNAME_Add);
	explicit FName(FStringView Name, EFindName FindType = FNAME_Add);
	/** The whole text is the name; the number is in the internal form. */
	FName(const TCHAR* Name, int32 InNumber);
	/** The same text with another number in the internal form. */
	FName(const FName& Other, int32 InNumber);

	bool IsNone() const { return ComparisonIndex.IsNone() && Number == NAME_NO_NUMBER_INTERNAL; }
	bool IsValid() const { return true; }
	FString ToString() const;
	void ToString(FString& Out) const;
	void AppendString(FString& Out) const;
	uint32 GetStringLength() const;
	/** The text without the number. */
	FString GetPlainNameString() const;
	/** The number in the internal form: one more than what is printed, 0 when there is none. */
	int32 GetNumber() const { return Number; }
	void SetNumber(int32 NewNumber) { Number = NewNumber; }
	FNameEntryId GetComparisonIndex() const { return ComparisonIndex; }
	FNameEntryId GetDisplayIndex() const { return DisplayIndex; }

	bool operator==(const FName& Other) const
	{
		return ComparisonIndex == Other.ComparisonIndex && Number == Other.Number;
	}
	bool operator==(EName Name) const
	{
		return ComparisonIndex.Value == static_cast<uint32>(Name) && Number == NAME_NO_NUMBER_INTERNAL;
	}
	bool operator==(const TCHAR* Other) const;
	bool IsEqual(const FName& Other, ENameCase CompareMethod = ENameCase::IgnoreCase, bool bCompareNumber = true) const;
	/** Order that is quick and differs from run to run. */
	bool FastLess(const FName& Other) const
	{
		return ComparisonIndex == Other.ComparisonIndex ? Number < Other.Number
														: ComparisonIndex < Other.ComparisonIndex;
	}
	/** Alphabetical order without case, then by number. */
	bool LexicalLess(const FName& Other) const { return Compare(Other) < 0; }
	int32 Compare(const FName& Other) const;

	/** False with a reason when the name holds one of the characters. */
	bool IsValidXName(const FString& InvalidChars = INVALID_NAME_CHARACTERS, class FText* OutReason = nullptr) const;
	bool IsValidObjectName(class FText& OutReason) const
	{
		return IsValidXName(INVALID_OBJECTNAME_CHARACTERS, &OutReason);
	}

	friend uint32 GetTypeHash(const FName& Name)
	{
		return Name.ComparisonIndex.Value * 0x9e3779b1u + static_cast<uint32>(Name.Number);
	}

private:
	void Set(FStringView Name, EFindName FindType);

	FNameEntryId ComparisonIndex;
	FNameEntryId DisplayIndex;
	int32 Number = NAME_NO_NUMBER_INTERNAL;
};

/** Predicates for sorting. */
struct FNameLexicalLess
{
	bool operator()(const FName& A, const FName& B) const { return A.LexicalLess(B); }
};
struct FNameFastLess
{
	bool operator()(const FName& A, const FName& B) const { return A.FastLess(B); }
};

inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}
