// SPDX-License-Identifier: MIT
/** Names that the link takes. */
#pragma once

#include <set>
#include <string>

namespace Zef::Peer
{

/** Valid UTF-8 without control characters, cut to a length that leaves room for a suffix. */
std::string CleanName(const std::string& Name);

/** Makes names that differ, whatever their case, by a number behind the later ones. */
class FUniqueNames
{
public:
	std::string Make(const std::string& Name, const std::string& WhenEmpty);

private:
	std::set<std::string> Taken;
};

/** Lower case of the letters of ASCII. */
std::string FoldName(const std::string& Name);

} // namespace Zef::Peer
