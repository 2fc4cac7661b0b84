// SPDX-License-Identifier: MIT
#include "ClientLoop.h"

#include "Statistics.h"

#include <algorithm>
#include <new>

namespace Zef
{

namespace
{
/** Messages taken in a row before requests get their turn. */
constexpr int MessagesInARow = 256;

constexpr std::uint64_t EventBytes = 256;
/** When so many events wait for the program, the peer is not credited, and further reports of faults are left out. */
constexpr std::size_t WaitingEvents = 4096;

/** Requests that a peer that takes nothing leaves waiting; beyond that a send fails. */
constexpr std::size_t MaxQueuedItems = 4096;

/** The longest time between two attempts to connect, as a multiple of the shortest. */
constexpr int SlowestRetry = 5;

/** A garment application that turned this editor away is not asked again for so many retry times. */
constexpr int RefusedRetries = 20;

/** How long the answer to the greeting may take. */
constexpr std::chrono::milliseconds GreetingTime(5000);

/** The longest wait for what a connection that has ended still delivered. */
constexpr std::chrono::milliseconds LastWordsTime(100);
} // namespace

FClientEndpoint::FImpl::FImpl(
	std::string InName, FAddress InAddress, std::shared_ptr<IRecordFactory> InFactory, const FClientOptions& InOptions)
	: Name(std::move(InName))
	, Address(std::move(InAddress))
	, Factory(std::move(InFactory))
	, Options(InOptions)
	, Watched(Name, Address.Endpoint.empty() ? Address.PortFile : Address.Endpoint)
	, Waker(Context)
{
}

FClientEndpoint::FImpl::~FImpl()
{
	bEnd = true;
	Waker.Wake();
	if (Thread.joinable())
	{
		Thread.join();
	}
}

void FClientEndpoint::FImpl::Start()
{
	Thread = StartThread([this] { Run(); });
}

void FClientEndpoint::FImpl::Stop()
{
	bStopped = true;
}

bool FClientEndpoint::FImpl::IsConnected() const
{
	const std::lock_guard Lock(Mutex);
	return Phase == EPhase::Up;
}

void FClientEndpoint::FImpl::Run()
{
	while (!bEnd)
	{
		try
		{
			TakeTurn();
		}
		catch (const std::bad_alloc&)
		{
			// What was under way is lost with the connection; the next one starts afresh.
			OnTransportDown("There was no memory to go on with the connection.");
		}
	}
	Session.reset();
	CloseSocket();
}

void FClientEndpoint::FImpl::TakeTurn()
{
	if (!Dealer && Phase != EPhase::Refused)
	{
		OpenSocket();
	}
	zmq::pollitem_t Items[] = {{Waker.Socket().handle(), 0, ZMQ_POLLIN, 0}, {nullptr, 0, 0, 0}, {nullptr, 0, 0, 0}};
	std::size_t Count = 1;
	if (Dealer)
	{
		Items[Count++] = {Dealer->handle(), 0, ZMQ_POLLIN, 0};
		Items[Count++] = {Monitor->Socket().handle(), 0, ZMQ_POLLIN, 0};
	}
	WaitForSockets(Items, Count, WaitTime());
	Waker.Clear();
	ReceiveAll();
	WatchConnection();
	Serve();
	KeepTime();
}

void FClientEndpoint::FImpl::OpenSocket()
{
	const std::string Endpoint = ResolveEndpoint(Address);
	if (Endpoint.empty())
	{
		const std::lock_guard Lock(Mutex);
		SetPhase(EPhase::Absent, "No garment application serves \"" + Name + "\": there is no port file.");
		PhaseDeadline = FClock::now() + Options.RetryTime;
		return;
	}
	// A socket serves one connection: a new one cannot inherit half a message from the last.
	Dealer.emplace(Context, zmq::socket_type::dealer);
	ConfigureSocket(*Dealer, Options.Limits);
	Dealer->set(zmq::sockopt::reconnect_ivl, static_cast<int>(Options.RetryTime.count()));
	Dealer->set(zmq::sockopt::reconnect_ivl_max, static_cast<int>(Options.RetryTime.count()) * SlowestRetry);
	Monitor.emplace(Context, *Dealer);
	Dealer->connect(Endpoint);
}

void FClientEndpoint::FImpl::CloseSocket()
{
	bDisconnected = false;
	Monitor.reset();
	Dealer.reset();
}

void FClientEndpoint::FImpl::WatchConnection()
{
	FMonitor::FEvent Event;
	while (Monitor && Monitor->Next(Event))
	{
		if (bDisconnected)
		{
			// ZeroMQ hands over a connection's last messages between telling of its end and whatever it tells next.
			ReceiveAll();
			OnTransportDown("The garment application closed the connection.");
			return;
		}
		switch (Event.Event)
		{
			case ZMQ_EVENT_HANDSHAKE_SUCCEEDED:
				OnTransportUp();
				break;
			case ZMQ_EVENT_CONNECT_RETRIED:
			{
				const std::lock_guard Lock(Mutex);
				SetPhase(EPhase::Absent, "No garment application serves \"" + Name + "\".");
				// A port file may name another port by now.
				PhaseDeadline =
					Address.PortFile.empty() ? FClock::time_point::max() : FClock::now() + Options.RetryTime;
				break;
			}
			case ZMQ_EVENT_HANDSHAKE_FAILED_NO_DETAIL:
			case ZMQ_EVENT_HANDSHAKE_FAILED_PROTOCOL:
			case ZMQ_EVENT_HANDSHAKE_FAILED_AUTH:
				OnTransportDown("What answers on \"" + Name + "\" does not speak ZeroMQ.");
				break;
			case ZMQ_EVENT_DISCONNECTED:
				bDisconnected = true;
				PhaseDeadline = FClock::now() + LastWordsTime;
				break;
			default:
				break;
		}
	}
}

void FClientEndpoint::FImpl::OnTransportUp()
{
	if (Session)
	{
		return;
	}
	if (const FLinkFault Fault = CheckFolder(Address))
	{
		TurnedAway(Fault);
		return;
	}
	Session = std::make_unique<FSession>(*Dealer, "", *Factory, EReceiver::Editor, Options.Limits, *this);
	const FBytes Hello = EncodeHello({MinProtocolVersion, MaxProtocolVersion, Options.Program,
		Options.Limits.WindowBytes, Options.Limits.MaxPieceBytes});
	zmq::message_t Part(Hello.data(), Hello.size());
	SendFrame(*Dealer, "", {EFrame::Hello, 0, 0}, &Part);
	const std::lock_guard Lock(Mutex);
	SetPhase(EPhase::Greeting, "");
	PhaseDeadline = FClock::now() + GreetingTime;
}

void FClientEndpoint::FImpl::OnTransportDown(const std::string& Reason)
{
	Session.reset();
	CloseSocket();
	const std::lock_guard Lock(Mutex);
	const bool bWasUp = Phase == EPhase::Up;
	// After a link that worked, the next attempt may well find a restarted application; otherwise nobody is there.
	SetPhase(bWasUp ? EPhase::Searching : EPhase::Absent, Reason);
	PhaseDeadline = FClock::time_point::max();
}

void FClientEndpoint::FImpl::ReceiveAll()
{
	for (int Count = 0; Dealer && Count < MessagesInARow; ++Count)
	{
		bool bTooManyParts = false;
		std::vector<zmq::message_t> Parts = ReceiveParts(*Dealer, bTooManyParts);
		if (Parts.empty())
		{
			return;
		}
		Receive(Parts, bTooManyParts);
	}
	Waker.Wake();
}

void FClientEndpoint::FImpl::Receive(std::vector<zmq::message_t>& Parts, bool bTooManyParts)
{
	// A peer answers and does not speak first.
	if (!Session)
	{
		return;
	}
	FLinkFault Fault;
	const std::optional<FPrefix> Prefix = DecodePrefix(ViewOf(Parts[0]), Fault);
	// Only this thread changes the phase, so it reads it without the lock.
	if (Phase != EPhase::Up || (Prefix && (Prefix->Frame == EFrame::Refused || Prefix->Frame == EFrame::Welcome)))
	{
		ReceiveAnswer(Prefix, Parts);
	}
	else if (bTooManyParts)
	{
		Session->ReportFault(MakeFault(EFault::PartCount, "", "2 parts were expected; more came."));
	}
	else if (!Prefix)
	{
		Session->ReportFault(Fault);
	}
	else
	{
		if (const FLinkFault Fatal = Session->Receive(*Prefix, Parts, 1))
		{
			TurnedAway(Fatal);
		}
	}
}

void FClientEndpoint::FImpl::ReceiveAnswer(
	const std::optional<FPrefix>& Prefix, const std::vector<zmq::message_t>& Parts)
{
	if (Prefix && Prefix->Frame == EFrame::Refused && Parts.size() == 2)
	{
		const std::optional<FRefused> Refused = DecodeRefused(ViewOf(Parts[1]));
		TurnedAway(Refused ? MakeFault(Refused->Code, "", Refused->Sentence.substr(0, Options.Limits.MaxPathBytes))
						   : MakeFault(EFault::BadHello, "", "The garment application turned the editor away."));
		return;
	}
	const std::optional<FWelcome> Welcome = Prefix && Prefix->Frame == EFrame::Welcome && Parts.size() == 2
												? DecodeWelcome(ViewOf(Parts[1]))
												: std::nullopt;
	if (!Welcome)
	{
		TurnedAway(MakeFault(
			EFault::BadHello, "", "What answers on \"" + Name + "\" did not answer the greeting; it is no peer."));
		return;
	}
	if (Welcome->Version < MinProtocolVersion || Welcome->Version > MaxProtocolVersion)
	{
		TurnedAway(MakeFault(EFault::VersionUnknown, "",
			"The garment application chose protocol version " + std::to_string(Welcome->Version) +
				", the editor speaks " + std::to_string(MinProtocolVersion) + " to " +
				std::to_string(MaxProtocolVersion) + "; update the older of the two."));
		return;
	}
	if (Phase != EPhase::Greeting)
	{
		Session->ReportFault(MakeFault(EFault::UnknownFrame, "", "Welcome came twice on one connection."));
		return;
	}
	LastRefusal.clear();
	Session->Open(Welcome->WindowBytes, Welcome->MaxPieceBytes);
	const std::lock_guard Lock(Mutex);
	SetPhase(EPhase::Up, Welcome->Program.substr(0, Options.Limits.MaxNameBytes));
	PhaseDeadline = FClock::time_point::max();
}

/** The connection cannot be used: told once for each reason, and tried again later. */
void FClientEndpoint::FImpl::TurnedAway(const FLinkFault& Fault)
{
	Session.reset();
	CloseSocket();
	const std::lock_guard Lock(Mutex);
	SetPhase(EPhase::Refused, Fault.Message);
	PhaseDeadline = FClock::now() + Options.RetryTime * RefusedRetries;
	if (LastRefusal != Fault.Message)
	{
		LastRefusal = Fault.Message;
		FEvent Event;
		Event.Kind = EEvent::Fault;
		Event.Fault = Fault;
		Push(std::move(Event));
	}
}

void FClientEndpoint::FImpl::Serve()
{
	std::deque<FEncodedItem> Taken;
	bool bHold = false;
	{
		const std::lock_guard Lock(Mutex);
		Taken.swap(Commands);
		bHold = IsBehind();
		QueuedItems += Taken.size();
	}
	if (!Session || bDisconnected)
	{
		return;
	}
	for (FEncodedItem& Item : Taken)
	{
		Session->Outbox().Add(std::move(Item));
	}
	Session->DropStalled(FClock::now(), Options.StallTime);
	Session->SendCredit(bHold);
	Session->Pump();
	const std::lock_guard Lock(Mutex);
	QueuedItems = Session->Outbox().Count();
}

void FClientEndpoint::FImpl::KeepTime()
{
	const FClock::time_point Now = FClock::now();
	std::unique_lock Lock(Mutex);
	FailHeld(Now);
	if (PhaseDeadline > Now)
	{
		return;
	}
	PhaseDeadline = FClock::time_point::max();
	const EPhase Passed = Phase;
	if (Passed == EPhase::Refused)
	{
		SetPhase(EPhase::Absent, AbsenceReason);
	}
	Lock.unlock();
	if (bDisconnected)
	{
		OnTransportDown("The garment application closed the connection.");
	}
	else if (Passed == EPhase::Greeting)
	{
		OnTransportDown("The garment application did not answer the greeting.");
	}
	else if (Passed == EPhase::Absent)
	{
		CloseSocket();
	}
}

std::chrono::milliseconds FClientEndpoint::FImpl::WaitTime() const
{
	FClock::time_point Deadline = PhaseDeadline;
	if (Session)
	{
		Deadline = std::min(Deadline, Session->StallDeadline(Options.StallTime));
	}
	const std::lock_guard Lock(Mutex);
	if (!Held.empty())
	{
		Deadline = std::min(Deadline, Held.front().Deadline);
	}
	if (Deadline == FClock::time_point::max())
	{
		return std::chrono::milliseconds(-1);
	}
	const auto Left = std::chrono::ceil<std::chrono::milliseconds>(Deadline - FClock::now());
	return std::max(Left, std::chrono::milliseconds(0));
}

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
	else
	{
		Event.Report = {Item.Item, Item.ObjectType, Item.Bytes, Milliseconds, 0};
		NoteReceived(Name, Event.Report);
		Event.Item = std::move(Item);
	}
	const std::lock_guard Lock(Mutex);
	Push(std::move(Event));
}

