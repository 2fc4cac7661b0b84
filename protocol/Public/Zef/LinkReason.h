// SPDX-License-Identifier: MIT
/** Why there is no link: one list of reasons for the log, the doctor and a status line, each with what to do about it.
 */
#pragma once

#include "Zef/Fault.h"

#include <cstdint>
#include <span>
#include <string>

namespace Zef
{

enum class ELinkReason : std::uint8_t
{
	/** Nothing is wrong. */
	Well,

	// Nobody is there
	NobodyServes,
	StaleSocket,
	NameUnknown,
	Unreachable,
	PortClosed,

	// The address may not be used
	AddressRefused,
	FolderUnsafe,
	SocketUnsafe,
	ForeignUser,
	KeysNeeded,
	KeysUnusable,
	KeysRejected,

	// Somebody is there
	NotAPeer,
	NoAnswer,
	VersionUnknown,
	TurnedAway,

	// The link stood
	PeerClosed,
	PeerLost,
	PeerMisbehaved,
	OutOfMemory
};

/** One row of the list. */
struct FLinkReasonInfo
{
	ELinkReason Kind;
	const char* Name;
	/** What to do, whole sentences; empty for Well. */
	const char* Advice;
};

/** All reasons, in the order of the enumeration. */
std::span<const FLinkReasonInfo> LinkReasonTable();

const FLinkReasonInfo& LinkReasonInfo(ELinkReason Kind);

/** A reason with what was found in this case. */
struct FLinkReason
{
	ELinkReason Kind = ELinkReason::Well;
	/** What is the case, with names and numbers; whole sentences. */
	std::string What;

	/** What to do about it. */
	std::string Advice() const { return LinkReasonInfo(Kind).Advice; }

	/** True when something is wrong. */
	explicit operator bool() const { return Kind != ELinkReason::Well; }
};

/** The reason behind a fault that ended a connection, or kept one from being made. */
FLinkReason ReasonOf(const FLinkFault& Fault);

/** The fault that tells of a reason for which an address or connection is not used. */
FLinkFault FaultOf(const FLinkReason& Reason);

/** One line for a log: what is the case, then what to do. */
std::string ToString(const FLinkReason& Reason);

} // namespace Zef
