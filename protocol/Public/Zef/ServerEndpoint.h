// SPDX-License-Identifier: MIT
/** The garment application's end of the link. */
#pragma once

#include "Zef/Address.h"
#include "Zef/Fault.h"
#include "Zef/Limits.h"
#include "Zef/Recording.h"
#include "Zef/Records.h"
#include "Zef/Result.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Zef
{

/** Names one connection of one editor; never used again after it is gone. */
using FClientId = std::uint64_t;

/** What editors ask. All calls come from inside FServerEndpoint::Poll, on its caller's thread. */
class IServerHandler
{
public:
	virtual ~IServerHandler() = default;

	/** An editor has been greeted. Program is what it calls itself. */
	virtual void OnClientConnected(FClientId, const std::string& /*Program*/) {}

	/** An editor is gone; replies that were still queued for it are dropped. */
	virtual void OnClientGone(FClientId, const std::string& /*Reason*/) {}

	/** Message 0: the user switched the link on or off. */
	virtual void OnEnable(FClientId, bool /*bEnabled*/) {}

	/** Message 1: answer with SendUpdate, or one SendSurfaceMesh for each object type, garment and avatar among them.
	 */
	virtual void OnUpdateRequested(FClientId Client, const FPackingOptions& Options) = 0;

	/**
	 * Message 2: answer with SendJointAnimation or SendMeshSequence by Info.AnimationKind; with an empty one when there
	 * is no animation. Info is valid: one of the four object types, and not the kind None.
	 */
	virtual void OnAnimationRequested(
		FClientId Client, const FObjectTypeInfo& Info, const FPackingOptions& Options) = 0;

	/** Message 3: answer with SendAvailability. */
	virtual void OnAvailabilityRequested(FClientId Client) = 0;

	/**
	 * Message 4: the user's animation, checked. Its indices count in the whole model, as an engine holds them: subtract
	 * the surface's VertexOffset for local ones.
	 */
	virtual void OnJointAnimation(
		FClientId Client, const FObjectTypeInfo& Info, std::shared_ptr<const FJointAnimation> Animation) = 0;

	/** A message was refused: by this end when bFromClient is false, by the editor otherwise. */
	virtual void OnFault(FClientId, const FLinkFault&, bool /*bFromClient*/) {}
};

struct FServerOptions
{
	/** What this application calls itself to the editor, with its version. */
	std::string Program = "garment application";
	FLimits Limits;
	/** Bytes of one piece of an array, at most what the editor's window allows. */
	std::uint32_t PieceBytes = DefaultPieceBytes;
	/** A connection that stops in the middle of an item for this long loses the item. */
	std::chrono::milliseconds StallTime{10000};
	/** Time between two heartbeats; an editor that is silent for four times as long is gone. */
	std::chrono::milliseconds Heartbeat{5000};
	/** A connection that has not said Hello after this long is cut. */
	std::chrono::milliseconds GreetingTime{5000};
	/** Versions of the protocol that are spoken. */
	FVersionRange Versions;
	/** Keys of this end, for a tcp address; empty for what $ZEF_TANDEM_KEYS names. See Zef/Keys.h. */
	std::string KeyFile;
};

/** One object of an update. */
struct FUpdateObject
{
	EObjectType ObjectType = EObjectType::Invalid;
	std::shared_ptr<const FSurfaceMesh> Mesh;
};

/**
 * Frames of a mesh sequence, pulled as the connection has room: the frame of that index, or null at the end. Called on
 * the endpoint's thread; keep it quick, or prepare frames ahead. A frame has as many positions, normals and tangents as
 * the mesh has vertices.
 */
using FFrameSource = std::function<std::shared_ptr<const FMeshSequenceFrame>(std::uint32_t Index)>;

/**
 * Serves editors on one address.
 *
 * A thread of the endpoint's own receives, checks and sends; requests wait until Poll. The Send calls may come from any
 * thread, return at once and keep the record alive until its last byte is out: do not change it after handing it over.
 * They return false when the client is gone, and refuse a record that breaks the protocol's own rules (OutFault says
 * why).
 */
class FServerEndpoint
{
public:
	/**
	 * Binds the channel's address. A socket file that a dead application left is replaced; AddressTaken when another
	 * one serves the channel, AddressRefused when the folder is not safe or the address may not be used,
	 * KeysRefused for keys that may not be.
	 */
	static TResult<std::unique_ptr<FServerEndpoint>> Open(
		const std::string& ChannelName, const FServerOptions& Options = {});

	// The same for an endpoint in ZeroMQ's notation; "ipc://*" chooses a free name in the folder of the channels, and
	// "tcp://127.0.0.1:*" a free port. A remote one (every other tcp) needs keys.
	static TResult<std::unique_ptr<FServerEndpoint>> OpenEndpoint(
		const std::string& Endpoint, const FServerOptions& Options = {});

	/** Closes all connections; what is not yet out is dropped, and the socket file goes. */
	~FServerEndpoint();

	FServerEndpoint(const FServerEndpoint&) = delete;
	FServerEndpoint& operator=(const FServerEndpoint&) = delete;

	/** Where it is bound, in ZeroMQ's notation; what "*" was resolved to. */
	const std::string& Endpoint() const;

	/**
	 * Hands waiting requests to Handler, one after the other; waits up to MaxWait for the first.
	 * @return how many were handed over
	 */
	std::size_t Poll(IServerHandler& Handler, std::chrono::milliseconds MaxWait);

	/** Makes a waiting Poll return; from any thread, also from a signal's own thread. */
	void Wake();

	/**
	 * Sends all objects of an update, and tells an editor of protocol version 2 in front of them what will come. An
	 * object that breaks the protocol's rules is left out.
	 * @param OutFaults  [Objects.size()], in their order; code None for what is sent
	 * @return false when one was left out, or the client is gone
	 */
	bool SendUpdate(
		FClientId Client, const std::vector<FUpdateObject>& Objects, std::vector<FLinkFault>* OutFaults = nullptr);
	bool SendSurfaceMesh(FClientId Client, EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh,
		FLinkFault* OutFault = nullptr);
	bool SendJointAnimation(FClientId Client, EObjectType ObjectType, std::shared_ptr<const FJointAnimation> Animation,
		FLinkFault* OutFault = nullptr);
	bool SendMeshSequence(FClientId Client, EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh,
		FFrameSource Frames, FLinkFault* OutFault = nullptr);
	bool SendAvailability(FClientId Client, const FAvailability& Availability);

	/** Sends what was recorded, message by message as it came; the window is kept. */
	bool SendRecorded(
		FClientId Client, const std::vector<FRecordedMessage>& Messages, std::shared_ptr<const void> Owner);

	/** Tells the editor's user why a request cannot be served; PeerFailed is the code for that. */
	bool SendFault(FClientId Client, const FLinkFault& Fault);

	/** Bytes of arrays that are queued for a client and not yet sent. */
	std::uint64_t QueuedBytes(FClientId Client) const;

private:
	class FImpl;
	explicit FServerEndpoint(std::unique_ptr<FImpl> InImpl);
	std::unique_ptr<FImpl> Impl;
};

} // namespace Zef
