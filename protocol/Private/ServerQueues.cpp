// SPDX-License-Identifier: MIT
#include "ServerLoop.h"

namespace Zef
{

namespace
{
/** What an event costs beside its arrays. */
constexpr std::uint64_t EventBytes = 256;

/** When so many events wait for the program, nobody is credited, and further reports of faults are left out. */
constexpr std::size_t WaitingEvents = 4096;
} // namespace

bool FServerEndpoint::FImpl::IsHolding() const
{
	const std::lock_guard Lock(Mutex);
	return IsBehind();
}

bool FServerEndpoint::FImpl::IsBehind() const
{
	return WaitingCost > Options.Limits.MaxItemBytes || Events.size() > WaitingEvents;
}

void FServerEndpoint::FImpl::FClient::OnDecoded(FDecodedItem&& Item, double)
{
	FEvent Event;
	Event.Kind = EEvent::Decoded;
	Event.Client = Id;
	Event.Cost = Item.Bytes;
	Event.Item = std::move(Item);
	Owner.Push(std::move(Event));
}

void FServerEndpoint::FImpl::FClient::OnDropped(const FLinkFault& Fault)
{
	FEvent Event;
	Event.Kind = EEvent::Dropped;
	Event.Client = Id;
	Event.Fault = Fault;
	Owner.Push(std::move(Event));
}

void FServerEndpoint::FImpl::Push(FEvent&& Event)
{
	const std::lock_guard Lock(Mutex);
	if (Event.Kind == EEvent::Dropped && Events.size() > WaitingEvents)
	{
		return;
	}
	Event.Cost += EventBytes;
	WaitingCost += Event.Cost;
	Events.push_back(std::move(Event));
	HasEvents.notify_one();
}

std::size_t FServerEndpoint::FImpl::Poll(IServerHandler& Handler, std::chrono::milliseconds MaxWait)
{
	std::size_t Count = 0;
	std::unique_lock Lock(Mutex);
	HasEvents.wait_for(Lock, MaxWait, [this] { return !Events.empty() || bWakePoll; });
	bWakePoll = false;
	while (!Events.empty())
	{
		const bool bWasBehind = IsBehind();
		FEvent Event = std::move(Events.front());
		Events.pop_front();
		WaitingCost -= Event.Cost;
		const bool bRelease = bWasBehind && !IsBehind();
		Lock.unlock();
		if (bRelease)
		{
			Waker.Wake();
		}
		Deliver(Event, Handler);
		++Count;
		Lock.lock();
	}
	return Count;
}

void FServerEndpoint::FImpl::Deliver(FEvent& Event, IServerHandler& Handler)
{
	switch (Event.Kind)
	{
		case EEvent::Connected:
			Handler.OnClientConnected(Event.Client, Event.Text);
			return;
		case EEvent::Gone:
			Handler.OnClientGone(Event.Client, Event.Text);
			return;
		case EEvent::Dropped:
			Handler.OnFault(Event.Client, Event.Fault, false);
			return;
		case EEvent::Decoded:
			break;
	}
	FDecodedItem& Item = Event.Item;
	switch (Item.Item)
	{
		case EItem::Enable:
			Handler.OnEnable(Event.Client, Item.bEnabled);
			break;
		case EItem::RequestUpdate:
			Handler.OnUpdateRequested(Event.Client, Item.Options);
			break;
		case EItem::RequestAnimation:
			Handler.OnAnimationRequested(Event.Client, Item.Info, Item.Options);
			break;
		case EItem::RequestAvailability:
			Handler.OnAvailabilityRequested(Event.Client);
			break;
		case EItem::SendJointAnimation:
		{
			auto& Record = static_cast<FReceivedRecord&>(*Item.Record);
			auto Animation = std::make_shared<FJointAnimation>();
			Animation->Mesh = std::move(Record.SurfaceMesh);
			Animation->Sequence = std::move(Record.Sequence);
			Handler.OnJointAnimation(Event.Client, Item.Info, std::move(Animation));
			break;
		}
		case EItem::Fault:
			Handler.OnFault(Event.Client, Item.Fault, true);
			break;
		default:
			break;
	}
}

void FServerEndpoint::FImpl::WakePoll()
{
	const std::lock_guard Lock(Mutex);
	bWakePoll = true;
	HasEvents.notify_all();
}

bool FServerEndpoint::FImpl::IsConnected(FClientId Client) const
{
	const std::lock_guard Lock(Mutex);
	return Infos.contains(Client);
}

bool FServerEndpoint::FImpl::Send(FClientId Client, FEncodedItem&& Item)
{
	{
		const std::lock_guard Lock(Mutex);
		const auto Info = Infos.find(Client);
		if (Info == Infos.end())
		{
			return false;
		}
		Info->second.CommandBytes += Item.PayloadBytes;
		Commands.push_back({Client, std::move(Item), {}, {}});
	}
	Waker.Wake();
	return true;
}

bool FServerEndpoint::FImpl::Send(FClientId Client, FItemSource&& Source)
{
	{
		const std::lock_guard Lock(Mutex);
		if (!Infos.contains(Client))
		{
			return false;
		}
		Commands.push_back({Client, std::nullopt, std::move(Source), {}});
	}
	Waker.Wake();
	return true;
}

bool FServerEndpoint::FImpl::Send(FClientId Client, FRecordedRun&& Run)
{
	{
		const std::lock_guard Lock(Mutex);
		if (!Infos.contains(Client))
		{
			return false;
		}
		Commands.push_back({Client, std::nullopt, {}, std::move(Run)});
	}
	Waker.Wake();
	return true;
}

std::uint16_t FServerEndpoint::FImpl::VersionOf(FClientId Client) const
{
	const std::lock_guard Lock(Mutex);
	const auto Info = Infos.find(Client);
	return Info == Infos.end() ? 0 : Info->second.Version;
}

std::uint64_t FServerEndpoint::FImpl::QueuedBytes(FClientId Client) const
{
	const std::lock_guard Lock(Mutex);
	const auto Info = Infos.find(Client);
	return Info == Infos.end() ? 0 : Info->second.CommandBytes + Info->second.OutboxBytes;
}

} // namespace Zef
