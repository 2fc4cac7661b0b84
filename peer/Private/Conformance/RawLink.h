// SPDX-License-Identifier: MIT
/** One connection to the end under test, message by message, with no rule of the protocol kept on this side. */
#pragma once

#include "Zef/Peer/ConformancePlayer.h"

#include <zmq.hpp>

namespace Zef::Peer
{

class FRawLink
{
public:
	using FClock = std::chrono::steady_clock;

	enum class EArrival
	{
		Message,
		/** The other end closed the connection. */
		Closed,
		/** Nothing came until the deadline. */
		Nothing
	};

	/** Connects to the application under test, or binds for the editor under test; throws zmq::error_t. */
	FRawLink(EReceiver Under, const std::string& Endpoint);

	/** False when the other end is gone. */
	bool Send(const FMessageParts& Parts);

	/** The next message of the other end. */
	EArrival Receive(FMessageParts& OutParts, FClock::time_point Deadline);

private:
	bool TakeMessage(FMessageParts& OutParts);
	bool IsClosed();

	zmq::context_t Context;
	zmq::socket_t Socket;
	zmq::socket_t Monitor;
	const bool bRouter;
	FBytes Identity; // of the editor under test
};

} // namespace Zef::Peer
