// SPDX-License-Identifier: MIT
/** Hash set that walks in the order of insertion while nothing was removed. */
#pragma once

#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/SparseArray.h"

/** Says how a set finds the key of an element, compares and hashes it. */
template <typename ElementType, typename InKeyType, bool bInAllowDuplicateKeys = false>
struct BaseKeyFuncs
{
	using KeyType = InKeyType;
	using KeyInitType = const InKeyType&;
	using ElementInitType = const ElementType&;
	static constexpr bool bAllowDuplicateKeys = bInAllowDuplicateKeys;
};

template <typename ElementType>
struct DefaultKeyFuncs : BaseKeyFuncs<ElementType, ElementType, false>
{
	static const ElementType& GetSetKey(const ElementType& Element) { return Element; }
	static bool Matches(const ElementType& A, const ElementType& B) { return A == B; }
	template <typename ComparableKey>
	static bool Matches(const ElementType& A, const ComparableKey& B)
	{
		return A == B;
	}
	template <typename KeyType>
	static uint32 GetKeyHash(const KeyType& Key)
	{
		return GetTypeHash(Key);
	}
};

/** Element of a set with its hash and its link to the next element of the same bucket. */
template <typename InElementType>
class TSetElement
{
public:
	template <typename ArgType>
	requires(!std::is_same_v<std::remove_cvref_t<ArgType>, TSetElement>) explicit TSetElement(ArgType&& Arg)
		: Value(Forward<ArgType>(Arg))
	{
	}

	InElementType Value;
	uint32 Hash = 0;
	int32 NextInBucket = INDEX_NONE;
};

template <typename ElementType>
struct UE::Core::Private::TCanBitwiseRelocate<TSetElement<ElementType>> : TCanBitwiseRelocate<ElementType>
{
};

/** Place of an element in a set. */
class FSetElementId
{
public:
	FSetElementId() = default;
	bool IsValidId() const { return Index != INDEX_NONE; }
	bool operator==(const FSetElementId& Other) const = default;
	int32 AsInteger() const { return Index; }
	static FSetElementId FromInteger(int32 Integer)
	{
		FSetElementId Id;
		Id.Index = Integer;
		return Id;
	}

private:
	int32 Index = INDEX_NONE;
};

/**
 * Set over a sparse array: elements walk in index order, a removed element's slot is reused first.
 *
 * Adding an element whose key is there replaces that element in its place.
 */
template <typename InElementType, typename KeyFuncs, typename Allocator>
class TSet
{
public:
	using ElementType = InElementType;
	using KeyType = typename KeyFuncs::KeyType;

	TSet() = default;
	TSet(const TSet&) = default;
	TSet(TSet&& Other) noexcept
		: Elements(MoveTemp(Other.Elements))
		, Buckets(MoveTemp(Other.Buckets))
	{
	}
	TSet& operator=(const TSet&) = default;
	TSet& operator=(TSet&&) noexcept = default;
	TSet(std::initializer_list<ElementType> Init) { Append(Init); }
	explicit TSet(const TArray<ElementType>& Array) { Append(Array); }
	TSet& operator=(std::initializer_list<ElementType> Init)
	{
		Reset();
		Append(Init);
		return *this;
	}

	int32 Num() const { return Elements.Num(); }
	bool IsEmpty() const { return Elements.IsEmpty(); }
	int32 GetMaxIndex() const { return Elements.GetMaxIndex(); }
	SIZE_T GetAllocatedSize() const { return Elements.GetAllocatedSize() + Buckets.GetAllocatedSize(); }

