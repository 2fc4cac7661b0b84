// SPDX-License-Identifier: MIT
/** How the links of this process stand, for status lines, and a call when one of them has something to tell. */
#pragma once

#include "Zef/LinkReason.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zef
{

enum class ELinkState : std::uint8_t
{
	Searching, // the first attempts are under way; nothing is known yet
	Absent,	   // nobody answers; attempts go on
	Greeting,  // connected; the answer to the greeting is awaited
	Up,
	Refused // the garment application turned this editor away; attempts go on slowly
};

/** How far the update that was announced last has come; all zero while none was. */
struct FUpdateProgress
{
	std::uint64_t AnnouncedBytes = 0;
	/** Those of objects that were refused count as received. */
	std::uint64_t ReceivedBytes = 0;
	std::uint32_t AnnouncedObjects = 0;
	std::uint32_t ReceivedObjects = 0;

	bool IsUnderWay() const { return ReceivedObjects < AnnouncedObjects; }
};

/** One open end of the link of this process. */
struct FLinkStatus
{
	std::string Name;
	/** ZeroMQ endpoint, or the path of the port file that names it. */
	std::string Address;
	ELinkState State = ELinkState::Searching;
	/** Up: what the garment application calls itself. Absent and Refused: why and what to do, as one line. */
	std::string Detail;
	/** Why there is no link; Well when there is one, or nothing is known yet. */
	FLinkReason Reason;
	/** Version of the protocol that both speak; 0 without a link. */
	std::uint16_t Version = 0;
	FUpdateProgress Progress;
};

/** The client endpoints of this process that are open, in the order of opening. Callable from any thread. */
std::vector<FLinkStatus> LinkStatuses();

/**
 * Sets who is told that a client endpoint of this process has something for Poll, or that its state has changed;
 * empty for nobody. When the call returns the former listener runs no more.
 *
 * The listener is called on the endpoints' own threads with locks held: it may wake the program and nothing else.
 */
void SetLinkListener(std::function<void()> Listener);

} // namespace Zef
