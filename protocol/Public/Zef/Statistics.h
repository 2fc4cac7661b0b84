// SPDX-License-Identifier: MIT
/** What a channel received and how long it took, for tables and logs of any program around the client. */
#pragma once

#include "Zef/Items.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Zef
{

/** One item that arrived complete and passed all checks. */
struct FReceiveReport
{
	EItem Item = EItem::None;
	EObjectType ObjectType = EObjectType::Invalid;
	/** Header and arrays. */
	std::uint64_t Bytes = 0;
	/** From the header's arrival to the last check of the last piece. */
	double Milliseconds = 0;
	/** Counts the items of the channel from 1. */
	std::uint64_t Number = 0;
};

/** The latest reports of a channel of this process, oldest first; at most 1024 are kept. Callable from any thread. */
std::vector<FReceiveReport> ReceiveReports(const std::string& ChannelName);

/** Forgets the reports of a channel. */
void ClearReceiveReports(const std::string& ChannelName);

} // namespace Zef
