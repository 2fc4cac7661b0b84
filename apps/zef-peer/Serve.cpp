// SPDX-License-Identifier: MIT
#include <atomic>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <thread>

#include <fmt/format.h>
#include <pthread.h>

#include "OpenProject.h"
#include "Zef/Peer/Server.h"

using namespace Zef;
using namespace Zef::Peer;

namespace
{

void SayLine(const std::string& Line)
{
	std::timespec Now{};
	std::timespec_get(&Now, TIME_UTC);
	std::tm Local{};
	localtime_r(&Now.tv_sec, &Local);
	fmt::print(
		"[{:02}:{:02}:{:02}.{:03}] {}\n", Local.tm_hour, Local.tm_min, Local.tm_sec, Now.tv_nsec / 1000000, Line);
	std::fflush(stdout);
}

/** Beside its place and renamed over it, so that nobody reads half of it. */
bool WriteReadyFile(const std::filesystem::path& Path, const std::string& Endpoint)
{
	std::filesystem::path Beside = Path;
	Beside += ".new";
	{
		std::ofstream File(Beside);
		File << Endpoint << "\n";
		if (!File.flush())
		{
			return false;
		}
	}
	std::error_code Error;
	std::filesystem::rename(Beside, Path, Error);
	return !Error;
}

/** Ends the server at an interrupt or a request to terminate; a thread of its own waits for the signal. */
class FSignalWatch
{
public:
	/** Before any other thread is made: they inherit that these signals are not for them. */
	static void BlockSignals()
	{
		const sigset_t Signals = Watched();
		pthread_sigmask(SIG_BLOCK, &Signals, nullptr);
	}

	explicit FSignalWatch(FServer& Server)
		: Thread(
			  [&Server, this]
			  {
				  const sigset_t Signals = Watched();
				  int Signal = 0;
				  sigwait(&Signals, &Signal);
				  if (!bOver)
				  {
					  Server.Stop();
				  }
			  })
	{
	}

	~FSignalWatch()
	{
		bOver = true;
		pthread_kill(Thread.native_handle(), SIGTERM);
		Thread.join();
	}

private:
	static sigset_t Watched()
	{
		sigset_t Signals;
		sigemptyset(&Signals);
		sigaddset(&Signals, SIGINT);
		sigaddset(&Signals, SIGTERM);
		return Signals;
	}

	std::atomic<bool> bOver{false};
	std::thread Thread;
};

} // namespace

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
		FSignalWatch Watch(**Server);
		(*Server)->Run(Options.ExitAfter);
	}
	if (!Options.bQuiet)
	{
		SayLine("bye");
	}
	return 0;
}
