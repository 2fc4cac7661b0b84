// SPDX-License-Identifier: MIT
#include "ClientLoop.h"

#include "PeerUser.h"
#include "Reach.h"

#include <algorithm>
#include <filesystem>
#include <new>

namespace Zef
{

namespace
{
/** Messages taken in a row before requests get their turn. */
constexpr int MessagesInARow = 256;

/** The longest time between two attempts to connect, as a multiple of the shortest. */
constexpr int SlowestRetry = 5;

/** A garment application that turned this editor away is not asked again for so many retry times. */
constexpr int RefusedRetries = 20;

/** How long the answer to the greeting may take. */
constexpr std::chrono::milliseconds GreetingTime(5000);

/** The longest wait for what a connection that has ended still delivered. */
constexpr std::chrono::milliseconds LastWordsTime(100);

/** How long a machine may take to answer. */
constexpr int RemoteConnectMilliseconds = 2000;
constexpr std::chrono::milliseconds RemoteProbeTime(500);
constexpr std::chrono::milliseconds ProbePause(5000);
} // namespace

FClientEndpoint::FImpl::FImpl(std::string InName, FOpenAddress InAddress, std::shared_ptr<IRecordFactory> InFactory,
	const FClientOptions& InOptions)
	: Name(std::move(InName))
	, Address(std::move(InAddress.Address))
	, Keys(std::move(InAddress.Keys))
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
	FinishRecording();
}

FLinkFault FClientEndpoint::FImpl::FinishRecording()
{
	return Recorder ? Recorder->Finish() : FLinkFault{};
}

FLinkFault FClientEndpoint::FImpl::Start()
{
	if (!Options.RecordFile.empty())
	{
		auto Opened = FRecorder::Open(Options.RecordFile);
		if (!Opened)
		{
			return Opened.Fault();
		}
		Recorder = std::move(*Opened);
	}
	Thread = StartThread([this] { Run(); });
	return {};
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
			OnTransportDown({ELinkReason::OutOfMemory, "There was no memory to go on with the connection."});
		}
	}
	Session.reset();
	CloseSocket();
}

void FClientEndpoint::FImpl::TakeTurn()
{
	const bool bPause =
		Phase == EPhase::Refused || (Phase == EPhase::Absent && PhaseDeadline != FClock::time_point::max());
	if (!Dealer && (!bPause || PhaseDeadline <= FClock::now()))
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
	if (const FLinkReason Reason = CheckBeforeConnecting(Address))
	{
		TurnedAway(Reason, FaultOf(Reason));
		return;
	}
	const std::string Endpoint = ResolveEndpoint(Address);
	if (Endpoint.empty())
	{
		const std::lock_guard Lock(Mutex);
		SetPhase(EPhase::Absent, NobodyServes());
		PhaseDeadline = FClock::now() + Options.RetryTime;
		return;
	}
	// A socket serves one connection: a new one cannot inherit half a message from the last.
	Dealer.emplace(Context, zmq::socket_type::dealer);
	ConfigureSocket(*Dealer, Options.Limits, Options.Heartbeat);
	Dealer->set(zmq::sockopt::reconnect_ivl, static_cast<int>(Options.RetryTime.count()));
	Dealer->set(zmq::sockopt::reconnect_ivl_max, static_cast<int>(Options.RetryTime.count()) * SlowestRetry);
	if (Address.bRemote)
	{
		// A firewall that swallows everything would otherwise be waited for for minutes.
		Dealer->set(zmq::sockopt::connect_timeout, RemoteConnectMilliseconds);
	}
	if (Keys)
	{
		UseKeysAsEditor(*Dealer, *Keys);
	}
	Monitor.emplace(Context, *Dealer);
	try
	{
		Dealer->connect(Endpoint);
	}
	catch (const zmq::error_t& Error)
	{
		const FLinkFault Fault =
			MakeFault(EFault::AddressRefused, "", "\"" + Endpoint + "\" cannot be connected to: " + Error.what() + ".");
		TurnedAway(ReasonOf(Fault), Fault);
	}
}

void FClientEndpoint::FImpl::CloseSocket()
{
	bDisconnected = false;
	Descriptor = -1;
	Monitor.reset();
	Dealer.reset();
}

FLinkReason FClientEndpoint::FImpl::NobodyServes() const
{
	const std::string Sentence = "No garment application serves \"" + Name + "\"";
	if (Address.bRemote)
	{
		const FHostAndPort Place = HostAndPortOf(Address.Endpoint);
		FLinkReason Reason = TryToReach(Place.Host, Place.Port, RemoteProbeTime);
		Reason.Kind = Reason ? Reason.Kind : ELinkReason::NobodyServes;
		Reason.What = Sentence + "." + (Reason.What.empty() ? "" : " " + Reason.What);
		return Reason;
	}
	if (!Address.PortFile.empty())
	{
		return {ELinkReason::NobodyServes, Sentence + ": there is no port file."};
	}
	std::error_code Ignored;
	if (!Address.SocketFile.empty() && std::filesystem::exists(Address.SocketFile, Ignored))
	{
		return {ELinkReason::StaleSocket, Sentence + ": the one that did has ended without removing its socket."};
	}
	return {ELinkReason::NobodyServes, Sentence + "."};
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
			// They may have ended it already.
			if (bDisconnected)
			{
				OnTransportDown(LossReason());
			}
			return;
		}
		OnTransportEvent(Event);
	}
}

