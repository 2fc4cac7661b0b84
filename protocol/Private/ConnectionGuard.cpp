// SPDX-License-Identifier: MIT
#include "ConnectionGuard.h"

#include "PeerUser.h"

#include <algorithm>

namespace Zef
{

FConnectionGuard::FConnectionGuard(const FLimits& Limits, std::chrono::milliseconds InGreetingTime, bool bInCheckUsers)
	: MaxConnections(Limits.MaxConnections)
	, GreetingTime(InGreetingTime)
	, bCheckUsers(bInCheckUsers)
{
}

FLinkFault FConnectionGuard::OnEvent(const FMonitor::FEvent& Event)
{
	if (Event.Event == ZMQ_EVENT_DISCONNECTED || Event.Event == ZMQ_EVENT_CLOSED)
	{
		Connections.erase(Event.Value);
		return {};
	}
	if (Event.Event != ZMQ_EVENT_ACCEPTED)
	{
		return {};
	}
	FConnection& Connection = Connections[Event.Value];
	Connection = {ConnectionMark(Event.Value), FClock::now() + GreetingTime, false};
	FLinkFault Fault;
	if (bCheckUsers)
	{
		Fault = CheckPeerUser(Event.Value);
	}
	if (!Fault && Connections.size() > MaxConnections)
	{
		Fault = MakeFault(EFault::TooManyClients, "",
			std::to_string(MaxConnections) + " connections stand already; a further one was cut.");
	}
	if (Fault)
	{
		Cut(Event.Value, Connection);
	}
	return Fault;
}

void FConnectionGuard::Cut(int Descriptor, FConnection& Connection)
{
	Connection.bCut = true;
	Connection.Deadline = FClock::time_point::max();
	CutConnection(Descriptor, Connection.Mark);
}

bool FConnectionGuard::IsCut(int Descriptor) const
{
	const auto Found = Connections.find(Descriptor);
	return Found != Connections.end() && Found->second.bCut;
}

void FConnectionGuard::Keep(int Descriptor)
{
	CutAt(Descriptor, FClock::time_point::max());
}

void FConnectionGuard::CutAt(int Descriptor, FClock::time_point Time)
{
	const auto Found = Connections.find(Descriptor);
	if (Found != Connections.end() && !Found->second.bCut)
	{
		Found->second.Deadline = Time;
	}
}

void FConnectionGuard::CutOverdue(FClock::time_point Now)
{
	for (auto& [Descriptor, Connection] : Connections)
	{
		if (Connection.Deadline <= Now)
		{
			Cut(Descriptor, Connection);
		}
	}
}

FConnectionGuard::FClock::time_point FConnectionGuard::Deadline() const
{
	FClock::time_point Earliest = FClock::time_point::max();
	for (const auto& [Descriptor, Connection] : Connections)
	{
		Earliest = std::min(Earliest, Connection.Deadline);
	}
	return Earliest;
}

} // namespace Zef
