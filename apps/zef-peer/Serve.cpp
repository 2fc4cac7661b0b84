// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "OpenProject.h"
#include "Serving.h"
#include "Zef/Peer/Server.h"

using namespace Zef;
using namespace Zef::Peer;

int Serve(const FServeOptions& Options)
{
	FSignalWatch::BlockSignals();
	std::optional<FProject> Project = OpenProject(Options.Project);
	if (!Project)
	{
		return 1;
	}
	const std::string Name = Project->Name;
	const std::size_t ObjectCount = Project->Objects.size();

	FServerSettings Settings;
	Settings.Channel = Options.Channel;
	Settings.Endpoint = Options.Endpoint;
	Settings.KeyFile = Options.KeyFile;
	if (!Options.SaveDirectory.empty())
	{
		Settings.Store = MakeGltfJointAnimationStore(Options.SaveDirectory);
	}
	if (!Options.bQuiet)
	{
		Settings.Log = SayLine;
	}
	auto Server = FServer::Open(std::move(*Project), std::move(Settings));
	if (!Server)
	{
		fmt::print(stderr, "error: {}\n", ToString(Server.Fault()));
		return 1;
	}
	if (!Options.ReadyFile.empty() && !WriteReadyFile(Options.ReadyFile, (*Server)->Endpoint()))
	{
		fmt::print(stderr, "error: cannot write {}\n", Options.ReadyFile.string());
		return 1;
	}
	if (!Options.bQuiet)
	{
		SayLine(fmt::format("serving project \"{}\", {} objects, on {}", Name, ObjectCount, (*Server)->Endpoint()));
	}
	{
		const FSignalWatch Watch([&] { (*Server)->Stop(); });
		(*Server)->Run(Options.ExitAfter);
	}
	if (!Options.bQuiet)
	{
		SayLine("bye");
	}
	return 0;
}
