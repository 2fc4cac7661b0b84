// SPDX-License-Identifier: MIT
#include "UObject/UObjectGlobals.h"

#include "UObject/ObjectAccess.h"
#include "UObject/ObjectCopy.h"
#include "UObject/ObjectNames.h"
#include "UObject/Package.h"

namespace
{

using Host::FObjectAccess;

/** Ends an object without giving its memory back. */
void DestructInPlace(UObject* Object)
{
	Object->ConditionalBeginDestroy();
	checkf(Object->IsReadyForFinishDestroy(), TEXT("%s is replaced while something still uses it"),
		*Object->GetPathName());
	Object->ConditionalFinishDestroy();
	FObjectAccess::Destruct(Object);
}

/** Memory of an object that holds the name already, or null. Garbage of that name is renamed out of the way. */
UObject* MakeWayFor(const FStaticConstructObjectParameters& Params, FName Name, bool& bOutRefused)
{
	bOutRefused = false;
	UObject* Existing = Host::FObjectNames::Find(Params.Outer, Name);
	if (!Existing)
	{
		return nullptr;
	}
	if (Existing->HasAnyInternalFlags(EInternalObjectFlags::Garbage | EInternalObjectFlags::Unreachable))
	{
		const FName Free = MakeUniqueObjectName(Params.Outer, Existing->GetClass());
		FObjectAccess::SetIdentity(Existing, Existing->GetClass(), Params.Outer, Free);
		return nullptr;
	}
	bOutRefused = Existing->GetClass() != Params.Class;
	checkf(!bOutRefused, TEXT("Cannot replace existing object of a different class: %s by a %s"),
		*Existing->GetFullName(), *Params.Class->GetName());
	return bOutRefused ? nullptr : Existing;
}

bool CheckParameters(const FStaticConstructObjectParameters& Params)
{
	if (!Params.Class)
	{
		checkf(false, TEXT("NewObject needs a class"));
		return false;
	}
	const UClass* Class = Params.Class;
	const bool bDefaults = (Params.SetFlags & RF_ClassDefaultObject) != RF_NoFlags;
	const bool bAbstract =
		!FObjectAccess::RegistrationOf(Class)->Construct || (Class->HasAnyClassFlags(CLASS_Abstract) && !bDefaults);
	const bool bOuterMissing = !Params.Outer && Class != UPackage::StaticClass();
	const bool bTemplateUnfit = Params.Template && !Class->IsChildOf(Params.Template->GetClass());
	checkf(!bAbstract, TEXT("The class %s is abstract and has no instances"), *Class->GetName());
	checkf(!bOuterMissing, TEXT("An object of the class %s needs an outer"), *Class->GetName());
	checkf(!bTemplateUnfit, TEXT("%s is no template for a %s"), *Params.Template->GetFullName(), *Class->GetName());
	return !bAbstract && !bOuterMissing && !bTemplateUnfit;
}

/** Runs the constructor of the class over `Memory`; gives the memory back when it does not finish. */
void Construct(
	UClass* Class, void* Memory, const FStaticConstructObjectParameters& Params, const Host::FObjectIdentity& Identity)
{
	UObject* const Object = static_cast<UObject*>(Memory);
	FObjectInitializer Initializer(Object, Params.Template, Class);
	FObjectAccess::Announce(Memory, Identity);
	try
	{
		FObjectAccess::RegistrationOf(Class)->Construct(Initializer);
	}
	catch (...)
	{
		FObjectAccess::Retract();
		::operator delete(Memory);
		throw;
	}
}

} // namespace

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	checkf(!IsGarbageCollecting() || !Params.Outer || !Params.Outer->IsUnreachable(),
		TEXT("An object cannot be made in an outer that is being destroyed"));
	if (!CheckParameters(Params))
	{
		return nullptr;
	}
	UClass* const Class = const_cast<UClass*>(Params.Class);
	Host::FObjectIdentity Identity;
	Identity.Class = Class;
	Identity.Outer = Params.Outer;
	Identity.Name = Params.Name.IsNone() ? MakeUniqueObjectName(Params.Outer, Class) : Params.Name;
	Identity.Flags = Params.SetFlags;
	Identity.InternalFlags = Params.InternalSetFlags;

	bool bRefused = false;
	UObject* Existing = MakeWayFor(Params, Identity.Name, bRefused);
	if (bRefused)
	{
		return nullptr;
	}
	void* Memory = Existing;
	if (Existing)
	{
		if (Existing->IsRooted())
		{
			// Whoever put it there counts on the address.
			Identity.InternalFlags |= EInternalObjectFlags::RootSet;
		}
		DestructInPlace(Existing);
	}
	else
	{
		const Host::FClassRegistration* Registration = FObjectAccess::RegistrationOf(Class);
		Memory = FObjectAccess::Allocate(Registration->Size, Registration->Alignment);
	}
	Construct(Class, Memory, Params, Identity);
	UObject* const Object = static_cast<UObject*>(Memory);
	if (Params.Template)
	{
		Host::CopyTemplate(Params.Template, Object, Params.bCopyTransientsFromClassDefaults);
	}
	Object->PostInitProperties();
	return Object;
}

void CheckIsClassChildOf_Internal(const UClass* Parent, const UClass* Child)
{
	checkf(!Child || Child->IsChildOf(Parent), TEXT("A %s is no %s"), *Child->GetName(), *Parent->GetName());
}

FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName BaseName)
{
	const FString Base = (BaseName.IsNone() ? Class->GetFName() : BaseName).GetPlainNameString();
	int32& Number = FObjectAccess::NextNumberOf(Class);
	FName Name;
	do
	{
		// A package is looked up by its whole name, so it has to be a full one.
		Name = Parent || Class != UPackage::StaticClass()
				   ? FName(*Base, NAME_EXTERNAL_TO_INTERNAL(Number))
				   : FName(*(TEXT("/Temp/") + Base), NAME_EXTERNAL_TO_INTERNAL(Number));
		++Number;
	} while (Host::FObjectNames::Find(Parent, Name));
	return Name;
}

UObject* GetMutableDefault(UClass* Class)
{
	return Class->GetDefaultObject();
}
