// SPDX-License-Identifier: MIT
#include "ServerLoop.h"

#include <algorithm>
#include <new>

namespace Zef
{

namespace
{
/** Messages taken in a row before replies get their turn. */
constexpr int MessagesInARow = 256;

/** How long a connection that has ended is still listened to. */
constexpr std::chrono::milliseconds LastWordsTime(20);

/** How long an editor that was refused may take to read why. */
constexpr std::chrono::milliseconds RefusedTime(1000);
} // namespace

FServerEndpoint::FImpl::FImpl(FOpenAddress Address, const FServerOptions& InOptions)
	: Options(InOptions)
	, Served(std::move(Address.Address))
	, Keys(std::move(Address.Keys))
	, Router(Context, zmq::socket_type::router)
	, Monitor(Context, Router)
	, Guard(Options.Limits, Options.GreetingTime, !Keys)
	, Waker(Context)
{
}

FServerEndpoint::FImpl::~FImpl()
{
	bStop = true;
	Waker.Wake();
	if (Thread.joinable())
	{
		Thread.join();
	}
}

FLinkFault FServerEndpoint::FImpl::Start()
{
	if (FLinkFault Fault = Served.Take())
	{
		return Fault;
	}
	ConfigureSocket(Router, Options.Limits, Options.Heartbeat);
	if (Keys)
	{
		KeyCheck.emplace(Context, *Keys);
		UseKeysAsApplication(Router, *Keys);
	}
	Router.set(zmq::sockopt::router_mandatory, true);
	try
	{
		Router.bind(Served.Endpoint());
	}
	catch (const zmq::error_t& Error)
	{
		return MakeFault(Error.num() == EADDRINUSE ? EFault::AddressTaken : EFault::AddressRefused, "",
			"\"" + Served.Endpoint() + "\" cannot be bound: " + Error.what() + ".");
	}
	BoundEndpoint = Router.get(zmq::sockopt::last_endpoint);
	if (FLinkFault Fault = Served.Publish(BoundEndpoint))
	{
		return Fault;
	}
	Thread = StartThread([this] { Run(); });
	return {};
}

void FServerEndpoint::FImpl::Run()
{
	while (!bStop)
	{
		zmq::pollitem_t Items[] = {{Router.handle(), 0, ZMQ_POLLIN, 0}, {Monitor.Socket().handle(), 0, ZMQ_POLLIN, 0},
			{Waker.Socket().handle(), 0, ZMQ_POLLIN, 0},
			{KeyCheck ? KeyCheck->Socket().handle() : nullptr, 0, ZMQ_POLLIN, 0}};
		WaitForSockets(Items, KeyCheck ? std::size(Items) : std::size(Items) - 1, WaitTime());
		Waker.Clear();
		try
		{
			AnswerKeys();
			TakeCommands();
			ReceiveAll();
			Serve();
		}
		catch (const std::bad_alloc&)
		{
			// What was being made is lost; a connection that it leaves with a gap refuses the piece after the gap.
			Waker.Wake();
		}
	}
	SayGoodbye();
}

/** Tells the editors that this is no crash. */
void FServerEndpoint::FImpl::SayGoodbye()
{
	const FBytes Refused = EncodeRefused(
		{EFault::Closing, "The garment application was closed.", Options.Versions.Min, Options.Versions.Max});
	for (auto& [Identity, Client] : Clients)
	{
		if (Client->Session && !Client->bRefused && !Client->bClosing &&
			Client->Session->ProtocolVersion() >= AnnouncingVersion)
		{
			zmq::message_t Part(Refused.data(), Refused.size());
			SendFrame(Router, Identity, {EFrame::Refused, 0, 0}, &Part);
		}
	}
}

void FServerEndpoint::FImpl::AnswerKeys()
{
	if (KeyCheck && KeyCheck->Answer() > 0)
	{
		Drop(0, MakeFault(EFault::KeysRefused, "", "An editor with a key that is not admitted was turned away."));
	}
}

/** Tells the program that something was dropped. */
void FServerEndpoint::FImpl::Drop(FClientId Client, const FLinkFault& Fault)
{
	FEvent Event;
	Event.Kind = EEvent::Dropped;
	Event.Client = Client;
	Event.Fault = Fault;
	Push(std::move(Event));
}

std::chrono::milliseconds FServerEndpoint::FImpl::WaitTime() const
{
	FSession::FClock::time_point Deadline = Guard.Deadline();
	for (const auto& [Identity, Client] : Clients)
	{
		if (Client->Session)
		{
			Deadline = std::min(Deadline, Client->Session->StallDeadline(Options.StallTime));
		}
		if (Client->bClosing)
		{
			Deadline = std::min(Deadline, Client->ClosingDeadline);
		}
	}
	if (Deadline == FSession::FClock::time_point::max())
	{
		return std::chrono::milliseconds(-1);
	}
	const auto Left = std::chrono::ceil<std::chrono::milliseconds>(Deadline - FSession::FClock::now());
	return std::max(Left, std::chrono::milliseconds(0));
}

void FServerEndpoint::FImpl::TakeCommands()
{
	std::deque<FCommand> Taken;
	{
		const std::lock_guard Lock(Mutex);
		Taken.swap(Commands);
		for (auto& [Id, Info] : Infos)
		{
			Info.CommandBytes = 0;
		}
	}
	for (FCommand& Command : Taken)
	{
		FClient* Client = Find(Command.Client);
		if (Client == nullptr)
		{
			continue;
		}
		if (Command.Item)
		{
			Client->Session->Outbox().Add(std::move(*Command.Item));
		}
		else if (Command.Source)
		{
			Client->Session->Outbox().Add(std::move(Command.Source));
		}
		else
		{
			Client->Session->Outbox().Add(std::move(Command.Run));
		}
	}
}

void FServerEndpoint::FImpl::ReceiveAll()
{
	bool bDrained = false;
	for (int Count = 0; Count < MessagesInARow && !bDrained; ++Count)
	{
		bool bTooManyParts = false;
		std::vector<zmq::message_t> Parts = ReceiveParts(Router, bTooManyParts);
		// Before the message is looked at: a descriptor that it names may have been another connection's until now.
		WatchConnections();
		bDrained = Parts.empty();
		if (!bDrained)
		{
			Receive(Parts, bTooManyParts);
		}
	}
	if (bDrained)
	{
		RemoveClosing();
	}
	else
	{
		Waker.Wake();
	}
}

void FServerEndpoint::FImpl::WatchConnections()
{
	FMonitor::FEvent Event;
	while (Monitor.Next(Event))
	{
		if (const FLinkFault Fault = Guard.OnEvent(Event))
		{
			Drop(0, Fault);
		}
		if (Event.Event != ZMQ_EVENT_DISCONNECTED)
		{
			continue;
		}
		for (auto& [Identity, Client] : Clients)
		{
			if (Client->Descriptor == Event.Value)
			{
				Close(*Client);
			}
		}
	}
}

/** ZeroMQ tells of the end of a connection a little before it hands over the last messages of it. */
void FServerEndpoint::FImpl::Close(FClient& Client)
{
	if (!Client.bClosing)
	{
		Client.bClosing = true;
		Client.ClosingDeadline = FSession::FClock::now() + LastWordsTime;
	}
}

void FServerEndpoint::FImpl::RemoveClosing()
{
	const FSession::FClock::time_point Now = FSession::FClock::now();
	std::vector<FClient*> Closing;
	for (auto& [Identity, Client] : Clients)
	{
		if (Client->bClosing && Client->ClosingDeadline <= Now)
		{
			Closing.push_back(Client.get());
		}
	}
	for (FClient* Client : Closing)
	{
		Remove(*Client, "The editor closed the connection.");
	}
}

void FServerEndpoint::FImpl::Receive(std::vector<zmq::message_t>& Parts, bool bTooManyParts)
{
	std::string Identity = Parts[0].to_string();
	auto Found = Clients.find(Identity);
	if (Found == Clients.end())
	{
		const int Descriptor = DescriptorOf(Parts.back());
		if (Guard.IsCut(Descriptor))
		{
			return;
		}
		auto Made = std::make_unique<FClient>(*this);
		Made->Id = ++LastId;
		Made->Identity = Identity;
		Made->Descriptor = Descriptor;
		Found = Clients.emplace(std::move(Identity), std::move(Made)).first;
	}
	FClient& Client = *Found->second;
	if (Client.bRefused)
	{
		return;
	}
	FLinkFault Fault;
	const std::optional<FPrefix> Prefix = Parts.size() < 2 ? std::nullopt : DecodePrefix(ViewOf(Parts[1]), Fault);
	if (!Client.bGreeted)
	{
		if (Prefix && Prefix->Frame == EFrame::Hello && Parts.size() == 3)
		{
			Greet(Client, ViewOf(Parts[2]));
		}
		else
		{
			Refuse(Client, EFault::NotGreeted, "A connection begins with Hello; something else came.");
		}
		return;
	}
	FLinkFault Fatal;
	if (bTooManyParts || Parts.size() < 2)
	{
		Fatal =
			Client.Session->ReportFault(MakeFault(EFault::PartCount, "", "2 parts were expected; more or fewer came."));
	}
	else if (!Prefix)
	{
		Fatal = Client.Session->ReportFault(Fault);
	}
	else if (Prefix->Frame == EFrame::Hello)
	{
		Fatal = MakeFault(EFault::BadHello, "", "Hello came twice on one connection.");
	}
	else
	{
		Fatal = Client.Session->Receive(*Prefix, Parts, 2);
	}
	if (Fatal)
	{
		Refuse(Client, Fatal.Code, Fatal.Message);
	}
}

void FServerEndpoint::FImpl::Greet(FClient& Client, FByteView Body)
{
	const std::optional<FHello> Hello = DecodeHello(Body);
	if (!Hello)
	{
		Refuse(Client, EFault::BadHello, "The greeting cannot be read.");
		return;
	}
	const FVersionRange& Own = Options.Versions;
	const FVersionRange Theirs{Hello->MinVersion, Hello->MaxVersion};
	const std::uint16_t Version = CommonVersion(Theirs.Min, Theirs.Max, Own.Min, Own.Max);
	if (Version == 0)
	{
		Refuse(Client, EFault::VersionUnknown,
			"The garment application speaks protocol version " + ToString(Own) + ", the editor " + ToString(Theirs) +
				"; update the older of the two.");
		return;
	}
	// One that is gone is listened to for a moment, and takes nobody's place.
	const auto Served = std::ranges::count_if(
		Clients, [](const auto& Each) { return Each.second->bGreeted && !Each.second->bClosing; });
	if (static_cast<std::size_t>(Served) >= Options.Limits.MaxClients)
	{
		Refuse(Client, EFault::TooManyClients,
			std::to_string(Served) + " editors are connected, and no more are served; close one of them.");
		return;
	}
	const FBytes Welcome =
		EncodeWelcome({Version, Options.Program, Options.Limits.WindowBytes, Options.Limits.MaxPieceBytes});
	zmq::message_t Part(Welcome.data(), Welcome.size());
	if (!SendFrame(Router, Client.Identity, {EFrame::Welcome, 0, 0}, &Part))
	{
		Close(Client);
		return;
	}
	Client.bGreeted = true;
	Client.Session = std::make_unique<FSession>(
		Router, Client.Identity, Factory, EReceiver::GarmentApplication, Options.Limits, Client);
	Client.Session->Open(Hello->WindowBytes, Hello->MaxPieceBytes, Version);
	Guard.Keep(Client.Descriptor);
	{
		const std::lock_guard Lock(Mutex);
		Infos[Client.Id].Version = Version;
	}
	FEvent Event;
	Event.Kind = EEvent::Connected;
	Event.Client = Client.Id;
	Event.Text = Hello->Program.substr(0, Options.Limits.MaxNameBytes);
	Push(std::move(Event));
}

void FServerEndpoint::FImpl::Refuse(FClient& Client, EFault Code, const std::string& Sentence)
{
	const FBytes Refused = EncodeRefused({Code, Sentence, Options.Versions.Min, Options.Versions.Max});
	zmq::message_t Part(Refused.data(), Refused.size());
	const bool bThere = SendFrame(Router, Client.Identity, {EFrame::Refused, 0, 0}, &Part);
	Client.bRefused = true;
	if (!bThere || Client.bGreeted)
	{
		Close(Client);
	}
	Guard.CutAt(Client.Descriptor, FSession::FClock::now() + RefusedTime);
	Drop(Client.Id, MakeFault(Code, "", Sentence));
}

void FServerEndpoint::FImpl::Serve()
{
	const bool bHold = IsHolding();
	const FSession::FClock::time_point Now = FSession::FClock::now();
	Guard.CutOverdue(Now);
	for (auto& [Identity, Client] : Clients)
	{
		if (!Client->Session || Client->bClosing)
		{
			continue;
		}
		Client->Session->DropStalled(Now, Options.StallTime);
		if (!Client->Session->SendCredit(bHold) || !Client->Session->Pump())
		{
			Close(*Client);
		}
		const std::lock_guard Lock(Mutex);
		if (const auto Info = Infos.find(Client->Id); Info != Infos.end())
		{
			Info->second.OutboxBytes = Client->Session->Outbox().QueuedBytes();
		}
	}
}

void FServerEndpoint::FImpl::Remove(FClient& Client, const std::string& Reason)
{
	{
		const std::lock_guard Lock(Mutex);
		Infos.erase(Client.Id);
	}
	if (Client.bGreeted)
	{
		FEvent Event;
		Event.Kind = EEvent::Gone;
		Event.Client = Client.Id;
		Event.Text = Reason;
		Push(std::move(Event));
	}
	const std::string Identity = Client.Identity;
	Clients.erase(Identity);
}

FServerEndpoint::FImpl::FClient* FServerEndpoint::FImpl::Find(FClientId Id)
{
	for (auto& [Identity, Client] : Clients)
	{
		if (Client->Id == Id)
		{
			return Client->Session ? Client.get() : nullptr;
		}
	}
	return nullptr;
}

} // namespace Zef
