// SPDX-License-Identifier: MIT
/** The layout of a recording's file, for the one who writes it and the one who reads it. */
#pragma once

#include "Zef/Wire.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Zef
{

/** First bytes of the file. The line ends show when a transfer as text has changed the file. */
inline constexpr std::array<std::uint8_t, 8> RecordingMark{'Z', 'T', 'L', 'R', '\r', '\n', 0x1a, '\n'};

/** Mark, version of the layout, four zero bytes. */
inline constexpr std::size_t RecordingHeadBytes = 16;

enum class ERecord : std::uint8_t
{
	/** Parts: what the application calls itself. Version: of the protocol. */
	Connected = 1,
	/** Parts: header of an item of the editor. */
	Request = 2,
	/** Parts: of a message of the application, as they came. */
	Message = 3,
	/** Parts: the reason. */
	Lost = 4,
	/** Parts: count of all records before it, 64 bits. Last. */
	End = 5
};

/** Head of a record: kind, count of parts, version, checksum, time; then the parts' lengths, then the parts. */
inline constexpr std::size_t RecordHeadBytes = 16;
inline constexpr std::size_t MaxRecordParts = 4;

/** The CRC-32 of PNG and zip, continued from what it was for the bytes before. */
std::uint32_t Checksum(std::uint32_t Before, FByteView Bytes);

void PutNumber(std::uint8_t* Out, std::uint64_t Value, int Bytes);
std::uint64_t GetNumber(const std::uint8_t* In, int Bytes);

} // namespace Zef
