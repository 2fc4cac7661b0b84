// SPDX-License-Identifier: MIT
#include "RecordingFile.h"

namespace Zef
{

namespace
{
constexpr std::uint32_t Polynomial = 0xedb88320;

/** Row n: what a byte does to the sum when n more bytes of zero follow it, so that eight bytes are taken at once. */
using FRows = std::array<std::array<std::uint32_t, 256>, 8>;

constexpr FRows MakeRows()
{
	FRows Rows{};
	for (std::uint32_t Byte = 0; Byte < 256; ++Byte)
	{
		std::uint32_t Sum = Byte;
		for (int Bit = 0; Bit < 8; ++Bit)
		{
			Sum = (Sum & 1) != 0 ? (Sum >> 1) ^ Polynomial : Sum >> 1;
		}
		Rows[0][Byte] = Sum;
	}
	for (std::uint32_t Byte = 0; Byte < 256; ++Byte)
	{
		for (std::size_t Row = 1; Row < Rows.size(); ++Row)
		{
			const std::uint32_t Former = Rows[Row - 1][Byte];
			Rows[Row][Byte] = (Former >> 8) ^ Rows[0][Former & 255];
		}
	}
	return Rows;
}

constexpr FRows Rows = MakeRows();
} // namespace

std::uint32_t Checksum(std::uint32_t Before, FByteView Bytes)
{
	std::uint32_t Sum = ~Before;
	std::size_t Place = 0;
	for (; Place + 8 <= Bytes.size(); Place += 8)
	{
		const std::uint32_t Low = Sum ^ static_cast<std::uint32_t>(GetNumber(&Bytes[Place], 4));
		Sum = Rows[7][Low & 255] ^ Rows[6][(Low >> 8) & 255] ^ Rows[5][(Low >> 16) & 255] ^ Rows[4][Low >> 24] ^
			  Rows[3][Bytes[Place + 4]] ^ Rows[2][Bytes[Place + 5]] ^ Rows[1][Bytes[Place + 6]] ^
			  Rows[0][Bytes[Place + 7]];
	}
	for (; Place < Bytes.size(); ++Place)
	{
		Sum = (Sum >> 8) ^ Rows[0][(Sum ^ Bytes[Place]) & 255];
	}
	return ~Sum;
}

void PutNumber(std::uint8_t* Out, std::uint64_t Value, int Bytes)
{
	for (int Byte = 0; Byte < Bytes; ++Byte)
	{
		Out[Byte] = static_cast<std::uint8_t>(Value >> (8 * Byte));
	}
}

std::uint64_t GetNumber(const std::uint8_t* In, int Bytes)
{
	std::uint64_t Value = 0;
	for (int Byte = 0; Byte < Bytes; ++Byte)
	{
		Value |= std::uint64_t(In[Byte]) << (8 * Byte);
	}
	return Value;
}

} // namespace Zef
