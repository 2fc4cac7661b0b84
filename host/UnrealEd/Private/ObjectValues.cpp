// SPDX-License-Identifier: MIT
#include "ObjectValues.h"

#include "HAL/UnrealMemory.h"
#include "UObject/GCObject.h"
#include "UObject/UnrealType.h"

namespace Host
{
namespace
{
/** A bit has no address; the property reads and writes it through its container. */
const FBoolProperty* AsBit(const FProperty* Property)
{
	const FBoolProperty* const Bool = CastField<const FBoolProperty>(Property);
	return Bool && !Bool->IsNativeBool() ? Bool : nullptr;
}

uint8* ElementOf(const FProperty* Property, void* Data, int32 Index)
{
	return static_cast<uint8*>(Data) + Property->ElementSize * Index;
}
} // namespace

FObjectValues::FObjectValues(const UObject& Object)
{
	for (TFieldIterator<FProperty> It(Object.GetClass()); It; ++It)
	{
		FProperty* const Property = *It;
		if (Property->HasAnyPropertyFlags(CPF_Transient))
		{
			continue;
		}
		FValue Value{Property, nullptr, false};
		if (const FBoolProperty* const Bit = AsBit(Property))
		{
			Value.bBit = Bit->GetPropertyValue_InContainer(&Object);
		}
		else
		{
			Value.Data = FMemory::Malloc(static_cast<SIZE_T>(Property->GetSize()), 16);
			for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
			{
				Property->InitializeValue(ElementOf(Property, Value.Data, Index));
			}
			Property->CopyCompleteValue(Value.Data, Property->ContainerPtrToValuePtr<void>(&Object));
		}
		Values.Add(Value);
	}
}

FObjectValues::~FObjectValues()
{
	for (const FValue& Value : Values)
	{
		if (Value.Data)
		{
			for (int32 Index = 0; Index < Value.Property->ArrayDim; ++Index)
			{
				Value.Property->DestroyValue(ElementOf(Value.Property, Value.Data, Index));
			}
			FMemory::Free(Value.Data);
		}
	}
}

bool FObjectValues::IsEqualTo(const UObject& Object) const
{
	for (const FValue& Value : Values)
	{
		if (const FBoolProperty* const Bit = AsBit(Value.Property))
		{
			if (Bit->GetPropertyValue_InContainer(&Object) != Value.bBit)
			{
				return false;
			}
			continue;
		}
		for (int32 Index = 0; Index < Value.Property->ArrayDim; ++Index)
		{
			if (!Value.Property->Identical(ElementOf(Value.Property, Value.Data, Index),
					Value.Property->ContainerPtrToValuePtr<void>(&Object, Index), PPF_None))
			{
				return false;
			}
		}
	}
	return true;
}

void FObjectValues::Restore(UObject& Object) const
{
	for (const FValue& Value : Values)
	{
		if (const FBoolProperty* const Bit = AsBit(Value.Property))
		{
			Bit->SetPropertyValue_InContainer(&Object, Value.bBit);
		}
		else
		{
			Value.Property->CopyCompleteValue(Value.Property->ContainerPtrToValuePtr<void>(&Object), Value.Data);
		}
	}
}

void FObjectValues::AddReferences(FReferenceCollector& Collector)
{
	for (const FValue& Value : Values)
	{
		if (Value.Data && Value.Property->ContainsObjectReference())
		{
			for (int32 Index = 0; Index < Value.Property->ArrayDim; ++Index)
			{
				Value.Property->AddReferences(ElementOf(Value.Property, Value.Data, Index), nullptr, Collector);
			}
		}
	}
}
} // namespace Host
