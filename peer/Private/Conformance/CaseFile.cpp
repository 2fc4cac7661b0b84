// SPDX-License-Identifier: MIT
#include "Zef/Peer/ConformanceCase.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <sstream>

namespace Zef::Peer
{

namespace
{
constexpr std::uint64_t MaxFill = 256u << 20;

std::vector<std::string> WordsOf(const std::string& Line)
{
	std::istringstream Stream(Line);
	std::vector<std::string> Words;
	for (std::string Word; Stream >> Word;)
	{
		Words.push_back(Word);
	}
	return Words;
}

template <class TNumber>
bool ReadNumber(const std::string& Text, TNumber& OutNumber, int Base = 10)
{
	const char* End = Text.data() + Text.size();
	const auto Result = std::from_chars(Text.data(), End, OutNumber, Base);
	return Result.ec == std::errc() && Result.ptr == End;
}

/** "5a544c31", with an even count of digits. */
bool ReadBytes(const std::string& Text, FBytes& OutBytes)
{
	for (std::size_t Index = 0; Index < Text.size(); Index += 2)
	{
		std::uint8_t Byte = 0;
		if (Index + 2 > Text.size() || !ReadNumber(Text.substr(Index, 2), Byte, 16))
		{
			return false;
		}
		OutBytes.push_back(Byte);
	}
	return true;
}

/** What follows the word in the line, without blanks around it. */
std::string RestOf(const std::string& Line, const std::string& Word)
{
	const std::size_t First = Line.find_first_not_of(" \t", Line.find(Word) + Word.size());
	return First == std::string::npos ? "" : Line.substr(First, Line.find_last_not_of(" \t\r") + 1 - First);
}

/** Reads one file line by line; each step gives an empty text or what is wrong. */
class FCaseReader
{
public:
	FCaseReader(FConformanceCase& InCase, const std::filesystem::path& InGoldenFolder)
		: Case(InCase)
		, GoldenFolder(InGoldenFolder)
	{
	}

	std::string Line(const std::string& Text)
	{
		const std::vector<std::string> Words = WordsOf(Text);
		if (Words.empty())
		{
			return "";
		}
		if (Words[0][0] == '#')
		{
			if (Case.About.empty())
			{
				Case.About = RestOf(Text, "#");
			}
			return "";
		}
		return Directive(Words, Text);
	}

	std::string Finish() const
	{
		return !bTo ? "\"to editor\" or \"to application\" is missing" : !bExpected ? "\"expect\" is missing" : "";
	}

private:
	std::string Directive(const std::vector<std::string>& Words, const std::string& Text)
	{
		const std::string& Word = Words[0];
		const std::string Rest = RestOf(Text, Word);
		if (Word == "to" && (Rest == "editor" || Rest == "application"))
		{
			bTo = true;
			Case.To = Rest == "editor" ? EReceiver::Editor : EReceiver::GarmentApplication;
			return "";
		}
		if (Word == "version")
		{
			return ReadNumber(Rest, Case.Version) && Case.Version > 0 ? "" : "a version is a number from 1 on";
		}
		if (Word == "needs")
		{
			const std::size_t Equals = Rest.find('=');
			std::uint64_t Value = 0;
			if (Equals == std::string::npos || !ReadNumber(Rest.substr(Equals + 1), Value))
			{
				return "\"needs\" is followed by an option, \"=\" and a number";
			}
			Case.Needs.emplace_back(Rest.substr(0, Equals), Value);
			return "";
		}
		if (Word == "expect")
		{
			return Expect(Words, Text);
		}
		if (Word == "message" && Words.size() == 1)
		{
			Case.Messages.emplace_back().emplace_back();
			return "";
		}
		if (Word == "part" && Words.size() == 1 && !Case.Messages.empty())
		{
			Case.Messages.back().emplace_back();
			return "";
		}
		if (Word == "golden")
		{
			return Golden(Rest);
		}
		if (Word == "repeat")
		{
			return ReadNumber(Rest, Case.Repeat) && Case.Repeat > 0 ? "" : "a repetition is a number from 1 on";
		}
		if (Word == "bound" || Word == "close" || Text == "greeting raw")
		{
			Case.bOwnBound = Case.bOwnBound || Word == "bound";
			Case.bClose = Case.bClose || Word == "close";
			Case.bRawGreeting = Case.bRawGreeting || Word == "greeting";
			return "";
		}
		if (Word == "says")
		{
			Case.Fault.Message = Rest;
			return "";
		}
		if (Word == "open" || Word == "provoked")
		{
			Case.Subject = Word == "open" ? Rest : RestOf(Text, "by");
			return Case.Subject.empty() ? "there is nothing after \"" + Word + "\"" : "";
		}
		return Bytes(Words);
	}

