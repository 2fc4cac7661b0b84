// SPDX-License-Identifier: MIT
#include "UObject/ObjectInitializer.h"

#include "UObject/Class.h"

namespace
{

/** Initializer of the innermost object under construction. */
FObjectInitializer* Current = nullptr;

} // namespace

FObjectInitializer::FObjectInitializer(UObject* InObj, UObject* InObjectArchetype, UClass* InClass)
	: Obj(InObj)
	, ObjectArchetype(InObjectArchetype)
	, Class(InClass)
	, Enclosing(Current)
{
	Current = this;
}

FObjectInitializer::~FObjectInitializer()
{
	Current = Enclosing;
}

FObjectInitializer& FObjectInitializer::Get()
{
	checkf(Current, TEXT("There is no object under construction: make objects with NewObject"));
	return *Current;
}

UObject* FObjectInitializer::CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, const UClass* ReturnType,
	const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const
{
	checkf(Outer == Obj, TEXT("Default subobjects can be created in the constructor only"));
	const UClass* SubobjectClass = ClassToCreateByDefault;
	for (const FOverride& Override : Overrides)
	{
		if (Override.Name == SubobjectFName)
		{
			SubobjectClass = Override.SubobjectClass;
			break;
		}
	}
	if (!SubobjectClass)
	{
		checkf(!bIsRequired, TEXT("The default subobject %s of %s is required"), *SubobjectFName.ToString(),
			*Class->GetName());
		return nullptr;
	}
	checkf(SubobjectClass->IsChildOf(ReturnType), TEXT("The default subobject %s must be a %s"),
		*SubobjectFName.ToString(), *ReturnType->GetName());
	FStaticConstructObjectParameters Params(SubobjectClass);
	Params.Outer = Outer;
	Params.Name = SubobjectFName;
	Params.SetFlags = RF_DefaultSubObject | Outer->GetMaskedFlags(RF_PropagateToSubObjects) |
					  (bIsTransient ? RF_Transient : RF_NoFlags);
	return StaticConstructObject_Internal(Params);
}

const FObjectInitializer& FObjectInitializer::SetDefaultSubobjectClass(
	FName SubobjectName, const UClass* SubobjectClass) const
{
	Overrides.Add({SubobjectName, SubobjectClass});
	return *this;
}

const FObjectInitializer& FObjectInitializer::DoNotCreateDefaultSubobject(FName SubobjectName) const
{
	Overrides.Add({SubobjectName, nullptr});
	return *this;
}
