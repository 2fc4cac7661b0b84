// SPDX-License-Identifier: MIT
/** The ids in use of something that may have gaps. */
#pragma once

namespace UE::Geometry
{

/** Those ids below MaxID for which IsLive holds, ascending, for a range-based loop. A new id ends its validity. */
template <typename OwnerType, bool (OwnerType::*IsLive)(int) const>
class TLiveIds
{
public:
	class FIterator
	{
	public:
		FIterator(const TLiveIds& InIds, int InIndex)
			: Ids(InIds)
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
			while (Index < Ids.MaxID && !(Ids.Owner->*IsLive)(Index))
			{
				++Index;
			}
		}

		TLiveIds Ids;
		int Index;
	};

	TLiveIds(const OwnerType* InOwner, int InMaxID)
		: Owner(InOwner)
		, MaxID(InMaxID)
	{
	}
	FIterator begin() const { return FIterator(*this, 0); }
	FIterator end() const { return FIterator(*this, MaxID); }

private:
	const OwnerType* Owner;
	int MaxID;
};

} // namespace UE::Geometry
