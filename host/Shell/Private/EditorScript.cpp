// SPDX-License-Identifier: MIT
#include "Host/EditorScript.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

namespace Host
{

namespace
{

using FWords = std::vector<std::string>;

std::string Join(const FWords& Words)
{
	std::string Text;
	for (const std::string& Word : Words)
	{
		Text += (Text.empty() ? "" : ", ") + Word;
	}
	return Text;
}

std::string Quote(const std::string& Text)
{
	return "\"" + Text + "\"";
}

bool IsNumber(const std::string& Text, double Least)
{
	double Value = 0;
	const char* const End = Text.data() + Text.size();
	const std::from_chars_result Result = std::from_chars(Text.data(), End, Value);
	return Result.ec == std::errc() && Result.ptr == End && Value >= Least;
}

std::string CheckChoice(const std::string& Word, const FWords& Choices)
{
	return std::find(Choices.begin(), Choices.end(), Word) != Choices.end()
			   ? std::string()
			   : Quote(Word) + " is not known here; allowed are: " + Join(Choices);
}

std::string CheckNothing(const FWords&)
{
	return {};
}

std::string CheckCommand(const FWords& Words)
{
	const std::size_t Point = Words[0].find('.');
	return Point != std::string::npos && Point > 0 && Point + 1 < Words[0].size()
			   ? std::string()
			   : Quote(Words[0]) + " is no command; write its context and its name, as in ZEFTandemEditor.Update";
}

std::string CheckAnswer(const FWords& Words)
{
	const std::string Error = CheckChoice(Words[0], {"warning", "message"});
	if (!Error.empty())
	{
		return Error;
	}
	return Words[0] == "warning" ? CheckChoice(Words[1], {"ok", "cancel", "never-again"})
								 : CheckChoice(Words[1], {"ok", "cancel", "yes", "no", "retry", "continue"});
}

std::string CheckWait(const FWords& Words)
{
	const std::string Error = CheckChoice(Words[0], {"connected", "update", "seconds"});
	if (!Error.empty())
	{
		return Error;
	}
	if (Words.size() == 1)
	{
		return Words[0] == "seconds" ? "how many seconds? Write for instance: wait seconds 2" : std::string();
	}
	return IsNumber(Words[1], 0) ? std::string() : Quote(Words[1]) + " is no number of seconds";
}

std::string CheckTab(const FWords& Words)
{
	return CheckChoice(Words[0], {"open", "close"});
}

std::string CheckScreenshot(const FWords& Words)
{
	if (Words.size() == 2)
	{
		return "a width needs a height behind it";
	}
	for (std::size_t Index = 1; Index < Words.size(); ++Index)
	{
		if (!IsNumber(Words[Index], 16) || IsNumber(Words[Index], 8193) || Words[Index].find('.') != std::string::npos)
		{
			return Quote(Words[Index]) + " is no size of a picture; allowed are 16 to 8192";
		}
	}
	return {};
}

std::string CheckPrint(const FWords& Words)
{
	return CheckChoice(Words[0], {"tree", "objects", "tabs", "toolbar", "messages"});
}

struct FVerb
{
	const char* Name;
	std::size_t Least; // number of arguments
	std::size_t Most;
	const char* Usage;
	const char* Help;
	std::string (*Check)(const FWords&);
};

constexpr std::size_t Any = 1000;

const FVerb Verbs[] = {
	{"open", 0, 0, "open", "press the entry in the level editor's tool bar", CheckNothing},
	{"close", 0, 0, "close", "close the editor", CheckNothing},
	{"command", 1, 1, "command CONTEXT.NAME", "run a command, for instance ZEFTandemEditor.Update", CheckCommand},
	{"answer", 2, 2, "answer warning ok|cancel|never-again", "answer the next warning that can be switched off",
		CheckAnswer},
	{"answer", 2, 2, "answer message ok|cancel|yes|no|retry|continue", "answer the next message", CheckAnswer},
	{"wait", 1, 2, "wait connected [SECONDS]", "until a garment application is there", CheckWait},
	{"wait", 1, 2, "wait update [SECONDS]", "until all that was asked for has arrived", CheckWait},
	{"wait", 1, 2, "wait seconds SECONDS", "let the editor run", CheckWait},
	{"select", 1, Any, "select NAME...", "select the rows of these names or kinds and no others; none for no row",
		CheckNothing},
	{"tab", 2, 2, "tab open|close NAME", "a tab by its label or identifier", CheckTab},
	{"screenshot", 1, 3, "screenshot FILE [WIDTH HEIGHT]", "a picture of the preview, as PNG", CheckScreenshot},
	{"print", 1, 1, "print tree|objects|tabs|toolbar|messages", "what the editor shows", CheckPrint},
};

FWords AllVerbs()
{
	FWords Names;
	for (const FVerb& Verb : Verbs)
	{
		if (Names.empty() || Names.back() != Verb.Name)
		{
			Names.emplace_back(Verb.Name);
		}
	}
	return Names;
}

std::string UsageOf(const std::string& Name)
{
	std::string Usage;
	for (const FVerb& Verb : Verbs)
	{
		if (Name == Verb.Name)
		{
			Usage += (Usage.empty() ? "" : ", or ") + std::string(Verb.Usage);
		}
	}
	return Usage;
}

/** Words are separated by blanks; one in double quotes may hold blanks, a # outside of quotes begins a comment. */
std::string SplitLine(const std::string& Line, FWords& OutWords)
{
	std::size_t Position = 0;
	while (true)
	{
		Position = Line.find_first_not_of(" \t\r", Position);
		if (Position == std::string::npos || Line[Position] == '#')
		{
			return {};
		}
		if (Line[Position] == '"')
		{
			const std::size_t End = Line.find('"', Position + 1);
			if (End == std::string::npos)
			{
				return "a quotation mark is not closed";
			}
			OutWords.push_back(Line.substr(Position + 1, End - Position - 1));
			Position = End + 1;
		}
		else
		{
			const std::size_t End = std::min(Line.find_first_of(" \t\r", Position), Line.size());
			OutWords.push_back(Line.substr(Position, End - Position));
			Position = End;
		}
	}
}

std::string CheckStep(const FScriptStep& Step)
{
	const FVerb* const Verb = std::find_if(
		std::begin(Verbs), std::end(Verbs), [&Step](const FVerb& Entry) { return Step.Verb == Entry.Name; });
	if (Verb == std::end(Verbs))
	{
		return "there is no " + Quote(Step.Verb) + "; allowed are: " + Join(AllVerbs());
	}
	if (Step.Arguments.size() < Verb->Least || Step.Arguments.size() > Verb->Most)
	{
		return Quote(Step.Verb) + " is written: " + UsageOf(Step.Verb);
	}
	return Verb->Check(Step.Arguments);
}

} // namespace

std::string ParseEditorScript(const std::string& Text, const std::string& Name, FEditorScript& OutScript)
{
	OutScript = FEditorScript();
	OutScript.Name = Name;
	std::istringstream Lines(Text);
	std::string Line;
	for (int Number = 1; std::getline(Lines, Line); ++Number)
	{
		FWords Words;
		std::string Error = SplitLine(Line, Words);
		if (Error.empty() && !Words.empty())
		{
			FScriptStep Step{Number, Words[0], FWords(Words.begin() + 1, Words.end())};
			Error = CheckStep(Step);
			OutScript.Steps.push_back(std::move(Step));
		}
		if (!Error.empty())
		{
			return Name + ":" + std::to_string(Number) + ": " + Error;
		}
	}
	return {};
}

std::string LoadEditorScript(const std::filesystem::path& File, FEditorScript& OutScript)
{
	std::ostringstream Text;
	if (File == "-")
	{
		Text << std::cin.rdbuf();
		return ParseEditorScript(Text.str(), "standard input", OutScript);
	}
	std::error_code Error;
	std::ifstream Input(File);
	if (!std::filesystem::is_regular_file(File, Error) || !Input)
	{
		return "the script \"" + File.string() + "\" cannot be read";
	}
	Text << Input.rdbuf();
	return ParseEditorScript(Text.str(), File.string(), OutScript);
}

std::string DescribeEditorScripts()
{
	std::size_t Width = 0;
	for (const FVerb& Verb : Verbs)
	{
		Width = std::max(Width, std::string(Verb.Usage).size());
	}
	std::string Text;
	for (const FVerb& Verb : Verbs)
	{
		const std::string Usage = Verb.Usage;
		Text += Usage + std::string(Width - Usage.size() + 2, ' ') + Verb.Help + "\n";
	}
	return Text;
}

} // namespace Host