void FClientEndpoint::FImpl::OnTransportEvent(const FMonitor::FEvent& Event)
{
	switch (Event.Event)
	{
		case ZMQ_EVENT_CONNECTED:
			Descriptor = Event.Value;
			break;
		case ZMQ_EVENT_HANDSHAKE_SUCCEEDED:
			OnTransportUp();
			break;
		case ZMQ_EVENT_CONNECT_RETRIED:
		{
			// Asking the network why takes time, and the answer does not change from one attempt to the next.
			const bool bAsk = !Address.bRemote || FClock::now() >= NextProbe;
			const FLinkReason Reason = bAsk ? NobodyServes() : AbsenceReason;
			NextProbe = bAsk ? FClock::now() + ProbePause : NextProbe;
			const std::lock_guard Lock(Mutex);
			SetPhase(EPhase::Absent, Reason);
			// A port file may name another port by now.
			PhaseDeadline = Address.PortFile.empty() ? FClock::time_point::max() : FClock::now() + Options.RetryTime;
			break;
		}
		case ZMQ_EVENT_HANDSHAKE_FAILED_AUTH:
			OnKeysRejected("The garment application on \"" + Name + "\" does not admit this editor's key.");
			break;
		case ZMQ_EVENT_HANDSHAKE_FAILED_PROTOCOL:
			if (Event.Value == ZMQ_PROTOCOL_ERROR_ZMTP_MECHANISM_MISMATCH)
			{
				OnKeysRejected(Keys ? "What answers on \"" + Name + "\" uses no keys, this editor does."
									: "What answers on \"" + Name + "\" wants keys, this editor has none.");
				break;
			}
			OnNoHandshake();
			break;
		case ZMQ_EVENT_HANDSHAKE_FAILED_NO_DETAIL:
			OnNoHandshake();
			break;
		case ZMQ_EVENT_DISCONNECTED:
			bDisconnected = true;
			PhaseDeadline = FClock::now() + LastWordsTime;
			break;
		default:
			break;
	}
}

/** An application with another secret key can read nothing of this editor's and so ends the connection in silence. */
void FClientEndpoint::FImpl::OnNoHandshake()
{
	if (Keys)
	{
		OnKeysRejected("What answers on \"" + Name + "\" is no peer, or does not hold the other file of the pair.");
		return;
	}
	OnTransportDown({ELinkReason::NotAPeer, "What answers on \"" + Name + "\" does not speak ZeroMQ."});
}

void FClientEndpoint::FImpl::OnKeysRejected(const std::string& What)
{
	const FLinkReason Reason{ELinkReason::KeysRejected, What};
	TurnedAway(Reason, FaultOf(Reason));
}

void FClientEndpoint::FImpl::OnTransportUp()
{
	if (Session)
	{
		return;
	}
	if (const FLinkReason Reason = CheckBeforeConnecting(Address))
	{
		TurnedAway(Reason, FaultOf(Reason));
		return;
	}
	// With keys the other end has shown who it is.
	if (const FLinkFault Fault = Keys ? FLinkFault{} : CheckPeerUser(Descriptor))
	{
		TurnedAway(ReasonOf(Fault), Fault);
		return;
	}
	Session = std::make_unique<FSession>(*Dealer, "", *Factory, EReceiver::Editor, Options.Limits, *this);
	const FBytes Hello = EncodeHello({Options.Versions.Min, Options.Versions.Max, Options.Program,
		Options.Limits.WindowBytes, Options.Limits.MaxPieceBytes});
	zmq::message_t Part(Hello.data(), Hello.size());
	SendFrame(*Dealer, "", {EFrame::Hello, 0, 0}, &Part);
	const std::lock_guard Lock(Mutex);
	SetPhase(EPhase::Greeting, {});
	PhaseDeadline = FClock::now() + GreetingTime;
}

FLinkReason FClientEndpoint::FImpl::LossReason() const
{
	const bool bTellsItsEnd = Session && Session->ProtocolVersion() >= AnnouncingVersion;
	return {ELinkReason::PeerLost, bTellsItsEnd
									   ? "The garment application ended without a word, or has stopped answering."
									   : "The garment application closed the connection."};
}

void FClientEndpoint::FImpl::OnTransportDown(const FLinkReason& Reason)
{
	Session.reset();
	CloseSocket();
	if (Recorder && Phase == EPhase::Up)
	{
		Recorder->Lost(Reason.What);
	}
	const std::lock_guard Lock(Mutex);
	const bool bWasUp = Phase == EPhase::Up;
	// After a link that worked, the next attempt may well find a restarted application; otherwise nobody is there.
	SetPhase(bWasUp ? EPhase::Searching : EPhase::Absent, Reason);
	PhaseDeadline = bWasUp ? FClock::time_point::max() : FClock::now() + Options.RetryTime;
}

