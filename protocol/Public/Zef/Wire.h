// SPDX-License-Identifier: MIT
/** The first part of every message, and the bytes of the greeting. */
#pragma once

#include "Zef/Fault.h"
#include "Zef/Limits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Zef
{

using FBytes = std::vector<std::uint8_t>;
using FByteView = std::span<const std::uint8_t>;

/** What a message is. */
enum class EFrame : std::uint8_t
{
	Hello = 1,
	Welcome = 2,
	Refused = 3,
	Item = 4,
	Piece = 5,
	Credit = 6
};

/**
 * Prefix of every message, 24 bytes: "ZTL1", the frame, three zero bytes, then two 64-bit little-endian numbers.
 * The layout is the same in every version of the protocol.
 */
struct FPrefix
{
	static constexpr std::size_t Bytes = 24;

	EFrame Frame = EFrame::Item;
	/** Item and Piece: number of the item, counted from 1 in each direction of a connection. Otherwise 0. */
	std::uint64_t Item = 0;
	/** Piece: offset of its first byte in the item's arrays. Credit: bytes of items and pieces taken since the
	 * greeting. */
	std::uint64_t Offset = 0;
};

std::array<std::uint8_t, FPrefix::Bytes> EncodePrefix(const FPrefix& Prefix);

/** @return nothing for another length, other letters, non-zero reserved bytes or an unknown frame; OutFault says which
 */
std::optional<FPrefix> DecodePrefix(FByteView Bytes, FLinkFault& OutFault);

/** What both ends say first. */
struct FHello
{
	std::uint16_t MinVersion = 0;
	std::uint16_t MaxVersion = 0;
	std::string Program;
	std::uint64_t WindowBytes = 0;
	std::uint32_t MaxPieceBytes = 0;
};

struct FWelcome
{
	std::uint16_t Version = 0;
	std::string Program;
	std::uint64_t WindowBytes = 0;
	std::uint32_t MaxPieceBytes = 0;
};

struct FRefused
{
	EFault Code = EFault::None;
	std::string Sentence;
	std::uint16_t MinVersion = 0;
	std::uint16_t MaxVersion = 0;
};

FBytes EncodeHello(const FHello& Hello);
FBytes EncodeWelcome(const FWelcome& Welcome);
FBytes EncodeRefused(const FRefused& Refused);

/** Empty when the bytes are no such table, a version range is empty, or a window or piece length is 0. */
std::optional<FHello> DecodeHello(FByteView Bytes);
std::optional<FWelcome> DecodeWelcome(FByteView Bytes);
std::optional<FRefused> DecodeRefused(FByteView Bytes);

/** "2", or "1 to 2". */
std::string ToString(const FVersionRange& Range);

/** The highest version that both ranges hold, or 0. */
std::uint16_t CommonVersion(std::uint16_t MinA, std::uint16_t MaxA, std::uint16_t MinB, std::uint16_t MaxB);

} // namespace Zef
