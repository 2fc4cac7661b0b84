// SPDX-License-Identifier: MIT
/** The garment application's end of the link. */
#pragma once

#include "Zef/Address.h"
#include "Zef/Fault.h"
#include "Zef/Limits.h"
#include "Zef/Records.h"
#include "Zef/Result.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

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

	/** Message 1: answer with one SendSurfaceMesh for each object type, garment and avatar among them. */
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
	 * one serves the channel, AddressRefused when the folder is not safe or the address is not local.
	 */
	static TResult<std::unique_ptr<FServerEndpoint>> Open(
		const std::string& ChannelName, const FServerOptions& Options = {});

	// The same for an endpoint in ZeroMQ's notation; "ipc://*" and "tcp://127.0.0.1:*" choose a free one.
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

	bool SendSurfaceMesh(FClientId Client, EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh,
		FLinkFault* OutFault = nullptr);
	bool SendJointAnimation(FClientId Client, EObjectType ObjectType, std::shared_ptr<const FJointAnimation> Animation,
		FLinkFault* OutFault = nullptr);
	bool SendMeshSequence(FClientId Client, EObjectType ObjectType, std::shared_ptr<const FSurfaceMesh> Mesh,
		FFrameSource Frames, FLinkFault* OutFault = nullptr);
	bool SendAvailability(FClientId Client, const FAvailability& Availability);

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
