// SPDX-License-Identifier: MIT
/** The program's commands, each with its options; all return the exit status. */
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

using FPaths = std::vector<std::filesystem::path>;

/** Files by the object that they become, and whether the sample fills what they leave open. */
struct FProjectOptions
{
	FPaths Garment, Avatar, Outfit, Prop;
	bool bSample = false;

	bool HasFiles() const { return !Garment.empty() || !Avatar.empty() || !Outfit.empty() || !Prop.empty(); }
};

struct FServeOptions
{
	FProjectOptions Project;
	std::string Channel = "Tandem";
	std::string Endpoint;
	std::string KeyFile;
	std::filesystem::path SaveDirectory;
	std::filesystem::path ReadyFile;
	/** Editors to come and go before the program ends; 0: any number. */
	std::size_t ExitAfter = 0;
	bool bQuiet = false;
};

/** 0 after a clean end, 1 when a file cannot be read or the address cannot be bound. */
int Serve(const FServeOptions& Options);

/** 0 when every file can be sent. */
int Check(const FPaths& Files, const std::string& As);

/** Prints what the sample project, or the named files, hold. */
int Info(const FProjectOptions& Options);
