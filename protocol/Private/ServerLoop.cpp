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

/** What an event costs beside its arrays. */
constexpr std::uint64_t EventBytes = 256;

/** When so many events wait for the program, nobody is credited, and further reports of faults are left out. */
constexpr std::size_t WaitingEvents = 4096;
} // namespace

FServerEndpoint::FImpl::FImpl(FAddress Address, const FServerOptions& InOptions)
	: Options(InOptions)
	, Served(std::move(Address))
	, Router(Context, zmq::socket_type::router)
	, Monitor(Context, Router)
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
	ConfigureSocket(Router, Options.Limits);
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
			{Waker.Socket().handle(), 0, ZMQ_POLLIN, 0}};
		WaitForSockets(Items, std::size(Items), WaitTime());
		Waker.Clear();
		try
		{
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
}

std::chrono::milliseconds FServerEndpoint::FImpl::WaitTime() const
{
	FSession::FClock::time_point Deadline = FSession::FClock::time_point::max();
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
		else
		{
			Client->Session->Outbox().Add(std::move(Command.Source));
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
		auto Made = std::make_unique<FClient>(*this);
		Made->Id = ++LastId;
		Made->Identity = Identity;
		Made->Descriptor = DescriptorOf(Parts.back());
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
	if (bTooManyParts || Parts.size() < 2)
	{
		Client.Session->ReportFault(MakeFault(EFault::PartCount, "", "2 parts were expected; more or fewer came."));
	}
	else if (!Prefix)
	{
		Client.Session->ReportFault(Fault);
	}
	else if (Prefix->Frame == EFrame::Hello)
	{
		Refuse(Client, EFault::BadHello, "Hello came twice on one connection.");
	}
	else
	{
		if (const FLinkFault Fatal = Client.Session->Receive(*Prefix, Parts, 2))
		{
			Refuse(Client, Fatal.Code, Fatal.Message);
		}
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
	const std::uint16_t Version =
		CommonVersion(Hello->MinVersion, Hello->MaxVersion, MinProtocolVersion, MaxProtocolVersion);
	if (Version == 0)
	{
		Refuse(Client, EFault::VersionUnknown,
			"The garment application speaks protocol versions " + std::to_string(MinProtocolVersion) + " to " +
				std::to_string(MaxProtocolVersion) + ", the editor " + std::to_string(Hello->MinVersion) + " to " +
				std::to_string(Hello->MaxVersion) + "; update the older of the two.");
		return;
	}
	std::size_t Served = 0;
	{
		const std::lock_guard Lock(Mutex);
		Served = Infos.size();
	}
	if (Served >= Options.Limits.MaxClients)
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
	Client.Session->Open(Hello->WindowBytes, Hello->MaxPieceBytes);
	{
		const std::lock_guard Lock(Mutex);
		Infos.emplace(Client.Id, FClientInfo());
	}
	FEvent Event;
	Event.Kind = EEvent::Connected;
	Event.Client = Client.Id;
	Event.Text = Hello->Program.substr(0, Options.Limits.MaxNameBytes);
	Push(std::move(Event));
}

void FServerEndpoint::FImpl::Refuse(FClient& Client, EFault Code, const std::string& Sentence)
{
	const FBytes Refused = EncodeRefused({Code, Sentence, MinProtocolVersion, MaxProtocolVersion});
	zmq::message_t Part(Refused.data(), Refused.size());
	const bool bThere = SendFrame(Router, Client.Identity, {EFrame::Refused, 0, 0}, &Part);
	Client.bRefused = true;
	if (!bThere || Client.bGreeted)
	{
		Close(Client);
	}
	FEvent Event;
	Event.Kind = EEvent::Dropped;
	Event.Client = Client.Id;
	Event.Fault = MakeFault(Code, "", Sentence);
	Push(std::move(Event));
}

void FServerEndpoint::FImpl::Serve()
{
	const bool bHold = IsHolding();
	const FSession::FClock::time_point Now = FSession::FClock::now();
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
		Commands.push_back({Client, std::move(Item), {}});
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
		Commands.push_back({Client, std::nullopt, std::move(Source)});
	}
	Waker.Wake();
	return true;
}

std::uint64_t FServerEndpoint::FImpl::QueuedBytes(FClientId Client) const
{
	const std::lock_guard Lock(Mutex);
	const auto Info = Infos.find(Client);
	return Info == Infos.end() ? 0 : Info->second.CommandBytes + Info->second.OutboxBytes;
}

} // namespace Zef