	/** "taken", or "fault 405 item 1 at /Path", "refused 202", "told 701 at /Path", "opening 602", "program 607". */
	std::string Expect(const std::vector<std::string>& Words, const std::string& Text)
	{
		static constexpr std::pair<const char*, EExpected> Kinds[] = {{"taken", EExpected::Taken},
			{"fault", EExpected::Fault}, {"refused", EExpected::Refused}, {"told", EExpected::Told},
			{"opening", EExpected::Opening}, {"program", EExpected::Program}};
		const auto* Kind = std::find_if(std::begin(Kinds), std::end(Kinds),
			[&](const auto& Each) { return Words.size() > 1 && Words[1] == Each.first; });
		if (Kind == std::end(Kinds))
		{
			return "what is expected is one of taken, fault, refused, told, opening, program";
		}
		bExpected = true;
		Case.Expected = Kind->second;
		if (Case.Expected == EExpected::Taken)
		{
			return "";
		}
		std::uint16_t Code = 0;
		if (Words.size() < 3 || !ReadNumber(Words[2], Code) ||
			FaultInfo(static_cast<EFault>(Code)).Code == EFault::None)
		{
			return "the code of a fault of the table is missing";
		}
		Case.Fault.Code = static_cast<EFault>(Code);
		Case.Fault.Severity = FaultInfo(Case.Fault.Code).Severity;
		for (std::size_t Index = 3; Index < Words.size(); Index += 2)
		{
			if (Words[Index] == "item" && Index + 1 < Words.size() && ReadNumber(Words[Index + 1], Case.Item))
			{
				continue;
			}
			if (Words[Index] == "at" && Index + 2 == Words.size())
			{
				Case.Fault.Path = RestOf(Text, " at ");
				continue;
			}
			return "after the code come \"item\" with a number and \"at\" with a path";
		}
		return "";
	}

	/** Hexadecimal bytes, or "bytes ff times 100". */
	std::string Bytes(const std::vector<std::string>& Words)
	{
		if (Case.Messages.empty())
		{
			return "\"" + Words[0] + "\" is no word of such a file";
		}
		FBytes& Part = Case.Messages.back().back();
		if (Words[0] == "bytes")
		{
			FBytes One;
			std::uint64_t Count = 0;
			if (Words.size() != 4 || Words[2] != "times" || !ReadBytes(Words[1], One) || !ReadNumber(Words[3], Count) ||
				Count > MaxFill || One.size() * Count > MaxFill)
			{
				return "repeated bytes are written as \"bytes ff times 100\"";
			}
			for (std::uint64_t Index = 0; Index < Count; ++Index)
			{
				Part.insert(Part.end(), One.begin(), One.end());
			}
			return "";
		}
		for (const std::string& Word : Words)
		{
			if (!ReadBytes(Word, Part))
			{
				return "\"" + Word + "\" are no bytes in hexadecimal digits";
			}
		}
		return "";
	}

	/** The messages of a golden file, whose parts stand between empty lines. */
	std::string Golden(const std::string& Name)
	{
		std::ifstream Stream(GoldenFolder / (Name + ".hex"));
		if (!Stream)
		{
			return "there is no golden file \"" + Name + "\"";
		}
		std::vector<FBytes> Parts(1);
		for (std::string Text; std::getline(Stream, Text);)
		{
			if (Text.empty())
			{
				Parts.emplace_back();
			}
			else if (!ReadBytes(Text, Parts.back()))
			{
				return "the golden file \"" + Name + "\" holds something else than hexadecimal digits";
			}
		}
		for (std::size_t Index = 0; Index < Parts.size();)
		{
			FLinkFault Fault;
			const std::optional<FPrefix> Prefix = DecodePrefix(Parts[Index], Fault);
			const std::size_t Count = Prefix && Prefix->Frame != EFrame::Credit ? 2 : 1;
			FMessageParts& Message = Case.Messages.emplace_back();
			for (std::size_t Part = 0; Part < Count && Index < Parts.size(); ++Part)
			{
				Message.push_back(std::move(Parts[Index++]));
			}
		}
		return "";
	}

	FConformanceCase& Case;
	const std::filesystem::path& GoldenFolder;
	bool bTo = false;
	bool bExpected = false;
};

FLinkFault Unreadable(const std::filesystem::path& File, const std::string& Why)
{
	return MakeFault(EFault::PeerFailed, "", File.string() + Why + ".");
}
} // namespace

TResult<FConformanceCase> ReadConformanceCase(
	const std::filesystem::path& File, const std::filesystem::path& GoldenFolder)
{
	std::ifstream Stream(File);
	if (!Stream)
	{
		return Unreadable(File, " cannot be read");
	}
	FConformanceCase Case;
	Case.Name = File.parent_path().filename().string() + "/" + File.stem().string();
	FCaseReader Reader(Case, GoldenFolder);
	std::size_t Number = 0;
	for (std::string Line; std::getline(Stream, Line);)
	{
		++Number;
		if (const std::string Wrong = Reader.Line(Line); !Wrong.empty())
		{
			return Unreadable(File, ", line " + std::to_string(Number) + ": " + Wrong);
		}
	}
	if (const std::string Wrong = Reader.Finish(); !Wrong.empty())
	{
		return Unreadable(File, ": " + Wrong);
	}
	return Case;
}

TResult<std::vector<FConformanceCase>> ReadConformanceSet(const std::filesystem::path& Folder)
{
	std::vector<std::filesystem::path> Files;
	for (const char* Part : {"valid", "hostile"})
	{
		std::error_code Error;
		for (const auto& Entry : std::filesystem::directory_iterator(Folder / Part, Error))
		{
			if (Entry.path().extension() == ".zef")
			{
				Files.push_back(Entry.path());
			}
		}
		if (Error)
		{
			return Unreadable(Folder / Part, " cannot be listed: " + Error.message());
		}
	}
	std::sort(Files.begin(), Files.end());
	std::vector<FConformanceCase> Cases;
	for (const std::filesystem::path& File : Files)
	{
		auto Case = ReadConformanceCase(File, Folder / "golden");
		if (!Case)
		{
			return Case.Fault();
		}
		Cases.push_back(std::move(*Case));
	}
	return Cases;
}

} // namespace Zef::Peer