/**
 * Whether the peer waits for credit that it can have. Nothing more is taken before it is given, so none may be owed
 * while it is held back: the connection would stand still, heartbeats included. One that is gone is listened to up to
 * its last word.
 */
bool FClientEndpoint::FImpl::MustCredit() const
{
	if (!Session || bDisconnected || !Session->OwesCredit())
	{
		return false;
	}
	const std::lock_guard Lock(Mutex);
	return !IsBehind();
}

void FClientEndpoint::FImpl::ReceiveAll()
{
	for (int Count = 0; Dealer && Count < MessagesInARow && !MustCredit(); ++Count)
	{
		bool bTooManyParts = false;
		std::vector<zmq::message_t> Parts = ReceiveParts(*Dealer, bTooManyParts);
		if (Parts.empty())
		{
			return;
		}
		Receive(Parts, bTooManyParts);
	}
	if (Dealer)
	{
		// More may be waiting; requests get their turn first.
		Waker.Wake();
	}
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
		return;
	}
	if (Recorder && !(Prefix && Prefix->Frame == EFrame::Credit))
	{
		Record(Parts);
	}
	FLinkFault Fatal;
	if (bTooManyParts)
	{
		Fatal = Session->ReportFault(MakeFault(EFault::PartCount, "", "2 parts were expected; more came."));
	}
	else if (!Prefix)
	{
		Fatal = Session->ReportFault(Fault);
	}
	else
	{
		Fatal = Session->Receive(*Prefix, Parts, 1);
	}
	if (Fatal)
	{
		TurnedAway(
			{ELinkReason::PeerMisbehaved, "The garment application breaks the protocol: " + Fatal.Message}, Fatal);
	}
}

void FClientEndpoint::FImpl::ReceiveAnswer(
	const std::optional<FPrefix>& Prefix, const std::vector<zmq::message_t>& Parts)
{
	if (Prefix && Prefix->Frame == EFrame::Refused && Parts.size() == 2)
	{
		const std::optional<FRefused> Refused = DecodeRefused(ViewOf(Parts[1]));
		const FLinkFault Fault =
			Refused ? MakeFault(Refused->Code, "", Refused->Sentence.substr(0, Options.Limits.MaxPathBytes))
					: MakeFault(EFault::BadHello, "", "The garment application turned the editor away.");
		const FLinkReason Reason{
			Fault.Code == EFault::VersionUnknown ? ELinkReason::VersionUnknown : ELinkReason::TurnedAway,
			Fault.Message};
		if (Fault.Code == EFault::Closing)
		{
			// Everything that it sent before has come before.
			OnTransportDown(ReasonOf(Fault));
			return;
		}
		TurnedAway(Reason, Fault);
		return;
	}
	const std::optional<FWelcome> Welcome = Prefix && Prefix->Frame == EFrame::Welcome && Parts.size() == 2
												? DecodeWelcome(ViewOf(Parts[1]))
												: std::nullopt;
	if (!Welcome)
	{
		const FLinkFault Fault = MakeFault(
			EFault::BadHello, "", "What answers on \"" + Name + "\" did not answer the greeting; it is no peer.");
		TurnedAway(ReasonOf(Fault), Fault);
		return;
	}
	if (Welcome->Version < Options.Versions.Min || Welcome->Version > Options.Versions.Max)
	{
		const FLinkFault Fault = MakeFault(EFault::VersionUnknown, "",
			"The garment application chose protocol version " + std::to_string(Welcome->Version) +
				", the editor speaks " + ToString(Options.Versions) + "; update the older of the two.");
		TurnedAway(ReasonOf(Fault), Fault);
		return;
	}
	if (Phase != EPhase::Greeting)
	{
		Session->ReportFault(MakeFault(EFault::UnknownFrame, "", "Welcome came twice on one connection."));
		return;
	}
	LastRefusal.clear();
	Session->Open(Welcome->WindowBytes, Welcome->MaxPieceBytes, Welcome->Version);
	const std::string Program = Welcome->Program.substr(0, Options.Limits.MaxNameBytes);
	if (Recorder)
	{
		Recorder->Connected(Welcome->Version, Program);
	}
	const std::lock_guard Lock(Mutex);
	SetUp(Program, Welcome->Version);
	PhaseDeadline = FClock::time_point::max();
}

/** The connection cannot be used: told once for each reason, and tried again later. */
void FClientEndpoint::FImpl::TurnedAway(const FLinkReason& Reason, const FLinkFault& Fault)
{
	Session.reset();
	CloseSocket();
	if (Recorder && Phase == EPhase::Up)
	{
		Recorder->Lost(Reason.What);
	}
	const std::lock_guard Lock(Mutex);
	SetPhase(EPhase::Refused, Reason);
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
		if (Recorder)
		{
			Recorder->Request(Item.Header);
		}
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
		OnTransportDown(LossReason());
	}
	else if (Passed == EPhase::Greeting)
	{
		OnTransportDown({ELinkReason::NoAnswer, "The garment application did not answer the greeting."});
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

} // namespace Zef
