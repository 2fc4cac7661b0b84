// SPDX-License-Identifier: MIT
/** What the object system itself may change in objects and classes. */
#pragma once

#include "UObject/Class.h"
#include "UObject/GeneratedCppIncludes.h"
#include "UObject/UObjectArray.h"

#include <vector>

namespace Host
{

/** Everything that the base constructor of an object has to know. */
struct FObjectIdentity
{
	UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
	EInternalObjectFlags InternalFlags = EInternalObjectFlags::None;
};

struct FObjectAccess
{
	/** Announces that an object is constructed at `Address` next. */
	static void Announce(void* Address, const FObjectIdentity& Identity);
	/** Takes an announcement back whose constructor did not run. */
	static void Retract();
	/** Raw memory for an instance of a class. */
	static void* Allocate(SIZE_T Size, SIZE_T Alignment);
	/** Runs the destructor and gives the memory back. */
	static void Delete(UObjectBase* Object);
	/** Runs the destructor and leaves the memory. */
	static void Destruct(UObjectBase* Object);

	static FUObjectItem& ItemOf(const UObjectBase* Object)
	{
		return *GUObjectArray.IndexToObject(static_cast<int32>(Object->GetUniqueID()));
	}
	static void SetIdentity(UObjectBase* Object, UClass* Class, UObject* Outer, FName Name);

	/** Makes a class, struct, enumeration or package that the program itself brings. */
	template <typename T>
	static T* NewNative(const FObjectIdentity& Identity)
	{
		void* Memory = Allocate(sizeof(T), alignof(T));
		Announce(Memory, Identity);
		return ::new (Memory) T();
	}

	static FClassRegistration*& RegistrationOf(const UClass* Class) { return const_cast<UClass*>(Class)->Registration; }
	static UObject*& DefaultObjectOf(const UClass* Class) { return Class->ClassDefaultObject; }
	static int32& NextNumberOf(const UClass* Class) { return Class->NextUniqueNumber; }
	/** Function that reports the native references of instances; never null. */
	static void (*ReferencesOf(const UClass* Class))(UObject*, FReferenceCollector&);

	static UClass* MakeClass(FClassRegistration& Registration);
	static void FillClass(UClass* Class, FClassRegistration& Registration);
	static UScriptStruct* MakeStruct(FStructRegistration& Registration);
	static UEnum* MakeEnum(FEnumRegistration& Registration);
	static const FStructOps& OpsOf(const UScriptStruct* Struct);

	/** Lets each plain class that keeps objects alive report them. */
	static void ReportGCObjects(FReferenceCollector& Collector);
	/** Makes the types that these objects describe forget them. */
	static void Unregister(const std::vector<UObject*>& Objects);
};

/** Makes the classes that the object system itself consists of, unless they are there. */
void EnsureIntrinsicClasses();

/** Makes the objects of all types that are registered so far. */
void RegisterAllTypes();

/** Package "/Script/..." of native types. */
UPackage* FindOrMakeNativePackage(const char* Name);

/** Reports all reflected references that a container of the type holds. */
void ReportReferences(
	const UStruct* Type, void* Container, const UObject* ReferencingObject, FReferenceCollector& Collector);

/** Name in words: "bUseMikkTSpace" is "Use Mikk TSpace" when it names a bool. */
FString NameToWords(const FString& Name, bool bIsBool);

} // namespace Host
