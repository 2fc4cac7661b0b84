// SPDX-License-Identifier: MIT
/** What TMap and TMultiMap have in common. */
#pragma once

#include "Containers/Set.h"
#include "Templates/Tuple.h"

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs : BaseKeyFuncs<TPair<KeyType, ValueType>, KeyType, bInAllowDuplicateKeys>
{
	static const KeyType& GetSetKey(const TPair<KeyType, ValueType>& Element) { return Element.Key; }
	template <typename ComparableKey>
	static bool Matches(const KeyType& A, const ComparableKey& B)
	{
		return A == B;
	}
	template <typename ComparableKey>
	static uint32 GetKeyHash(const ComparableKey& Key)
	{
		return GetTypeHash(Key);
	}
};

/** Set of pairs that compare by their key. */
template <typename InKeyType, typename InValueType, typename KeyFuncs>
class TMapBase
{
public:
	using ElementType = TPair<InKeyType, InValueType>;
	using ElementSetType = TSet<ElementType, KeyFuncs>;

	int32 Num() const { return Pairs.Num(); }
	bool IsEmpty() const { return Pairs.IsEmpty(); }
	int32 GetMaxIndex() const { return Pairs.GetMaxIndex(); }
	SIZE_T GetAllocatedSize() const { return Pairs.GetAllocatedSize(); }
	void Reserve(int32 Number) { Pairs.Reserve(Number); }
	void Reset() { Pairs.Reset(); }
	void Empty(int32 ExpectedNumElements = 0) { Pairs.Empty(ExpectedNumElements); }
	void Shrink() { Pairs.Shrink(); }
	/** Closes the gaps of removed pairs. */
	void Compact() { Pairs.Compact(); }
	void CompactStable() { Pairs.Compact(); }

	/** Adds a pair; where keys are single, it takes the place of the pair with an equal key. @return the value */
	template <typename KeyArg, typename ValueArg>
	InValueType& Emplace(KeyArg&& Key, ValueArg&& Value)
	{
		return Pairs[Pairs.Emplace(ElementType(Forward<KeyArg>(Key), Forward<ValueArg>(Value)))].Value;
	}
	template <typename KeyArg>
	InValueType& Emplace(KeyArg&& Key)
	{
		return Pairs[Pairs.Emplace(ElementType(InKeyType(Forward<KeyArg>(Key)), InValueType()))].Value;
	}
	InValueType& Add(const InKeyType& Key, const InValueType& Value) { return Emplace(Key, Value); }
	InValueType& Add(const InKeyType& Key, InValueType&& Value) { return Emplace(Key, MoveTempIfPossible(Value)); }
	InValueType& Add(InKeyType&& Key, const InValueType& Value) { return Emplace(MoveTempIfPossible(Key), Value); }
	InValueType& Add(InKeyType&& Key, InValueType&& Value)
	{
		return Emplace(MoveTempIfPossible(Key), MoveTempIfPossible(Value));
	}
	/** Adds a key with a default value. */
	InValueType& Add(const InKeyType& Key) { return Emplace(Key); }
	InValueType& Add(InKeyType&& Key) { return Emplace(MoveTempIfPossible(Key)); }
	InValueType& Add(const ElementType& Pair) { return Emplace(Pair.Key, Pair.Value); }

	int32 Remove(const InKeyType& Key) { return Pairs.Remove(Key); }

	InValueType* Find(const InKeyType& Key)
	{
		ElementType* Pair = Pairs.Find(Key);
		return Pair ? &Pair->Value : nullptr;
	}
	const InValueType* Find(const InKeyType& Key) const { return const_cast<TMapBase*>(this)->Find(Key); }
	/** Copy of the value of a key, or a default value. */
	InValueType FindRef(const InKeyType& Key) const
	{
		const InValueType* Value = Find(Key);
		return Value ? *Value : InValueType();
	}
	InValueType& FindOrAdd(const InKeyType& Key)
	{
		InValueType* Value = Find(Key);
		return Value ? *Value : Add(Key);
	}
	InValueType& FindOrAdd(const InKeyType& Key, const InValueType& ValueIfNew)
	{
		InValueType* Value = Find(Key);
		return Value ? *Value : Add(Key, ValueIfNew);
	}
	bool Contains(const InKeyType& Key) const { return Pairs.Contains(Key); }
	/** First key with an equal value, found by walking; null when there is none. */
	const InKeyType* FindKey(const InValueType& Value) const
	{
		for (const ElementType& Pair : Pairs)
		{
			if (Pair.Value == Value)
			{
				return &Pair.Key;
			}
		}
		return nullptr;
	}

