// SPDX-License-Identifier: MIT
#include "UObject/Field.h"

#include "UObject/ObjectAccess.h"

namespace Host
{
namespace
{

bool IsUpper(TCHAR C)
{
	return C >= TEXT('A') && C <= TEXT('Z');
}

bool IsLower(TCHAR C)
{
	return C >= TEXT('a') && C <= TEXT('z');
}

bool IsDigit(TCHAR C)
{
	return C >= TEXT('0') && C <= TEXT('9');
}

} // namespace

FString NameToWords(const FString& Name, bool bIsBool)
{
	const int32 First = bIsBool && Name.Len() > 1 && Name[0] == TEXT('b') && IsUpper(Name[1]) ? 1 : 0;
	FString Result;
	for (int32 Index = First; Index < Name.Len(); ++Index)
	{
		const TCHAR C = Name[Index];
		if (C == TEXT('_'))
		{
			Result += TEXT(' ');
			continue;
		}
		const TCHAR Before = Index > First ? Name[Index - 1] : TEXT(' ');
		// A word begins where a capital or a digit follows a small letter: "UVChannel" and "LOD0" stay whole.
		const bool bWord = (IsUpper(C) || IsDigit(C)) && IsLower(Before);
		if (bWord && !Result.IsEmpty())
		{
			Result += TEXT(' ');
		}
		const bool bFirstLetter = Result.IsEmpty() || Result[Result.Len() - 1] == TEXT(' ');
		Result += bFirstLetter && IsLower(C) ? static_cast<TCHAR>(C - TEXT('a') + TEXT('A')) : C;
	}
	return Result;
}

} // namespace Host

const FFieldClass* FField::StaticClass()
{
	static const FFieldClass Class("Field", nullptr);
	return &Class;
}

UClass* FField::GetOwnerClass() const
{
	return Owner && Owner->IsA<UClass>() ? static_cast<UClass*>(Owner) : nullptr;
}

const FString& FField::GetMetaData(const FName& Key) const
{
	static const FString Empty;
	const FString* Found = FindMetaData(Key);
	return Found ? *Found : Empty;
}

bool FField::GetBoolMetaData(const FName& Key) const
{
	const FString* Found = FindMetaData(Key);
	return Found && (Found->IsEmpty() || Found->ToBool());
}

int32 FField::GetIntMetaData(const FName& Key) const
{
	return FCString::Atoi(*GetMetaData(Key));
}

float FField::GetFloatMetaData(const FName& Key) const
{
	return FCString::Atof(*GetMetaData(Key));
}

FText FField::GetDisplayNameText() const
{
	const FString* Found = FindMetaData(TEXT("DisplayName"));
	const bool bIsBool = GetClass()->GetFName() == FName(TEXT("BoolProperty"));
	return FText::FromString(Found ? *Found : Host::NameToWords(GetName(), bIsBool));
}

FText FField::GetToolTipText(bool bShortTooltip) const
{
	(void)bShortTooltip;
	const FString* Found = FindMetaData(TEXT("ToolTip"));
	return Found ? FText::FromString(*Found) : GetDisplayNameText();
}
