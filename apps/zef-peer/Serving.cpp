// SPDX-License-Identifier: MIT
#include "Serving.h"

#include <csignal>
#include <cstdio>
#include <ctime>
#include <fstream>

#include <fmt/format.h>
#include <pthread.h>

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

namespace
{
sigset_t Watched()
{
	sigset_t Signals;
	sigemptyset(&Signals);
	sigaddset(&Signals, SIGINT);
	sigaddset(&Signals, SIGTERM);
	return Signals;
}
} // namespace

void FSignalWatch::BlockSignals()
{
	const sigset_t Signals = Watched();
	pthread_sigmask(SIG_BLOCK, &Signals, nullptr);
}

FSignalWatch::FSignalWatch(std::function<void()> InStop)
	: Stop(std::move(InStop))
	, Thread(
		  [this]
		  {
			  const sigset_t Signals = Watched();
			  int Signal = 0;
			  sigwait(&Signals, &Signal);
			  if (!bOver)
			  {
				  Stop();
			  }
		  })
{
}

FSignalWatch::~FSignalWatch()
{
	bOver = true;
	pthread_kill(Thread.native_handle(), SIGTERM);
	Thread.join();
}
