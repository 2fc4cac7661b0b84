// SPDX-License-Identifier: MIT
#include <map>
#include <string>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "ConformanceCommand.h"
#include "LinkCommands.h"
#include "Zef/Peer/FilesReader.h"

namespace
{

/** For every file that the command reads. */
void AddUnitOption(CLI::App& Command)
{
	static const std::map<std::string, float> Centimetres{
		{"mm", 0.1f}, {"cm", 1.0f}, {"in", 2.54f}, {"dm", 10.0f}, {"ft", 30.48f}, {"m", 100.0f}};
	Command
		.add_option_function<float>(
			"--unit",
			[](const float& UnstatedUnit)
			{
				Zef::Peer::FModelReaderOptions Options = Zef::Peer::ModelReaderOptions();
				Options.UnstatedUnit = UnstatedUnit;
				Zef::Peer::SetModelReaderOptions(Options);
			},
			"Unit of the files that state none, such as OBJ: mm, cm, in, dm, ft or m. Without it their size decides "
			"between m and cm, with a warning")
		->transform(CLI::CheckedTransformer(Centimetres))
		->type_name("UNIT");
}

void AddProjectOptions(CLI::App& Command, FProjectOptions& Options)
{
	AddUnitOption(Command);
	Command.add_option("--garment", Options.Garment, "Model file of the garment; several become one object")
		->check(CLI::ExistingFile)
		->allow_extra_args(false)
		->type_name("FILE");
	Command.add_option("--avatar", Options.Avatar, "Model file of the avatar, with its skeleton and clips")
		->check(CLI::ExistingFile)
		->allow_extra_args(false)
		->type_name("FILE");
	Command.add_option("--outfit", Options.Outfit, "Model file of the outfit")
		->check(CLI::ExistingFile)
		->allow_extra_args(false)
		->type_name("FILE");
	Command.add_option("--prop", Options.Prop, "Model file of the prop")
		->check(CLI::ExistingFile)
		->allow_extra_args(false)
		->type_name("FILE");
	Command.add_flag("--sample", Options.bSample,
		"Fill the objects for which no file is named with those of the built-in sample project. With no file at all "
		"the sample project is taken in any case");
}

} // namespace

int main(int ArgumentCount, char** Arguments)
{
	if (const int Status = Zef::Peer::MaybeRunModelReader(ArgumentCount, Arguments); Status >= 0)
	{
		return Status;
	}
	CLI::App Program{"A garment application's end of the link: serves a project to the editor.", "zef-peer"};
	Program.require_subcommand(1);
	Program.set_help_all_flag("--help-all", "Print the help of all commands and exit");
	Program.footer("Model files: glTF 2.0 (.gltf, .glb) and what Assimp reads, in any units and axes that the format\n"
				   "states; they are brought to centimetres, Z up, left-handed.\n\n"
				   "Examples:\n"
				   "  zef-peer serve                                    the sample project on channel Tandem\n"
				   "  zef-peer serve --garment shirt.glb --avatar person.fbx --prop chair.obj\n"
				   "  zef-peer serve --garment shirt.glb --sample       the sample's avatar, outfit and prop with it\n"
				   "  zef-peer check shirt.glb                          what would be sent, or why it cannot");

	FServeOptions ServeOptions;
	CLI::App* ServeCommand = Program.add_subcommand("serve", "Serve a project until interrupted");
	AddProjectOptions(*ServeCommand, ServeOptions.Project);
	ServeCommand->add_option("--channel", ServeOptions.Channel, "Name of the channel that editors connect to")
		->capture_default_str()
		->type_name("NAME");
	ServeCommand
		->add_option("--endpoint", ServeOptions.Endpoint,
			"Bind this endpoint in ZeroMQ's notation in place of the channel's own, for instance "
			"tcp://127.0.0.1:5600 or tcp://127.0.0.1:*, or with keys tcp://*:5600")
		->type_name("ENDPOINT");
	ServeCommand
		->add_option("--keys", ServeOptions.KeyFile,
			"Key file of this end, made by \"zef-peer keys\"; an endpoint that others can reach needs it")
		->type_name("FILE");
	ServeCommand
		->add_option("--save-dir", ServeOptions.SaveDirectory,
			"Folder for the joint animations that an editor sends, one glTF file each; without it they are only told")
		->type_name("DIR");
	ServeCommand
		->add_option("--ready-file", ServeOptions.ReadyFile,
			"Written when editors can connect; holds the endpoint that was bound")
		->type_name("PATH");
	CLI::Option* ExitAfter =
		ServeCommand
			->add_option("--exit-after", ServeOptions.ExitAfter, "End after this many editors have come and gone")
			->check(CLI::PositiveNumber)
			->type_name("N");
	ServeCommand
		->add_flag_callback(
			"--once", [&] { ServeOptions.ExitAfter = 1; }, "End when the first editor has gone")
		->excludes(ExitAfter);
	ServeCommand->add_flag("--quiet", ServeOptions.bQuiet, "Tell errors only");

	FPaths CheckFiles;
	std::string CheckAs = "garment";
	CLI::App* CheckCommand =
		Program.add_subcommand("check", "Say what would be sent for model files, or why they cannot be");
	CheckCommand->add_option("files", CheckFiles, "Model files, each looked at by itself")
		->required()
		->type_name("FILE");
	CheckCommand->add_option("--as", CheckAs, "The object that they are to become")
		->check(CLI::IsMember({"garment", "avatar", "outfit", "prop"}))
		->capture_default_str();
	AddUnitOption(*CheckCommand);

	FProjectOptions InfoOptions;
	CLI::App* InfoCommand = Program.add_subcommand("info", "Print what the sample project, or the named files, hold");
	AddProjectOptions(*InfoCommand, InfoOptions);

	FConformanceOptions ConformanceOptions;
	CLI::App* const ConformanceCommand = AddConformanceCommand(Program, ConformanceOptions);
	FFaultsOptions FaultsOptions;
	CLI::App* const FaultsCommand = AddFaultsCommand(Program, FaultsOptions);

	FReplayOptions ReplayOptions;
	CLI::App* const ReplayCommand = AddReplayCommand(Program, ReplayOptions);
	std::string KeysName;
	CLI::App* const KeysCommand = AddKeysCommand(Program, KeysName);

	CLI11_PARSE(Program, ArgumentCount, Arguments);
	if (*ServeCommand)
	{
		return Serve(ServeOptions);
	}
	if (*CheckCommand)
	{
		return Check(CheckFiles, CheckAs);
	}
	if (*ConformanceCommand)
	{
		return Conformance(ConformanceOptions);
	}
	if (*FaultsCommand)
	{
		return Faults(FaultsOptions);
	}
	if (*ReplayCommand)
	{
		return Replay(ReplayOptions);
	}
	if (*KeysCommand)
	{
		return Keys(KeysName);
	}
	return Info(InfoOptions);
}