void FClientEndpoint::FImpl::OnDropped(const FLinkFault& Fault)
{
	FEvent Event;
	Event.Kind = EEvent::Fault;
	Event.Fault = Fault;
	const std::lock_guard Lock(Mutex);
	Push(std::move(Event));
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

void FClientEndpoint::FImpl::SetPhase(EPhase NewPhase, const std::string& Reason)
{
	const EPhase OldPhase = std::exchange(Phase, NewPhase);
	Watched.Note(StateOf(NewPhase), Reason);
	if (NewPhase == EPhase::Up)
	{
		bLossWaits = false;
		FEvent Event;
		Event.Kind = EEvent::Connection;
		Event.bFlag = true;
		Event.Reason = Reason;
		Push(std::move(Event));
		for (FHeldItem& Waiting : Held)
		{
			Commands.push_back(std::move(Waiting.Item));
		}
		Held.clear();
		return;
	}
	if (OldPhase == EPhase::Up)
	{
		Commands.clear();
		QueuedItems = 0;
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
		PushLoss(AbsenceReason.empty() ? "No garment application serves \"" + Name + "\"." : AbsenceReason);
	}
}

void FClientEndpoint::FImpl::PushLoss(const std::string& Reason)
{
	if (bLossWaits)
	{
		return;
	}
	bLossWaits = true;
	FEvent Event;
	Event.Kind = EEvent::Connection;
	Event.Reason = Reason;
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
	else
	{
		FReceivedItem Item{Event.Item.Item, Event.Item.ObjectType, std::move(Event.Item.Record), Event.Report};
		Handler.OnItem(Item);
	}
}

} // namespace Zef
