// SPDX-License-Identifier: MIT
#include "Sockets.h"

#include <algorithm>
#include <atomic>
#include <cstring>

#ifndef _WIN32
#include <csignal>
#endif

namespace Zef
{

namespace
{
/** Parts of messages that may wait in front of this end's thread; beyond that ZeroMQ stops reading from the connection.
 */
constexpr int WaitingParts = 64;

/** So many heartbeats without an answer, and the peer is lost. One whose process ends is noticed at once. */
constexpr int MissedHeartbeats = 4;

/** How long the end of the endpoint waits for what was already handed to ZeroMQ. */
constexpr int LingerMilliseconds = 250;

/** Copying less than this is cheaper than keeping its owner. */
constexpr std::size_t CopiedBytes = 4096;

constexpr std::size_t MaxParts = 4;

std::string UniqueName(const char* Kind)
{
	static std::atomic<unsigned> Count{0};
	return std::string("inproc://zef-") + Kind + "-" + std::to_string(++Count);
}

void ReleaseOwner(void* /*Data*/, void* Hint)
{
	delete static_cast<std::shared_ptr<const void>*>(Hint);
}
} // namespace

void ConfigureSocket(zmq::socket_t& Socket, const FLimits& Limits, std::chrono::milliseconds Heartbeat)
{
	const int Interval = static_cast<int>(Heartbeat.count());
	// The window bounds what is under way; a high-water mark of ZeroMQ's would silently drop at the ROUTER.
	Socket.set(zmq::sockopt::sndhwm, 0);
	Socket.set(zmq::sockopt::rcvhwm, WaitingParts);
	Socket.set(zmq::sockopt::linger, LingerMilliseconds);
	Socket.set(zmq::sockopt::maxmsgsize,
		static_cast<std::int64_t>(std::max<std::uint32_t>(Limits.MaxHeaderBytes, Limits.MaxPieceBytes)));
	Socket.set(zmq::sockopt::heartbeat_ivl, Interval);
	Socket.set(zmq::sockopt::heartbeat_timeout, Interval * MissedHeartbeats);
	Socket.set(zmq::sockopt::heartbeat_ttl, Interval * MissedHeartbeats);
	Socket.set(zmq::sockopt::handshake_ivl, Interval);
}

zmq::message_t MakePart(const FChunk& Chunk)
{
	if (Chunk.Size < CopiedBytes)
	{
		return zmq::message_t(Chunk.Data, Chunk.Size);
	}
	// ZeroMQ only reads it.
	auto* Data = const_cast<std::uint8_t*>(Chunk.Data);
	return zmq::message_t(Data, Chunk.Size, &ReleaseOwner, new std::shared_ptr<const void>(Chunk.Owner));
}

bool SendFrame(zmq::socket_t& Socket, const std::string& Identity, const FPrefix& Prefix, zmq::message_t* Body)
{
	try
	{
		using zmq::send_flags;
		if (!Identity.empty() && !Socket.send(zmq::buffer(Identity), send_flags::sndmore | send_flags::dontwait))
		{
			return false;
		}
		const auto Bytes = EncodePrefix(Prefix);
		const send_flags Last = send_flags::dontwait;
		if (!Socket.send(zmq::buffer(Bytes), Body != nullptr ? Last | send_flags::sndmore : Last))
		{
			return false;
		}
		return Body == nullptr || Socket.send(*Body, Last).has_value();
	}
	catch (const zmq::error_t&)
	{
		// EHOSTUNREACH: the ROUTER knows no such peer any more.
		return false;
	}
}

bool SendParts(zmq::socket_t& Socket, const std::string& Identity, const std::vector<FChunk>& Parts)
{
	try
	{
		using zmq::send_flags;
		if (!Identity.empty() && !Socket.send(zmq::buffer(Identity), send_flags::sndmore | send_flags::dontwait))
		{
			return false;
		}
		for (std::size_t Index = 0; Index < Parts.size(); ++Index)
		{
			zmq::message_t Part = MakePart(Parts[Index]);
			const bool bMore = Index + 1 < Parts.size();
			if (!Socket.send(Part, bMore ? send_flags::sndmore | send_flags::dontwait : send_flags::dontwait))
			{
				return false;
			}
		}
		return true;
	}
	catch (const zmq::error_t&)
	{
		return false;
	}
}

std::vector<zmq::message_t> ReceiveParts(zmq::socket_t& Socket, bool& bOutTooManyParts)
{
	std::vector<zmq::message_t> Parts;
	bOutTooManyParts = false;
	bool bMore = true;
	while (bMore)
	{
		zmq::message_t Part;
		if (!Socket.recv(Part, zmq::recv_flags::dontwait))
		{
			break;
		}
		bMore = Part.more();
		if (Parts.size() < MaxParts)
		{
			Parts.push_back(std::move(Part));
		}
		else
		{
			bOutTooManyParts = true;
		}
	}
	return Parts;
}

int DescriptorOf(zmq::message_t& Part)
{
	return zmq_msg_get(Part.handle(), ZMQ_SRCFD);
}

void WaitForSockets(zmq::pollitem_t* Items, std::size_t Count, std::chrono::milliseconds Time)
{
	zmq_poll(Items, static_cast<int>(Count), static_cast<long>(Time.count()));
}

std::thread StartThread(std::function<void()> Body)
{
#ifdef _WIN32
	return std::thread(std::move(Body));
#else
	sigset_t All;
	sigset_t Former;
	sigfillset(&All);
	pthread_sigmask(SIG_SETMASK, &All, &Former);
	std::thread Thread(std::move(Body));
	pthread_sigmask(SIG_SETMASK, &Former, nullptr);
	return Thread;
#endif
}

FMonitor::FMonitor(zmq::context_t& Context, zmq::socket_t& InWatched)
	: Watched(InWatched.handle())
	, Events(Context, zmq::socket_type::pair)
{
	const std::string Address = UniqueName("monitor");
	if (zmq_socket_monitor(Watched, Address.c_str(), ZMQ_EVENT_ALL) != 0)
	{
		throw zmq::error_t();
	}
	Events.set(zmq::sockopt::linger, 0);
	Events.connect(Address);
}

FMonitor::~FMonitor()
{
	// Stopped first: ZeroMQ's thread would wait for a reader of its events that is gone.
	zmq_socket_monitor(Watched, nullptr, 0);
}

bool FMonitor::Next(FEvent& OutEvent)
{
	zmq::message_t Head;
	if (!Events.recv(Head, zmq::recv_flags::dontwait))
	{
		return false;
	}
	if (Head.size() >= sizeof(OutEvent.Event) + sizeof(OutEvent.Value))
	{
		std::memcpy(&OutEvent.Event, Head.data(), sizeof(OutEvent.Event));
		std::memcpy(
			&OutEvent.Value, static_cast<const char*>(Head.data()) + sizeof(OutEvent.Event), sizeof(OutEvent.Value));
	}
	while (Head.more())
	{
		if (!Events.recv(Head, zmq::recv_flags::none))
		{
			break;
		}
	}
	return true;
}

FWaker::FWaker(zmq::context_t& Context)
	: Receiver(Context, zmq::socket_type::pair)
	, Sender(Context, zmq::socket_type::pair)
{
	const std::string Address = UniqueName("waker");
	Receiver.set(zmq::sockopt::linger, 0);
	Sender.set(zmq::sockopt::linger, 0);
	Receiver.bind(Address);
	Sender.connect(Address);
}

void FWaker::Wake()
{
	const std::lock_guard Lock(Mutex);
	if (!bWoken)
	{
		bWoken = true;
		Sender.send(zmq::message_t(), zmq::send_flags::dontwait);
	}
}

void FWaker::Clear()
{
	// Cleared before the queue is looked at, so that what is added afterwards wakes again.
	const std::lock_guard Lock(Mutex);
	zmq::message_t Signal;
	while (Receiver.recv(Signal, zmq::recv_flags::dontwait))
	{
	}
	bWoken = false;
}

} // namespace Zef
