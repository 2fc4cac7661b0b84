// SPDX-License-Identifier: MIT
/** Walking over all objects of a class. */
#pragma once

#include "UObject/UObjectHash.h"

/**
 * Visits the objects of class T that exist when the iterator is made:
 * `for (TObjectIterator<USphere> It; It; ++It) { It->Roll(); }`. Objects must not be collected meanwhile.
 */
template <class T>
class TObjectIterator
{
public:
	/** @param AdditionalExclusionFlags  leaves out objects with any of these flags; give RF_NoFlags for defaults too */
	explicit TObjectIterator(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject,
		bool bIncludeDerivedClasses = true, EInternalObjectFlags InternalExclusionFlags = EInternalObjectFlags::None)
	{
		GetObjectsOfClass(
			T::StaticClass(), Objects, bIncludeDerivedClasses, AdditionalExclusionFlags, InternalExclusionFlags);
	}

	T* operator*() const { return (T*)Objects[Index]; }
	T* operator->() const { return (T*)Objects[Index]; }
	explicit operator bool() const { return Index < Objects.Num(); }
	void operator++() { ++Index; }

private:
	TArray<UObject*> Objects;
	int32 Index = 0;
};
