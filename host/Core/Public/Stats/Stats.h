// SPDX-License-Identifier: MIT
/** Names under which work is measured. */
#pragma once

#include "UObject/NameTypes.h"

/** A statistic's identity. This engine layer measures nothing: it keeps the names alone. */
struct TStatId
{
	TStatId() = default;
	explicit TStatId(const FName& InName)
		: Name(InName)
	{
	}

	FName GetName() const { return Name; }
	bool IsValidStat() const { return !Name.IsNone(); }

private:
	FName Name;
};

/** A group of statistics. */
struct FStatGroup_STATGROUP_TaskGraphTasks
{
	static constexpr const TCHAR* GetDescription() { return TEXT("Task Graph Tasks"); }
	static constexpr const TCHAR* GetGroupCategory() { return TEXT("STATCAT_Advanced"); }
};

struct FStatGroup_STATGROUP_Tickables
{
	static constexpr const TCHAR* GetDescription() { return TEXT("Tickables"); }
	static constexpr const TCHAR* GetGroupCategory() { return TEXT("STATCAT_Advanced"); }
};

/** The body of a GetStatId: the statistic of that name in that group. */
#define RETURN_QUICK_DECLARE_CYCLE_STAT(StatId, GroupId)                                                               \
	static_assert(sizeof(FStatGroup_##GroupId) > 0);                                                                   \
	static const TStatId QuickStatId{FName(TEXT(#StatId))};                                                            \
	return QuickStatId
