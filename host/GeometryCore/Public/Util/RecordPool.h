// SPDX-License-Identifier: MIT
/** Records that are known by ids. */
#pragma once

#include "Containers/Array.h"
#include "Util/BlockArray.h"
#include "Util/LiveIds.h"

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
	/** The live ids in ascending order, for a range-based loop. */
	auto Ids() const { return TLiveIds<TRecordPool, &TRecordPool::IsLive>(this, MaxID()); }

	/** Id of a new record. */
	FORCEINLINE int Add(const RecordType& Record)
	{
		// The record's address goes nowhere, so that it comes to its place from registers.
		if (UNLIKELY(FreeIds.Num() > 0))
		{
			const int Id = TakeFreeId();
			Records[Id] = Record;
			return Id;
		}
		return Records.Add(Record);
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
	/** Without the range check. */
	RecordType& At(int Id) { return Records.At(Id); }
	const RecordType& At(int Id) const { return Records.At(Id); }
	/** At, for a stretch of code that has called Own() and copies nothing meanwhile. */
	FORCEINLINE RecordType& AtOwned(int Id) { return Records.AtOwned(Id); }
	/** Makes sure that changes are seen here alone: copies of a pool share its records until then. */
	FORCEINLINE void Own() { Records.Own(); }

private:
	FORCENOINLINE int TakeFreeId() { return FreeIds.Pop(); }

	TBlockArray<RecordType> Records;
	TArray<int32> FreeIds;
};

} // namespace UE::Geometry
