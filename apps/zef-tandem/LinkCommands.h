// SPDX-License-Identifier: MIT
/** The commands around the link itself, which need no editor: looking at it, and recording it. */
#pragma once

#include <string>

namespace CLI
{
class App;
}

/** The garment application that is meant; shared by the commands. */
struct FLinkOptions
{
	/** Empty: the channel "Tandem", or what the environment names. */
	std::string Endpoint;
	std::string KeyFile;
	double Timeout = 0; // seconds
};

struct FRecordOptions
{
	FLinkOptions Link;
	std::string File;
	bool bUnifiedMaterial = false;
	bool bAnimations = false;
};

CLI::App* AddDoctorCommand(CLI::App& Program, FLinkOptions& Options);

/** Prints one line for each thing that was looked at. @return 0 when the link works, 1 otherwise */
int Doctor(const FLinkOptions& Options);

CLI::App* AddRecordCommand(CLI::App& Program, FRecordOptions& Options);

/** @return 0 for a whole recording, 2 when it was cut short but written, 1 when there is none */
int Record(const FRecordOptions& Options);

CLI::App* AddKeysCommand(CLI::App& Program, std::string& Name);

/** @return 0 when both files were made */
int Keys(const std::string& Name);
