// SPDX-License-Identifier: MIT
/** Lets a class say how DuplicateObject copies what no property holds. */
#pragma once

#include "UObject/Object.h"

namespace Host
{

/** One entry of the list; entries live as long as their library. */
struct COREUOBJECT_API FNativeCopy
{
	FNativeCopy(UClass* (*InGetClass)(), void (*InFunction)(), void (*InCall)(void (*)(), const UObject&, UObject&));

	UClass* (*GetClass)();
	void (*Function)();
	void (*Call)(void (*)(), const UObject&, UObject&);
	const FNativeCopy* Next;
};

/**
 * A static object of this type, next to the class's functions, registers its copy function:
 *
 *     static Host::TNativeCopy<UStaticMesh> Copy([](const UStaticMesh& Source, UStaticMesh& Target) { ... });
 *
 * It runs after the reflected values were copied, for the class and before those of derived classes. References into
 * the source that AddReferencedObjects reports are redirected afterwards.
 */
template <typename T>
struct TNativeCopy : FNativeCopy
{
	using FTypedFunction = void (*)(const T& Source, T& Target);

	TNativeCopy(FTypedFunction InFunction)
		: FNativeCopy(&T::StaticClass, reinterpret_cast<void (*)()>(InFunction),
			  [](void (*Erased)(), const UObject& Source, UObject& Target)
			  { reinterpret_cast<FTypedFunction>(Erased)(static_cast<const T&>(Source), static_cast<T&>(Target)); })
	{
	}
};

/** Runs the copy functions of the class of `Source` and its super classes, the base first. */
COREUOBJECT_API void CopyNativeData(const UObject& Source, UObject& Target);

} // namespace Host
