// SPDX-License-Identifier: MIT
/** Serves a project to editors. */
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "Zef/Peer/JointAnimationStore.h"
#include "Zef/Peer/Project.h"
#include "Zef/Result.h"

namespace Zef::Peer
{

/** Takes one line without its line end. Called on the server's thread. */
using FLogLine = std::function<void(const std::string&)>;

struct FServerSettings
{
	/** Name of the channel whose local address is bound. */
	std::string Channel = "Tandem";
	/** When not empty: bound in place of the channel's address, in ZeroMQ's notation. */
	std::string Endpoint;
	/** Keys of this end, for a tcp address; empty for what $ZEF_TANDEM_KEYS names. */
	std::string KeyFile;
	/** Takes what editors send; null: what is sent is counted, told and let go. */
	std::unique_ptr<IJointAnimationStore> Store;
	/** Null: silence. */
	FLogLine Log;
};

/** What a server has done so far. */
struct FServerCounts
{
	std::size_t ClientsConnected = 0;
	std::size_t ClientsGone = 0;
	std::size_t Updates = 0;
	std::size_t Animations = 0;
	std::size_t AvailabilityReplies = 0;
	std::size_t AnimationsReceived = 0;
	std::size_t Faults = 0;
	/** The last message 0; editors start with the link off. */
	bool bEnabled = false;
};

/**
 * A garment application without its window: one project, any number of editors.
 *
 * An update sends the objects that the project has, garment and avatar always, empty ones included, because an editor
 * waits for those two. Packed forms of an object are made when they are first asked for and kept; so is its vertex
 * animation. An object without the animation that is asked for is answered with no frames.
 */
class FServer
{
public:
	/** Binds the address; the fault says why it could not. */
	static TResult<std::unique_ptr<FServer>> Open(FProject Project, FServerSettings Settings);
	~FServer();

	FServer(const FServer&) = delete;
	FServer& operator=(const FServer&) = delete;

	/** What was bound, in ZeroMQ's notation. */
	const std::string& Endpoint() const;

	/** Answers what is waiting, or what comes within MaxWait. Returns how many requests and events there were. */
	std::size_t Serve(std::chrono::milliseconds MaxWait);

	/** Answers until Stop, or until `Clients` editors have come and gone; 0: any number. */
	void Run(std::size_t Clients = 0);

	/** Makes Run return; from any thread. */
	void Stop();

	const FServerCounts& Counts() const;

private:
	class FImpl;
	explicit FServer(std::unique_ptr<FImpl> Impl);
	std::unique_ptr<FImpl> Impl;
};

} // namespace Zef::Peer
