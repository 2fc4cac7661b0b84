// SPDX-License-Identifier: MIT
/** Finds what stands twice by sorting: a hash table could be made slow by whoever chooses what goes into it. */
#pragma once

#include "Zef/Fault.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Zef
{

/** Index of the first entry of a map's pairs whose key stood before; npos when there is none. */
template <class TPairs>
std::size_t FindKeyTwice(const TPairs& Pairs)
{
	std::vector<std::pair<std::int32_t, std::size_t>> Keys;
	Keys.reserve(Pairs.size());
	for (std::size_t Index = 0; Index < Pairs.size(); ++Index)
	{
		Keys.emplace_back(Pairs[Index].first, Index);
	}
	std::sort(Keys.begin(), Keys.end());
	std::size_t First = std::string::npos;
	for (std::size_t Index = 1; Index < Keys.size(); ++Index)
	{
		First = Keys[Index].first == Keys[Index - 1].first ? std::min(First, Keys[Index].second) : First;
	}
	return First;
}

/** Names of joints, as the editor tells them apart: capital and small ASCII letters alike. */
class FNameSet
{
public:
	void Reserve(std::size_t Count) { Names.reserve(Count); }

	/** The names of a list, in its order. */
	void Add(const std::string& Name);

	/** JointName for the first name that is empty, "None" or an earlier one; its path is ListPath/<index>/Name. */
	FLinkFault FirstFault(const std::string& ListPath);

private:
	std::vector<std::pair<std::string, std::size_t>> Names; // folded, with their index
};

} // namespace Zef
