// SPDX-License-Identifier: MIT
#include "Internationalization/Text.h"
#include "Internationalization/TextData.h"

namespace
{

TSharedRef<const FTextData> MakeData(FString&& Shown, bool bInvariant = false)
{
	FTextData Data;
	Data.Shown = MoveTemp(Shown);
	Data.bCultureInvariant = bInvariant;
	return MakeShared<FTextData>(MoveTemp(Data));
}

ESearchCase::Type SearchCaseOf(ETextComparisonLevel::Type Level)
{
	// Primary and secondary strength do not look at the case.
	const bool bIgnoreCase = Level == ETextComparisonLevel::Primary || Level == ETextComparisonLevel::Secondary;
	return bIgnoreCase ? ESearchCase::IgnoreCase : ESearchCase::CaseSensitive;
}

} // namespace

FText::FText()
	: Data(GetEmpty().Data)
{
}

const FText& FText::GetEmpty()
{
	// Never destroyed: static texts share it.
	static const FText& Empty = *new FText(MakeData(FString(), true));
	return Empty;
}

FText FText::FromString(const FString& String)
{
	return String.IsEmpty() ? GetEmpty() : FText(MakeData(FString(String)));
}

FText FText::FromString(FString&& String)
{
	return String.IsEmpty() ? GetEmpty() : FText(MakeData(MoveTemp(String)));
}

FText FText::FromStringView(FStringView View)
{
	return FromString(FString(View));
}

FText FText::FromName(const FName& Name)
{
	return FromString(Name.ToString());
}

FText FText::AsCultureInvariant(const FString& String)
{
	return String.IsEmpty() ? GetEmpty() : FText(MakeData(FString(String), true));
}

const FString& FText::ToString() const
{
	return Data->Shown;
}

bool FText::IsEmptyOrWhitespace() const
{
	return FStringView(ToString()).TrimStartAndEnd().IsEmpty();
}

bool FText::IsCultureInvariant() const
{
	return Data->bCultureInvariant;
}

bool FText::ShouldGatherForLocalization() const
{
	return !Data->bCultureInvariant && !IsEmptyOrWhitespace();
}

FText FText::ToUpper() const
{
	return FromString(ToString().ToUpper());
}

FText FText::ToLower() const
{
	return FromString(ToString().ToLower());
}

FText FText::TrimPrecedingAndTrailing(const FText& Text)
{
	return FromString(Text.ToString().TrimStartAndEnd());
}

FText FText::Join(const FText& Delimiter, const TArray<FText>& Args)
{
	FString Result;
	for (int32 Index = 0; Index < Args.Num(); ++Index)
	{
		if (Index > 0)
		{
			Result += Delimiter.ToString();
		}
		Result += Args[Index].ToString();
	}
	return FromString(MoveTemp(Result));
}

bool FText::EqualTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel) const
{
	return CompareTo(Other, ComparisonLevel) == 0;
}

bool FText::EqualToCaseIgnored(const FText& Other) const
{
	return CompareToCaseIgnored(Other) == 0;
}

int32 FText::CompareTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel) const
{
	return ToString().Compare(Other.ToString(), SearchCaseOf(ComparisonLevel));
}

int32 FText::CompareToCaseIgnored(const FText& Other) const
{
	return ToString().Compare(Other.ToString(), ESearchCase::IgnoreCase);
}

bool FText::IdenticalTo(const FText& Other, ETextIdenticalModeFlags CompareModeFlags) const
{
	if (Data == Other.Data)
	{
		return true;
	}
	const bool bBothKeyed = Data->bHasKey && Other.Data->bHasKey;
	if (bBothKeyed && Data->Key.Equals(Other.Data->Key) && Data->Namespace.Equals(Other.Data->Namespace))
	{
		return Data->Shown.Equals(Other.Data->Shown);
	}
	const bool bBothInvariant = Data->bCultureInvariant && Other.Data->bCultureInvariant;
	const bool bCompareInvariants = (static_cast<uint8>(CompareModeFlags) &
										static_cast<uint8>(ETextIdenticalModeFlags::LexicalCompareInvariants)) != 0;
	return bBothInvariant && bCompareInvariants && Data->Shown.Equals(Other.Data->Shown);
}

FText FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(
	const TCHAR* InTextLiteral, const TCHAR* Namespace, const TCHAR* Key)
{
	FTextData Data;
	Data.Shown = InTextLiteral;
	Data.Namespace = Namespace;
	Data.Key = Key;
	Data.bHasKey = true;
	return FText(MakeShared<FTextData>(MoveTemp(Data)));
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data->bHasKey ? TOptional<FString>(Text.Data->Namespace) : TOptional<FString>();
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data->bHasKey ? TOptional<FString>(Text.Data->Key) : TOptional<FString>();
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	return Text.Data->bHasKey ? &Text.Data->Shown : nullptr;
}
