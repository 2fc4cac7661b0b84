// SPDX-License-Identifier: MIT
/** The classes that the object system itself consists of; they cannot register themselves before they exist. */
#include "UObject/ObjectAccess.h"
#include "UObject/ReflectedTypeName.h"

namespace Host
{
namespace
{

constexpr const char* CorePackage = "/Script/CoreUObject";

template <typename T>
void ConstructAt(const FObjectInitializer& ObjectInitializer)
{
	::new (ObjectInitializer.GetObj()) T();
}

template <typename T>
constexpr FClassRegistration MakeRegistration(const char* CppName, EClassFlags Flags, UClass* (*GetSuper)(),
	void (*Construct)(const FObjectInitializer&) = nullptr)
{
	return {CppName, CorePackage, sizeof(T), alignof(T), Flags | CLASS_Intrinsic | CLASS_Native, GetSuper, Construct,
		nullptr, nullptr};
}

// Constant initialisation: static objects of other libraries may ask for a class before anything here ran.
constinit FClassRegistration ObjectRegistration =
	MakeRegistration<UObject>("UObject", CLASS_Abstract, nullptr, &ConstructAt<UObject>);
constinit FClassRegistration FieldRegistration =
	MakeRegistration<UField>("UField", CLASS_Abstract, &UObject::StaticClass);
constinit FClassRegistration StructRegistration =
	MakeRegistration<UStruct>("UStruct", CLASS_Abstract, &UField::StaticClass);
constinit FClassRegistration ClassRegistration = MakeRegistration<UClass>("UClass", CLASS_None, &UStruct::StaticClass);
constinit FClassRegistration ScriptStructRegistration =
	MakeRegistration<UScriptStruct>("UScriptStruct", CLASS_None, &UStruct::StaticClass);
constinit FClassRegistration EnumRegistration = MakeRegistration<UEnum>("UEnum", CLASS_None, &UField::StaticClass);
constinit FClassRegistration PackageRegistration =
	MakeRegistration<UPackage>("UPackage", CLASS_None, &UObject::StaticClass, &ConstructAt<UPackage>);

/** Each super class stands before the classes derived from it. */
constexpr FClassRegistration* Registrations[] = {&ObjectRegistration, &FieldRegistration, &StructRegistration,
	&ClassRegistration, &ScriptStructRegistration, &EnumRegistration, &PackageRegistration};

const FTypeAtStart AtStart[] = {
	{TypeName<UObject>(), &UObject::StaticClass},
	{TypeName<UField>(), &UField::StaticClass},
	{TypeName<UStruct>(), &UStruct::StaticClass},
	{TypeName<UClass>(), &UClass::StaticClass},
	{TypeName<UScriptStruct>(), &UScriptStruct::StaticClass},
	{TypeName<UEnum>(), &UEnum::StaticClass},
	{TypeName<UPackage>(), &UPackage::StaticClass},
};

} // namespace

void EnsureIntrinsicClasses()
{
	if (ObjectRegistration.Class)
	{
		return;
	}
	// The class of a class and its package exist only when all are made; until then both are left open.
	for (FClassRegistration* Registration : Registrations)
	{
		FObjectIdentity Identity;
		Identity.Name = FName(Registration->CppName + 1);
		Identity.Flags = RF_Public | RF_MarkAsNative | RF_Transient;
		Identity.InternalFlags = EInternalObjectFlags::Native;
		FObjectAccess::FillClass(FObjectAccess::NewNative<UClass>(Identity), *Registration);
	}
	UPackage* const Package = FindOrMakeNativePackage(CorePackage);
	for (const FClassRegistration* Registration : Registrations)
	{
		FObjectAccess::SetIdentity(
			Registration->Class, ClassRegistration.Class, Package, Registration->Class->GetFName());
	}
}

} // namespace Host

UClass* UObject::StaticClass()
{
	return Host::GetClass(Host::ObjectRegistration);
}

UClass* UField::StaticClass()
{
	return Host::GetClass(Host::FieldRegistration);
}

UClass* UStruct::StaticClass()
{
	return Host::GetClass(Host::StructRegistration);
}

UClass* UClass::StaticClass()
{
	return Host::GetClass(Host::ClassRegistration);
}

UClass* UScriptStruct::StaticClass()
{
	return Host::GetClass(Host::ScriptStructRegistration);
}

UClass* UEnum::StaticClass()
{
	return Host::GetClass(Host::EnumRegistration);
}

UClass* UPackage::StaticClass()
{
	return Host::GetClass(Host::PackageRegistration);
}
