// SPDX-License-Identifier: MIT
/** Finding objects by class and by outer. */
#pragma once

#include "Containers/Array.h"
#include "UObject/ObjectMacros.h"

/**
 * Appends all live objects of a class, in the order of their places in the object array.
 *
 * @param ClassToLookFor  null finds nothing
 * @param ExcludeFlags  leaves out objects with any of these flags; class defaults unless told otherwise
 */
COREUOBJECT_API void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results,
	bool bIncludeDerivedClasses = true, EObjectFlags ExcludeFlags = RF_ClassDefaultObject,
	EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);

/**
 * Appends the objects inside `Outer`.
 *
 * @param bIncludeNestedObjects  also those whose outers lie inside; each stands behind its outer
 */
COREUOBJECT_API void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results,
	bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags,
	EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);

/** Appends the classes derived from `ClassToLookFor`; without `bRecursive` only the direct ones. */
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);
