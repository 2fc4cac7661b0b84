// SPDX-License-Identifier: MIT
/** The stored bytes of each version of the protocol, one file for each message. */
#pragma once

#include "Zef/Wire.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace LinkTest
{

inline std::filesystem::path GoldenFile(int Version, const std::string& Name)
{
	return std::filesystem::path(ZEF_SOURCE_DIR) / "tests/protocol/golden" / ("v" + std::to_string(Version)) /
		   (Name + ".hex");
}

/** Parts of messages as hexadecimal lines of 32 bytes; an empty line stands between parts. */
inline std::string Hexadecimal(const std::vector<Zef::FBytes>& Parts)
{
	static constexpr char Digits[] = "0123456789abcdef";
	std::string Text;
	for (const Zef::FBytes& Part : Parts)
	{
		Text += Text.empty() ? "" : "\n";
		for (std::size_t Index = 0; Index < Part.size(); ++Index)
		{
			Text += {Digits[Part[Index] >> 4], Digits[Part[Index] & 15]};
			Text += Index % 32 == 31 || Index + 1 == Part.size() ? "\n" : "";
		}
	}
	return Text;
}

/** The parts of a file, prefixes and what follows them; empty when there is no such file. */
inline std::vector<Zef::FBytes> ReadGolden(int Version, const std::string& Name)
{
	std::ifstream File(GoldenFile(Version, Name));
	std::vector<Zef::FBytes> Parts;
	bool bNew = true;
	std::string Line;
	while (std::getline(File, Line))
	{
		if (Line.empty())
		{
			bNew = true;
			continue;
		}
		if (bNew)
		{
			Parts.emplace_back();
			bNew = false;
		}
		for (std::size_t Index = 0; Index + 1 < Line.size(); Index += 2)
		{
			Parts.back().push_back(static_cast<std::uint8_t>(std::stoi(Line.substr(Index, 2), nullptr, 16)));
		}
	}
	return Parts;
}

} // namespace LinkTest
