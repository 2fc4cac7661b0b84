// SPDX-License-Identifier: MIT
/** The commands around the link itself: serving a recording, and making keys. */
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace CLI
{
class App;
}

struct FReplayOptions
{
	std::string File;
	std::string Channel = "Tandem";
	std::string Endpoint;
	std::string KeyFile;
	std::filesystem::path ReadyFile;
	/** Editors to come and go before the program ends; 0: any number. */
	std::size_t ExitAfter = 0;
	bool bQuiet = false;
};

CLI::App* AddReplayCommand(CLI::App& Program, FReplayOptions& Options);

/** 0 after a clean end, 1 when the file is no recording or the address cannot be bound. */
int Replay(const FReplayOptions& Options);

CLI::App* AddKeysCommand(CLI::App& Program, std::string& Name);

/** 0 when both files were made. */
int Keys(const std::string& Name);
