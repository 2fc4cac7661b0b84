// SPDX-License-Identifier: MIT
/** Asks a garment application for what it holds and keeps what it sends in a recording. */
#pragma once

#include "Zef/ClientEndpoint.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zef
{

struct FRecordSessionOptions
{
	std::string Channel = "Tandem";
	/** In place of the channel's own address; empty for what the environment names, or the channel's. */
	std::string Endpoint;
	/** Empty for what the environment names. */
	std::string KeyFile;
	/** Target of the recording. */
	std::string File;
	FPackingOptions Packing;
	/** Ask for the animations that the application says it has, too. */
	bool bAnimations = false;
	/** How long to wait for the application, and then for any sign of an answer. */
	std::chrono::milliseconds Timeout{60000};
};

/** What was recorded. */
struct FRecordSummary
{
	std::string Program;
	std::uint16_t ProtocolVersion = 0;
	std::uint32_t Objects = 0;
	std::uint32_t Animations = 0;
	std::uint64_t Bytes = 0;
	/** Messages that were refused, or faults that the application told; they are in the recording. */
	std::vector<FLinkFault> Faults;
	/** Why the recording ends before everything was answered; Well when it does not. */
	FLinkReason CutShort;
};

/**
 * Connects, asks for the flags, an update and, when wanted, the animations, one after the other, and writes the file. A
 * failure of the application in the middle is part of the recording: the file is written all the same, and CutShort
 * says what happened.
 * @param OnProgress  called now and then while an update comes; may be empty
 * @return a fault when no file was written: nobody came up, or the file could not be written
 */
TResult<FRecordSummary> RecordSession(
	const FRecordSessionOptions& Options, const std::function<void(const FUpdateProgress&)>& OnProgress = {});

} // namespace Zef
