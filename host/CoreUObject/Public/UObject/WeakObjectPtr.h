// SPDX-License-Identifier: MIT
/** Weak pointer to any object. */
#pragma once

#include "UObject/UObjectArray.h"

/**
 * Place and serial number of an object. Does not keep it alive and notices its end.
 *
 * Two pointers are equal when they were made from the same object, also after it died; an object that was rebuilt in
 * place is another one.
 */
struct COREUOBJECT_API FWeakObjectPtr
{
	constexpr FWeakObjectPtr() = default;
	constexpr FWeakObjectPtr(decltype(nullptr)) {}
	FWeakObjectPtr(const UObject* Object) { *this = Object; }

	FWeakObjectPtr& operator=(const UObject* Object);
	void Reset() { *this = FWeakObjectPtr(); }

	/** Null when the object is gone or, without `bEvenIfPendingKill`, marked as garbage. */
	UObject* Get(bool bEvenIfPendingKill) const;
	UObject* Get() const { return Get(false); }
	/** The object also while a collection destroys it. */
	UObject* GetEvenIfUnreachable() const;
	bool IsValid(bool bEvenIfPendingKill, bool bThreadsafeTest = false) const
	{
		(void)bThreadsafeTest;
		return Get(bEvenIfPendingKill) != nullptr;
	}
	bool IsValid() const { return Get(false) != nullptr; }
	/** Pointed to an object once that is gone now. */
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const;
	/** Never pointed to anything. */
	bool IsExplicitlyNull() const { return ObjectIndex < 0; }

	bool operator==(const FWeakObjectPtr& Other) const
	{
		return ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber;
	}
	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const { return *this == Other; }

	friend uint32 GetTypeHash(const FWeakObjectPtr& Pointer)
	{
		return static_cast<uint32>(Pointer.ObjectIndex) ^ static_cast<uint32>(Pointer.ObjectSerialNumber);
	}

private:
	int32 ObjectIndex = -1;
	int32 ObjectSerialNumber = 0;
};
