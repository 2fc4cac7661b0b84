// SPDX-License-Identifier: MIT
/** Reading and editing the lines of an ini file. */

#include "IniFile.h"

#include <algorithm>
#include <cstdint>

namespace Host
{

namespace
{
char Lower(char Character)
{
	return Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character - 'A' + 'a') : Character;
}

bool IsBlank(char Character)
{
	return Character == ' ' || Character == '\t' || Character == '\r';
}

/** The name of a section line, or an empty text. */
std::string_view SectionOf(std::string_view Line)
{
	Line = Trim(Line);
	return Line.size() > 2 && Line.front() == '[' && Line.back() == ']' ? Line.substr(1, Line.size() - 2)
																		: std::string_view();
}

/** The entry of a line that is neither blank nor a comment nor a section. */
bool ParseEntry(std::string_view Line, char& Prefix, std::string_view& Key, std::string_view& RawValue)
{
	Line = Trim(Line);
	const std::size_t Equals = Line.find('=');
	if (Line.empty() || Line.front() == ';' || Line.front() == '[' || Equals == std::string_view::npos)
	{
		return false;
	}
	Prefix = 0;
	if (Line.front() == '+' || Line.front() == '-' || Line.front() == '.' || Line.front() == '!')
	{
		Prefix = Line.front();
	}
	const std::size_t KeyStart = Prefix != 0 ? 1 : 0;
	Key = Equals > KeyStart ? Trim(Line.substr(KeyStart, Equals - KeyStart)) : std::string_view();
	RawValue = Trim(Line.substr(Equals + 1));
	return !Key.empty();
}

std::string Unquote(std::string_view Raw)
{
	if (Raw.size() < 2 || Raw.front() != '"' || Raw.back() != '"')
	{
		return std::string(Raw);
	}
	std::string Result;
	for (std::size_t Index = 1; Index + 1 < Raw.size(); ++Index)
	{
		char Character = Raw[Index];
		if (Character == '\\' && Index + 2 < Raw.size())
		{
			Character = Raw[++Index];
			Character = Character == 'n' ? '\n' : (Character == 'r' ? '\r' : (Character == 't' ? '\t' : Character));
		}
		Result.push_back(Character);
	}
	return Result;
}

/** Quotation marks stand only where the value would not come back without them. */
std::string Quote(std::string_view Value)
{
	const bool bNeeded = Value != Trim(Value) || Value.find_first_of("\n\r") != std::string_view::npos ||
						 (!Value.empty() && Value.front() == '"');
	if (!bNeeded)
	{
		return std::string(Value);
	}
	std::string Result = "\"";
	for (const char Character : Value)
	{
		switch (Character)
		{
			case '\n':
				Result += "\\n";
				break;
			case '\r':
				Result += "\\r";
				break;
			case '"':
			case '\\':
				Result.push_back('\\');
				Result.push_back(Character);
				break;
			default:
				Result.push_back(Character);
		}
	}
	Result.push_back('"');
	return Result;
}

void AppendUtf8(std::string& Out, std::uint32_t Code)
{
	if (Code < 0x80)
	{
		Out.push_back(static_cast<char>(Code));
	}
	else if (Code < 0x800)
	{
		Out.push_back(static_cast<char>(0xC0 | Code >> 6));
		Out.push_back(static_cast<char>(0x80 | (Code & 0x3F)));
	}
	else if (Code < 0x10000)
	{
		Out.push_back(static_cast<char>(0xE0 | Code >> 12));
		Out.push_back(static_cast<char>(0x80 | (Code >> 6 & 0x3F)));
		Out.push_back(static_cast<char>(0x80 | (Code & 0x3F)));
	}
	else
	{
		Out.push_back(static_cast<char>(0xF0 | Code >> 18));
		Out.push_back(static_cast<char>(0x80 | (Code >> 12 & 0x3F)));
		Out.push_back(static_cast<char>(0x80 | (Code >> 6 & 0x3F)));
		Out.push_back(static_cast<char>(0x80 | (Code & 0x3F)));
	}
}

std::string Utf8OfUtf16(std::string_view Bytes, bool bBigEndian)
{
	const auto Unit = [&](std::size_t Index)
	{
		const auto First = static_cast<unsigned char>(Bytes[2 * Index]);
		const auto Second = static_cast<unsigned char>(Bytes[2 * Index + 1]);
		return static_cast<std::uint32_t>(bBigEndian ? First << 8 | Second : Second << 8 | First);
	};
	std::string Result;
	const std::size_t NumUnits = Bytes.size() / 2;
	for (std::size_t Index = 0; Index < NumUnits; ++Index)
	{
		std::uint32_t Code = Unit(Index);
		if (Code >= 0xD800 && Code < 0xDC00 && Index + 1 < NumUnits)
		{
			const std::uint32_t Low = Unit(Index + 1);
			if (Low >= 0xDC00 && Low < 0xE000)
			{
				Code = 0x10000 + ((Code - 0xD800) << 10) + (Low - 0xDC00);
				++Index;
			}
		}
		AppendUtf8(Result, Code >= 0xD800 && Code < 0xE000 ? 0xFFFD : Code);
	}
	return Result;
}
} // namespace

bool EqualsIgnoringCase(std::string_view A, std::string_view B)
{
	return A.size() == B.size() &&
		   std::equal(A.begin(), A.end(), B.begin(), [](char Left, char Right) { return Lower(Left) == Lower(Right); });
}

std::string_view Trim(std::string_view Text)
{
	while (!Text.empty() && IsBlank(Text.front()))
	{
		Text.remove_prefix(1);
	}
	while (!Text.empty() && IsBlank(Text.back()))
	{
		Text.remove_suffix(1);
	}
	return Text;
}

