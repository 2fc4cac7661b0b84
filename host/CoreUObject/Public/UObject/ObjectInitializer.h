// SPDX-License-Identifier: MIT
/** What a constructor of an object can ask and decide. */
#pragma once

#include "Containers/Array.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

/** Made by the object system around the constructor of one object; constructors pass it to their super class. */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer(UObject* InObj, UObject* InObjectArchetype, UClass* InClass);
	~FObjectInitializer();

	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;

	/** The one of the object that is being constructed; an assertion fails when there is none. */
	static FObjectInitializer& Get();

	UObject* GetObj() const { return Obj; }
	UObject* GetArchetype() const { return ObjectArchetype; }
	UClass* GetClass() const { return Class; }

	/** See UObject::CreateDefaultSubobject. */
	UObject* CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, const UClass* ReturnType,
		const UClass* ClassToCreateByDefault, bool bIsRequired = true, bool bIsTransient = false) const;
	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		const UClass* Class = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, Class, Class, true, bTransient));
	}

	/** Makes a super class create the part `SubobjectName` as a `T`; for the call of the super class's constructor. */
	template <class T>
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName) const
	{
		return SetDefaultSubobjectClass(SubobjectName, T::StaticClass());
	}
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName, const UClass* SubobjectClass) const;
	/** Makes a super class leave the part `SubobjectName` out; allowed for optional parts. */
	const FObjectInitializer& DoNotCreateDefaultSubobject(FName SubobjectName) const;

private:
	struct FOverride
	{
		FName Name;
		/** Null leaves the part out. */
		const UClass* SubobjectClass;
	};

	UObject* Obj;
	UObject* ObjectArchetype;
	UClass* Class;
	/** The one of the object whose constructor makes this object. */
	FObjectInitializer* Enclosing;
	/** The first entry of a name counts: derived classes write theirs first. */
	mutable TArray<FOverride> Overrides;
};