	FSetElementId Add(const ElementType& Element, bool* bIsAlreadyInSet = nullptr)
	{
		return Emplace(Element, bIsAlreadyInSet);
	}
	FSetElementId Add(ElementType&& Element, bool* bIsAlreadyInSet = nullptr)
	{
		return Emplace(MoveTempIfPossible(Element), bIsAlreadyInSet);
	}
	template <typename ArgType>
	FSetElementId Emplace(ArgType&& Arg, bool* bIsAlreadyInSet = nullptr)
	{
		// Built first, because the argument may live in this set.
		FNode NewNode(Forward<ArgType>(Arg));
		const uint32 Hash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(NewNode.Value));
		int32 Index = INDEX_NONE;
		if constexpr (!KeyFuncs::bAllowDuplicateKeys)
		{
			Index = FindIndex(Hash, KeyFuncs::GetSetKey(NewNode.Value));
		}
		if (bIsAlreadyInSet)
		{
			*bIsAlreadyInSet = Index != INDEX_NONE;
		}
		if (Index != INDEX_NONE)
		{
			ElementType& Value = Elements[Index].Value;
			Value.~ElementType();
			::new (static_cast<void*>(&Value)) ElementType(MoveTemp(NewNode.Value));
		}
		else
		{
			NewNode.Hash = Hash;
			Index = Elements.Add(MoveTemp(NewNode));
			Link(Index);
		}
		return FSetElementId::FromInteger(Index);
	}
	ElementType& FindOrAdd(const ElementType& Element, bool* bIsAlreadyInSet = nullptr)
	{
		const FSetElementId Id = FindId(KeyFuncs::GetSetKey(Element));
		if (bIsAlreadyInSet)
		{
			*bIsAlreadyInSet = Id.IsValidId();
		}
		return Elements[(Id.IsValidId() ? Id : Add(Element)).AsInteger()].Value;
	}
	void Append(std::initializer_list<ElementType> Init)
	{
		Reserve(Num() + static_cast<int32>(Init.size()));
		for (const ElementType& Element : Init)
		{
			Add(Element);
		}
	}
	template <typename ContainerType>
	void Append(const ContainerType& Other)
	{
		Reserve(Num() + static_cast<int32>(Other.Num()));
		for (const auto& Element : Other)
		{
			Add(Element);
		}
	}

	/** Removes every element of the key. @return number removed */
	template <typename ComparableKey>
	int32 Remove(const ComparableKey& Key)
	{
		if constexpr (!KeyFuncs::bAllowDuplicateKeys)
		{
			const FSetElementId Id = FindId(Key);
			if (!Id.IsValidId())
			{
				return 0;
			}
			Remove(Id);
			return 1;
		}
		else
		{
			// The key may live in one of the elements, so all are found before the first is removed.
			TArray<FSetElementId, TInlineAllocator<8>> Found;
			for (FSetElementId Id = FindId(Key); Id.IsValidId(); Id = FindNextId(Id, Key))
			{
				Found.Add(Id);
			}
			for (const FSetElementId Id : Found)
			{
				Remove(Id);
			}
			return Found.Num();
		}
	}
	void Remove(FSetElementId Id)
	{
		const int32 Index = Id.AsInteger();
		int32* Link = &Buckets[BucketOf(Elements[Index].Hash)];
		while (*Link != Index)
		{
			Link = &Elements.GetAt(*Link).NextInBucket;
		}
		*Link = Elements[Index].NextInBucket;
		Elements.RemoveAt(Index);
	}
	void Reset()
	{
		Elements.Reset();
		for (int32& Bucket : Buckets)
		{
			Bucket = INDEX_NONE;
		}
	}
	void Empty(int32 ExpectedNumElements = 0)
	{
		Elements.Empty(ExpectedNumElements);
		Buckets.Empty();
		ReserveBuckets(ExpectedNumElements);
	}
	void Reserve(int32 Number)
	{
		Elements.Reserve(Number);
		ReserveBuckets(Number);
	}
	/** Closes the gaps of removed elements. */
	void Compact()
	{
		if (Elements.Compact())
		{
			Rehash();
		}
	}
	void CompactStable() { Compact(); }
	void Shrink() { Elements.Shrink(); }

	template <typename ComparableKey>
	FSetElementId FindId(const ComparableKey& Key) const
	{
		return FSetElementId::FromInteger(FindIndex(KeyFuncs::GetKeyHash(Key), Key));
	}
	/** Next element of the same key behind one, for sets that keep duplicates; newest first. */
	template <typename ComparableKey>
	FSetElementId FindNextId(FSetElementId Id, const ComparableKey& Key) const
	{
		const FNode& Node = Elements[Id.AsInteger()];
		return FSetElementId::FromInteger(FindInChain(Node.NextInBucket, Node.Hash, Key));
	}
	template <typename ComparableKey>
	ElementType* Find(const ComparableKey& Key)
	{
		const FSetElementId Id = FindId(Key);
		return Id.IsValidId() ? &Elements[Id.AsInteger()].Value : nullptr;
	}
	template <typename ComparableKey>
	const ElementType* Find(const ComparableKey& Key) const
	{
		return const_cast<TSet*>(this)->Find(Key);
	}
	template <typename ComparableKey>
	bool Contains(const ComparableKey& Key) const
	{
		return FindId(Key).IsValidId();
	}
	ElementType& operator[](FSetElementId Id) { return Elements[Id.AsInteger()].Value; }
	const ElementType& operator[](FSetElementId Id) const { return Elements[Id.AsInteger()].Value; }
	bool IsValidId(FSetElementId Id) const { return Elements.IsValidIndex(Id.AsInteger()); }

	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(Num());
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}
	TSet Intersect(const TSet& Other) const
	{
		return Filter([&Other](const ElementType& Element) { return Other.Contains(KeyFuncs::GetSetKey(Element)); });
	}
	TSet Difference(const TSet& Other) const
	{
		return Filter([&Other](const ElementType& Element) { return !Other.Contains(KeyFuncs::GetSetKey(Element)); });
	}
	TSet Union(const TSet& Other) const
	{
		TSet Result = *this;
		Result.Append(Other);
		return Result;
	}
	/** True when every element of the other set is here. */
	bool Includes(const TSet& Other) const { return Other.Difference(*this).IsEmpty(); }

	/** Closes the gaps and sorts the walking order. */
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		const UE::Core::Private::TDereferencePredicate<ElementType, PredicateType> OnValues{Predicate};
		Elements.StableSort([&OnValues](const FNode& A, const FNode& B) { return OnValues(A.Value, B.Value); });
		Rehash();
	}
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		Sort(Predicate);
	}

	template <typename SetType, typename ItemType>
	class TBaseIterator
	{
	public:
		explicit TBaseIterator(SetType& InSet, int32 StartIndex = 0)
			: Set(&InSet)
			, Index(InSet.Elements.FindNext(StartIndex))
		{
		}
		TBaseIterator& operator++()
		{
			Index = Set->Elements.FindNext(Index + 1);
			return *this;
		}
		ItemType& operator*() const { return Set->Elements.GetAt(Index).Value; }
		ItemType* operator->() const { return &Set->Elements.GetAt(Index).Value; }
		explicit operator bool() const { return Index < Set->Elements.GetMaxIndex(); }
		bool operator==(const TBaseIterator& Other) const { return Index == Other.Index; }
		FSetElementId GetId() const { return FSetElementId::FromInteger(Index); }
		/** Removes the current element; the next increment goes on behind it. */
		void RemoveCurrent() { Set->Remove(GetId()); }

	private:
		SetType* Set;
		int32 Index;
	};
	using TIterator = TBaseIterator<TSet, ElementType>;
	using TConstIterator = TBaseIterator<const TSet, const ElementType>;
	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }
	TIterator begin() { return TIterator(*this); }
	TConstIterator begin() const { return TConstIterator(*this); }
	TIterator end() { return TIterator(*this, GetMaxIndex()); }
	TConstIterator end() const { return TConstIterator(*this, GetMaxIndex()); }

