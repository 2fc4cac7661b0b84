// SPDX-License-Identifier: MIT
#include "Text.h"

namespace Zef
{

std::size_t FindBadUtf8(std::string_view Text)
{
	// The well-formed byte sequences of table 3-7 of the Unicode standard.
	for (std::size_t Index = 0; Index < Text.size();)
	{
		const auto Lead = static_cast<unsigned char>(Text[Index]);
		std::size_t Length = 1;
		unsigned char Low = 0x80;
		unsigned char High = 0xbf;
		if (Lead >= 0x01 && Lead <= 0x7f)
		{
			++Index;
			continue;
		}
		if (Lead >= 0xc2 && Lead <= 0xdf)
		{
			Length = 2;
		}
		else if (Lead >= 0xe0 && Lead <= 0xef)
		{
			Length = 3;
			Low = Lead == 0xe0 ? 0xa0 : Low;
			High = Lead == 0xed ? 0x9f : High;
		}
		else if (Lead >= 0xf0 && Lead <= 0xf4)
		{
			Length = 4;
			Low = Lead == 0xf0 ? 0x90 : Low;
			High = Lead == 0xf4 ? 0x8f : High;
		}
		else
		{
			return Index;
		}
		for (std::size_t Step = 1; Step < Length; ++Step)
		{
			const unsigned char Byte =
				Index + Step < Text.size() ? static_cast<unsigned char>(Text[Index + Step]) : std::uint8_t(0);
			if (Byte < Low || Byte > High)
			{
				return Index;
			}
			Low = 0x80;
			High = 0xbf;
		}
		Index += Length;
	}
	return std::string_view::npos;
}

std::string FoldCase(std::string_view Text)
{
	std::string Folded(Text);
	for (char& Letter : Folded)
	{
		if (Letter >= 'A' && Letter <= 'Z')
		{
			Letter = static_cast<char>(Letter - 'A' + 'a');
		}
	}
	return Folded;
}

std::string OneLine(std::string_view Text, std::size_t MaxBytes)
{
	std::string Line(Text.substr(0, MaxBytes));
	for (std::size_t From = 0; From < Line.size(); ++From)
	{
		const std::size_t Bad = FindBadUtf8(std::string_view(Line).substr(From));
		if (Bad == std::string::npos)
		{
			break;
		}
		From += Bad;
		if (Text.size() > MaxBytes && Line.size() - From < 4)
		{
			Line.resize(From);
			break;
		}
		Line[From] = '?';
	}
	for (char& Letter : Line)
	{
		Letter = (Letter >= 0 && Letter < ' ') || Letter == 0x7f ? '?' : Letter;
	}
	return Line;
}

std::string At(std::string_view Path, std::string_view Name, std::uint64_t Index)
{
	return At(Path, Name) + "/" + std::to_string(Index);
}

std::string At(std::string_view Path, std::string_view Name)
{
	std::string Whole(Path);
	Whole += '/';
	Whole += Name;
	return Whole;
}

} // namespace Zef
