// SPDX-License-Identifier: MIT
/** Growing array with a 32-bit (or 64-bit) signed count. */
#pragma once

#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/ArrayIterator.h"
#include "Containers/ArraySearch.h"
#include "Templates/Sorting.h"
#include "Templates/TypeHash.h"
#include <initializer_list>

/**
 * Contiguous elements that are addressed by index.
 *
 * Operations that take an index check it through the assertion handler when checks are compiled in. References into
 * the array end with the next operation that adds or removes; adding an element of the array to itself by reference
 * is a failed check for that reason. Elements without a constructor start as zero, except where a name says
 * "Uninitialized".
 */
template <typename InElementType, typename InAllocatorType>
class TArray : public UE::Core::Private::TArraySearch<TArray<InElementType, InAllocatorType>, InElementType,
				   typename InAllocatorType::SizeType>
{
	template <typename OtherElementType, typename OtherAllocatorType>
	friend class TArray;

public:
	using ElementType = InElementType;
	using AllocatorType = InAllocatorType;
	using SizeType = typename AllocatorType::SizeType;
	using USizeType = std::make_unsigned_t<SizeType>;
	using RangedForIteratorType = ElementType*;
	using RangedForConstIteratorType = const ElementType*;
	using TIterator = TIndexedContainerIterator<TArray, ElementType, SizeType>;
	using TConstIterator = TIndexedContainerIterator<const TArray, const ElementType, SizeType>;

	TArray()
		: ArrayNum(0)
		, ArrayMax(Allocator.GetInitialCapacity())
	{
	}
	TArray(const ElementType* Ptr, SizeType Count)
		: TArray()
	{
		Append(Ptr, Count);
	}
	TArray(std::initializer_list<ElementType> Init)
		: TArray()
	{
		Append(Init.begin(), static_cast<SizeType>(Init.size()));
	}
	TArray(const TArray& Other)
		: TArray()
	{
		Append(Other.GetData(), Other.Num());
	}
	template <typename OtherElementType, typename OtherAllocator>
	requires(std::is_constructible_v<ElementType, const OtherElementType&>) explicit(
		!std::is_same_v<ElementType, OtherElementType>) TArray(const TArray<OtherElementType, OtherAllocator>& Other)
		: TArray()
	{
		Append(Other.GetData(), static_cast<SizeType>(Other.Num()));
	}
	template <typename OtherElementType, typename OtherSizeType>
	requires(std::is_constructible_v<ElementType, OtherElementType&>) explicit TArray(
		const TArrayView<OtherElementType, OtherSizeType>& Other)
		: TArray()
	{
		Append(Other.GetData(), static_cast<SizeType>(Other.Num()));
	}
	TArray(TArray&& Other) noexcept
		: TArray()
	{
		TakeOver(Other);
	}
	~TArray() { DestructItems(GetData(), ArrayNum); }

	TArray& operator=(std::initializer_list<ElementType> Init)
	{
		Reset(static_cast<SizeType>(Init.size()));
		Append(Init.begin(), static_cast<SizeType>(Init.size()));
		return *this;
	}
	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Num());
			Append(Other.GetData(), Other.Num());
		}
		return *this;
	}
	template <typename OtherAllocator>
	TArray& operator=(const TArray<ElementType, OtherAllocator>& Other)
	{
		Reset(static_cast<SizeType>(Other.Num()));
		Append(Other.GetData(), static_cast<SizeType>(Other.Num()));
		return *this;
	}
	template <typename OtherElementType, typename OtherSizeType>
	TArray& operator=(const TArrayView<OtherElementType, OtherSizeType>& Other)
	{
		TArray Copy(Other);
		return *this = MoveTemp(Copy);
	}
	TArray& operator=(TArray&& Other) noexcept
	{
		if (this != &Other)
		{
			DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
			TakeOver(Other);
		}
		return *this;
	}

	FORCEINLINE ElementType* GetData() { return Allocator.GetAllocation(); }
	FORCEINLINE const ElementType* GetData() const { return Allocator.GetAllocation(); }
	FORCEINLINE SizeType Num() const { return ArrayNum; }
	FORCEINLINE SizeType Max() const { return ArrayMax; }
	FORCEINLINE bool IsEmpty() const { return ArrayNum == 0; }
	FORCEINLINE bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }
	SizeType GetSlack() const { return ArrayMax - ArrayNum; }
	SIZE_T GetAllocatedSize() const
	{
		return Allocator.HasAllocation() ? static_cast<SIZE_T>(ArrayMax) * sizeof(ElementType) : 0;
	}
	static constexpr uint32 GetTypeSize() { return sizeof(ElementType); }

	FORCEINLINE void RangeCheck(SizeType Index) const
	{
#if DO_CHECK
		if (UNLIKELY(static_cast<USizeType>(Index) >= static_cast<USizeType>(ArrayNum)))
		{
			FDebug::IndexOutOfBounds(Index, ArrayNum);
		}
#else
		(void)Index;
#endif
	}
	/** Checks that an element to be added does not live in this array, which may move while growing. */
	FORCEINLINE void CheckAddress(const ElementType* Address) const
	{
		checkf(Address < GetData() || Address >= GetData() + ArrayMax,
			TEXT("An element of the array is added to the array by reference"));
	}

	FORCEINLINE ElementType& operator[](SizeType Index)
	{
		RangeCheck(Index);
		return GetData()[Index];
	}
	FORCEINLINE const ElementType& operator[](SizeType Index) const
	{
		RangeCheck(Index);
		return GetData()[Index];
	}
	ElementType& Last(SizeType IndexFromTheEnd = 0)
	{
		return (*this)[ArrayNum - IndexFromTheEnd - 1];
	}
	const ElementType& Last(SizeType IndexFromTheEnd = 0) const
	{
		return (*this)[ArrayNum - IndexFromTheEnd - 1];
	}
	ElementType& Top()
	{
		return Last();
	}
	const ElementType& Top() const
	{
		return Last();
	}

	RangedForIteratorType begin()
	{
		return GetData();
	}
	RangedForConstIteratorType begin() const
	{
		return GetData();
	}
	RangedForIteratorType end()
	{
		return GetData() + ArrayNum;
	}
	RangedForConstIteratorType end() const
	{
		return GetData() + ArrayNum;
	}
	TIterator CreateIterator()
	{
		return TIterator(*this);
	}
	TConstIterator CreateConstIterator() const
	{
		return TConstIterator(*this);
	}

	template <typename OtherAllocator>
	bool operator==(const TArray<ElementType, OtherAllocator>& Other) const
	{
		return ArrayNum == Other.Num() && CompareItems(GetData(), Other.GetData(), ArrayNum);
	}

	// Adding

	/** Appends Count elements whose bytes are left as they are. @return index of the first */
	SizeType AddUninitialized(SizeType Count = 1)
	{
		checkf(Count >= 0, TEXT("A negative number of elements is added"));
		const SizeType OldNum = ArrayNum;
		const USizeType NewNum = static_cast<USizeType>(OldNum) + static_cast<USizeType>(Count);
		if (NewNum > static_cast<USizeType>(ArrayMax))
		{
			Grow(NewNum);
		}
		ArrayNum = static_cast<SizeType>(NewNum);
		return OldNum;
	}
	SizeType AddZeroed(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		FMemory::Memzero(GetData() + Index, sizeof(ElementType) * static_cast<SIZE_T>(Count));
		return Index;
	}
	SizeType AddDefaulted(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		DefaultConstructItems<ElementType>(GetData() + Index, Count);
		return Index;
	}
	ElementType& AddDefaulted_GetRef()
	{
		const SizeType Index = AddDefaulted();
		return GetData()[Index];
	}
	ElementType& AddZeroed_GetRef()
	{
		const SizeType Index = AddZeroed();
		return GetData()[Index];
	}

	template <typename... ArgsType>
	SizeType Emplace(ArgsType&&... Args)
	{
		const SizeType Index = AddUninitialized(1);
		::new (static_cast<void*>(GetData() + Index)) ElementType(Forward<ArgsType>(Args)...);
		return Index;
	}
	template <typename... ArgsType>
	ElementType& Emplace_GetRef(ArgsType&&... Args)
	{
		const SizeType Index = Emplace(Forward<ArgsType>(Args)...);
		return GetData()[Index];
	}
	SizeType Add(const ElementType& Item)
	{
		CheckAddress(&Item);
		return Emplace(Item);
	}
	SizeType Add(ElementType&& Item)
	{
		CheckAddress(&Item);
		return Emplace(MoveTempIfPossible(Item));
	}
	ElementType& Add_GetRef(const ElementType& Item)
	{
		const SizeType Index = Add(Item);
		return GetData()[Index];
	}
	ElementType& Add_GetRef(ElementType&& Item)
	{
		const SizeType Index = Add(MoveTempIfPossible(Item));
		return GetData()[Index];
	}
	void Push(const ElementType& Item)
	{
		Add(Item);
	}
	void Push(ElementType&& Item)
	{
		Add(MoveTempIfPossible(Item));
	}
	/** Adds an element unless an equal one is there. @return its index in either case */
	SizeType AddUnique(const ElementType& Item)
	{
		const SizeType Index = this->Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}
	SizeType AddUnique(ElementType&& Item)
	{
		const SizeType Index = this->Find(Item);
		return Index != INDEX_NONE ? Index : Add(MoveTempIfPossible(Item));
	}

	template <typename OtherElementType>
	void Append(const OtherElementType* Ptr, SizeType Count)
	{
		check(Ptr != nullptr || Count == 0);
		const SizeType Index = AddUninitialized(Count);
		ConstructItems<ElementType>(GetData() + Index, Ptr, Count);
	}
	template <typename OtherElementType, typename OtherAllocator>
	void Append(const TArray<OtherElementType, OtherAllocator>& Source)
	{
		check(static_cast<const void*>(this) != static_cast<const void*>(&Source));
		Append(Source.GetData(), static_cast<SizeType>(Source.Num()));
	}
	template <typename OtherAllocator>
	void Append(TArray<ElementType, OtherAllocator>&& Source)
	{
		check(static_cast<const void*>(this) != static_cast<const void*>(&Source));
		const SizeType Count = static_cast<SizeType>(Source.Num());
		const SizeType Index = AddUninitialized(Count);
		RelocateConstructItems(GetData() + Index, Source.GetData(), Count);
		Source.ArrayNum = 0;
	}
	template <typename OtherElementType, typename OtherSizeType>
	void Append(const TArrayView<OtherElementType, OtherSizeType>& Source)
	{
		Append(Source.GetData(), static_cast<SizeType>(Source.Num()));
	}
	void Append(std::initializer_list<ElementType> Init)
	{
		Append(Init.begin(), static_cast<SizeType>(Init.size()));
	}
	template <typename OtherAllocator>
	TArray& operator+=(const TArray<ElementType, OtherAllocator>& Other)
	{
		Append(Other);
		return *this;
	}
	TArray& operator+=(TArray&& Other)
	{
		Append(MoveTemp(Other));
		return *this;
	}
	TArray& operator+=(std::initializer_list<ElementType> Init)
	{
		Append(Init);
		return *this;
	}

	/** Opens a gap of Count elements before Index, which may be Num(). */
	void InsertUninitialized(SizeType Index, SizeType Count = 1);
	void InsertZeroed(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		FMemory::Memzero(GetData() + Index, sizeof(ElementType) * static_cast<SIZE_T>(Count));
	}
	void InsertDefaulted(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		DefaultConstructItems<ElementType>(GetData() + Index, Count);
	}
	template <typename... ArgsType>
	void EmplaceAt(SizeType Index, ArgsType&&... Args)
	{
		InsertUninitialized(Index, 1);
		::new (static_cast<void*>(GetData() + Index)) ElementType(Forward<ArgsType>(Args)...);
	}
	SizeType Insert(const ElementType& Item, SizeType Index)
	{
		CheckAddress(&Item);
		EmplaceAt(Index, Item);
		return Index;
	}
	SizeType Insert(ElementType&& Item, SizeType Index)
	{
		CheckAddress(&Item);
		EmplaceAt(Index, MoveTempIfPossible(Item));
		return Index;
	}
	SizeType Insert(const ElementType* Ptr, SizeType Count, SizeType Index)
	{
		InsertUninitialized(Index, Count);
		ConstructItems<ElementType>(GetData() + Index, Ptr, Count);
		return Index;
	}
	SizeType Insert(std::initializer_list<ElementType> Init, SizeType Index)
	{
		return Insert(Init.begin(), static_cast<SizeType>(Init.size()), Index);
	}
	template <typename OtherAllocator>
	SizeType Insert(const TArray<ElementType, OtherAllocator>& Items, SizeType Index)
	{
		check(static_cast<const void*>(this) != static_cast<const void*>(&Items));
		return Insert(Items.GetData(), static_cast<SizeType>(Items.Num()), Index);
	}

	// Removing

	void RemoveAt(SizeType Index, SizeType Count = 1, bool bAllowShrinking = true);
	/** Removes and fills the gap from the end, which changes the order. */
	void RemoveAtSwap(SizeType Index, SizeType Count = 1, bool bAllowShrinking = true);
	/** Removes every element for which the predicate holds and keeps the order. @return number removed */
	template <typename PredicateType>
	SizeType RemoveAll(const PredicateType& Predicate);
	template <typename PredicateType>
	SizeType RemoveAllSwap(const PredicateType& Predicate, bool bAllowShrinking = true);
	/** Removes every equal element. @return number removed */
	SizeType Remove(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAll([&Item](const ElementType& Element) { return Element == Item; });
	}
	/** Removes the first equal element. @return 1, or 0 when there is none */
	SizeType RemoveSingle(const ElementType& Item);
	SizeType RemoveSwap(const ElementType& Item, bool bAllowShrinking = true)
	{
		CheckAddress(&Item);
		return RemoveAllSwap([&Item](const ElementType& Element) { return Element == Item; }, bAllowShrinking);
	}
	SizeType RemoveSingleSwap(const ElementType& Item, bool bAllowShrinking = true);
	ElementType Pop(bool bAllowShrinking = true)
	{
		ElementType Result = MoveTemp(Last());
		RemoveAt(ArrayNum - 1, 1, bAllowShrinking);
		return Result;
	}
	/** Removes everything and keeps the storage, which then holds at least NewSize elements. */
	void Reset(SizeType NewSize = 0)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		Reserve(NewSize);
	}
	/** Removes everything and leaves storage for exactly Slack elements. */
	void Empty(SizeType Slack = 0)
	{
		check(Slack >= 0);
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		SetCapacity(Slack);
	}

	// Size

	void Reserve(SizeType Number)
	{
		check(Number >= 0);
		if (Number > ArrayMax)
		{
			SetCapacity(Number);
		}
	}
	void Shrink()
	{
		SetCapacity(ArrayNum);
	}
	void SetNum(SizeType NewNum, bool bAllowShrinking = true);
	void SetNumZeroed(SizeType NewNum, bool bAllowShrinking = true);
	/** New elements keep the bytes of their storage; only for types that need no construction. */
	void SetNumUninitialized(SizeType NewNum, bool bAllowShrinking = true);
	/** Lowers the count without destroying what is cut off. */
	void SetNumUnsafeInternal(SizeType NewNum)
	{
		check(NewNum >= 0 && NewNum <= ArrayNum);
		ArrayNum = NewNum;
	}
	void Init(const ElementType& Element, SizeType Number)
	{
		CheckAddress(&Element);
		Empty(Number);
		for (SizeType Index = 0; Index < Number; ++Index)
		{
			Emplace(Element);
		}
	}

	// Order; an array of pointers is sorted by what they point to

	template <typename PredicateType>
	TArray FilterByPredicate(PredicateType Predicate) const
	{
		TArray Result;
		for (const ElementType& Element : *this)
		{
			if (Invoke(Predicate, Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}
	void Sort()
	{
		::Sort(GetData(), ArrayNum);
	}
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		::Sort(GetData(), ArrayNum, Predicate);
	}
	void StableSort()
	{
		::StableSort(GetData(), ArrayNum);
	}
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		::StableSort(GetData(), ArrayNum, Predicate);
	}
	void Swap(SizeType FirstIndex, SizeType SecondIndex)
	{
		RangeCheck(FirstIndex);
		RangeCheck(SecondIndex);
		if (FirstIndex != SecondIndex)
		{
			::Swap(GetData()[FirstIndex], GetData()[SecondIndex]);
		}
	}

private:
	void SetCapacity(SizeType NewMax);

	FORCENOINLINE void Grow(USizeType NewNum);

	/** Gives memory back when most of it is unused. */
	void ShrinkIf(bool bAllowShrinking);

	void TakeOver(TArray& Other)
	{
		Allocator.MoveToEmpty(Other.Allocator, Other.ArrayNum);
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.ArrayNum = 0;
		Other.ArrayMax = Other.Allocator.GetInitialCapacity();
	}

	typename AllocatorType::template ForElementType<ElementType> Allocator;
	SizeType ArrayNum;
	SizeType ArrayMax;
};

template <typename ElementType, int IndexSize>
struct UE::Core::Private::TCanBitwiseRelocate<TArray<ElementType, TSizedDefaultAllocator<IndexSize>>>
{
	static constexpr bool Value = true;
};

template <typename ElementType, typename Allocator>
uint32 GetTypeHash(const TArray<ElementType, Allocator>& Array)
{
	uint32 Hash = 0;
	for (const ElementType& Element : Array)
	{
		Hash = HashCombineFast(Hash, GetTypeHash(Element));
	}
	return Hash;
}

#include "Containers/ArrayResizing.h"
