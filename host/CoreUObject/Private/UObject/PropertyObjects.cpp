// SPDX-License-Identifier: MIT
#include "UObject/PropertyObjects.h"

#include "UObject/GCObject.h"
#include "UObject/PropertyText.h"

FString FObjectPropertyBase::GetCPPType() const
{
	return PropertyClass->GetPrefixCPP() + PropertyClass->GetName() + TEXT("*");
}

bool FObjectPropertyBase::Identical(const void* A, const void* B, uint32) const
{
	return GetObjectPropertyValue(A) == GetObjectPropertyValue(B);
}

void FObjectPropertyBase::ExportTextItem_Direct(
	FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32 PortFlags) const
{
	const UObject* Object = GetObjectPropertyValue(PropertyValue);
	const bool bQuoted = Object && (PortFlags & PPF_Delimited) != 0;
	Host::AppendText(ValueStr, Object ? Object->GetPathName() : FString(TEXT("None")), bQuoted);
}

const TCHAR* FObjectPropertyBase::ImportText_Direct(
	const TCHAR* Buffer, void* PropertyPtr, UObject*, int32 PortFlags) const
{
	FString Path;
	const TCHAR* const End = Host::ReadText(Buffer, (PortFlags & PPF_Delimited) != 0, Path);
	Path.TrimStartAndEndInline();
	if (!End || Path.IsEmpty() || Path == TEXT("None"))
	{
		if (End)
		{
			SetObjectPropertyValue(PropertyPtr, nullptr);
		}
		return End;
	}
	UObject* Object = StaticLoadObject(PropertyClass, nullptr, *Path, nullptr, LOAD_NoWarn);
	if (!Object)
	{
		return nullptr;
	}
	SetObjectPropertyValue(PropertyPtr, Object);
	return End;
}

void FObjectProperty::AddReferences(void* Value, const UObject* ReferencingObject, FReferenceCollector& Collector) const
{
	Collector.AddReferencedObject(*static_cast<UObject**>(Value), ReferencingObject, this);
}

void FObjectProperty::LinkParts()
{
	if (PropertyClass->HasAnyClassFlags(CLASS_DefaultToInstanced))
	{
		PropertyFlags |= CPF_InstancedReference | CPF_ExportObject;
	}
	if (HasAnyPropertyFlags(CPF_InstancedReference))
	{
		MetaDataMap.Add(FName(TEXT("EditInline")), FString(TEXT("true")));
	}
}
