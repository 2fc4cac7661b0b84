// SPDX-License-Identifier: MIT
#include <cstdio>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "ConformanceCommand.h"
#include "Zef/Peer/ConformancePlayer.h"

using namespace Zef;
using namespace Zef::Peer;

namespace
{

constexpr int ExitUnreadable = 2;

std::string Expectation(const FConformanceCase& Case)
{
	const std::string Code = fmt::format("{} ({})", FaultInfo(Case.Fault.Code).Name, unsigned(Case.Fault.Code));
	switch (Case.Expected)
	{
		case EExpected::Taken:
			return "everything to be taken";
		case EExpected::Fault:
			return fmt::format("fault {} of item {} at \"{}\"", Code, Case.Item, Case.Fault.Path);
		case EExpected::Refused:
			return "the connection to be refused with " + Code;
		case EExpected::Told:
			return "no report";
		case EExpected::Opening:
		case EExpected::Program:
			break;
	}
	return Code;
}

void PrintLine(const char* Word, const FConformanceCase& Case, const std::string& Detail)
{
	fmt::print("{:<5} {:<32} {}\n", Word, Case.Name, Detail);
	std::fflush(stdout);
}

} // namespace

std::filesystem::path FindConformanceSet(const std::filesystem::path& Given)
{
	if (!Given.empty())
	{
		return Given;
	}
	const std::filesystem::path Part = "tests/protocol";
	std::error_code Error;
	// The program stands in build/<preset>/bin of its own tree.
	std::filesystem::path Folder = std::filesystem::read_symlink("/proc/self/exe", Error).parent_path();
	for (; !Folder.empty() && Folder != Folder.root_path(); Folder = Folder.parent_path())
	{
		if (std::filesystem::exists(Folder / Part / "hostile", Error))
		{
			return Folder / Part;
		}
	}
	return Part;
}

CLI::App* AddConformanceCommand(CLI::App& Program, FConformanceOptions& Options)
{
	CLI::App* Command = Program.add_subcommand(
		"conformance", "Play the conformance set against an editor or a garment application that anybody wrote");
	Command->add_option("end", Options.Under, "The end under test")
		->required()
		->check(CLI::IsMember({"editor", "application"}));
	Command
		->add_option("--endpoint", Options.Endpoint,
			"ZeroMQ endpoint. An application under test is bound to it already. An editor under test connects to it, "
			"and again after each case; start it with ZEF_TANDEM_ENDPOINT set to this")
		->type_name("ENDPOINT");
	Command
		->add_option("--set", Options.Set,
			"Folder that holds \"golden\", \"hostile\" and \"valid\"; without it tests/protocol of this program's tree")
		->check(CLI::ExistingDirectory)
		->type_name("DIR");
	Command->add_option("--only", Options.Only, "Play the cases whose name holds this text")->type_name("TEXT");
	Command
		->add_option_function<std::vector<std::string>>(
			"--with",
			[&Options](const std::vector<std::string>& Given)
			{
				for (const std::string& Each : Given)
				{
					const std::size_t Equals = Each.find('=');
					std::uint64_t Value = 0;
					if (Equals == std::string::npos || !CLI::detail::lexical_cast(Each.substr(Equals + 1), Value))
					{
						throw CLI::ValidationError("--with", "\"" + Each + "\" is not NAME=NUMBER");
					}
					Options.With[Each.substr(0, Equals)] = Value;
				}
			},
			"An option that the end under test was started with, so that the cases that need it are played; see the "
			"\"skip\" lines for names and values")
		->type_name("NAME=NUMBER");
	Command->add_option("--patience", Options.Patience, "Seconds to wait for each answer, and for an editor")
		->check(CLI::Range(0.1, 3600.0))
		->capture_default_str()
		->type_name("SECONDS");
	Command->add_flag("--exact-words", Options.bExactWords, "Messages must read as this library's own");
	Command->add_flag("--list", Options.bList, "Print what the cases are and play none");
	Command->footer("Prints one line for each case: \"ok\", \"FAIL\" with what was expected and what came, or \"skip\" "
					"with the reason.\nExit status: 0 no case failed, 1 a case failed, 2 the set cannot be read.");
	return Command;
}

int Conformance(const FConformanceOptions& Options)
{
	const std::filesystem::path Folder = FindConformanceSet(Options.Set);
	const auto Set = ReadConformanceSet(Folder);
	if (!Set)
	{
		fmt::print(stderr, "error: {}\n", Set.Fault().Message);
		return ExitUnreadable;
	}
	FPlayOptions Play;
	Play.Under = Options.Under == "editor" ? EReceiver::Editor : EReceiver::GarmentApplication;
	Play.Endpoint = Options.Endpoint;
	Play.Patience = std::chrono::milliseconds(static_cast<std::int64_t>(Options.Patience * 1000));
	Play.bExactWords = Options.bExactWords;
	Play.HasOption = [&Options](const std::string& Name, std::uint64_t Value)
	{
		const auto Found = Options.With.find(Name);
		return Found != Options.With.end() && Found->second == Value;
	};
	if (Options.Endpoint.empty() && !Options.bList)
	{
		fmt::print(stderr, "error: name the --endpoint, for instance ipc:///tmp/conformance.sock\n");
		return ExitUnreadable;
	}
	std::map<EOutcome, std::size_t> Counts;
	for (const FConformanceCase& Case : *Set)
	{
		if (Case.To != Play.Under || Case.Name.find(Options.Only) == std::string::npos)
		{
			continue;
		}
		if (Options.bList)
		{
			PrintLine("", Case, Case.About + " Expects " + Expectation(Case) + ".");
			continue;
		}
		const FCaseOutcome Outcome = PlayCase(Case, Play);
		++Counts[Outcome.Outcome];
		switch (Outcome.Outcome)
		{
			case EOutcome::Passed:
				PrintLine("ok", Case, "");
				break;
			case EOutcome::Failed:
				PrintLine("FAIL", Case, fmt::format("{} expected; {}", Expectation(Case), Outcome.Detail));
				break;
			case EOutcome::Skipped:
				PrintLine("skip", Case, Outcome.Detail);
				break;
		}
	}
	if (!Options.bList)
	{
		fmt::print("{} ok, {} failed, {} skipped\n", Counts[EOutcome::Passed], Counts[EOutcome::Failed],
			Counts[EOutcome::Skipped]);
	}
	return Counts[EOutcome::Failed] == 0 ? 0 : 1;
}