void FIniFile::Parse(std::string_view Bytes)
{
	std::string Converted;
	if (Bytes.substr(0, 3) == "\xEF\xBB\xBF")
	{
		Bytes.remove_prefix(3);
	}
	else if (Bytes.substr(0, 2) == "\xFF\xFE" || Bytes.substr(0, 2) == "\xFE\xFF")
	{
		Converted = Utf8OfUtf16(Bytes.substr(2), Bytes.front() == '\xFE');
		Bytes = Converted;
	}
	Lines.clear();
	bCarriageReturns = Bytes.find("\r\n") != std::string_view::npos;
	while (!Bytes.empty())
	{
		const std::size_t End = std::min(Bytes.find('\n'), Bytes.size());
		std::string_view Line = Bytes.substr(0, End);
		if (!Line.empty() && Line.back() == '\r')
		{
			Line.remove_suffix(1);
		}
		Lines.emplace_back(Line);
		Bytes.remove_prefix(std::min(End + 1, Bytes.size()));
	}
}

std::string FIniFile::Write() const
{
	std::string Result;
	for (const std::string& Line : Lines)
	{
		Result += Line;
		Result += bCarriageReturns ? "\r\n" : "\n";
	}
	return Result;
}

std::vector<FIniFile::FEntry> FIniFile::Entries(std::string_view Section) const
{
	std::vector<FEntry> Result;
	bool bInside = false;
	for (const std::string& Line : Lines)
	{
		const std::string_view Name = SectionOf(Line);
		FEntry Entry{};
		std::string_view RawValue;
		if (!Name.empty())
		{
			bInside = EqualsIgnoringCase(Name, Section);
		}
		else if (bInside && ParseEntry(Line, Entry.Prefix, Entry.Key, RawValue))
		{
			Entry.Value = Unquote(RawValue);
			Result.push_back(std::move(Entry));
		}
	}
	return Result;
}

bool FIniFile::HasSection(std::string_view Section) const
{
	return std::any_of(Lines.begin(), Lines.end(),
		[Section](const std::string& Line)
		{
			const std::string_view Name = SectionOf(Line);
			return !Name.empty() && EqualsIgnoringCase(Name, Section);
		});
}

std::size_t FIniFile::EndOfSection(std::string_view Section)
{
	std::size_t End = 0;
	bool bInside = false;
	for (std::size_t Index = 0; Index < Lines.size(); ++Index)
	{
		const std::string_view Name = SectionOf(Lines[Index]);
		if (!Name.empty())
		{
			bInside = EqualsIgnoringCase(Name, Section);
		}
		// Blank lines and comments at the end of a section belong to the next one more often than not.
		const std::string_view Text = Trim(Lines[Index]);
		if (bInside && !Text.empty() && Text.front() != ';')
		{
			End = Index + 1;
		}
	}
	if (End == 0)
	{
		if (!Lines.empty() && !Trim(Lines.back()).empty())
		{
			Lines.emplace_back();
		}
		Lines.push_back("[" + std::string(Section) + "]");
		End = Lines.size();
	}
	return End;
}

void FIniFile::SetValues(std::string_view Section, std::string_view Key, const std::vector<std::string>& Values)
{
	std::vector<std::string> NewLines;
	for (const std::string& Value : Values)
	{
		NewLines.push_back(std::string(Key) + "=" + Quote(Value));
	}
	ReplaceEntries(Section, Key, NewLines);
}

void FIniFile::ClearValues(std::string_view Section, std::string_view Key)
{
	ReplaceEntries(Section, Key, {"!" + std::string(Key) + "=ClearArray"});
}

void FIniFile::ReplaceEntries(std::string_view Section, std::string_view Key, const std::vector<std::string>& NewLines)
{
	std::size_t At = Lines.size();
	bool bInside = false;
	for (std::size_t Index = 0; Index < Lines.size() && At == Lines.size(); ++Index)
	{
		const std::string_view Name = SectionOf(Lines[Index]);
		char Prefix;
		std::string_view EntryKey, RawValue;
		if (!Name.empty())
		{
			bInside = EqualsIgnoringCase(Name, Section);
		}
		else if (bInside && ParseEntry(Lines[Index], Prefix, EntryKey, RawValue) && EqualsIgnoringCase(EntryKey, Key))
		{
			At = Index;
		}
	}
	if (!RemoveKey(Section, Key))
	{
		At = EndOfSection(Section);
	}
	Lines.insert(Lines.begin() + static_cast<std::ptrdiff_t>(At), NewLines.begin(), NewLines.end());
}

bool FIniFile::RemoveKey(std::string_view Section, std::string_view Key)
{
	bool bInside = false;
	const auto IsOfKey = [&](const std::string& Line)
	{
		const std::string_view Name = SectionOf(Line);
		char Prefix;
		std::string_view EntryKey, RawValue;
		if (!Name.empty())
		{
			bInside = EqualsIgnoringCase(Name, Section);
			return false;
		}
		return bInside && ParseEntry(Line, Prefix, EntryKey, RawValue) && EqualsIgnoringCase(EntryKey, Key);
	};
	return std::erase_if(Lines, IsOfKey) > 0;
}

bool FIniFile::RemoveSection(std::string_view Section)
{
	bool bInside = false;
	const auto IsOfSection = [&](const std::string& Line)
	{
		const std::string_view Name = SectionOf(Line);
		if (!Name.empty())
		{
			bInside = EqualsIgnoringCase(Name, Section);
		}
		return bInside;
	};
	return std::erase_if(Lines, IsOfSection) > 0;
}

} // namespace Host
