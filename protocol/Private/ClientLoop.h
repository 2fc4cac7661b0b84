// SPDX-License-Identifier: MIT
/** The thread of an editor's endpoint, and the queues between it and the program. */
#pragma once

#include "KeyCheck.h"
#include "LinkWatch.h"
#include "OpenAddress.h"
#include "ProgressMeter.h"
#include "Recorder.h"
#include "Session.h"
#include "Zef/ClientEndpoint.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

namespace Zef
{

class FClientEndpoint::FImpl : public ISessionEvents
{
public:
	FImpl(std::string InName, FOpenAddress InAddress, std::shared_ptr<IRecordFactory> InFactory,
		const FClientOptions& InOptions);
	~FImpl() override;

	/** Begins the recording, when one is wanted, and starts the thread. */
	FLinkFault Start();
	void Stop();
	bool IsConnected() const;
	FLinkStatus Status() const { return Watched.Status(); }
	FLinkFault FinishRecording();
	const FClientOptions& ClientOptions() const { return Options; }
	std::size_t Poll(IClientHandler& Handler, std::chrono::milliseconds MaxWait);
	bool Send(FEncodedItem&& Item);

private:
	using FClock = FSession::FClock;

	enum class EPhase : std::uint8_t
	{
		/** The first attempts are under way; nothing is known yet. */
		Searching,
		/** Nobody answers; attempts go on. */
		Absent,
		/** Connected; the answer to the greeting is awaited. */
		Greeting,
		/** Greeted. */
		Up,
		/** Turned away; the next attempt comes later. */
		Refused
	};

	enum class EEvent : std::uint8_t
	{
		Decoded,
		Connection,
		Fault
	};

	/** Something for the program. */
	struct FEvent
	{
		EEvent Kind = EEvent::Decoded;
		FDecodedItem Item;
		FReceiveReport Report;
		bool bFlag = false; // Connection: connected. Fault: from the peer
		std::string Reason;
		FLinkFault Fault;
		std::uint64_t Cost = 0;
	};

	/** A request that waits for the link to come up. */
	struct FHeldItem
	{
		FEncodedItem Item;
		FClock::time_point Deadline;
	};

	// On the thread
	void Run();
	void OpenSocket();
	void CloseSocket();
	void TakeTurn();
	void WatchConnection();
	void OnTransportEvent(const FMonitor::FEvent& Event);
	void OnTransportUp();
	void OnTransportDown(const FLinkReason& Reason);
	void OnNoHandshake();
	void OnKeysRejected(const std::string& What);
	void ReceiveAll();
	bool MustCredit() const;
	void Receive(std::vector<zmq::message_t>& Parts, bool bTooManyParts);
	void ReceiveAnswer(const std::optional<FPrefix>& Prefix, const std::vector<zmq::message_t>& Parts);
	void TurnedAway(const FLinkReason& Reason, const FLinkFault& Fault);
	FLinkReason NobodyServes() const;
	FLinkReason LossReason() const;
	void Record(const std::vector<zmq::message_t>& Parts);
	void Serve();
	void KeepTime();
	std::chrono::milliseconds WaitTime() const;
	void OnDecoded(FDecodedItem&& Item, double Milliseconds) override;
	void OnTaken(EItem Item, std::uint64_t Bytes, bool bHeader, bool bDone) override;
	void OnDropped(const FLinkFault& Fault) override;

	static ELinkState StateOf(EPhase Phase);

	// Under the mutex
	void SetPhase(EPhase NewPhase, const FLinkReason& Reason);
	void SetUp(const std::string& Program, std::uint16_t Version);
	void FailHeld(FClock::time_point Until);
	void PushLoss(const FLinkReason& Reason);
	void Push(FEvent&& Event);
	bool IsBehind() const;

	static void Deliver(FEvent& Event, IClientHandler& Handler);

	const std::string Name;
	const FAddress Address;
	const std::optional<FLinkKeys> Keys;
	const std::shared_ptr<IRecordFactory> Factory;
	const FClientOptions Options;

	mutable std::mutex Mutex;
	std::condition_variable HasEvents;
	EPhase Phase = EPhase::Searching;
	FLinkReason AbsenceReason;
	std::deque<FEvent> Events;
	std::uint64_t WaitingCost = 0;
	bool bLossWaits = false; // a loss is among the events and nothing after it tells of a link
	std::deque<FHeldItem> Held;
	std::deque<FEncodedItem> Commands;
	std::size_t QueuedItems = 0; // in the session's outbox

	// Of the thread
	FClock::time_point PhaseDeadline = FClock::time_point::max();
	bool bDisconnected = false; // the transport is gone; what it still delivered is taken first
	FClock::time_point NextProbe{};
	int Descriptor = -1; // of the connection
	std::string LastRefusal;
	FProgressMeter Meter;
	std::unique_ptr<FRecorder> Recorder;
	std::unique_ptr<FSession> Session;

	FWatchedLink Watched;

	std::atomic<bool> bEnd{false};
	std::atomic<bool> bStopped{false};
	zmq::context_t Context;
	FWaker Waker;
	std::optional<zmq::socket_t> Dealer;
	std::optional<FMonitor> Monitor;
	std::thread Thread;
};

} // namespace Zef
