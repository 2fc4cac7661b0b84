// SPDX-License-Identifier: MIT
#include "UObject/PropertyNumbers.h"

#include "UObject/EnumText.h"
#include "UObject/PropertyText.h"

FString FNumericProperty::GetNumericPropertyValueToString(const void* Data) const
{
	FString Result;
	FNumericProperty::ExportTextItem_Direct(Result, Data, nullptr, nullptr, PPF_None);
	return Result;
}

void FNumericProperty::SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const
{
	FNumericProperty::ImportText_Direct(Value, Data, nullptr, PPF_None);
}

void FNumericProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32) const
{
	if (IsFloatingPoint())
	{
		ValueStr += Host::NumberToText(GetFloatingPointPropertyValue(PropertyValue), ElementSize == sizeof(float));
	}
	else if (IsA<FUInt64Property>())
	{
		ValueStr += LexToString(*static_cast<const uint64*>(PropertyValue));
	}
	else
	{
		ValueStr += LexToString(GetSignedIntPropertyValue(PropertyValue));
	}
}

const TCHAR* FNumericProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32) const
{
	if (IsFloatingPoint())
	{
		double Number = 0;
		const TCHAR* const End = Host::ReadNumber(Buffer, Number);
		if (End)
		{
			SetFloatingPointPropertyValue(PropertyPtr, Number);
		}
		return End;
	}
	int64 Number = 0;
	const TCHAR* const End = Host::ReadInteger(Buffer, Number);
	if (End)
	{
		SetIntPropertyValue(PropertyPtr, Number);
	}
	return End;
}

FString FByteProperty::GetCPPType() const
{
	return Enum ? TEXT("TEnumAsByte<") + Enum->GetName() + TEXT(">") : FString(TEXT("uint8"));
}

void FByteProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32) const
{
	Host::AppendEnumValue(ValueStr, Enum, GetPropertyValue(PropertyValue));
}

const TCHAR* FByteProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32) const
{
	int64 Value = 0;
	const TCHAR* const End = Host::ReadEnumValue(Buffer, Enum, Value);
	if (End)
	{
		SetPropertyValue(PropertyPtr, static_cast<uint8>(Value));
	}
	return End;
}

void FBoolProperty::SetPropertyValue(void* A, bool Value) const
{
	if (Setter)
	{
		Setter(A, Value);
	}
	else
	{
		*static_cast<bool*>(A) = Value;
	}
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32) const
{
	return GetPropertyValue(A) == GetPropertyValue(B);
}

void FBoolProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32) const
{
	ValueStr += GetPropertyValue(PropertyValue) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32) const
{
	FString Word;
	const TCHAR* const End = Host::ReadWord(Buffer, Word);
	const bool bTrue = Word == TEXT("True") || Word == TEXT("Yes") || Word == TEXT("1");
	if (!bTrue && Word != TEXT("False") && Word != TEXT("No") && Word != TEXT("0"))
	{
		return nullptr;
	}
	SetPropertyValue(PropertyPtr, bTrue);
	return End;
}
