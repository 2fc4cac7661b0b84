// SPDX-License-Identifier: MIT
#include "LinkCommands.h"

#include "Zef/Diagnosis.h"
#include "Zef/Keys.h"
#include "Zef/RecordSession.h"

#include <CLI/CLI.hpp>
#include <fmt/core.h>

#include <chrono>
#include <cstdio>

namespace
{
constexpr int ExitFailure = 1;
constexpr int ExitCutShort = 2;

std::chrono::milliseconds Milliseconds(double Seconds)
{
	return std::chrono::milliseconds(static_cast<std::int64_t>(Seconds * 1000));
}
} // namespace

CLI::App* AddDoctorCommand(CLI::App& Program, FLinkOptions& Options)
{
	CLI::App* const Command = Program.add_subcommand("doctor",
		"Look at endpoint, keys, permissions, garment application and version, and say what is right and what to do.");
	Options.Timeout = 6;
	return Command;
}

int Doctor(const FLinkOptions& Options)
{
	Zef::FDiagnosisOptions Look;
	Look.Endpoint = Options.Endpoint;
	Look.KeyFile = Options.KeyFile;
	Look.Timeout = Milliseconds(Options.Timeout);
	const Zef::FDiagnosis Diagnosis = Zef::Diagnose(Look);
	for (const Zef::FFinding& Finding : Diagnosis.Findings)
	{
		fmt::print("{}\n", ToString(Finding));
	}
	return Diagnosis.Reason() ? ExitFailure : EXIT_SUCCESS;
}

CLI::App* AddRecordCommand(CLI::App& Program, FRecordOptions& Options)
{
	CLI::App* const Command =
		Program.add_subcommand("record", "Ask the garment application for everything it holds and keep what it sends "
										 "in a file, which \"zef-peer replay\" "
										 "serves again, byte for byte.");
	Command->add_option("file", Options.File, "The recording; written beside its place and renamed at the end")
		->required()
		->type_name("FILE");
	Command->add_flag("--animations", Options.bAnimations, "Ask for the animations, too");
	Command->add_flag("--unified-material", Options.bUnifiedMaterial, "Ask for the garment with one material");
	Options.Link.Timeout = 60;
	return Command;
}

int Record(const FRecordOptions& Options)
{
	Zef::FRecordSessionOptions Session;
	Session.Endpoint = Options.Link.Endpoint;
	Session.KeyFile = Options.Link.KeyFile;
	Session.Timeout = Milliseconds(Options.Link.Timeout);
	Session.File = Options.File;
	Session.Packing.bUnifiedMaterial = Options.bUnifiedMaterial;
	Session.bAnimations = Options.bAnimations;
	const Zef::TResult<Zef::FRecordSummary> Recorded = Zef::RecordSession(Session);
	if (!Recorded)
	{
		fmt::print(stderr, "zef-tandem: nothing was recorded: {}\n", ToString(Recorded.Fault()));
		return ExitFailure;
	}
	for (const Zef::FLinkFault& Fault : Recorded->Faults)
	{
		fmt::print("recorded with a fault: {}\n", ToString(Fault));
	}
	fmt::print("{}: {} objects and {} animations, {} bytes, of \"{}\", protocol version {}\n", Options.File,
		Recorded->Objects, Recorded->Animations, Recorded->Bytes, Recorded->Program, Recorded->ProtocolVersion);
	if (Recorded->CutShort)
	{
		fmt::print(stderr, "zef-tandem: the recording was cut short: {}\n", ToString(Recorded->CutShort));
		return ExitCutShort;
	}
	return EXIT_SUCCESS;
}

CLI::App* AddKeysCommand(CLI::App& Program, std::string& Name)
{
	CLI::App* const Command = Program.add_subcommand("keys",
		"Make a pair of key files, NAME.application.keys and NAME.editor.keys, for a link between two machines.");
	Command->add_option("name", Name, "Beginning of the files' paths")->required()->type_name("NAME");
	return Command;
}

int Keys(const std::string& Name)
{
	const auto Files = Zef::MakeKeyFiles(Name);
	if (!Files)
	{
		fmt::print(stderr, "zef-tandem: {}\n", ToString(Files.Fault()));
		return ExitFailure;
	}
	fmt::print("{}\n  stays here: ZEF_TANDEM_KEYS={}\n{}\n  goes to the garment application's machine, with mode 0600: "
			   "zef-peer serve --endpoint tcp://*:5600 --keys {}\n",
		Files->Editor, Files->Editor, Files->Application, Files->Application);
	return EXIT_SUCCESS;
}
