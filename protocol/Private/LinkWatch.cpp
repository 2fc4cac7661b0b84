// SPDX-License-Identifier: MIT
#include "LinkWatch.h"

#include <map>
#include <mutex>
#include <utility>

namespace Zef
{

namespace
{
struct FAllLinks
{
	std::mutex Mutex;
	std::map<std::uint64_t, FLinkStatus> Links; // by the order of opening
	std::uint64_t NextNumber = 0;
	std::mutex ListenerMutex;
	std::function<void()> Listener;
};

FAllLinks& AllLinks()
{
	static FAllLinks Links;
	return Links;
}

void TellListener()
{
	FAllLinks& All = AllLinks();
	const std::lock_guard Lock(All.ListenerMutex);
	if (All.Listener)
	{
		All.Listener();
	}
}

std::uint64_t AddLink(const std::string& Name, const std::string& Address)
{
	FAllLinks& All = AllLinks();
	const std::lock_guard Lock(All.Mutex);
	const std::uint64_t Number = All.NextNumber++;
	All.Links[Number] = {Name, Address, ELinkState::Searching, {}};
	return Number;
}
} // namespace

FWatchedLink::FWatchedLink(const std::string& Name, const std::string& Address)
	: Number(AddLink(Name, Address))
{
	TellListener();
}

FWatchedLink::~FWatchedLink()
{
	{
		FAllLinks& All = AllLinks();
		const std::lock_guard Lock(All.Mutex);
		All.Links.erase(Number);
	}
	TellListener();
}

void FWatchedLink::Note(ELinkState State, const std::string& Detail)
{
	{
		FAllLinks& All = AllLinks();
		const std::lock_guard Lock(All.Mutex);
		FLinkStatus& Status = All.Links[Number];
		if (Status.State == State && Status.Detail == Detail)
		{
			return;
		}
		Status.State = State;
		Status.Detail = Detail;
	}
	TellListener();
}

void FWatchedLink::NoteArrival()
{
	TellListener();
}

std::vector<FLinkStatus> LinkStatuses()
{
	FAllLinks& All = AllLinks();
	const std::lock_guard Lock(All.Mutex);
	std::vector<FLinkStatus> Statuses;
	for (const auto& [Number, Status] : All.Links)
	{
		Statuses.push_back(Status);
	}
	return Statuses;
}

void SetLinkListener(std::function<void()> Listener)
{
	FAllLinks& All = AllLinks();
	const std::lock_guard Lock(All.ListenerMutex);
	All.Listener = std::move(Listener);
}

} // namespace Zef
