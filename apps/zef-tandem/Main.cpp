// SPDX-License-Identifier: MIT
/** The editor as a program. */
#ifdef ZEF_WITH_DESKTOP
#include "Host/Desktop.h"
#endif
#include "Host/EditorScript.h"
#include "Host/HeadlessEditor.h"
#include "Host/UpdateReport.h"
#include "LinkCommands.h"
#include "RunScript.h"
#include "Zef/Keys.h"

#include <CLI/CLI.hpp>
#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace
{

constexpr int ExitFailure = 1;

std::filesystem::path DefaultPlugin()
{
	// The program stands in build/<preset>/bin of the plug-in's own tree.
	std::error_code Error;
	std::filesystem::path Folder = std::filesystem::read_symlink("/proc/self/exe", Error).parent_path();
	while (!Folder.empty() && Folder != Folder.root_path())
	{
		if (std::filesystem::exists(Folder / "ZEFTandem.uplugin", Error))
		{
			return Folder;
		}
		Folder = Folder.parent_path();
	}
	return ZEF_PLUGIN_DIR;
}

struct FUpdateCommand
{
	Host::FHeadlessOptions Editor;
	Host::FPictureOptions Picture;
	int Repeat = 1;
};

/** The editor in windows, until the user closes it. */
int RunWindows(int ArgumentCount, char** Arguments, const Host::FHeadlessOptions& Editor, bool bMeasure)
{
#ifdef ZEF_WITH_DESKTOP
	std::string Error = Host::WhyNoDisplay();
	if (Error.empty())
	{
		Host::FDesktopOptions Options;
		Options.Project = Editor.Project;
		Options.Plugin = Editor.Plugin;
		Options.Endpoint = Editor.Endpoint;
		Options.bVerbose = Editor.bVerbose;
		Options.bMeasure = bMeasure;
		Error = Host::RunDesktop(ArgumentCount, Arguments, Options);
	}
#else
	(void)ArgumentCount;
	(void)Arguments;
	(void)Editor;
	(void)bMeasure;
	const std::string Error = "this program was built without the desktop; use --headless update";
#endif
	if (!Error.empty())
	{
		fmt::print(stderr, "zef-tandem: {}\n", Error);
		return ExitFailure;
	}
	return EXIT_SUCCESS;
}

/** Picture, table and counts of one or several updates in one editor. */
int RunUpdate(const FUpdateCommand& Command)
{
	std::string Error;
	const std::unique_ptr<Host::FHeadlessEditor> Editor = Host::FHeadlessEditor::Open(Command.Editor, Error);
	if (!Editor)
	{
		fmt::print(stderr, "zef-tandem: {}\n", Error);
		return ExitFailure;
	}
	Host::FUpdateOutcome Outcome;
	for (int Round = 0; Round < Command.Repeat; ++Round)
	{
		Outcome = Editor->Update();
		if (!Outcome.IsOk())
		{
			fmt::print(stderr, "zef-tandem: {}\n", Outcome.Error);
			return ExitFailure;
		}
	}
	fmt::print("{}", Host::FormatUpdateTable(Outcome.Rows));
	if (Command.Repeat > 1)
	{
		Editor->CollectGarbage();
		fmt::print("{} updates, {} objects alive\n", Command.Repeat, Editor->CountObjects());
	}
	if (!Command.Picture.File.empty())
	{
		Error = Editor->SavePicture(Command.Picture);
		if (!Error.empty())
		{
			fmt::print(stderr, "zef-tandem: no picture: {}\n", Error);
			return ExitFailure;
		}
		fmt::print("The picture of the preview is {}\n", std::filesystem::absolute(Command.Picture.File).string());
	}
	return EXIT_SUCCESS;
}

} // namespace

