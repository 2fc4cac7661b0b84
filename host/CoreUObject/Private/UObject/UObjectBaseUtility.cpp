// SPDX-License-Identifier: MIT
#include "UObject/UObjectBaseUtility.h"

#include "UObject/ObjectAccess.h"
#include "UObject/Package.h"

namespace
{

const UObject* AsObject(const UObjectBaseUtility* Object)
{
	return static_cast<const UObject*>(Object);
}

} // namespace

bool UObjectBaseUtility::HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const
{
	return Host::FObjectAccess::ItemOf(this).HasAnyFlags(FlagsToCheck);
}

void UObjectBaseUtility::AddToRoot()
{
	Host::FObjectAccess::ItemOf(this).SetFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::RemoveFromRoot()
{
	Host::FObjectAccess::ItemOf(this).ClearFlags(EInternalObjectFlags::RootSet);
}

bool UObjectBaseUtility::IsRooted() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::MarkAsGarbage()
{
	checkf(!IsRooted(), TEXT("%s is in the root set and cannot be garbage"), *GetPathName());
	Host::FObjectAccess::ItemOf(this).SetFlags(EInternalObjectFlags::Garbage);
}

void UObjectBaseUtility::ClearGarbage()
{
	Host::FObjectAccess::ItemOf(this).ClearFlags(EInternalObjectFlags::Garbage);
}

bool UObjectBaseUtility::IsUnreachable() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::Unreachable);
}

FString UObjectBaseUtility::GetPathName(const UObject* StopOuter) const
{
	if (AsObject(this) == StopOuter)
	{
		return FString();
	}
	const UObject* Outer = GetOuter();
	if (!Outer || Outer == StopOuter)
	{
		return GetName();
	}
	// The object directly in a package stands behind a dot, what is inside of it behind a colon and then dots.
	const bool bFirstInside = Outer->GetClass() != UPackage::StaticClass() && Outer->GetOuter() &&
							  Outer->GetOuter()->GetClass() == UPackage::StaticClass();
	return Outer->GetPathName(StopOuter) + (bFirstInside ? TEXT(":") : TEXT(".")) + GetName();
}

FString UObjectBaseUtility::GetFullName(const UObject* StopOuter) const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName(StopOuter);
}

UPackage* UObjectBaseUtility::GetPackage() const
{
	const UObject* Top = AsObject(this);
	while (Top->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return Top->IsA<UPackage>() ? static_cast<UPackage*>(const_cast<UObject*>(Top)) : nullptr;
}

UObject* UObjectBaseUtility::GetTypedOuter(UClass* Target) const
{
	for (UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer->IsA(Target))
		{
			return Outer;
		}
	}
	return nullptr;
}

bool UObjectBaseUtility::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return false;
}

bool UObjectBaseUtility::MarkPackageDirty() const
{
	UPackage* Package = GetPackage();
	if (!Package || HasAnyFlags(RF_Transient) || Package->HasAnyFlags(RF_Transient))
	{
		return false;
	}
	Package->SetDirtyFlag(true);
	return true;
}

bool UObjectBaseUtility::IsTemplate(EObjectFlags TemplateTypes) const
{
	for (const UObject* Object = AsObject(this); Object; Object = Object->GetOuter())
	{
		if (Object->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

bool UObjectBaseUtility::IsA(const UClass* SomeBase) const
{
	return GetClass()->IsChildOf(SomeBase);
}
