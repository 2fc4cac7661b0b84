// SPDX-License-Identifier: MIT
#include "Conformance/RawLink.h"

#include <cstring>

namespace Zef::Peer
{

namespace
{
constexpr const char* MonitorAddress = "inproc://conformance-monitor";

/** Replies to an update may be long before the answer to a case comes. */
constexpr int ReceivedMessages = 64;

std::chrono::milliseconds LeftUntil(FRawLink::FClock::time_point Deadline)
{
	const auto Left = std::chrono::ceil<std::chrono::milliseconds>(Deadline - FRawLink::FClock::now());
	return std::max(Left, std::chrono::milliseconds(0));
}
} // namespace

FRawLink::FRawLink(EReceiver Under, const std::string& Endpoint)
	: Socket(Context, Under == EReceiver::Editor ? zmq::socket_type::router : zmq::socket_type::dealer)
	, Monitor(Context, zmq::socket_type::pair)
	, bRouter(Under == EReceiver::Editor)
{
	Socket.set(zmq::sockopt::linger, 0);
	Socket.set(zmq::sockopt::sndhwm, 0);
	Socket.set(zmq::sockopt::rcvhwm, ReceivedMessages);
	if (zmq_socket_monitor(Socket.handle(), MonitorAddress, ZMQ_EVENT_DISCONNECTED) != 0)
	{
		throw zmq::error_t();
	}
	Monitor.connect(MonitorAddress);
	if (bRouter)
	{
		Socket.set(zmq::sockopt::router_mandatory, true);
		Socket.bind(Endpoint);
	}
	else
	{
		// One connection only: what comes after its end is another conversation.
		Socket.set(zmq::sockopt::reconnect_ivl, -1);
		Socket.connect(Endpoint);
	}
}

bool FRawLink::Send(const FMessageParts& Parts)
{
	try
	{
		if (bRouter)
		{
			Socket.send(zmq::buffer(Identity), Parts.empty() ? zmq::send_flags::none : zmq::send_flags::sndmore);
		}
		for (std::size_t Index = 0; Index < Parts.size(); ++Index)
		{
			Socket.send(
				zmq::buffer(Parts[Index]), Index + 1 < Parts.size() ? zmq::send_flags::sndmore : zmq::send_flags::none);
		}
		return true;
	}
	catch (const zmq::error_t& Error)
	{
		if (Error.num() != EHOSTUNREACH)
		{
			throw;
		}
		return false;
	}
}

bool FRawLink::TakeMessage(FMessageParts& OutParts)
{
	OutParts.clear();
	zmq::message_t Part;
	do
	{
		if (!Socket.recv(Part, OutParts.empty() ? zmq::recv_flags::dontwait : zmq::recv_flags::none))
		{
			return false;
		}
		const auto* Data = static_cast<const std::uint8_t*>(Part.data());
		OutParts.emplace_back(Data, Data + Part.size());
	} while (Part.more());
	if (bRouter)
	{
		if (Identity.empty())
		{
			Identity = OutParts[0];
		}
		const bool bOther = OutParts[0] != Identity;
		OutParts.erase(OutParts.begin());
		return !bOther || TakeMessage(OutParts);
	}
	return true;
}

bool FRawLink::IsClosed()
{
	zmq::message_t Event;
	bool bClosed = false;
	while (Monitor.recv(Event, zmq::recv_flags::dontwait))
	{
		bClosed = true;
		// The second part of an event is its address.
		Monitor.recv(Event, zmq::recv_flags::none).has_value();
	}
	return bClosed;
}

FRawLink::EArrival FRawLink::Receive(FMessageParts& OutParts, FClock::time_point Deadline)
{
	while (true)
	{
		if (TakeMessage(OutParts))
		{
			return EArrival::Message;
		}
		if (IsClosed())
		{
			// ZeroMQ tells of the end of a connection a little before it hands over the last messages of it.
			zmq::pollitem_t Last[] = {{Socket.handle(), 0, ZMQ_POLLIN, 0}};
			zmq::poll(Last, 1, std::chrono::milliseconds(20));
			return TakeMessage(OutParts) ? EArrival::Message : EArrival::Closed;
		}
		zmq::pollitem_t Items[] = {{Socket.handle(), 0, ZMQ_POLLIN, 0}, {Monitor.handle(), 0, ZMQ_POLLIN, 0}};
		if (zmq::poll(Items, 2, LeftUntil(Deadline)) == 0)
		{
			return EArrival::Nothing;
		}
	}
}

} // namespace Zef::Peer
