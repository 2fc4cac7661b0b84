// SPDX-License-Identifier: MIT
/** Array whose elements keep their index while others are removed. */
#pragma once

#include "Containers/BitArray.h"

/**
 * Elements at fixed indices with gaps where elements were removed.
 *
 * A new element goes into the gap that was made last; without gaps it goes to the end. Walking follows the index, so
 * the order is the order of insertion while nothing was removed.
 */
template <typename InElementType>
class TSparseArray
{
public:
	using ElementType = InElementType;

	TSparseArray() = default;
	TSparseArray(const TSparseArray& Other) { CopyFrom(Other); }
	TSparseArray(TSparseArray&& Other) noexcept { TakeOver(Other); }
	TSparseArray& operator=(const TSparseArray& Other)
	{
		if (this != &Other)
		{
			Empty(Other.GetMaxIndex());
			CopyFrom(Other);
		}
		return *this;
	}
	TSparseArray& operator=(TSparseArray&& Other) noexcept
	{
		if (this != &Other)
		{
			Empty();
			TakeOver(Other);
		}
		return *this;
	}
	~TSparseArray() { Empty(); }

	int32 Num() const { return MaxIndex - NumFree; }
	bool IsEmpty() const { return Num() == 0; }
	/** Every valid index is below this number. */
	int32 GetMaxIndex() const { return MaxIndex; }
	bool IsCompact() const { return NumFree == 0; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < MaxIndex && Allocated[Index]; }
	bool IsAllocated(int32 Index) const { return Allocated[Index]; }
	ElementType& operator[](int32 Index)
	{
		checkf(IsValidIndex(Index), TEXT("Sparse array has no element at index %d"), Index);
		return Data[Index].Element;
	}
	const ElementType& operator[](int32 Index) const { return const_cast<TSparseArray&>(*this)[Index]; }
	/** Element at an index that the caller knows to be valid. */
	ElementType& GetAt(int32 Index) { return Data[Index].Element; }
	const ElementType& GetAt(int32 Index) const { return Data[Index].Element; }
	/** Index of the first element at or behind Index; GetMaxIndex() when there is none. */
	int32 FindNext(int32 Index) const { return Allocated.FindNextSet(Index); }
	SIZE_T GetAllocatedSize() const { return static_cast<SIZE_T>(Capacity) * sizeof(FSlot); }

	/** Reserves an index and leaves its element to be constructed by the caller. */
	int32 AddUninitialized()
	{
		int32 Index = FirstFree;
		if (Index != INDEX_NONE)
		{
			FirstFree = Data[Index].NextFree;
			--NumFree;
			Allocated[Index] = true;
		}
		else
		{
			if (MaxIndex == Capacity)
			{
				SetCapacity(DefaultCalculateSlackGrow(MaxIndex + 1, Capacity));
			}
			Index = MaxIndex++;
			Allocated.Add(true);
		}
		return Index;
	}
	template <typename... ArgsType>
	int32 Emplace(ArgsType&&... Args)
	{
		const int32 Index = AddUninitialized();
		::new (static_cast<void*>(&Data[Index])) ElementType(Forward<ArgsType>(Args)...);
		return Index;
	}
	int32 Add(const ElementType& Element) { return Emplace(Element); }
	int32 Add(ElementType&& Element) { return Emplace(MoveTemp(Element)); }
	void RemoveAt(int32 Index)
	{
		(*this)[Index].~ElementType();
		Allocated[Index] = false;
		Data[Index].NextFree = FirstFree;
		FirstFree = Index;
		++NumFree;
	}
	void Reserve(int32 Number)
	{
		if (Number > Capacity)
		{
			SetCapacity(Number);
		}
	}
	/** Removes everything and keeps the storage. */
	void Reset()
	{
		DestructAll();
		Allocated.Reset();
		MaxIndex = NumFree = 0;
		FirstFree = INDEX_NONE;
	}
	void Empty(int32 Slack = 0)
	{
		Reset();
		SetCapacity(Slack);
	}
	void Shrink() { SetCapacity(MaxIndex); }
	/** Closes the gaps and keeps the order. @return whether an index changed */
	bool Compact()
	{
		if (NumFree == 0)
		{
			return false;
		}
		int32 Write = 0;
		for (int32 Read = FindNext(0); Read < MaxIndex; Read = FindNext(Read + 1))
		{
			if (Write != Read)
			{
				RelocateConstructItems(&Data[Write], &Data[Read].Element, 1);
			}
			++Write;
		}
		MaxIndex = Write;
		NumFree = 0;
		FirstFree = INDEX_NONE;
		Allocated.Init(true, Write);
		return true;
	}
	/** Closes the gaps and sorts; equal elements keep their order. */
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		Compact();
		if (MaxIndex > 0)
		{
			::StableSort(&Data[0].Element, MaxIndex, Predicate);
		}
	}

private:
	union FSlot
	{
		FSlot() {}
		~FSlot() {}
		ElementType Element;
		int32 NextFree;
	};

	void SetCapacity(int32 NewCapacity)
	{
		if (NewCapacity == Capacity)
		{
			return;
		}
		FSlot* NewData = nullptr;
		if constexpr (UE::Core::Private::TCanBitwiseRelocate<ElementType>::Value && alignof(FSlot) <= 16)
		{
			NewData = static_cast<FSlot*>(FMemory::Realloc(Data, sizeof(FSlot) * static_cast<SIZE_T>(NewCapacity)));
		}
		else
		{
			if (NewCapacity > 0)
			{
				NewData = static_cast<FSlot*>(
					FMemory::Malloc(sizeof(FSlot) * static_cast<SIZE_T>(NewCapacity), alignof(FSlot)));
				for (int32 Index = 0; Index < MaxIndex; ++Index)
				{
					if (Allocated[Index])
					{
						RelocateConstructItems(&NewData[Index], &Data[Index].Element, 1);
					}
					else
					{
						NewData[Index].NextFree = Data[Index].NextFree;
					}
				}
			}
			FMemory::Free(Data);
		}
		Data = NewData;
		Capacity = NewCapacity;
	}
	void DestructAll()
	{
		if constexpr (!std::is_trivially_destructible_v<ElementType>)
		{
			for (int32 Index = FindNext(0); Index < MaxIndex; Index = FindNext(Index + 1))
			{
				Data[Index].Element.~ElementType();
			}
		}
	}
	/** Copies elements with their indices and the order in which the gaps will be filled. */
	void CopyFrom(const TSparseArray& Other)
	{
		Reserve(Other.MaxIndex);
		for (int32 Index = 0; Index < Other.MaxIndex; ++Index)
		{
			if (Other.Allocated[Index])
			{
				::new (static_cast<void*>(&Data[Index])) ElementType(Other.Data[Index].Element);
			}
			else
			{
				Data[Index].NextFree = Other.Data[Index].NextFree;
			}
		}
		Allocated = Other.Allocated;
		MaxIndex = Other.MaxIndex;
		NumFree = Other.NumFree;
		FirstFree = Other.FirstFree;
	}
	void TakeOver(TSparseArray& Other)
	{
		::Swap(Data, Other.Data);
		::Swap(Capacity, Other.Capacity);
		::Swap(MaxIndex, Other.MaxIndex);
		::Swap(NumFree, Other.NumFree);
		::Swap(FirstFree, Other.FirstFree);
		::Swap(Allocated, Other.Allocated);
	}

	FSlot* Data = nullptr;
	int32 Capacity = 0;
	int32 MaxIndex = 0;
	int32 NumFree = 0;
	int32 FirstFree = INDEX_NONE;
	TBitArray<> Allocated;
};
