// SPDX-License-Identifier: MIT
#include "ClientLoop.h"

#include "Statistics.h"

#include <utility>

namespace Zef
{

namespace
{
constexpr std::uint64_t EventBytes = 256;
/** When so many events wait for the program, the peer is not credited, and further reports of faults are left out. */
constexpr std::size_t WaitingEvents = 4096;

/** Requests that a peer that takes nothing leaves waiting; beyond that a send fails. */
constexpr std::size_t MaxQueuedItems = 4096;
} // namespace

void FClientEndpoint::FImpl::OnDecoded(FDecodedItem&& Item, double Milliseconds)
{
	FEvent Event;
	Event.Cost = Item.Bytes;
	if (Item.Item == EItem::Fault)
	{
		Event.Kind = EEvent::Fault;
		Event.bFlag = true;
		Event.Fault = std::move(Item.Fault);
	}
	else if (Item.Item == EItem::UpdateAnnouncement)
	{
		Meter.Begin(Item.Announcement);
		Watched.NoteProgress(Meter.Progress());
		Event.Item = std::move(Item);
	}
	else
	{
		Event.Report = {Item.Item, Item.ObjectType, Item.Bytes, Milliseconds, 0};
		NoteReceived(Name, Event.Report);
		Event.Item = std::move(Item);
	}
	const std::lock_guard Lock(Mutex);
	Push(std::move(Event));
}

void FClientEndpoint::FImpl::OnTaken(EItem Item, std::uint64_t Bytes, bool bHeader, bool bDone)
{
	if (Item == EItem::SurfaceMesh && Meter.Take(Bytes, bHeader, bDone))
	{
		Watched.NoteProgress(Meter.Progress());
	}
}

void FClientEndpoint::FImpl::OnDropped(const FLinkFault& Fault)
{
	FEvent Event;
	Event.Kind = EEvent::Fault;
	Event.Fault = Fault;
	const std::lock_guard Lock(Mutex);
	Push(std::move(Event));
}

/** Recording ends where it cannot go on; the link does not. */
void FClientEndpoint::FImpl::Record(const std::vector<zmq::message_t>& Parts)
{
	std::vector<FByteView> Views;
	for (const zmq::message_t& Part : Parts)
	{
		Views.push_back(ViewOf(Part));
	}
	Recorder->Message(Views);
	if (const FLinkFault Fault = Recorder->TakeFailure())
	{
		OnDropped(Fault);
	}
}

ELinkState FClientEndpoint::FImpl::StateOf(EPhase Phase)
{
	switch (Phase)
	{
		case EPhase::Searching:
			return ELinkState::Searching;
		case EPhase::Absent:
			return ELinkState::Absent;
		case EPhase::Greeting:
			return ELinkState::Greeting;
		case EPhase::Up:
			return ELinkState::Up;
		case EPhase::Refused:
			break;
	}
	return ELinkState::Refused;
}

void FClientEndpoint::FImpl::SetUp(const std::string& Program, std::uint16_t Version)
{
	Phase = EPhase::Up;
	Watched.Note(ELinkState::Up, Program, {}, Version);
	bLossWaits = false;
	FEvent Event;
	Event.Kind = EEvent::Connection;
	Event.bFlag = true;
	Event.Reason = Program;
	Push(std::move(Event));
	for (FHeldItem& Waiting : Held)
	{
		Commands.push_back(std::move(Waiting.Item));
	}
	Held.clear();
}

void FClientEndpoint::FImpl::SetPhase(EPhase NewPhase, const FLinkReason& Reason)
{
	const EPhase OldPhase = std::exchange(Phase, NewPhase);
	Watched.Note(StateOf(NewPhase), "", Reason, 0);
	if (OldPhase == EPhase::Up)
	{
		Commands.clear();
		QueuedItems = 0;
		Watched.NoteProgress({});
		PushLoss(Reason);
	}
	if (NewPhase == EPhase::Absent || NewPhase == EPhase::Refused)
	{
		AbsenceReason = Reason;
		FailHeld(FClock::time_point::max());
	}
}

/** Requests that have waited until then were asked of nobody. */
void FClientEndpoint::FImpl::FailHeld(FClock::time_point Until)
{
	const std::size_t Failed = std::erase_if(Held, [Until](const FHeldItem& Item) { return Item.Deadline <= Until; });
	if (Failed > 0)
	{
		PushLoss(AbsenceReason
					 ? AbsenceReason
					 : FLinkReason{ELinkReason::NobodyServes, "No garment application serves \"" + Name + "\"."});
	}
}

void FClientEndpoint::FImpl::PushLoss(const FLinkReason& Reason)
{
	if (bLossWaits)
	{
		return;
	}
	bLossWaits = true;
	FEvent Event;
	Event.Kind = EEvent::Connection;
	Event.Reason = ToString(Reason);
	Push(std::move(Event));
}

bool FClientEndpoint::FImpl::IsBehind() const
{
	return WaitingCost > Options.Limits.MaxItemBytes || Events.size() > WaitingEvents;
}

void FClientEndpoint::FImpl::Push(FEvent&& Event)
{
	if (Event.Kind == EEvent::Fault && Events.size() > WaitingEvents)
	{
		return;
	}
	Event.Cost += EventBytes;
	WaitingCost += Event.Cost;
	Events.push_back(std::move(Event));
	HasEvents.notify_one();
	Watched.NoteArrival();
}

bool FClientEndpoint::FImpl::Send(FEncodedItem&& Item)
{
	{
		const std::lock_guard Lock(Mutex);
		switch (Phase)
		{
			case EPhase::Up:
				if (QueuedItems + Commands.size() >= MaxQueuedItems)
				{
					return false;
				}
				Commands.push_back(std::move(Item));
				break;
			case EPhase::Searching:
			case EPhase::Greeting:
				Held.push_back({std::move(Item), FClock::now() + Options.ConnectGrace});
				break;
			case EPhase::Absent:
			case EPhase::Refused:
				PushLoss(AbsenceReason);
				return false;
		}
	}
	Waker.Wake();
	return true;
}

std::size_t FClientEndpoint::FImpl::Poll(IClientHandler& Handler, std::chrono::milliseconds MaxWait)
{
	std::size_t Count = 0;
	std::unique_lock Lock(Mutex);
	if (MaxWait.count() > 0)
	{
		HasEvents.wait_for(Lock, MaxWait, [this] { return !Events.empty(); });
	}
	while (!bStopped && !Events.empty())
	{
		const bool bWasBehind = IsBehind();
		FEvent Event = std::move(Events.front());
		Events.pop_front();
		bLossWaits = bLossWaits && !(Event.Kind == EEvent::Connection && !Event.bFlag);
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

void FClientEndpoint::FImpl::Deliver(FEvent& Event, IClientHandler& Handler)
{
	if (Event.Kind == EEvent::Connection)
	{
		Handler.OnConnectionChanged(Event.bFlag, Event.Reason);
	}
	else if (Event.Kind == EEvent::Fault)
	{
		Handler.OnFault(Event.Fault, Event.bFlag);
	}
	else if (Event.Item.Item == EItem::Availability)
	{
		Handler.OnAvailability(Event.Item.Availability);
	}
	else if (Event.Item.Item == EItem::UpdateAnnouncement)
	{
		Handler.OnUpdateAnnounced(Event.Item.Announcement);
	}
	else
	{
		FReceivedItem Item{Event.Item.Item, Event.Item.ObjectType, std::move(Event.Item.Record), Event.Report};
		Handler.OnItem(Item);
	}
}

} // namespace Zef
