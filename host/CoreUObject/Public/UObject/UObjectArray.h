// SPDX-License-Identifier: MIT
/** Table of all objects, by index; what weak pointers look into. */
#pragma once

#include "Containers/Array.h"
#include "UObject/ObjectMacros.h"

class UObjectBase;

/** One place of the table. */
struct FUObjectItem
{
	/** Null while the place is free. */
	UObjectBase* Object = nullptr;
	EInternalObjectFlags Flags = EInternalObjectFlags::None;
	/** Number that tells the object from earlier ones of the place; 0 until a weak pointer asks for it. */
	int32 SerialNumber = 0;

	bool HasAnyFlags(EInternalObjectFlags FlagsToCheck) const { return EnumHasAnyFlags(Flags, FlagsToCheck); }
	void SetFlags(EInternalObjectFlags FlagsToSet) { Flags |= FlagsToSet; }
	void ClearFlags(EInternalObjectFlags FlagsToClear) { Flags &= ~FlagsToClear; }
};

/** Game thread only, like everything that makes or collects objects. */
class COREUOBJECT_API FUObjectArray
{
public:
	/** Puts an object on a free place and returns its index. */
	int32 AllocateUObjectIndex(UObjectBase* Object);
	/** Frees a place; weak pointers to its object are stale from now on. */
	void FreeUObjectIndex(int32 Index);
	/** Gives free places at the end of the table back. */
	void TrimFreePlaces();
	/** Serial number of the object at `Index`, given out when it has none yet. */
	int32 AllocateSerialNumber(int32 Index);

	/** Null for an index out of range; the place may be free. */
	FUObjectItem* IndexToObject(int32 Index) { return Objects.IsValidIndex(Index) ? &Objects[Index] : nullptr; }
	const FUObjectItem* IndexToObject(int32 Index) const
	{
		return Objects.IsValidIndex(Index) ? &Objects[Index] : nullptr;
	}
	/** Places, the free ones included. */
	int32 GetObjectArrayNum() const { return Objects.Num(); }
	/** Live objects. */
	int32 GetObjectArrayNumMinusAvailable() const { return Objects.Num() - FreeIndices.Num(); }

private:
	TArray<FUObjectItem> Objects;
	TArray<int32> FreeIndices;
	int32 LastSerialNumber = 0;
};

/** The one table. It is made when first needed and lives as long as the program. */
COREUOBJECT_API FUObjectArray& GetUObjectArray();
#define GUObjectArray GetUObjectArray()
