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
	All.Links[Number] = {Name, Address, ELinkState::Searching, {}, {}, 0, {}};
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

void FWatchedLink::Note(ELinkState State, const std::string& Program, const FLinkReason& Reason, std::uint16_t Version)
{
	const std::string Detail = Reason ? ToString(Reason) : Program;
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
		Status.Reason = Reason;
		Status.Version = Version;
	}
	TellListener();
}

void FWatchedLink::NoteProgress(const FUpdateProgress& Progress)
{
	FAllLinks& All = AllLinks();
	const std::lock_guard Lock(All.Mutex);
	All.Links[Number].Progress = Progress;
}

FLinkStatus FWatchedLink::Status() const
{
	FAllLinks& All = AllLinks();
	const std::lock_guard Lock(All.Mutex);
	return All.Links[Number];
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
