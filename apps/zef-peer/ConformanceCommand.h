// SPDX-License-Identifier: MIT
/** The commands around the conformance set: playing it, and the page of faults that it illustrates. */
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace CLI
{
class App;
}

struct FConformanceOptions
{
	/** "editor" or "application": the end under test. */
	std::string Under;
	std::string Endpoint;
	/** Folder of "golden", "hostile" and "valid"; empty: the one of this program's own tree. */
	std::filesystem::path Set;
	/** Only cases whose name holds this. */
	std::string Only;
	/** Options that the end under test was started with, for the cases that need them. */
	std::map<std::string, std::uint64_t> With;
	double Patience = 15;
	bool bExactWords = false;
	bool bList = false;
};

CLI::App* AddConformanceCommand(CLI::App& Program, FConformanceOptions& Options);

/** 0 when no case failed, 1 when one did, 2 when the set cannot be read. */
int Conformance(const FConformanceOptions& Options);

struct FFaultsOptions
{
	std::filesystem::path Set;
	bool bMarkdown = false;
};

CLI::App* AddFaultsCommand(CLI::App& Program, FFaultsOptions& Options);

/** Prints the table of faults; 2 when the set of its examples cannot be read. */
int Faults(const FFaultsOptions& Options);

/** The folder of the set: the given one, or "tests/protocol" above the program or in the current folder. */
std::filesystem::path FindConformanceSet(const std::filesystem::path& Given);
