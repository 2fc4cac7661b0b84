// SPDX-License-Identifier: MIT
#include "UObject/UObjectArray.h"

#include "Misc/AssertionMacros.h"

int32 FUObjectArray::AllocateUObjectIndex(UObjectBase* Object)
{
	const int32 Index = FreeIndices.IsEmpty() ? Objects.AddDefaulted() : FreeIndices.Pop(false);
	Objects[Index].Object = Object;
	return Index;
}

void FUObjectArray::FreeUObjectIndex(int32 Index)
{
	check(Objects[Index].Object);
	Objects[Index] = FUObjectItem();
	FreeIndices.Add(Index);
}

void FUObjectArray::TrimFreePlaces()
{
	int32 Count = Objects.Num();
	while (Count > 0 && !Objects[Count - 1].Object)
	{
		--Count;
	}
	Objects.SetNum(Count);
	FreeIndices.RemoveAll([Count](int32 Index) { return Index >= Count; });
}

int32 FUObjectArray::AllocateSerialNumber(int32 Index)
{
	FUObjectItem& Item = Objects[Index];
	if (Item.SerialNumber == 0)
	{
		Item.SerialNumber = ++LastSerialNumber;
	}
	return Item.SerialNumber;
}

FUObjectArray& GetUObjectArray()
{
	// Never destroyed: objects and weak pointers may outlive the static objects of the program.
	static FUObjectArray* const Array = new FUObjectArray();
	return *Array;
}
