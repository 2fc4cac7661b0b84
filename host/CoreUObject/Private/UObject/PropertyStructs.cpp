// SPDX-License-Identifier: MIT
#include "UObject/PropertyStructs.h"

#include "UObject/EnumText.h"
#include "UObject/ObjectAccess.h"
#include "UObject/PropertyIterator.h"
#include "UObject/PropertyText.h"

namespace Host
{

const TCHAR* ReadEnumValue(const TCHAR* Buffer, const UEnum* Enum, int64& OutValue)
{
	FString Word;
	const TCHAR* const End = ReadWord(Buffer, Word);
	const int32 Index = Enum ? Enum->GetIndexByNameString(Word) : INDEX_NONE;
	if (Index == INDEX_NONE)
	{
		return ReadInteger(Buffer, OutValue);
	}
	OutValue = Enum->GetValueByIndex(Index);
	return End;
}

void AppendEnumValue(FString& Out, const UEnum* Enum, int64 Value)
{
	const int32 Index = Enum ? Enum->GetIndexByValue(Value) : INDEX_NONE;
	Out += Index == INDEX_NONE ? LexToString(Value) : Enum->GetNameStringByIndex(Index);
}

} // namespace Host

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
	Host::AppendEnumValue(ValueStr, Enum, GetValue(PropertyValue));
}

const TCHAR* FEnumProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject*, int32) const
{
	int64 Value = 0;
	const TCHAR* const End = Host::ReadEnumValue(Buffer, Enum, Value);
	if (End)
	{
		SetValue(PropertyPtr, Value);
	}
	return End;
}

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
