// SPDX-License-Identifier: MIT
/** Maps that walk in the order of insertion while nothing was removed. */
#pragma once

#include "Containers/MapBase.h"

/** Map from each key to one value. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMap : public TMapBase<InKeyType, InValueType, KeyFuncs>
{
	using Super = TMapBase<InKeyType, InValueType, KeyFuncs>;
	using Super::Pairs;

public:
	using typename Super::ElementType;
	using KeyType = InKeyType;
	using ValueType = InValueType;

	TMap() = default;
	TMap(std::initializer_list<ElementType> Init)
		: Super(Init)
	{
	}
	TMap& operator=(std::initializer_list<ElementType> Init)
	{
		Super::operator=(Init);
		return *this;
	}

	/** Value of a key that must be there; a missing key is a failed check. */
	InValueType& FindChecked(const InKeyType& Key)
	{
		InValueType* Value = this->Find(Key);
		check(Value != nullptr);
		return *Value;
	}
	const InValueType& FindChecked(const InKeyType& Key) const { return const_cast<TMap*>(this)->FindChecked(Key); }
	InValueType& operator[](const InKeyType& Key) { return FindChecked(Key); }
	const InValueType& operator[](const InKeyType& Key) const { return FindChecked(Key); }

	/** Removes a key and hands out its value. @return false when the key is not there */
	bool RemoveAndCopyValue(const InKeyType& Key, InValueType& OutRemovedValue)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		if (!Id.IsValidId())
		{
			return false;
		}
		OutRemovedValue = MoveTemp(Pairs[Id].Value);
		Pairs.Remove(Id);
		return true;
	}
	/** Removes a key that must be there and returns its value. */
	InValueType FindAndRemoveChecked(const InKeyType& Key)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		check(Id.IsValidId());
		InValueType Result = MoveTemp(Pairs[Id].Value);
		Pairs.Remove(Id);
		return Result;
	}
	/** Adds the pairs of another map; its values replace those of equal keys. */
	template <typename OtherSetAllocator, typename OtherKeyFuncs>
	void Append(const TMap<InKeyType, InValueType, OtherSetAllocator, OtherKeyFuncs>& Other)
	{
		this->Reserve(this->Num() + Other.Num());
		for (const auto& Pair : Other)
		{
			this->Add(Pair.Key, Pair.Value);
		}
	}
};

/** Map from each key to any number of values. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMultiMap : public TMapBase<InKeyType, InValueType, KeyFuncs>
{
	using Super = TMapBase<InKeyType, InValueType, KeyFuncs>;
	using Super::Pairs;

public:
	using typename Super::ElementType;
	using KeyType = InKeyType;
	using ValueType = InValueType;

	TMultiMap() = default;
	TMultiMap(std::initializer_list<ElementType> Init)
		: Super(Init)
	{
	}

	/** Appends the values of a key, the newest first; with bMaintainOrder the oldest first. */
	template <typename Allocator>
	void MultiFind(const InKeyType& Key, TArray<InValueType, Allocator>& OutValues, bool bMaintainOrder = false) const
	{
		const int32 OldNum = OutValues.Num();
		ForEachOf(Key,
			[&](FSetElementId Id)
			{
				OutValues.Add(Pairs[Id].Value);
				return true;
			});
		if (bMaintainOrder)
		{
			for (int32 Front = OldNum, Back = OutValues.Num() - 1; Front < Back; ++Front, --Back)
			{
				OutValues.Swap(Front, Back);
			}
		}
	}
	template <typename Allocator>
	void MultiFindPointer(const InKeyType& Key, TArray<const InValueType*, Allocator>& OutValues) const
	{
		ForEachOf(Key,
			[&](FSetElementId Id)
			{
				OutValues.Add(&Pairs[Id].Value);
				return true;
			});
	}
	/** The value of a pair, or null when key and value do not stand together. */
	const InValueType* FindPair(const InKeyType& Key, const InValueType& Value) const
	{
		const FSetElementId Id = FindPairId(Key, Value);
		return Id.IsValidId() ? &Pairs[Id].Value : nullptr;
	}
	InValueType& AddUnique(const InKeyType& Key, const InValueType& Value)
	{
		const FSetElementId Id = FindPairId(Key, Value);
		return Id.IsValidId() ? Pairs[Id].Value : this->Add(Key, Value);
	}
	using Super::Remove;
	/** Removes every pair of this key and value. @return number removed */
	int32 Remove(const InKeyType& Key, const InValueType& Value)
	{
		int32 NumRemoved = 0;
		while (RemoveSingle(Key, Value) == 1)
		{
			++NumRemoved;
		}
		return NumRemoved;
	}
	int32 RemoveSingle(const InKeyType& Key, const InValueType& Value)
	{
		const FSetElementId Id = FindPairId(Key, Value);
		if (!Id.IsValidId())
		{
			return 0;
		}
		Pairs.Remove(Id);
		return 1;
	}
	int32 Num(const InKeyType& Key) const
	{
		int32 Count = 0;
		ForEachOf(Key,
			[&](FSetElementId)
			{
				++Count;
				return true;
			});
		return Count;
	}
	using Super::Num;

private:
	/** Visits the pairs of a key, the newest first, until the visitor returns false. */
	template <typename VisitorType>
	void ForEachOf(const InKeyType& Key, VisitorType Visitor) const
	{
		FSetElementId Id = Pairs.FindId(Key);
		while (Id.IsValidId() && Visitor(Id))
		{
			Id = Pairs.FindNextId(Id, Key);
		}
	}
	FSetElementId FindPairId(const InKeyType& Key, const InValueType& Value) const
	{
		FSetElementId Found;
		ForEachOf(Key,
			[&](FSetElementId Id)
			{
				const bool bMatches = Pairs[Id].Value == Value;
				Found = bMatches ? Id : Found;
				return !bMatches;
			});
		return Found;
	}
};
