// SPDX-License-Identifier: MIT
/** Makes the objects of types that libraries registered, when they are first asked for. */
#include "UObject/ObjectAccess.h"
#include "UObject/ObjectNames.h"

#include <string_view>
#include <unordered_map>

namespace Host
{
namespace
{

/** Filled before main by the static objects of each library; a plain pointer, so their order does not matter. */
constinit const FTypeAtStart* FirstType = nullptr;

const FTypeAtStart* FindType(const char* CppName)
{
	static auto* const Index = new std::unordered_map<std::string_view, const FTypeAtStart*>();
	static const FTypeAtStart* Indexed = nullptr;
	// Libraries that were loaded since stand before what is known.
	const FTypeAtStart* const Newest = FirstType;
	for (const FTypeAtStart* Type = Newest; Type != Indexed; Type = Type->Next)
	{
		Index->emplace(Type->CppName, Type);
	}
	Indexed = Newest;
	const auto Found = Index->find(CppName);
	return Found == Index->end() ? nullptr : Found->second;
}

FObjectIdentity NativeIdentity(UClass* Class, const char* PackageName, FName Name)
{
	FObjectIdentity Identity;
	Identity.Class = Class;
	Identity.Outer = FindOrMakeNativePackage(PackageName);
	Identity.Name = Name;
	Identity.Flags = RF_Public | RF_MarkAsNative | RF_Transient;
	Identity.InternalFlags = EInternalObjectFlags::Native;
	return Identity;
}

} // namespace

void FTypeAtStart::Link()
{
	Next = FirstType;
	FirstType = this;
}

UObject* FindReflectedType(const char* CppName)
{
	const FTypeAtStart* Type = FindType(CppName);
	return Type ? Type->Get() : nullptr;
}

UClass* FindReflectedClass(const char* CppName)
{
	UObject* const Type = FindReflectedType(CppName);
	return Type && Type->IsA<UClass>() ? static_cast<UClass*>(Type) : UObject::StaticClass();
}

void RegisterAllTypes()
{
	for (const FTypeAtStart* Type = FirstType; Type; Type = Type->Next)
	{
		Type->Get();
	}
}

UPackage* FindOrMakeNativePackage(const char* Name)
{
	const FName PackageName(Name);
	if (UObject* Existing = FObjectNames::Find(nullptr, PackageName))
	{
		return static_cast<UPackage*>(Existing);
	}
	FObjectIdentity Identity;
	Identity.Class = UPackage::StaticClass();
	Identity.Name = PackageName;
	Identity.Flags = RF_Public | RF_MarkAsNative | RF_Transient;
	Identity.InternalFlags = EInternalObjectFlags::Native;
	return FObjectAccess::NewNative<UPackage>(Identity);
}

UClass* GetClass(FClassRegistration& Registration)
{
	if (!Registration.Class)
	{
		EnsureIntrinsicClasses();
	}
	return Registration.Class ? Registration.Class : FObjectAccess::MakeClass(Registration);
}

UScriptStruct* GetStruct(FStructRegistration& Registration)
{
	return Registration.Struct ? Registration.Struct : FObjectAccess::MakeStruct(Registration);
}

UEnum* GetEnum(FEnumRegistration& Registration)
{
	return Registration.Enum ? Registration.Enum : FObjectAccess::MakeEnum(Registration);
}

UClass* FObjectAccess::MakeClass(FClassRegistration& Registration)
{
	const FName Name(Registration.CppName + 1);
	UClass* const Class = NewNative<UClass>(NativeIdentity(UClass::StaticClass(), Registration.PackageName, Name));
	FillClass(Class, Registration);
	return Class;
}

void FObjectAccess::FillClass(UClass* Class, FClassRegistration& Registration)
{
	UClass* const Super = Registration.GetSuper ? Registration.GetSuper() : nullptr;
	Class->Registration = &Registration;
	Class->SuperStruct = Super;
	Class->PropertiesSize = static_cast<int32>(Registration.Size);
	Class->MinAlignment = static_cast<int32>(Registration.Alignment);
	Class->ClassFlags = Registration.Flags | CLASS_Native | (Super ? Super->ClassFlags & CLASS_Inherit : CLASS_None);
	Registration.Class = Class;
}

UScriptStruct* FObjectAccess::MakeStruct(FStructRegistration& Registration)
{
	UScriptStruct* const Struct = NewNative<UScriptStruct>(
		NativeIdentity(UScriptStruct::StaticClass(), Registration.PackageName, FName(Registration.Name)));
	Struct->Registration = &Registration;
	Struct->SuperStruct = Registration.GetSuper ? Registration.GetSuper() : nullptr;
	Struct->PropertiesSize = Registration.Ops.Size;
	Struct->MinAlignment = Registration.Ops.Alignment;
	Registration.Struct = Struct;
	return Struct;
}

UEnum* FObjectAccess::MakeEnum(FEnumRegistration& Registration)
{
	UEnum* const Enum =
		NewNative<UEnum>(NativeIdentity(UEnum::StaticClass(), Registration.PackageName, FName(Registration.Name)));
	Enum->Registration = &Registration;
	Registration.Enum = Enum;
	return Enum;
}

void FObjectAccess::Unregister(const std::vector<UObject*>& Objects)
{
	// Asking for these classes later would make them again.
	const UClass* const ClassClass = UClass::StaticClass();
	const UClass* const StructClass = UScriptStruct::StaticClass();
	const UClass* const EnumClass = UEnum::StaticClass();
	for (UObject* Object : Objects)
	{
		if (Object->GetClass() == ClassClass)
		{
			static_cast<UClass*>(Object)->Registration->Class = nullptr;
		}
		else if (Object->GetClass() == StructClass)
		{
			static_cast<UScriptStruct*>(Object)->Registration->Struct = nullptr;
		}
		else if (Object->GetClass() == EnumClass)
		{
			static_cast<UEnum*>(Object)->Registration->Enum = nullptr;
		}
	}
}

} // namespace Host
