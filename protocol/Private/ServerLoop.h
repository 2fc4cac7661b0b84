// SPDX-License-Identifier: MIT
/** The thread of a garment application's endpoint, and the queues between it and the program. */
#pragma once

#include "ConnectionGuard.h"
#include "KeyCheck.h"
#include "OpenAddress.h"
#include "ServedAddress.h"
#include "Session.h"
#include "Zef/RecordPool.h"
#include "Zef/ServerEndpoint.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <thread>
#include <unordered_map>

namespace Zef
{

class FServerEndpoint::FImpl
{
public:
	FImpl(FOpenAddress Address, const FServerOptions& InOptions);
	~FImpl();

	/** Binds and starts the thread. */
	FLinkFault Start();

	const std::string& Endpoint() const { return BoundEndpoint; }
	const FServerOptions& ServerOptions() const { return Options; }

	std::size_t Poll(IServerHandler& Handler, std::chrono::milliseconds MaxWait);
	void WakePoll();

	bool IsConnected(FClientId Client) const;
	bool Send(FClientId Client, FEncodedItem&& Item);
	bool Send(FClientId Client, FItemSource&& Source);
	bool Send(FClientId Client, FRecordedRun&& Run);
	/** Of the protocol; 0 when the client is gone. */
	std::uint16_t VersionOf(FClientId Client) const;
	std::uint64_t QueuedBytes(FClientId Client) const;

private:
	/** One connection. Made at its first message, of the thread only. */
	struct FClient : ISessionEvents
	{
		FImpl& Owner;
		FClientId Id = 0;
		std::string Identity;
		int Descriptor = -1;
		bool bGreeted = false;
		bool bRefused = false; // nothing more is taken from it
		bool bClosing = false; // the connection is gone; what it still sent is taken until the deadline
		FSession::FClock::time_point ClosingDeadline;
		std::unique_ptr<FSession> Session;

		explicit FClient(FImpl& InOwner)
			: Owner(InOwner)
		{
		}
		void OnDecoded(FDecodedItem&& Item, double Milliseconds) override;
		void OnDropped(const FLinkFault& Fault) override;
	};

	enum class EEvent : std::uint8_t
	{
		Connected,
		Gone,
		Decoded,
		Dropped
	};

	/** Something for the program. */
	struct FEvent
	{
		EEvent Kind = EEvent::Decoded;
		FClientId Client = 0;
		std::string Text;
		FDecodedItem Item;
		FLinkFault Fault;
		std::uint64_t Cost = 0; // bytes that it holds
	};

	/** Something of the program for a client. */
	struct FCommand
	{
		FClientId Client = 0;
		std::optional<FEncodedItem> Item;
		FItemSource Source;
		FRecordedRun Run;
	};

	struct FClientInfo
	{
		std::uint64_t CommandBytes = 0;
		std::uint64_t OutboxBytes = 0;
		std::uint16_t Version = 0;
	};

	// On the thread
	void Run();
	void AnswerKeys();
	void SayGoodbye();
	void TakeCommands();
	void ReceiveAll();
	void Receive(std::vector<zmq::message_t>& Parts, bool bTooManyParts);
	void Greet(FClient& Client, FByteView Body);
	void Refuse(FClient& Client, EFault Code, const std::string& Sentence);
	void WatchConnections();
	static void Close(FClient& Client);
	void RemoveClosing();
	void Serve();
	void Remove(FClient& Client, const std::string& Reason);
	std::chrono::milliseconds WaitTime() const;
	FClient* Find(FClientId Id);
	bool IsHolding() const;

	// Under the mutex
	bool IsBehind() const;

	// From the thread to the program
	void Drop(FClientId Client, const FLinkFault& Fault);
	void Push(FEvent&& Event);
	static void Deliver(FEvent& Event, IServerHandler& Handler);

	const FServerOptions Options;
	FServedAddress Served;
	const std::optional<FLinkKeys> Keys;
	std::string BoundEndpoint;
	FRecordFactory Factory;
	std::unordered_map<std::string, std::unique_ptr<FClient>> Clients; // by identity
	FClientId LastId = 0;

	mutable std::mutex Mutex;
	std::condition_variable HasEvents;
	std::deque<FEvent> Events;
	std::uint64_t WaitingCost = 0;
	bool bWakePoll = false;
	std::deque<FCommand> Commands;
	std::map<FClientId, FClientInfo> Infos; // of greeted clients

	std::atomic<bool> bStop{false};
	zmq::context_t Context;
	zmq::socket_t Router;
	FMonitor Monitor;
	std::optional<FKeyCheck> KeyCheck;
	FConnectionGuard Guard;
	FWaker Waker;
	std::thread Thread;
};

} // namespace Zef
