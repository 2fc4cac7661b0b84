// SPDX-License-Identifier: MIT
/** Records that are known by ids. */
#pragma once

#include "Containers/Array.h"
#include "Util/BlockArray.h"

namespace UE::Geometry
{

/**
 * A growing array of records, whose positions are their ids. A freed id is given out again before any new one, the one
 * that was freed last first; while nothing is freed, ids ascend.
 *
 * RecordType says with IsLive() whether it is one, and MakeFree() makes it none.
 */
template <typename RecordType>
class TRecordPool
{
public:
	/** The live ids in ascending order, for a range-based loop. Adding a record ends its validity. */
	class FIds
	{
	public:
		class FIterator
		{
		public:
			FIterator(const TRecordPool* InPool, int InIndex)
				: Pool(InPool)
				, Index(InIndex)
			{
				SkipFree();
			}
			int operator*() const { return Index; }
			FIterator& operator++()
			{
				++Index;
				SkipFree();
				return *this;
			}
			bool operator==(const FIterator& Other) const { return Index == Other.Index; }

		private:
			void SkipFree()
			{
				while (Index < Pool->MaxID() && !Pool->IsLive(Index))
				{
					++Index;
				}
			}

			const TRecordPool* Pool;
			int Index;
		};

		explicit FIds(const TRecordPool* InPool)
			: Pool(InPool)
		{
		}
		FIterator begin() const { return FIterator(Pool, 0); }
		FIterator end() const { return FIterator(Pool, Pool->MaxID()); }

	private:
		const TRecordPool* Pool;
	};

	/** Number of live records. */
	int Num() const { return Records.Num() - FreeIds.Num(); }
	/** One past the highest id ever given out. */
	int MaxID() const { return Records.Num(); }
	/** Whether no id is free. */
	bool IsDense() const { return FreeIds.Num() == 0; }
	bool IsLive(int Id) const
	{
		return static_cast<uint32>(Id) < static_cast<uint32>(Records.Num()) && Records.At(Id).IsLive();
	}
	FIds Ids() const { return FIds(this); }

	/** Id of a new record. */
	int Add(const RecordType& Record)
	{
		if (FreeIds.Num() == 0)
		{
			return Records.Add(Record);
		}
		const int Id = FreeIds.Pop();
		Records[Id] = Record;
		return Id;
	}
	/** Gives the id of a live record back. */
	void Free(int Id)
	{
		Records[Id].MakeFree();
		FreeIds.Add(Id);
	}

	/** The record of an id below MaxID(); any other id is a fault. */
	RecordType& operator[](int Id) { return Records[Id]; }
	const RecordType& operator[](int Id) const { return Records[Id]; }
	/** The live record of an id; null when there is none. */
	RecordType* Find(int Id)
	{
		if (static_cast<uint32>(Id) >= static_cast<uint32>(Records.Num()))
		{
			return nullptr;
		}
		RecordType& Record = Records.At(Id);
		return Record.IsLive() ? &Record : nullptr;
	}
	/** Without the range check. */
	RecordType& At(int Id) { return Records.At(Id); }
	const RecordType& At(int Id) const { return Records.At(Id); }

private:
	TBlockArray<RecordType> Records;
	TArray<int32> FreeIds;
};

} // namespace UE::Geometry
