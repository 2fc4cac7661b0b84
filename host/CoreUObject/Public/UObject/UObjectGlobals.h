// SPDX-License-Identifier: MIT
/** Making, finding, loading, copying and collecting objects. */
#pragma once

#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectInitializer.h"
#include "UObject/ObjectPtr.h"

class FLinkerInstancingContext;
class FProperty;
class UPackageMap;
struct FObjectInstancingGraph;
struct FPropertyChangedEvent;

/** What StaticConstructObject_Internal makes, and how. */
struct FStaticConstructObjectParameters
{
	const UClass* Class;
	/** Null only for a package. */
	UObject* Outer = nullptr;
	/** None makes a unique name of the class's name and a number. */
	FName Name;
	EObjectFlags SetFlags = RF_NoFlags;
	EInternalObjectFlags InternalSetFlags = EInternalObjectFlags::None;
	bool bCopyTransientsFromClassDefaults = false;
	bool bAssumeTemplateIsArchetype = false;
	/** Object of the class or a super class whose properties are copied after the constructor ran. */
	UObject* Template = nullptr;
	FObjectInstancingGraph* InstanceGraph = nullptr;
	UPackage* ExternalPackage = nullptr;

	explicit FStaticConstructObjectParameters(const UClass* InClass)
		: Class(InClass)
	{
	}
};

/**
 * Makes an object.
 *
 * An object of the same outer, name and class is destroyed and made again at its address: plain pointers then point to
 * the new object, weak ones are stale. An object of another class under that name is a fatal error, unless it was
 * marked as garbage; then it gives up its name. A class that is abstract, and a missing outer, are fatal errors too.
 */
COREUOBJECT_API UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);

/** Package of all that is never saved, "/Engine/Transient". */
COREUOBJECT_API UPackage* GetTransientPackage();

/** Fails an assertion when `Child` is not `Parent` or derived from it. */
COREUOBJECT_API void CheckIsClassChildOf_Internal(const UClass* Parent, const UClass* Child);

/**
 * Makes an object, see StaticConstructObject_Internal.
 *
 * @param Class  T or a class derived from it; another is a fatal error
 */
template <class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags,
	UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false,
	FObjectInstancingGraph* InInstanceGraph = nullptr, UPackage* ExternalPackage = nullptr)
{
	CheckIsClassChildOf_Internal(T::StaticClass(), Class);
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	Params.InstanceGraph = InInstanceGraph;
	Params.ExternalPackage = ExternalPackage;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

template <class T>
T* NewObject(UObject* Outer = (UObject*)GetTransientPackage())
{
	return NewObject<T>(Outer, T::StaticClass());
}

template <class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr,
	bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr)
{
	return NewObject<T>(
		Outer, T::StaticClass(), Name, Flags, Template, bCopyTransientsFromClassDefaults, InInstanceGraph);
}

/**
 * Object in memory by name or path, or null. Objects that were marked as garbage are not found.
 *
 * @param Class  class of the object; null takes any
 * @param InOuter  outer that a relative name starts from; null for a full path such as "/Game/A.B:C"
 * @param ExactClass  refuses objects of derived classes
 */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
/** The same by the name directly in `InOuter`, null for packages; reads no path. */
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName Name, bool bExactClass = false);

template <class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, ExactClass));
}
template <class T>
T* FindObjectFast(UObject* Outer, FName Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObjectFast(T::StaticClass(), Outer, Name, ExactClass));
}
/** Like FindObject; finding nothing is a fatal error. */
template <class T>
T* FindObjectChecked(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	T* Result = FindObject<T>(Outer, Name, ExactClass);
	check(Result);
	return Result;
}

/**
 * Object by its path, from memory or else from the package store.
 *
 * @param Name  "/Game/Dir/Package.Object", or only the package when the object has the package's short name; may stand
 *              in quotes behind a class name
 * @param InOuter  where a relative name starts; null for a full path
 * @param LoadFlags  LOAD_NoWarn and LOAD_Quiet keep a failure out of the log
 * @return null, with a warning in the log, when nothing of the class is found
 */
COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name,
	const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr,
	bool bAllowObjectReconciliation = true, const FLinkerInstancingContext* InstancingContext = nullptr);

template <class T>
T* LoadObject(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None,
	UPackageMap* Sandbox = nullptr, const FLinkerInstancingContext* InstancingContext = nullptr)
{
	return static_cast<T*>(
		StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox, true, InstancingContext));
}

/** Finds or makes a package. The name must be a full one, such as "/Game/A"; an empty or relative one is fatal. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
/** Package in memory, or null. */
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);
/** Package from memory or from the package store, or null. */
COREUOBJECT_API UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags);

/**
 * Copies an object with all objects inside it.
 *
 * Reflected values are copied, and native data of those classes that declare how; references into the source become
 * references into the copy, all others stay. Transient properties keep what the constructor gave them. An object of
 * the same class under that name is replaced in place.
 *
 * @param Class  class that the caller expects; the copy has the class of the source
 * @param Name  None makes a unique name
 * @return null for a null source
 */
COREUOBJECT_API UObject* DuplicateObject_Internal(
	UClass* Class, const UObject* SourceObject, UObject* Outer, const FName Name);

template <class T>
T* DuplicateObject(T const* SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	return static_cast<T*>(DuplicateObject_Internal(T::StaticClass(), SourceObject, Outer, Name));
}
template <class T>
T* DuplicateObject(const TObjectPtr<T>& SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	return DuplicateObject<T>(SourceObject.Get(), Outer, Name);
}

/** Name that nothing in `Parent` has: the base name, or the class's, with a number. */
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName BaseName = NAME_None);

/**
 * Destroys every object that cannot be reached from the root set, from objects with one of `KeepFlags`, from native
 * objects such as classes and their defaults, or from an FGCObject. Reflected references to garbage become null.
 */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
COREUOBJECT_API bool IsGarbageCollecting();

/**
 * Whether a collection would keep `Res` for the sake of something other than its own flags and its root mark.
 *
 * @param KeepFlags  as for CollectGarbage
 */
COREUOBJECT_API bool IsReferenced(UObject*& Res, EObjectFlags KeepFlags,
	EInternalObjectFlags InternalKeepFlags = EInternalObjectFlags::None, bool bCheckSubObjects = false);

/** The object that holds the default values of a class; made when first asked for. */
template <class T>
const T* GetDefault()
{
	return static_cast<const T*>(GetMutableDefault(T::StaticClass()));
}
COREUOBJECT_API UObject* GetMutableDefault(UClass* Class);
template <class T>
T* GetMutableDefault()
{
	return static_cast<T*>(GetMutableDefault(T::StaticClass()));
}
template <class T>
const T* GetDefault(const UClass* Class)
{
	return static_cast<const T*>(GetMutableDefault(const_cast<UClass*>(Class)));
}

/** Events of the object system. */
struct COREUOBJECT_API FCoreUObjectDelegates
{
	/** After a property of an object was edited. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, struct FPropertyChangedEvent&);
	static FOnObjectPropertyChanged OnObjectPropertyChanged;

	/** Before a property of an object is edited. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPreObjectPropertyChanged, UObject*, const class FEditPropertyChain&);
	static FOnPreObjectPropertyChanged OnPreObjectPropertyChanged;

	static FSimpleMulticastDelegate& GetPreGarbageCollectDelegate();
	static FSimpleMulticastDelegate& GetPostGarbageCollect();
};
