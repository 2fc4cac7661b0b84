// SPDX-License-Identifier: MIT
/** The editor's end of the link. */
#pragma once

#include "Zef/Address.h"
#include "Zef/Fault.h"
#include "Zef/Items.h"
#include "Zef/Limits.h"
#include "Zef/LinkWatch.h"
#include "Zef/RecordSink.h"
#include "Zef/Records.h"
#include "Zef/Result.h"
#include "Zef/Statistics.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace Zef
{

/** A complete, checked object, joint animation or mesh sequence. */
struct FReceivedItem
{
	EItem Item = EItem::None; // SurfaceMesh, JointAnimation or SequenceBegin (the whole sequence)
	EObjectType ObjectType = EObjectType::Invalid;
	std::unique_ptr<IRecordSink> Record; // what the factory made; may be moved out
	FReceiveReport Report;
};

/** What the garment application answers. All calls come from inside FClientEndpoint::Poll, on its caller's thread. */
class IClientHandler
{
public:
	virtual ~IClientHandler() = default;

	virtual void OnItem(FReceivedItem& Item) = 0;
	virtual void OnAvailability(const FAvailability& Availability) = 0;

	/** An update begins: what it will bring. Garment applications of protocol version 1 do not tell. */
	virtual void OnUpdateAnnounced(const FUpdateAnnouncement&) {}

	/**
	 * The link came up, went down, or a request found nobody there. Reason is the line of an FLinkReason for a log;
	 * with true it is what the garment application calls itself.
	 */
	virtual void OnConnectionChanged(bool bConnected, const std::string& Reason) = 0;

	/** A message was dropped whole: by this end when bFromPeer is false, by the garment application otherwise. */
	virtual void OnFault(const FLinkFault&, bool /*bFromPeer*/) {}
};

struct FClientOptions
{
	/** What this editor calls itself to the garment application. */
	std::string Program = "editor";
	FLimits Limits;
	std::uint32_t PieceBytes = DefaultPieceBytes;
	/** How long requests wait for an answer to the first attempts to connect before they count as asked of nobody. */
	std::chrono::milliseconds ConnectGrace{2000};
	/** Time between two attempts to reach a garment application that is not there. */
	std::chrono::milliseconds RetryTime{100};
	/** A connection that stops in the middle of an item for this long loses the item. */
	std::chrono::milliseconds StallTime{10000};
	/** Time between two heartbeats; a garment application that is silent for four times as long is lost. */
	std::chrono::milliseconds Heartbeat{5000};
	/** Versions of the protocol that are offered. */
	FVersionRange Versions;
	/** Keys of this end, for a tcp address; empty for what $ZEF_TANDEM_KEYS names. See Zef/Keys.h. */
	std::string KeyFile;
	/** When not empty: everything that the garment application sends is also written there, see Zef/Recording.h. */
	std::string RecordFile;
};

/**
 * Talks to one garment application, and looks for it again whenever it is gone.
 *
 * A thread of the endpoint's own connects, receives and checks; complete items wait until Poll. The Send calls come
 * from any thread and never block. One made while the link is being established (not yet refused, within ConnectGrace
 * of Open, or greeting a peer that has just come up) is held and goes out when the link is up. One made while there is
 * no peer returns false and is told once through OnConnectionChanged(false) at the next Poll, also when the link was
 * never up; several such between two Polls are told once. A send also returns false when thousands of requests wait for
 * a peer that takes nothing.
 */
class FClientEndpoint
{
public:
	/**
	 * Starts looking for the channel's garment application; does not wait for it.
	 * @param Factory  makes the records that arrive; shared with the reader thread
	 * @return AddressRefused when the name gives no address that may be used, KeysRefused for keys that may not be,
	 * RecordingStopped when the recording cannot be begun
	 */
	static TResult<std::unique_ptr<FClientEndpoint>> Open(
		const std::string& ChannelName, std::shared_ptr<IRecordFactory> Factory, const FClientOptions& Options = {});

	/** The same for an endpoint in ZeroMQ's notation. Reports stand under the endpoint's name. */
	static TResult<std::unique_ptr<FClientEndpoint>> OpenEndpoint(
		const std::string& Endpoint, std::shared_ptr<IRecordFactory> Factory, const FClientOptions& Options = {});

	/** Closes the connection and stops the thread; nothing is delivered afterwards. Not from inside Poll. */
	~FClientEndpoint();

	FClientEndpoint(const FClientEndpoint&) = delete;
	FClientEndpoint& operator=(const FClientEndpoint&) = delete;

	/** True between the two hellos and the loss of the link. */
	bool IsConnected() const;

	/** Where this endpoint looks, how it stands, and why there is no link when there is none. From any thread. */
	FLinkStatus Status() const;

	/** From any thread. */
	FUpdateProgress Progress() const;

	/**
	 * Puts the recording in place; nothing is recorded afterwards. Otherwise the end of the endpoint does it.
	 * @return RecordingStopped when it could not be written; code None also when there is no recording
	 */
	FLinkFault FinishRecording();

	/**
	 * Hands over what has arrived, in order; waits up to MaxWait for the first. Stops early after Stop.
	 * @return how many calls were made to Handler
	 */
	std::size_t Poll(IClientHandler& Handler, std::chrono::milliseconds MaxWait = std::chrono::milliseconds(0));

	/** Nothing is handed over from now on, not even by a Poll that is under way. From any thread, also from a handler.
	 */
	void Stop();

	bool SendEnable(bool bEnabled);
	bool SendUpdate(const FPackingOptions& Options);
	/** False also when Info is not valid: one of the four object types, and not the kind None. */
	bool SendAnimation(const FObjectTypeInfo& Info, const FPackingOptions& Options);
	bool SendAvailability();
	/** The record is kept alive until it is out: do not change it. False also when it breaks the protocol's rules. */
	bool SendJointAnimation(
		const FObjectTypeInfo& Info, std::shared_ptr<const FJointAnimation> Animation, FLinkFault* OutFault = nullptr);

private:
	class FImpl;
	explicit FClientEndpoint(std::unique_ptr<FImpl> InImpl);
	std::unique_ptr<FImpl> Impl;
};

} // namespace Zef
