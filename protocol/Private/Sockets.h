// SPDX-License-Identifier: MIT
/** The few operations on ZeroMQ sockets that both endpoints share. */
#pragma once

#include "Outbox.h"
#include "Zef/Limits.h"
#include "Zef/Wire.h"

#include <zmq.hpp>

#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Zef
{

/**
 * Options that both ends set before they bind or connect: limits, heartbeats, no waiting.
 * @param Heartbeat  time between two; a peer that is silent for four times as long is lost
 */
void ConfigureSocket(zmq::socket_t& Socket, const FLimits& Limits, std::chrono::milliseconds Heartbeat);

/** A message part over foreign memory, which its owner keeps alive until ZeroMQ has sent it. Short ones are copied. */
zmq::message_t MakePart(const FChunk& Chunk);

/**
 * Sends one message: identity when there is one, prefix, body when Body is not null.
 * @return false when the peer of that identity is gone
 */
bool SendFrame(zmq::socket_t& Socket, const std::string& Identity, const FPrefix& Prefix, zmq::message_t* Body);

/** Sends one message of these parts as they are, the identity in front when there is one. */
bool SendParts(zmq::socket_t& Socket, const std::string& Identity, const std::vector<FChunk>& Parts);

/** Takes one whole message without waiting; empty when there is none. Parts beyond the fourth are thrown away. */
std::vector<zmq::message_t> ReceiveParts(zmq::socket_t& Socket, bool& bOutTooManyParts);

/** Waits until one of the sockets can be read, or for so long; -1 is without end. */
void WaitForSockets(zmq::pollitem_t* Items, std::size_t Count, std::chrono::milliseconds Time);

/** Starts a thread that no signal of the process interrupts: those belong to the program's own threads. */
std::thread StartThread(std::function<void()> Body);

inline FByteView ViewOf(const zmq::message_t& Part)
{
	return {static_cast<const std::uint8_t*>(Part.data()), Part.size()};
}

/** Descriptor of the connection that a part came through, as the monitor's events name it; -1 when it tells none. */
int DescriptorOf(zmq::message_t& Part);

/** What happens to a socket's connections, as the socket's monitor tells it. */
class FMonitor
{
public:
	struct FEvent
	{
		std::uint16_t Event = 0; // ZMQ_EVENT_...
		std::int32_t Value = 0;	 // descriptor or error number
	};

	/** Begins before the socket binds or connects. The socket must outlive the monitor. */
	FMonitor(zmq::context_t& Context, zmq::socket_t& InWatched);
	~FMonitor();

	FMonitor(const FMonitor&) = delete;
	FMonitor& operator=(const FMonitor&) = delete;

	zmq::socket_t& Socket() { return Events; }

	/** Takes one event without waiting. */
	bool Next(FEvent& OutEvent);

private:
	void* Watched; // not owned
	zmq::socket_t Events;
};

/** Wakes a thread that polls; any number of wakes before it looks are one. */
class FWaker
{
public:
	explicit FWaker(zmq::context_t& Context);

	/** From any thread. */
	void Wake();

	/** On the polling thread, once Socket can be read. */
	void Clear();
	zmq::socket_t& Socket() { return Receiver; }

private:
	zmq::socket_t Receiver;
	zmq::socket_t Sender;
	std::mutex Mutex;
	bool bWoken = false;
};

} // namespace Zef
