// SPDX-License-Identifier: MIT
#include "UObject/Class.h"

#include "UObject/ObjectAccess.h"

const TArray<UEnum::FEntry>& UEnum::GetEntries() const
{
	EnsureDescribed();
	return Entries;
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return GetEntries().IsValidIndex(Index) ? FName(*(GetName() + TEXT("::") + Entries[Index].Name)) : FName();
}

FString UEnum::GetNameStringByIndex(int32 Index) const
{
	return GetEntries().IsValidIndex(Index) ? Entries[Index].Name : FString();
}

FText UEnum::GetDisplayNameTextByIndex(int32 Index) const
{
	if (!GetEntries().IsValidIndex(Index))
	{
		return FText::GetEmpty();
	}
	const FString* Found = Entries[Index].Metadata.Find(TEXT("DisplayName"));
	return FText::FromString(Found ? *Found : Host::NameToWords(Entries[Index].Name, false));
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	return GetEntries().IsValidIndex(Index) ? Entries[Index].Value : static_cast<int64>(INDEX_NONE);
}

int64 UEnum::GetValueByNameString(const FString& SearchString) const
{
	return GetValueByIndex(GetIndexByNameString(SearchString));
}

int32 UEnum::GetIndexByNameString(const FString& SearchString) const
{
	FString Name = SearchString;
	Name.RemoveFromStart(GetName() + TEXT("::"));
	return GetEntries().IndexOfByPredicate([&Name](const FEntry& Entry) { return Entry.Name == Name; });
}

int32 UEnum::GetIndexByValue(int64 Value) const
{
	return GetEntries().IndexOfByPredicate([Value](const FEntry& Entry) { return Entry.Value == Value; });
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return GetEntries().IsValidIndex(NameIndex) && Entries[NameIndex].Metadata.Contains(FName(Key));
}

void UEnum::DescribeMembers() const
{
	Host::FEnumBuilder Builder(*this);
	Registration->Describe(Builder);
}
