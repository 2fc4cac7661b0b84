// SPDX-License-Identifier: MIT
/** Puts the pieces of one item into its arrays, with one copy, and checks each stretch on its way. */
#pragma once

#include "ArrayCheck.h"
#include "Zef/RecordSink.h"
#include "Zef/Wire.h"

#include <vector>

namespace Zef
{

/**
 * Arrays of one item, in the order of travel. Those of a mesh or frame go to the sink, those of a joint sequence to the
 * packed sequence that the reader keeps.
 */
class FPayloadReader
{
public:
	/** Begins an item. Rules say where each array belongs and what it is held against. */
	void Begin(std::vector<FArrayRule>&& InRules, IRecordSink* InSink, FPackedJointSequence* InSequence);

	/** Drops the item. */
	void Reset();

	/** Bytes of all arrays. */
	std::uint64_t TotalBytes() const { return Total; }
	std::uint64_t ReceivedBytes() const { return Received; }
	bool IsComplete() const { return Received == Total; }

	/** Takes the next bytes, which must not exceed what is missing. */
	FLinkFault Take(FByteView Bytes);

private:
	bool OpenArray();

	std::vector<FArrayRule> Rules;
	IRecordSink* Sink = nullptr;			  // not owned
	FPackedJointSequence* Sequence = nullptr; // not owned
	std::size_t Current = 0;
	std::uint8_t* Data = nullptr; // of the current array
	std::uint64_t Filled = 0;	  // bytes of it
	std::uint64_t Checked = 0;	  // elements of it
	const std::uint32_t* FirstWeight = nullptr;
	std::uint64_t Total = 0;
	std::uint64_t Received = 0;
};

} // namespace Zef