private:
	using FNode = TSetElement<ElementType>;

	int32 BucketOf(uint32 Hash) const
	{
		// Hashes of small integers are the integers; spreading them keeps strided keys out of one bucket.
		Hash *= 0x9e3779b1u;
		return static_cast<int32>((Hash ^ (Hash >> 15)) & static_cast<uint32>(Buckets.Num() - 1));
	}
	int32 FirstInBucket(uint32 Hash) const
	{
		return Buckets.IsEmpty() ? static_cast<int32>(INDEX_NONE) : Buckets.GetData()[BucketOf(Hash)];
	}
	template <typename ComparableKey>
	int32 FindInChain(int32 Index, uint32 Hash, const ComparableKey& Key) const
	{
		while (Index != INDEX_NONE)
		{
			const FNode& Node = Elements.GetAt(Index);
			if (Node.Hash == Hash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Node.Value), Key))
			{
				return Index;
			}
			Index = Node.NextInBucket;
		}
		return INDEX_NONE;
	}
	template <typename ComparableKey>
	int32 FindIndex(uint32 Hash, const ComparableKey& Key) const
	{
		return FindInChain(FirstInBucket(Hash), Hash, Key);
	}
	void Link(int32 Index)
	{
		ReserveBuckets(Elements.Num());
		LinkFirst(Index);
	}
	void LinkFirst(int32 Index)
	{
		FNode& Node = Elements.GetAt(Index);
		int32& Bucket = Buckets.GetData()[BucketOf(Node.Hash)];
		Node.NextInBucket = Bucket;
		Bucket = Index;
	}
	void ReserveBuckets(int32 Number)
	{
		int32 NumBuckets = Buckets.Num();
		if (Number <= NumBuckets)
		{
			return;
		}
		NumBuckets = NumBuckets > 0 ? NumBuckets : 4;
		while (NumBuckets < Number)
		{
			NumBuckets *= 2;
		}
		const TArray<int32> OldBuckets = MoveTemp(Buckets);
		Buckets.Init(INDEX_NONE, NumBuckets);

		// Each chain is walked from its oldest element, so that the newest is first again.
		TArray<int32, TInlineAllocator<32>> Chain;
		for (const int32 First : OldBuckets)
		{
			Chain.Reset();
			for (int32 Index = First; Index != INDEX_NONE; Index = Elements.GetAt(Index).NextInBucket)
			{
				Chain.Add(Index);
			}
			while (!Chain.IsEmpty())
			{
				LinkFirst(Chain.Pop(false));
			}
		}
	}
	/** Links all elements anew in the order of their indices. */
	void Rehash()
	{
		for (int32& Bucket : Buckets)
		{
			Bucket = INDEX_NONE;
		}
		for (int32 Index = Elements.FindNext(0); Index < Elements.GetMaxIndex(); Index = Elements.FindNext(Index + 1))
		{
			LinkFirst(Index);
		}
	}
	template <typename PredicateType>
	TSet Filter(const PredicateType& Predicate) const
	{
		TSet Result;
		for (const ElementType& Element : *this)
		{
			if (Predicate(Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	TSparseArray<FNode> Elements;
	TArray<int32> Buckets;
};
