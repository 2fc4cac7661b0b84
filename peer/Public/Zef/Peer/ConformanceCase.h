// SPDX-License-Identifier: MIT
/** One case of the conformance set: what is sent to an end of the link, and what that end has to do. */
#pragma once

#include "Zef/Decode.h"
#include "Zef/Fault.h"
#include "Zef/Result.h"
#include "Zef/Wire.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace Zef::Peer
{

/** What the end under test has to do. */
enum class EExpected
{
	/** Take everything, and report nothing. */
	Taken,
	/** Send one FaultReport, and go on. */
	Fault,
	/** End the connection: an application with Refused, an editor by closing it. */
	Refused,
	/** Report nothing to the other end; its own program is told of the fault. */
	Told,
	/** Not open the address at all. */
	Opening,
	/** Nothing that bytes could provoke; the case names the test that does. */
	Program
};

/** Parts of one message, from the prefix on. */
using FMessageParts = std::vector<FBytes>;

/** See docs/conformance.md for the form of the files. */
struct FConformanceCase
{
	/** "hostile/IndexRange": folder and name of the file. */
	std::string Name;
	/** The first comment. */
	std::string About;
	/** The end under test. */
	EReceiver To = EReceiver::Editor;
	/** The lowest version of the protocol in which this can be said. */
	std::uint16_t Version = 1;
	/** The bound that is overstepped is the receiver's own: one that takes more passes too. */
	bool bOwnBound = false;
	/** Options of the receiver without which it cannot be provoked, as "MaxClients" and "1". */
	std::vector<std::pair<std::string, std::uint64_t>> Needs;
	/** The messages hold the greeting; otherwise the two ends have greeted before. */
	bool bRawGreeting = false;
	std::vector<FMessageParts> Messages;
	/** The messages are sent so many times. */
	std::uint32_t Repeat = 1;
	/** The connection ends after the messages. */
	bool bClose = false;
	/** Opening: the address, or "taken" for one that is served already. Program: the test. */
	std::string Subject;

	EExpected Expected = EExpected::Taken;
	/** Code, path and message of the fault; no message: any. */
	FLinkFault Fault;
	/** The item that the fault is about. */
	std::uint64_t Item = 0;
};

/** Reads a file of the set; PeerFailed with file and line when it is none. GoldenFolder holds v1, v2 and so on. */
TResult<FConformanceCase> ReadConformanceCase(
	const std::filesystem::path& File, const std::filesystem::path& GoldenFolder);

/** The cases of the folders "valid" and "hostile" beside "golden", by name. */
TResult<std::vector<FConformanceCase>> ReadConformanceSet(const std::filesystem::path& Folder);

} // namespace Zef::Peer