int main(int ArgumentCount, char** Arguments)
{
	CLI::App App(
		"The editor of ZEF/KR Tandem without the engine. Without a command it opens its window.", "zef-tandem");
	App.set_version_flag("--version", ZEF_VERSION);
	App.require_subcommand(0, 1);

	FUpdateCommand Command;
	Command.Editor.Plugin = DefaultPlugin();
	Command.Editor.Project = std::filesystem::current_path() / "ZEFTandemProject";
	bool bHeadless = false;
	App.add_flag(
		"--headless", bHeadless, "Work without a display; needs a command, and is what the commands do in any case.");
	bool bMeasure = false;
	App.add_flag("--measure", bMeasure, "Open the window, print how long it took and how an orbit runs, and end");
	App.fallthrough();
	App.add_option("--project", Command.Editor.Project, "Project folder; made when it is not there")
		->capture_default_str();
	App.add_option("--plugin", Command.Editor.Plugin, "Folder of ZEFTandem.uplugin")->capture_default_str();
	App.add_option("--endpoint", Command.Editor.Endpoint,
		"ZeroMQ endpoint of the garment application in place of the channel \"Tandem\", for instance "
		"ipc:///run/user/1000/my.sock or tcp://127.0.0.1:7000");
	std::string KeyFile;
	App.add_option("--keys", KeyFile, "Key file of this end, made by \"keys\"; an endpoint on another machine needs it")
		->type_name("FILE");
	App.add_flag("--verbose", Command.Editor.bVerbose, "Print every line of the log");

	std::filesystem::path Script;
	App.add_option("--script", Script, "With --headless: run a list of commands, see below; - for the standard input");
	const CLI::Option* const Timeout =
		App.add_option("--timeout", Command.Editor.Timeout, "Seconds to wait for the garment application")
			->check(CLI::Range(0.1, 3600.0))
			->capture_default_str();
	App.footer("Lines of a script:\n" + Host::DescribeEditorScripts());

	CLI::App* const Update = App.add_subcommand(
		"update", "Ask the garment application for everything it holds, show it in the preview, print a table of it.");
	Update->add_option("--screenshot", Command.Picture.File, "Write a picture of the preview, as PNG");
	Update->add_option("--width", Command.Picture.Width, "Width of the picture")
		->check(CLI::Range(16, 8192))
		->capture_default_str();
	Update->add_option("--height", Command.Picture.Height, "Height of the picture")
		->check(CLI::Range(16, 8192))
		->capture_default_str();
	Update->add_option("--pitch", Command.Picture.Pitch, "Degrees that the camera looks up; negative looks down")
		->check(CLI::Range(-89.0F, 89.0F))
		->capture_default_str();
	Update->add_option("--yaw", Command.Picture.Yaw, "Direction of looking in degrees; 180 sees the side that faces +X")
		->capture_default_str();
	Update->add_option("--fov", Command.Picture.FieldOfView, "Horizontal field of view in degrees")
		->check(CLI::Range(5.0F, 170.0F))
		->capture_default_str();
	Update->add_flag("--unified-material", Command.Editor.bUnifiedMaterial, "Receive the garment with one material");
	Update->add_option("--repeat", Command.Repeat, "Run that many updates in the same editor")
		->check(CLI::Range(1, 1000000))
		->capture_default_str();

	FLinkOptions DoctorOptions;
	CLI::App* const DoctorCommand = AddDoctorCommand(App, DoctorOptions);
	FRecordOptions RecordOptions;
	CLI::App* const RecordCommand = AddRecordCommand(App, RecordOptions);
	std::string KeysName;
	CLI::App* const KeysCommand = AddKeysCommand(App, KeysName);

	CLI11_PARSE(App, ArgumentCount, Arguments);
	DoctorOptions.Endpoint = RecordOptions.Link.Endpoint = Command.Editor.Endpoint;
	DoctorOptions.KeyFile = RecordOptions.Link.KeyFile = KeyFile;
	if (Timeout->count() > 0)
	{
		DoctorOptions.Timeout = RecordOptions.Link.Timeout = Command.Editor.Timeout;
	}
	if (*DoctorCommand)
	{
		return Doctor(DoctorOptions);
	}
	if (*RecordCommand)
	{
		return Record(RecordOptions);
	}
	if (*KeysCommand)
	{
		return Keys(KeysName);
	}
	if (!KeyFile.empty())
	{
		setenv(Zef::KeysVariable, KeyFile.c_str(), 1);
	}
	if (!Script.empty())
	{
		if (Update->parsed())
		{
			fmt::print(stderr,
				"zef-tandem: a script and a command do not go together; write the command's work into the "
				"script\n");
			return ExitFailure;
		}
		return RunScript(Command.Editor, Script);
	}
	if (Update->parsed())
	{
		return RunUpdate(Command);
	}
	if (bHeadless)
	{
		fmt::print(stderr,
			"zef-tandem: what is to be done? Give a command, for instance: zef-tandem --headless update, "
			"or a script: zef-tandem --headless --script FILE\n");
		return ExitFailure;
	}
	return RunWindows(ArgumentCount, Arguments, Command.Editor, bMeasure);
}
