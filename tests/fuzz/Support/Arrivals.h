// SPDX-License-Identifier: MIT
/** The inputs of the fuzzers: items as they arrive at one end, in a container that every sequence of bytes is. */
#pragma once

#include "Zef/Decode.h"
#include "Zef/Wire.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Fuzz
{

/** One item: header and arrays as they came over the wire. */
struct FArrival
{
	Zef::FBytes Header;
	Zef::FBytes Payload;
};

struct FArrivals
{
	Zef::EReceiver Receiver = Zef::EReceiver::Editor;
	std::vector<FArrival> Items;
};

/** Longer inputs find nothing more and cost much. */
inline constexpr std::size_t MaxItems = 8;

/**
 * Reads the container: one byte that says who receives, then for each item the lengths of header and payload in four
 * bytes each, and their bytes. Lengths end with the input.
 */
FArrivals ReadArrivals(Zef::FByteView Input);
Zef::FBytes WriteArrivals(const FArrivals& Arrivals);

/**
 * Gives the items to a decoder, each in pieces of PieceBytes; the result of the last. Stops an item at its refusal.
 * @param OutOverrun  set when a piece was longer than its item: how it is cut then matters
 */
Zef::EDecode Receive(
	Zef::FItemDecoder& Decoder, const FArrivals& Arrivals, std::size_t PieceBytes, bool* OutOverrun = nullptr);

} // namespace Fuzz
