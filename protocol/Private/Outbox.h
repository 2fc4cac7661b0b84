// SPDX-License-Identifier: MIT
/** What one connection has still to send, cut into messages as the other end's window allows. */
#pragma once

#include "Zef/Encode.h"
#include "Zef/Recording.h"
#include "Zef/Wire.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>

namespace Zef
{

/** A message to be sent: prefix, and the bytes that follow it. */
struct FOutMessage
{
	FPrefix Prefix;
	FChunk Body;
	/** When not empty: the parts as they are, in place of the two above. */
	std::vector<FChunk> Parts;
};

/** Messages that are sent as they were recorded. Item numbers go on from those of the connection. */
struct FRecordedRun
{
	std::vector<FRecordedMessage> Messages;
	std::shared_ptr<const void> Owner;
};

/** Items of one entry, given one after the other as there is room; nothing at the end. */
using FItemSource = std::function<std::optional<FEncodedItem>()>;

/**
 * Queue of items of one connection. Bytes of headers and pieces count as under way until the other end has credited
 * them; a message is given out when it fits into the window beside them, or when nothing is under way.
 */
class FOutbox
{
public:
	/** What the other end told about itself in the greeting. */
	void Open(std::uint64_t InWindowBytes, std::uint32_t InMaxPieceBytes);

	void Add(FEncodedItem&& Item);
	void Add(FItemSource&& Source);
	void Add(FRecordedRun&& Run);

	/** The next message, when the window has room for it. */
	std::optional<FOutMessage> Next();

	/** The other end has taken so many bytes since the greeting. False when it claims what was not sent. */
	bool Credit(std::uint64_t TotalBytes);

	/** The other end refused an item: its rest, or the rest of the sequence that it belongs to, is not sent. */
	void Cancel(std::uint64_t ItemNumber);

	/** Array bytes of the queued items that are known and not yet given out. */
	std::uint64_t QueuedBytes() const { return Queued; }

	/** Entries that are not wholly given out. */
	std::size_t Count() const { return Entries.size(); }

private:
	struct FEntry
	{
		std::optional<FEncodedItem> Item;
		FItemSource Source;
		FRecordedRun Run;
		std::uint64_t FirstNumber = 0; // 0: nothing of it was sent
	};

	bool LoadItem();
	bool HasRoom(std::size_t Size) const;
	std::optional<FOutMessage> NextRecorded();
	void DropItem();

	std::deque<FEntry> Entries;
	std::uint64_t WindowBytes = 0;
	std::uint32_t MaxPieceBytes = 0;
	std::uint64_t Sent = 0;
	std::uint64_t Credited = 0;
	std::uint64_t Queued = 0;

	// Place in the item in front
	std::uint64_t Number = 0;
	bool bHeaderSent = false;
	std::size_t Chunk = 0;
	std::size_t ChunkOffset = 0;
	std::uint64_t Offset = 0;

	// Place in the recorded run in front
	std::size_t RunPlace = 0;
	std::uint64_t RunShift = 0; // added to the recorded numbers, modulo 2^64
	bool bRunNumbered = false;
};

} // namespace Zef
