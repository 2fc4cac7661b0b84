// SPDX-License-Identifier: MIT
/** What one item may still take of the receiver's memory; made from the limits and handed down to whoever allocates. */
#pragma once

#include <cstdint>

namespace Zef
{

class FMemoryBudget
{
public:
	explicit FMemoryBudget(std::uint64_t InBytes)
		: Bytes(InBytes)
		, Left(InBytes)
	{
	}

	/** Notes that so many bytes are about to be allocated. False, and nothing noted, when so many are not left. */
	bool Take(std::uint64_t Wanted)
	{
		if (Wanted > Left)
		{
			return false;
		}
		Left -= Wanted;
		return true;
	}

	/** The same for elements, whose bytes may exceed 64 bits. */
	bool Take(std::uint64_t Count, std::uint64_t ElementBytes)
	{
		return Count <= Left / ElementBytes && Take(Count * ElementBytes);
	}

	/** What there was at the beginning. */
	std::uint64_t Total() const { return Bytes; }

private:
	std::uint64_t Bytes;
	std::uint64_t Left;
};

} // namespace Zef
