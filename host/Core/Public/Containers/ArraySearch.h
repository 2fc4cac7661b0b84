// SPDX-License-Identifier: MIT
/** Searching that arrays and views have in common. */
#pragma once

#include "Templates/Invoke.h"

namespace UE::Core::Private
{

/** Base of a container with GetData() and Num(); what is found is as constant as GetData() makes it. */
template <typename ContainerType, typename ElementType, typename SizeType>
class TArraySearch
{
public:
	/** Index of the first equal element, or INDEX_NONE. */
	SizeType Find(const ElementType& Item) const { return IndexOfByKey(Item); }
	bool Find(const ElementType& Item, SizeType& Index) const { return (Index = Find(Item)) != INDEX_NONE; }
	SizeType FindLast(const ElementType& Item) const
	{
		return FindLastByPredicate([&Item](const ElementType& Element) { return Element == Item; });
	}
	bool FindLast(const ElementType& Item, SizeType& Index) const { return (Index = FindLast(Item)) != INDEX_NONE; }
	template <typename PredicateType>
	SizeType FindLastByPredicate(PredicateType Predicate) const
	{
		const auto* Data = Self().GetData();
		SizeType Index = Self().Num() - 1;
		while (Index >= 0 && !Invoke(Predicate, Data[Index]))
		{
			--Index;
		}
		return Index;
	}

	/** Index of the first element that equals a key of whatever type, or INDEX_NONE. */
	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		const auto* Data = Self().GetData();
		const SizeType Num = Self().Num();
		for (SizeType Index = 0; Index < Num; ++Index)
		{
			if (Data[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename PredicateType>
	SizeType IndexOfByPredicate(PredicateType Predicate) const
	{
		const auto* Data = Self().GetData();
		const SizeType Num = Self().Num();
		for (SizeType Index = 0; Index < Num; ++Index)
		{
			if (Invoke(Predicate, Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** The first element that equals a key of whatever type, or null. */
	template <typename KeyType>
	auto* FindByKey(const KeyType& Key) const
	{
		return At(Self(), IndexOfByKey(Key));
	}
	template <typename KeyType>
	auto* FindByKey(const KeyType& Key)
	{
		return At(Self(), IndexOfByKey(Key));
	}
	template <typename PredicateType>
	auto* FindByPredicate(PredicateType Predicate) const
	{
		return At(Self(), IndexOfByPredicate(Predicate));
	}
	template <typename PredicateType>
	auto* FindByPredicate(PredicateType Predicate)
	{
		return At(Self(), IndexOfByPredicate(Predicate));
	}
	template <typename ComparisonType>
	bool Contains(const ComparisonType& Item) const
	{
		return IndexOfByKey(Item) != INDEX_NONE;
	}
	template <typename PredicateType>
	bool ContainsByPredicate(PredicateType Predicate) const
	{
		return IndexOfByPredicate(Predicate) != INDEX_NONE;
	}

private:
	const ContainerType& Self() const { return static_cast<const ContainerType&>(*this); }
	ContainerType& Self() { return static_cast<ContainerType&>(*this); }

	template <typename SelfType>
	static auto* At(SelfType& Container, SizeType Index)
	{
		auto* Data = Container.GetData();
		return Index == INDEX_NONE ? nullptr : Data + Index;
	}
};

} // namespace UE::Core::Private
