// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "ConformanceCommand.h"
#include "Zef/Peer/ConformanceCase.h"

using namespace Zef;
using namespace Zef::Peer;

namespace
{

constexpr int ExitUnreadable = 2;

struct FCategory
{
	unsigned Hundreds;
	const char* Title;
	const char* Text;
};

constexpr FCategory Categories[] = {
	{1, "Framing", "Messages, and the pieces of items."},
	{2, "Greeting", "The beginning and the end of a connection."},
	{3, "Structure", "Headers: their tables, counts and texts, and the budget of the receiver."},
	{4, "Meaning", "What the records say."},
	{5, "Mesh sequences", "The order of items of a mesh sequence."},
	{6, "Own end", "Told to the own program only."},
	{7, "Other end", "What the other end says about itself; its message is shown to the user."},
};

const char* SeverityName(EFaultSeverity Severity)
{
	static constexpr const char* Names[] = {"warning", "error", "fatal"};
	return Names[static_cast<unsigned>(Severity)];
}

/** In a cell of a table. */
std::string Cell(const std::string& Text)
{
	std::string Escaped;
	for (const char Letter : Text)
	{
		Escaped += Letter == '|' ? "\\|" : std::string(1, Letter);
	}
	return Escaped;
}

/** Place and message as the case of a fault has them. */
std::string Example(const FConformanceCase& Case)
{
	const std::string Place = Case.Fault.Path.empty() ? "" : "`" + Case.Fault.Path + "` ";
	return Case.Fault.Message.empty() ? Place + Case.About : Place + Case.Fault.Message;
}

void PrintCategory(const FCategory& Category, const std::map<EFault, const FConformanceCase*>& Cases)
{
	fmt::print("\n## {} ({}xx)\n\n{}\n\n", Category.Title, Category.Hundreds, Category.Text);
	fmt::print("| Code | Name | Severity | Meaning | What to do | Example |\n|---|---|---|---|---|---|\n");
	for (const FFaultInfo& Info : FaultTable())
	{
		if (static_cast<unsigned>(Info.Code) / 100 != Category.Hundreds)
		{
			continue;
		}
		const auto Case = Cases.find(Info.Code);
		fmt::print("| {} | {} | {} | {} | {} | {} |\n", static_cast<unsigned>(Info.Code), Info.Name,
			SeverityName(Info.Severity), Cell(Info.Text), Cell(Info.Remedy),
			Case == Cases.end() ? "" : Cell(Example(*Case->second)));
	}
}

void PrintMarkdown(const std::map<EFault, const FConformanceCase*>& Cases)
{
	fmt::print(R"(# Faults of the link

<!-- Written by `zef-peer faults --markdown`, from the table in protocol/Private/Faults.cpp and the files in
tests/protocol/hostile. The tests compare this page with what the program writes. -->

Whoever refuses a message says so with a `FaultReport`: a **code**, a **severity**, the **place** as a path in the item, as
`/Surfaces/0/Sections/2/Indices/17` (positions in lists are counted from 0), and a **message** with what was expected and what
came. A code is never given to another fault.

*Warning*: the message stands. *Error*: the message is dropped whole, what was shown before stays, and the connection goes on.
*Fatal*: the connection ends.

The example of each fault is what this library says to the file of that name in `tests/protocol/hostile`; see
[conformance](conformance.md) for how to play these files against a program of your own.
)");
	for (const FCategory& Category : Categories)
	{
		PrintCategory(Category, Cases);
	}
}

} // namespace

CLI::App* AddFaultsCommand(CLI::App& Program, FFaultsOptions& Options)
{
	CLI::App* Command = Program.add_subcommand("faults", "Print the faults that the ends of the link report");
	Command->add_flag("--markdown", Options.bMarkdown, "Print docs/link-errors.md, with an example of each");
	Command->add_option("--set", Options.Set, "Folder of the conformance set, for the examples")
		->check(CLI::ExistingDirectory)
		->type_name("DIR");
	return Command;
}

int Faults(const FFaultsOptions& Options)
{
	if (!Options.bMarkdown)
	{
		for (const FFaultInfo& Info : FaultTable())
		{
			fmt::print("{} {:<20} {:<8} {} {}\n", static_cast<unsigned>(Info.Code), Info.Name,
				SeverityName(Info.Severity), Info.Text, Info.Remedy);
		}
		return 0;
	}
	const auto Set = ReadConformanceSet(FindConformanceSet(Options.Set));
	if (!Set)
	{
		fmt::print(stderr, "error: {}\n", Set.Fault().Message);
		return ExitUnreadable;
	}
	std::map<EFault, const FConformanceCase*> Cases;
	for (const FConformanceCase& Case : *Set)
	{
		if (Case.Name == std::string("hostile/") + FaultInfo(Case.Fault.Code).Name)
		{
			Cases.emplace(Case.Fault.Code, &Case);
		}
	}
	PrintMarkdown(Cases);
	return 0;
}
