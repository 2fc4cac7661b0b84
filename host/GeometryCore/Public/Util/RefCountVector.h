// SPDX-License-Identifier: MIT
/** Ids with use counts. */
#pragma once

#include "Containers/Array.h"
#include "IndexTypes.h"

namespace UE::Geometry
{

/**
 * Gives out ids in ascending order, counts their uses, and takes an id back when nobody uses it any more.
 * A freed id is given out again before any new one, the one that was freed last first.
 */
class FRefCountVector
{
public:
	/** The live ids in ascending order, for a range-based loop. Adding or freeing ids ends its validity. */
	class IndexEnumerable
	{
	public:
		class Iterator
		{
		public:
			Iterator(const FRefCountVector* InOwner, int InIndex)
				: Owner(InOwner)
				, Index(InIndex)
			{
				SkipFree();
			}
			int operator*() const { return Index; }
			Iterator& operator++()
			{
				++Index;
				SkipFree();
				return *this;
			}
			bool operator==(const Iterator& Other) const { return Index == Other.Index; }

		private:
			void SkipFree()
			{
				while (Index < Owner->GetMaxIndex() && !Owner->IsValid(Index))
				{
					++Index;
				}
			}

			const FRefCountVector* Owner;
			int Index;
		};

		explicit IndexEnumerable(const FRefCountVector* InOwner)
			: Owner(InOwner)
		{
		}
		Iterator begin() const { return Iterator(Owner, 0); }
		Iterator end() const { return Iterator(Owner, Owner->GetMaxIndex()); }

	private:
		const FRefCountVector* Owner;
	};

	/** Number of live ids. */
	int GetCount() const { return RefCounts.Num() - FreeIds.Num(); }
	/** One past the highest id ever given out. */
	int GetMaxIndex() const { return RefCounts.Num(); }
	bool IsDense() const { return FreeIds.Num() == 0; }

	bool IsValid(int Index) const
	{
		return static_cast<uint32>(Index) < static_cast<uint32>(RefCounts.Num()) && RefCounts.GetData()[Index] > 0;
	}
	/** Uses of an id, 0 when it is free. */
	int GetRefCount(int Index) const { return IsValid(Index) ? RefCounts.GetData()[Index] : 0; }

	/** A free id, or a new one, with a use count of 1. */
	int Allocate()
	{
		if (FreeIds.Num() == 0)
		{
			return RefCounts.Add(1);
		}
		const int Index = FreeIds.Pop();
		RefCounts[Index] = 1;
		return Index;
	}
	/** One use more of a live id. */
	void Increment(int Index) { ++RefCounts.GetData()[Index]; }
	/** One use less of a live id, which frees it at 0. @return whether it is still live */
	bool Decrement(int Index)
	{
		if (--RefCounts.GetData()[Index] > 0)
		{
			return true;
		}
		FreeIds.Add(Index);
		return false;
	}

	IndexEnumerable Indices() const { return IndexEnumerable(this); }

private:
	/** [GetMaxIndex()], 0 for a free id. */
	TArray<int32> RefCounts;
	TArray<int32> FreeIds;
};

} // namespace UE::Geometry
