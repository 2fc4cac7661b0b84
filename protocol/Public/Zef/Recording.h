// SPDX-License-Identifier: MIT
/** What a garment application sent over one link, as a file: written by an editor's endpoint, read to be served again.
 */
#pragma once

#include "Zef/Items.h"
#include "Zef/Result.h"
#include "Zef/Wire.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Zef
{

/** Version of the file's layout; see docs/protocol.md. */
inline constexpr std::uint32_t RecordingVersion = 1;

/** One message of the application as it came over the wire, the prefix first. Parts point into the recording. */
struct FRecordedMessage
{
	std::vector<FByteView> Parts;
};

/** A request of the editor, and what answers it. */
struct FRecordedRequest
{
	/** The item's header as it was sent; empty for what came before any request. */
	FByteView Header;
	/** What was asked for; None when the header is empty or cannot be read. */
	EItem Item = EItem::None;
	FPackingOptions Options;
	FObjectTypeInfo Info;
	std::vector<FRecordedMessage> Messages;
	/** The application was lost before the next request; what it said, or the reason, is in LostReason. */
	bool bLost = false;
	std::string LostReason;
};

struct FRecording
{
	/** The highest version of the protocol that was spoken. */
	std::uint16_t ProtocolVersion = 0;
	/** What the application called itself. */
	std::string Program;
	std::vector<FRecordedRequest> Requests;
	/** Of all messages. */
	std::uint64_t MessageCount = 0;
	std::uint64_t MessageBytes = 0;
	/** Keeps the bytes of all views. */
	std::shared_ptr<const FBytes> Bytes;
};

/**
 * Reads a recording and checks all of it.
 * @return BadRecording with a sentence that names the file, the place and what to do: the file cannot be read, is no
 * recording, is of a later layout, was cut off, was changed, or holds no answer
 */
TResult<FRecording> ReadRecording(const std::string& Path);

} // namespace Zef
