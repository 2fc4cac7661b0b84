// SPDX-License-Identifier: MIT
/** Identity of an object: its class, name, outer and place in the object array. */
#pragma once

#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class COREUOBJECT_API UObjectBase
{
public:
	/** Gives the place in the object array back. */
	virtual ~UObjectBase();

	UObjectBase(const UObjectBase&) = delete;
	UObjectBase& operator=(const UObjectBase&) = delete;

	/** Index in the object array; free for another object after this one died. */
	uint32 GetUniqueID() const { return static_cast<uint32>(InternalIndex); }
	UClass* GetClass() const { return ClassPrivate; }
	/** Object that this one is part of; null for a package. */
	UObject* GetOuter() const { return OuterPrivate; }
	FName GetFName() const { return NamePrivate; }
	EObjectFlags GetFlags() const { return ObjectFlags; }

protected:
	/** Takes the identity that the object system prepared; an assertion fails for an object made in another way. */
	UObjectBase();

	void SetFlagsTo(EObjectFlags NewFlags) { ObjectFlags = NewFlags; }

private:
	friend struct Host::FObjectAccess;

	EObjectFlags ObjectFlags = RF_NoFlags;
	int32 InternalIndex = -1;
	UClass* ClassPrivate = nullptr;
	FName NamePrivate;
	UObject* OuterPrivate = nullptr;
};
