// SPDX-License-Identifier: MIT
/** Operations of TArray that change its size; included by the array's header. */
#pragma once

#include "Containers/Array.h"

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::InsertUninitialized(SizeType Index, SizeType Count)
{
	checkf(Index >= 0 && Index <= ArrayNum && Count >= 0,
		TEXT("Array index out of bounds: %lld into an array of size %lld"), static_cast<int64>(Index),
		static_cast<int64>(ArrayNum));
	const SizeType OldNum = AddUninitialized(Count);
	ElementType* Data = GetData() + Index;
	RelocateConstructItems(Data + Count, Data, OldNum - Index);
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::RemoveAt(SizeType Index, SizeType Count, bool bAllowShrinking)
{
	if (Count <= 0)
	{
		return;
	}
	RangeCheck(Index);
	RangeCheck(Index + Count - 1);
	ElementType* Data = GetData() + Index;
	DestructItems(Data, Count);
	RelocateConstructItems(Data, Data + Count, ArrayNum - Index - Count);
	ArrayNum -= Count;
	ShrinkIf(bAllowShrinking);
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::RemoveAtSwap(SizeType Index, SizeType Count, bool bAllowShrinking)
{
	if (Count <= 0)
	{
		return;
	}
	RangeCheck(Index);
	RangeCheck(Index + Count - 1);
	ElementType* Data = GetData() + Index;
	DestructItems(Data, Count);
	const SizeType NumAfter = ArrayNum - Index - Count;
	const SizeType NumMoved = NumAfter < Count ? NumAfter : Count;
	RelocateConstructItems(Data, GetData() + ArrayNum - NumMoved, NumMoved);
	ArrayNum -= Count;
	ShrinkIf(bAllowShrinking);
}

template <typename InElementType, typename InAllocatorType>
template <typename PredicateType>
typename TArray<InElementType, InAllocatorType>::SizeType TArray<InElementType, InAllocatorType>::RemoveAll(
	const PredicateType& Predicate)
{
	ElementType* Data = GetData();
	SizeType Write = 0;
	for (SizeType Read = 0; Read < ArrayNum; ++Read)
	{
		if (Invoke(Predicate, Data[Read]))
		{
			Data[Read].~ElementType();
			continue;
		}
		if (Write != Read)
		{
			RelocateConstructItems(Data + Write, Data + Read, 1);
		}
		++Write;
	}
	const SizeType NumRemoved = ArrayNum - Write;
	ArrayNum = Write;
	return NumRemoved;
}

template <typename InElementType, typename InAllocatorType>
template <typename PredicateType>
typename TArray<InElementType, InAllocatorType>::SizeType TArray<InElementType, InAllocatorType>::RemoveAllSwap(
	const PredicateType& Predicate, bool bAllowShrinking)
{
	const SizeType OldNum = ArrayNum;
	for (SizeType Index = 0; Index < ArrayNum;)
	{
		if (Invoke(Predicate, GetData()[Index]))
		{
			RemoveAtSwap(Index, 1, bAllowShrinking);
		}
		else
		{
			++Index;
		}
	}
	return OldNum - ArrayNum;
}

template <typename InElementType, typename InAllocatorType>
typename TArray<InElementType, InAllocatorType>::SizeType TArray<InElementType, InAllocatorType>::RemoveSingle(
	const ElementType& Item)
{
	const SizeType Index = this->Find(Item);
	if (Index == INDEX_NONE)
	{
		return 0;
	}
	RemoveAt(Index, 1, false);
	return 1;
}

template <typename InElementType, typename InAllocatorType>
typename TArray<InElementType, InAllocatorType>::SizeType TArray<InElementType, InAllocatorType>::RemoveSingleSwap(
	const ElementType& Item, bool bAllowShrinking)
{
	const SizeType Index = this->Find(Item);
	if (Index == INDEX_NONE)
	{
		return 0;
	}
	RemoveAtSwap(Index, 1, bAllowShrinking);
	return 1;
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::SetNum(SizeType NewNum, bool bAllowShrinking)
{
	check(NewNum >= 0);
	if (NewNum > ArrayNum)
	{
		Reserve(NewNum);
		AddDefaulted(NewNum - ArrayNum);
	}
	else
	{
		RemoveAt(NewNum, ArrayNum - NewNum, bAllowShrinking);
	}
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::SetNumZeroed(SizeType NewNum, bool bAllowShrinking)
{
	check(NewNum >= 0);
	if (NewNum > ArrayNum)
	{
		Reserve(NewNum);
		AddZeroed(NewNum - ArrayNum);
	}
	else
	{
		RemoveAt(NewNum, ArrayNum - NewNum, bAllowShrinking);
	}
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::SetNumUninitialized(SizeType NewNum, bool bAllowShrinking)
{
	check(NewNum >= 0);
	if (NewNum > ArrayNum)
	{
		Reserve(NewNum);
		ArrayNum = NewNum;
	}
	else
	{
		RemoveAt(NewNum, ArrayNum - NewNum, bAllowShrinking);
	}
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::SetCapacity(SizeType NewMax)
{
	const SizeType Minimum = Allocator.GetInitialCapacity();
	NewMax = NewMax < Minimum ? Minimum : NewMax;
	if (NewMax != ArrayMax)
	{
		Allocator.ResizeAllocation(ArrayNum, NewMax);
		ArrayMax = NewMax;
	}
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::Grow(USizeType NewNum)
{
	constexpr USizeType Limit = static_cast<USizeType>(-1) / 2;
	checkf(NewNum <= Limit, TEXT("The array would hold more elements than its index can count"));
	SetCapacity(DefaultCalculateSlackGrow(static_cast<SizeType>(NewNum), ArrayMax));
}

template <typename InElementType, typename InAllocatorType>
void TArray<InElementType, InAllocatorType>::ShrinkIf(bool bAllowShrinking)
{
	constexpr SizeType KeptSlack = 64;
	if (bAllowShrinking && ArrayMax - ArrayNum > KeptSlack && ArrayNum < ArrayMax / 2)
	{
		SetCapacity(ArrayNum);
	}
}
