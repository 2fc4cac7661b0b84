// SPDX-License-Identifier: MIT
#include "UObject/PropertyTexts.h"

#include "UObject/PropertyText.h"

namespace
{

bool IsDelimited(int32 PortFlags)
{
	return (PortFlags & PPF_Delimited) != 0;
}

} // namespace

bool FStrProperty::Identical(const void* A, const void* B, uint32) const
{
	return GetPropertyValue(A).Equals(GetPropertyValue(B), ESearchCase::CaseSensitive);
}

void FStrProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32 PortFlags) const
{
	Host::AppendText(ValueStr, GetPropertyValue(PropertyValue), IsDelimited(PortFlags));
}

const TCHAR* FStrProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32 PortFlags) const
{
	FString Text;
	const TCHAR* const End = Host::ReadText(Buffer, IsDelimited(PortFlags), Text);
	if (End)
	{
		SetPropertyValue(PropertyPtr, Text);
	}
	return End;
}

bool FNameProperty::Identical(const void* A, const void* B, uint32) const
{
	return GetPropertyValue(A) == GetPropertyValue(B);
}

void FNameProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32 PortFlags) const
{
	Host::AppendText(ValueStr, GetPropertyValue(PropertyValue).ToString(), IsDelimited(PortFlags));
}

const TCHAR* FNameProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32 PortFlags) const
{
	FString Text;
	const TCHAR* const End = Host::ReadText(Buffer, IsDelimited(PortFlags), Text);
	if (!End || Text.Len() >= NAME_SIZE)
	{
		return nullptr;
	}
	SetPropertyValue(PropertyPtr, FName(*Text));
	return End;
}

bool FTextProperty::Identical(const void* A, const void* B, uint32) const
{
	return GetPropertyValue(A).ToString().Equals(GetPropertyValue(B).ToString(), ESearchCase::CaseSensitive);
}

void FTextProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32 PortFlags) const
{
	Host::AppendText(ValueStr, GetPropertyValue(PropertyValue).ToString(), IsDelimited(PortFlags));
}

const TCHAR* FTextProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32 PortFlags) const
{
	FString Text;
	const TCHAR* const End = Host::ReadText(Buffer, IsDelimited(PortFlags), Text);
	if (End)
	{
		SetPropertyValue(PropertyPtr, FText::FromString(Text));
	}
	return End;
}
