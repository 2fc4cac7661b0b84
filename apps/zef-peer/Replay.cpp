// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "LinkCommands.h"
#include "Serving.h"
#include "Zef/Keys.h"
#include "Zef/Peer/Replay.h"

using namespace Zef;
using namespace Zef::Peer;

CLI::App* AddReplayCommand(CLI::App& Program, FReplayOptions& Options)
{
	CLI::App* const Command = Program.add_subcommand(
		"replay", "Serve a recording of \"zef-tandem record\": the same bytes for the same requests");
	Command->add_option("file", Options.File, "The recording")->required()->type_name("FILE");
	Command->add_option("--channel", Options.Channel, "Name of the channel that editors connect to")
		->capture_default_str()
		->type_name("NAME");
	Command->add_option("--endpoint", Options.Endpoint, "Bind this endpoint in place of the channel's own")
		->type_name("ENDPOINT");
	Command->add_option("--keys", Options.KeyFile, "Key file of this end, for an endpoint that others can reach")
		->type_name("FILE");
	Command
		->add_option(
			"--ready-file", Options.ReadyFile, "Written when editors can connect; holds the endpoint that was bound")
		->type_name("PATH");
	Command->add_option("--exit-after", Options.ExitAfter, "End after this many editors have come and gone")
		->check(CLI::PositiveNumber)
		->type_name("N");
	Command->add_flag("--quiet", Options.bQuiet, "Tell errors only");
	return Command;
}

int Replay(const FReplayOptions& Options)
{
	FSignalWatch::BlockSignals();
	auto Recording = ReadRecording(Options.File);
	if (!Recording)
	{
		fmt::print(stderr, "error: {}\n", ToString(Recording.Fault()));
		return 1;
	}
	const std::string About = fmt::format("\"{}\", {} requests, {} messages, {} bytes of \"{}\", protocol version {}",
		Options.File, Recording->Requests.size(), Recording->MessageCount, Recording->MessageBytes, Recording->Program,
		Recording->ProtocolVersion);
	FReplaySettings Settings;
	Settings.Channel = Options.Channel;
	Settings.Endpoint = Options.Endpoint;
	Settings.KeyFile = Options.KeyFile;
	if (!Options.bQuiet)
	{
		Settings.Log = SayLine;
	}
	auto Opened = FReplay::Open(std::move(*Recording), std::move(Settings));
	if (!Opened)
	{
		fmt::print(stderr, "error: {}\n", ToString(Opened.Fault()));
		return 1;
	}
	FReplay& Replay = **Opened;
	if (!Options.ReadyFile.empty() && !WriteReadyFile(Options.ReadyFile, Replay.Endpoint()))
	{
		fmt::print(stderr, "error: cannot write {}\n", Options.ReadyFile.string());
		return 1;
	}
	if (!Options.bQuiet)
	{
		SayLine(fmt::format("serving {} on {}", About, Replay.Endpoint()));
	}
	const FSignalWatch Watch([&] { Replay.Stop(); });
	Replay.Run(Options.ExitAfter);
	return 0;
}

CLI::App* AddKeysCommand(CLI::App& Program, std::string& Name)
{
	CLI::App* const Command = Program.add_subcommand("keys",
		"Make a pair of key files, NAME.application.keys and NAME.editor.keys, for a link between two machines");
	Command->add_option("name", Name, "Beginning of the files' paths")->required()->type_name("NAME");
	return Command;
}

int Keys(const std::string& Name)
{
	const auto Files = MakeKeyFiles(Name);
	if (!Files)
	{
		fmt::print(stderr, "error: {}\n", ToString(Files.Fault()));
		return 1;
	}
	fmt::print("{}\n  stays here: zef-peer serve --endpoint tcp://*:5600 --keys {}\n{}\n"
			   "  goes to the editor's machine, with mode 0600: ZEF_TANDEM_ENDPOINT=tcp://THIS-MACHINE:5600 "
			   "ZEF_TANDEM_KEYS={}\n",
		Files->Application, Files->Application, Files->Editor, Files->Editor);
	return 0;
}
