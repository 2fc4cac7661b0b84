// SPDX-License-Identifier: MIT
/** Keeps some of the values that vertices have. */
#pragma once

#include <cstdint>
#include <vector>

namespace Zef::Peer
{

/**
 * Leaves the values of the vertices in Kept, in its order; an empty array stays empty.
 * @param Kept  ascending, so that nothing is overwritten before it has been read
 */
template <typename T>
void PickVertices(std::vector<T>& Values, const std::vector<std::uint32_t>& Kept)
{
	if (Values.empty())
	{
		return;
	}
	for (std::size_t V = 0; V < Kept.size(); ++V)
	{
		Values[V] = Values[Kept[V]];
	}
	Values.resize(Kept.size());
}

} // namespace Zef::Peer
