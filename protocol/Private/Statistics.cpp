// SPDX-License-Identifier: MIT
#include "Statistics.h"

#include <deque>
#include <map>
#include <mutex>

namespace Zef
{

namespace
{
constexpr std::size_t KeptReports = 1024;

struct FChannelReports
{
	std::deque<FReceiveReport> Latest;
	std::uint64_t Count = 0;
};

struct FAllReports
{
	std::mutex Mutex;
	std::map<std::string, FChannelReports> Channels;
};

FAllReports& AllReports()
{
	static FAllReports Reports;
	return Reports;
}
} // namespace

void NoteReceived(const std::string& ChannelName, FReceiveReport& InOutReport)
{
	FAllReports& All = AllReports();
	const std::lock_guard Lock(All.Mutex);
	FChannelReports& Channel = All.Channels[ChannelName];
	InOutReport.Number = ++Channel.Count;
	Channel.Latest.push_back(InOutReport);
	if (Channel.Latest.size() > KeptReports)
	{
		Channel.Latest.pop_front();
	}
}

std::vector<FReceiveReport> ReceiveReports(const std::string& ChannelName)
{
	FAllReports& All = AllReports();
	const std::lock_guard Lock(All.Mutex);
	const auto Found = All.Channels.find(ChannelName);
	if (Found == All.Channels.end())
	{
		return {};
	}
	return {Found->second.Latest.begin(), Found->second.Latest.end()};
}

void ClearReceiveReports(const std::string& ChannelName)
{
	FAllReports& All = AllReports();
	const std::lock_guard Lock(All.Mutex);
	All.Channels.erase(ChannelName);
}

} // namespace Zef
