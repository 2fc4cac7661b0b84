// SPDX-License-Identifier: MIT
/** Serves a recording to editors: what a garment application once sent, byte for byte. */
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

#include "Zef/Peer/Server.h"
#include "Zef/Recording.h"
#include "Zef/Result.h"

namespace Zef::Peer
{

struct FReplaySettings
{
	std::string Channel = "Tandem";
	/** When not empty: bound in place of the channel's address, in ZeroMQ's notation. */
	std::string Endpoint;
	std::string KeyFile;
	/** Null: silence. */
	FLogLine Log;
};

/**
 * Answers each request with what followed the like request when the recording was made: the same kind, object type and
 * options, or else the same kind and object type, or the same kind. Of several the first is taken, then the next, and
 * from the last again the first. A request that was not recorded is answered with a fault that says so.
 *
 * Speaks the version of the protocol that was recorded and no other.
 */
class FReplay
{
public:
	static TResult<std::unique_ptr<FReplay>> Open(FRecording Recording, FReplaySettings Settings);
	~FReplay();

	FReplay(const FReplay&) = delete;
	FReplay& operator=(const FReplay&) = delete;

	const std::string& Endpoint() const;

	/** Answers what is waiting, or what comes within MaxWait. */
	std::size_t Serve(std::chrono::milliseconds MaxWait);

	/** Answers until Stop, or until `Clients` editors have come and gone; 0: any number. */
	void Run(std::size_t Clients = 0);

	/** Makes Run return; from any thread. */
	void Stop();

private:
	class FImpl;
	explicit FReplay(std::unique_ptr<FImpl> Impl);
	std::unique_ptr<FImpl> Impl;
};

} // namespace Zef::Peer
