// SPDX-License-Identifier: MIT
#include "UObject/Class.h"

#include "UObject/ObjectAccess.h"
#include "UObject/UnrealType.h"

namespace Host
{

void (*FObjectAccess::ReferencesOf(const UClass* Class))(UObject*, FReferenceCollector&)
{
	Class->EnsureDescribed();
	return Class->ReferencesFunction ? Class->ReferencesFunction : &UObject::AddReferencedObjects;
}

const FStructOps& FObjectAccess::OpsOf(const UScriptStruct* Struct)
{
	return Struct->Registration->Ops;
}

void ReportReferences(
	const UStruct* Type, void* Container, const UObject* ReferencingObject, FReferenceCollector& Collector)
{
	for (const FProperty* Property : Type->GetReferenceProperties())
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			Property->AddReferences(
				Property->ContainerPtrToValuePtr<void>(Container, Index), ReferencingObject, Collector);
		}
	}
}

} // namespace Host

const FString* UField::FindMetaData(const FName& Key) const
{
	EnsureDescribed();
	return MetaDataMap.Find(Key);
}

const FString& UField::GetMetaData(const FName& Key) const
{
	static const FString Empty;
	const FString* Found = FindMetaData(Key);
	return Found ? *Found : Empty;
}

bool UField::GetBoolMetaData(const FName& Key) const
{
	const FString* Found = FindMetaData(Key);
	return Found && (Found->IsEmpty() || Found->ToBool());
}

void UField::SetMetaData(const FName& Key, const FString& Value)
{
	EnsureDescribed();
	MetaDataMap.Add(Key, Value);
}

FText UField::GetDisplayNameText() const
{
	const FString* Found = FindMetaData(TEXT("DisplayName"));
	return FText::FromString(Found ? *Found : Host::NameToWords(GetName(), false));
}

FText UField::GetToolTipText(bool bShortTooltip) const
{
	(void)bShortTooltip;
	const FString* Found = FindMetaData(TEXT("ToolTip"));
	return Found ? FText::FromString(*Found) : GetDisplayNameText();
}

UStruct::~UStruct()
{
	while (ChildProperties)
	{
		FField* const Next = ChildProperties->Next;
		delete ChildProperties;
		ChildProperties = Next;
	}
}

FField* UStruct::GetChildProperties() const
{
	EnsureDescribed();
	return ChildProperties;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (It->GetFName() == InName)
		{
			return *It;
		}
	}
	return nullptr;
}

const TArray<FProperty*>& UStruct::GetReferenceProperties() const
{
	if (References == EReferences::Unknown)
	{
		References = EReferences::Searching;
		for (TFieldIterator<FProperty> It(this); It; ++It)
		{
			if (It->ContainsObjectReference())
			{
				ReferenceProperties.Add(*It);
			}
		}
		References = EReferences::Known;
	}
	return ReferenceProperties;
}

bool UStruct::MayHoldReferences() const
{
	return References == EReferences::Searching || !GetReferenceProperties().IsEmpty();
}

void UScriptStruct::InitializeStruct(void* Dest) const
{
	Registration->Ops.Construct(Dest);
}

void UScriptStruct::DestroyStruct(void* Dest) const
{
	Registration->Ops.Destroy(Dest);
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src) const
{
	Registration->Ops.Copy(Dest, Src);
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B) const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			if (!It->Identical_InContainer(A, B, Index))
			{
				return false;
			}
		}
	}
	return true;
}

void UScriptStruct::DescribeMembers() const
{
	Host::FTypeBuilder Builder(*this);
	Registration->Describe(Builder);
}

UObject* UClass::GetDefaultObject(bool bCreateIfNeeded) const
{
	if (!ClassDefaultObject && bCreateIfNeeded && Registration->Construct)
	{
		FStaticConstructObjectParameters Params(this);
		Params.Outer = GetOuter();
		Params.Name = GetDefaultObjectName();
		Params.SetFlags = RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject;
		Params.InternalSetFlags = EInternalObjectFlags::Native;
		ClassDefaultObject = StaticConstructObject_Internal(Params);
	}
	return ClassDefaultObject;
}

const TCHAR* UClass::GetPrefixCPP() const
{
	return Registration->CppName[0] == 'A' ? TEXT("A") : TEXT("U");
}

void UClass::DescribeMembers() const
{
	if (const UClass* Super = GetSuperClass())
	{
		ReferencesFunction = Host::FObjectAccess::ReferencesOf(Super);
	}
	if (Registration->Describe)
	{
		Host::FTypeBuilder Builder(*this);
		Registration->Describe(Builder);
	}
}
