// SPDX-License-Identifier: MIT
/** One greeted connection, the same at both ends: what goes out, what comes in, and the window of each direction. */
#pragma once

#include "Outbox.h"
#include "RateLimit.h"
#include "Sockets.h"
#include "Zef/Decode.h"

#include <chrono>

namespace Zef
{

/** Told by a session about what arrived; on the endpoint's thread. */
class ISessionEvents
{
public:
	virtual ~ISessionEvents() = default;

	virtual void OnDecoded(FDecodedItem&& Item, double Milliseconds) = 0;
	/** So many bytes of an item have been taken. @param bHeader  they begin it; @param bDone  nothing more of it counts
	 */
	virtual void OnTaken(EItem /*Item*/, std::uint64_t /*Bytes*/, bool /*bHeader*/, bool /*bDone*/) {}
	/** This end dropped something; the other end has been told. */
	virtual void OnDropped(const FLinkFault& Fault) = 0;
};

class FSession
{
public:
	using FClock = std::chrono::steady_clock;

	/** @param Identity  of the peer at a ROUTER, empty at a DEALER */
	FSession(zmq::socket_t& InSocket, std::string InIdentity, IRecordFactory& Factory, EReceiver Receiver,
		const FLimits& InLimits, ISessionEvents& InEvents);

	/** The greeting is done; the other end's window and the version of both are known. */
	void Open(std::uint64_t PeerWindowBytes, std::uint32_t PeerMaxPieceBytes, std::uint16_t InVersion);

	std::uint16_t ProtocolVersion() const { return Version; }

	FOutbox& Outbox() { return Out; }

	/**
	 * Handles one message other than the greeting's; its parts from FirstPart on are what follows the prefix.
	 * @return code None, or the fault for which the connection has to end
	 */
	FLinkFault Receive(const FPrefix& Prefix, std::vector<zmq::message_t>& Parts, std::size_t FirstPart);

	/**
	 * Tells the other end that a message was dropped before it could be understood.
	 * @return as Receive: too many of them end the connection
	 */
	FLinkFault ReportFault(const FLinkFault& Fault, std::uint64_t ItemNumber = 0);

	/** Sends what the window allows. False when the peer is gone. */
	bool Pump();

	/** Whether so much has been taken since the last credit that the other end should hear of it before more is taken.
	 */
	bool OwesCredit() const { return Taken - Credited >= WindowBytes / CreditsPerWindow; }

	/** Tells the other end what has been taken. @param bHold  too much waits for the program: credit later */
	bool SendCredit(bool bHold);

	/** Drops an item whose pieces have stopped coming. */
	void DropStalled(FClock::time_point Now, std::chrono::milliseconds StallTime);

	/** When DropStalled is to be asked again; max when no item is open. */
	FClock::time_point StallDeadline(std::chrono::milliseconds StallTime) const;

private:
	/** An end that hears of it late stands still until then, and this one after it. */
	static constexpr std::uint64_t CreditsPerWindow = 8;

	FLinkFault HandleResult(EDecode Result, const FPrefix& Prefix);
	FLinkFault TakeCredit(std::uint64_t TotalBytes);
	FLinkFault CountFault(FClock::time_point Now);

	zmq::socket_t& Socket;
	const std::string Identity;
	const std::uint64_t WindowBytes;
	ISessionEvents& Events;
	FItemDecoder Decoder;
	FOutbox Out;
	const bool bTakesRequests;
	FRateLimit Requests;
	FRateLimit Faults;
	std::uint16_t Version = 0;
	std::uint64_t Taken = 0;
	std::uint64_t Credited = 0;
	std::uint64_t LastCredit = 0; // that the other end gave
	FClock::time_point ItemStart;
	FClock::time_point SequenceStart;
	FClock::time_point LastArrival;
};

} // namespace Zef
