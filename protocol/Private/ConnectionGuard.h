// SPDX-License-Identifier: MIT
/** Watches over the connections that a garment application has accepted: how many, whose, and whether they greet. */
#pragma once

#include "Sockets.h"
#include "Zef/Limits.h"

#include <chrono>
#include <map>

namespace Zef
{

/** Knows each connection from its acceptance to its end by the descriptor that ZeroMQ names. Of the endpoint's thread.
 */
class FConnectionGuard
{
public:
	using FClock = std::chrono::steady_clock;

	/** @param bInCheckUsers  false where keys say who the other end is */
	FConnectionGuard(const FLimits& Limits, std::chrono::milliseconds InGreetingTime, bool bInCheckUsers);

	/**
	 * Takes an event of the socket's monitor. A connection of another user, and one too many, are cut.
	 * @return the fault for which one was cut; code None mostly
	 */
	FLinkFault OnEvent(const FMonitor::FEvent& Event);

	/** True when nothing may be taken from that connection any more. */
	bool IsCut(int Descriptor) const;

	/** It has greeted and may stay. */
	void Keep(int Descriptor);

	/** It is cut at that time. */
	void CutAt(int Descriptor, FClock::time_point Time);

	/** Cuts what is due. */
	void CutOverdue(FClock::time_point Now);

	/** When CutOverdue is to be asked again. */
	FClock::time_point Deadline() const;

private:
	struct FConnection
	{
		std::uint64_t Mark = 0;
		FClock::time_point Deadline = FClock::time_point::max();
		bool bCut = false;
	};

	static void Cut(int Descriptor, FConnection& Connection);

	const std::uint32_t MaxConnections;
	const std::chrono::milliseconds GreetingTime;
	const bool bCheckUsers;
	std::map<int, FConnection> Connections;
};

} // namespace Zef