	/** Replaces the array's contents by the keys, each one once. @return number of keys */
	template <typename Allocator>
	int32 GetKeys(TArray<InKeyType, Allocator>& OutKeys) const
	{
		TSet<InKeyType> Visited;
		OutKeys.Reset(Num());
		for (const ElementType& Pair : Pairs)
		{
			bool bIsAlreadyInSet = false;
			if constexpr (KeyFuncs::bAllowDuplicateKeys)
			{
				Visited.Add(Pair.Key, &bIsAlreadyInSet);
			}
			if (!bIsAlreadyInSet)
			{
				OutKeys.Add(Pair.Key);
			}
		}
		return OutKeys.Num();
	}
	template <typename OtherKeyFuncs, typename OtherAllocator>
	int32 GetKeys(TSet<InKeyType, OtherKeyFuncs, OtherAllocator>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}
	/** Replaces the array's contents by the key of every pair. */
	template <typename Allocator>
	void GenerateKeyArray(TArray<InKeyType, Allocator>& OutArray) const
	{
		OutArray.Reset(Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Key);
		}
	}
	/** Replaces the array's contents by the value of every pair. */
	template <typename Allocator>
	void GenerateValueArray(TArray<InValueType, Allocator>& OutArray) const
	{
		OutArray.Reset(Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Value);
		}
	}
	/** A new map of the pairs for which the predicate holds. */
	template <typename PredicateType>
	auto FilterByPredicate(const PredicateType& Predicate) const
	{
		TMap<InKeyType, InValueType> Result;
		for (const ElementType& Pair : Pairs)
		{
			if (Predicate(Pair))
			{
				Result.Add(Pair.Key, Pair.Value);
			}
		}
		return Result;
	}

	/** Sorts the walking order by key; keys that are pointers are compared by what they point to. */
	template <typename PredicateType>
	void KeySort(const PredicateType& Predicate)
	{
		const UE::Core::Private::TDereferencePredicate<InKeyType, PredicateType> OnKeys{Predicate};
		Pairs.Sort([&OnKeys](const ElementType& A, const ElementType& B) { return OnKeys(A.Key, B.Key); });
	}
	template <typename PredicateType>
	void KeyStableSort(const PredicateType& Predicate)
	{
		KeySort(Predicate);
	}
	/** Sorts the walking order by value; values that are pointers are compared by what they point to. */
	template <typename PredicateType>
	void ValueSort(const PredicateType& Predicate)
	{
		const UE::Core::Private::TDereferencePredicate<InValueType, PredicateType> OnValues{Predicate};
		Pairs.Sort([&OnValues](const ElementType& A, const ElementType& B) { return OnValues(A.Value, B.Value); });
	}
	template <typename PredicateType>
	void ValueStableSort(const PredicateType& Predicate)
	{
		ValueSort(Predicate);
	}
	/** True when both hold equal values for the same keys, in whatever order. */
	bool OrderIndependentCompareEqual(const TMapBase& Other) const
	{
		if (Num() != Other.Num())
		{
			return false;
		}
		for (const ElementType& Pair : Pairs)
		{
			const InValueType* OtherValue = Other.Find(Pair.Key);
			if (!OtherValue || !(*OtherValue == Pair.Value))
			{
				return false;
			}
		}
		return true;
	}

	template <typename SetIterator, typename KeyRef, typename ValueRef>
	class TPairIterator : public SetIterator
	{
	public:
		using SetIterator::SetIterator;
		explicit TPairIterator(const SetIterator& Other)
			: SetIterator(Other)
		{
		}
		KeyRef& Key() const { return (**this).Key; }
		ValueRef& Value() const { return (**this).Value; }
	};
	using TIterator = TPairIterator<typename ElementSetType::TIterator, InKeyType, InValueType>;
	using TConstIterator = TPairIterator<typename ElementSetType::TConstIterator, const InKeyType, const InValueType>;
	TIterator CreateIterator() { return TIterator(Pairs); }
	TConstIterator CreateConstIterator() const { return TConstIterator(Pairs); }
	auto begin() { return Pairs.begin(); }
	auto begin() const { return Pairs.begin(); }
	auto end() { return Pairs.end(); }
	auto end() const { return Pairs.end(); }

protected:
	TMapBase() = default;
	TMapBase(std::initializer_list<ElementType> Init)
	{
		Pairs.Reserve(static_cast<int32>(Init.size()));
		for (const ElementType& Pair : Init)
		{
			Pairs.Add(Pair);
		}
	}
	TMapBase& operator=(std::initializer_list<ElementType> Init)
	{
		Pairs = Init;
		return *this;
	}

	ElementSetType Pairs;
};
