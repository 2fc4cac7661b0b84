// SPDX-License-Identifier: MIT
#include "UObject/PropertyTypes.h"

#include "UObject/ObjectAccess.h"
#include "UObject/PropertyIterator.h"
#include "UObject/PropertyText.h"

namespace
{

/** Reads the name of a value, or its number. */
const TCHAR* ReadEnumValue(const TCHAR* Buffer, const UEnum* Enum, int64& OutValue)
{
	FString Word;
	const TCHAR* const End = Host::ReadWord(Buffer, Word);
	const int32 Index = Enum ? Enum->GetIndexByNameString(Word) : INDEX_NONE;
	if (Index == INDEX_NONE)
	{
		return Host::ReadInteger(Buffer, OutValue);
	}
	OutValue = Enum->GetValueByIndex(Index);
	return End;
}

void AppendEnumValue(FString& Out, const UEnum* Enum, int64 Value)
{
	const int32 Index = Enum ? Enum->GetIndexByValue(Value) : INDEX_NONE;
	Out += Index == INDEX_NONE ? LexToString(Value) : Enum->GetNameStringByIndex(Index);
}

bool IsDelimited(int32 PortFlags)
{
	return (PortFlags & PPF_Delimited) != 0;
}

} // namespace

// Numbers

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
	AppendEnumValue(ValueStr, Enum, GetPropertyValue(PropertyValue));
}

const TCHAR* FByteProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32) const
{
	int64 Value = 0;
	const TCHAR* const End = ReadEnumValue(Buffer, Enum, Value);
	if (End)
	{
		SetPropertyValue(PropertyPtr, static_cast<uint8>(Value));
	}
	return End;
}

// Booleans

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

// Texts

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

// Enumerations

int64 FEnumProperty::GetValue(const void* Data) const
{
	switch (ElementSize)
	{
		case 1:
			return *static_cast<const uint8*>(Data);
		case 2:
			return *static_cast<const int16*>(Data);
		case 4:
			return *static_cast<const int32*>(Data);
		default:
			return *static_cast<const int64*>(Data);
	}
}

void FEnumProperty::SetValue(void* Data, int64 Value) const
{
	switch (ElementSize)
	{
		case 1:
			*static_cast<uint8*>(Data) = static_cast<uint8>(Value);
			break;
		case 2:
			*static_cast<int16*>(Data) = static_cast<int16>(Value);
			break;
		case 4:
			*static_cast<int32*>(Data) = static_cast<int32>(Value);
			break;
		default:
			*static_cast<int64*>(Data) = Value;
			break;
	}
}

FString FEnumProperty::GetCPPType() const
{
	return Enum ? Enum->GetName() : FString(TEXT("enum"));
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32) const
{
	return GetValue(A) == GetValue(B);
}

void FEnumProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32) const
{
	AppendEnumValue(ValueStr, Enum, GetValue(PropertyValue));
}

const TCHAR* FEnumProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32) const
{
	int64 Value = 0;
	const TCHAR* const End = ReadEnumValue(Buffer, Enum, Value);
	if (End)
	{
		SetValue(PropertyPtr, Value);
	}
	return End;
}

// Structs

FString FStructProperty::GetCPPType() const
{
	return Struct ? Struct->GetStructCPPName() : FString(TEXT("struct"));
}

bool FStructProperty::Identical(const void* A, const void* B, uint32) const
{
	if (Ops.Equals)
	{
		return Ops.Equals(A, B);
	}
	return Struct && Struct->CompareScriptStruct(A, B);
}

void FStructProperty::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject* Parent, int32 PortFlags) const
{
	ValueStr += TEXT('(');
	bool bFirst = true;
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			ValueStr += bFirst ? TEXT("") : TEXT(",");
			bFirst = false;
			ValueStr += It->GetName();
			if (It->ArrayDim > 1)
			{
				ValueStr += FString::Printf(TEXT("[%d]"), Index);
			}
			ValueStr += TEXT('=');
			It->ExportTextItem_Direct(ValueStr, It->ContainerPtrToValuePtr<void>(PropertyValue, Index), nullptr, Parent,
				PortFlags | PPF_Delimited);
		}
	}
	ValueStr += TEXT(')');
}

const TCHAR* FStructProperty::ImportText_Direct(
	const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags) const
{
	// Values go into a copy first, so that a mistake in the middle leaves the struct as it was.
	const TCHAR* At = Host::SkipBlanks(Buffer);
	if (!Struct || *At != TEXT('('))
	{
		return nullptr;
	}
	TArray<uint8> Memory;
	Memory.SetNumZeroed(Ops.Size + Ops.Alignment);
	const UPTRINT Address = reinterpret_cast<UPTRINT>(Memory.GetData()) + Ops.Alignment - 1;
	void* const Copy = reinterpret_cast<void*>(Address - Address % Ops.Alignment);
	Ops.Construct(Copy);
	Ops.Copy(Copy, PropertyPtr);
	At = Host::SkipBlanks(At + 1);
	while (At && *At != TEXT(')'))
	{
		FString Name;
		At = Host::SkipBlanks(Host::ReadWord(At, Name));
		int64 Index = 0;
		if (*At == TEXT('['))
		{
			At = Host::ReadInteger(At + 1, Index);
			At = At && *At == TEXT(']') ? Host::SkipBlanks(At + 1) : nullptr;
		}
		const FProperty* Property = Struct->FindPropertyByName(FName(*Name));
		if (!At || *At != TEXT('=') || !Property || Index < 0 || Index >= Property->ArrayDim)
		{
			At = nullptr;
			break;
		}
		At =
			Property->ImportText_Direct(At + 1, Property->ContainerPtrToValuePtr<void>(Copy, static_cast<int32>(Index)),
				OwnerObject, PortFlags | PPF_Delimited);
		At = At ? Host::SkipBlanks(At) : nullptr;
		if (At && *At == TEXT(','))
		{
			++At;
		}
		else if (At && *At != TEXT(')'))
		{
			At = nullptr;
		}
	}
	if (At)
	{
		Ops.Copy(PropertyPtr, Copy);
		++At;
	}
	Ops.Destroy(Copy);
	return At;
}

bool FStructProperty::ContainsObjectReference() const
{
	return Struct && Struct->MayHoldReferences();
}

void FStructProperty::AddReferences(void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const
{
	Host::ReportReferences(Struct, Value, ReferencingObject, Collector);
}
