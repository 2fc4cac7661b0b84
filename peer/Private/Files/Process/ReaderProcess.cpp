// SPDX-License-Identifier: MIT
#include "Files/Process/ReaderProcess.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <mutex>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace Zef::Peer
{

namespace
{

using FClock = std::chrono::steady_clock;

std::mutex OptionsMutex;
FModelReaderOptions CurrentOptions;

/** Starts the program with the pipe's writing end and nothing else of this process. @return 0 or an error number */
int Start(
	const FModelReaderOptions& Options, EObjectType Type, const std::filesystem::path& File, int WriteEnd, pid_t& Pid)
{
	std::string Words[] = {Options.Program, ReaderSwitch, std::to_string(static_cast<int>(Type)), File.string(),
		std::to_string(Options.MemoryBytes), std::to_string(Options.CpuSeconds), std::to_string(Options.UnstatedUnit),
		Options.Fault};
	std::vector<char*> Arguments;
	for (std::string& Word : Words)
	{
		Arguments.push_back(Word.data());
	}
	Arguments.push_back(nullptr);
	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_addopen(&Actions, 0, "/dev/null", O_RDONLY, 0);
	posix_spawn_file_actions_addopen(&Actions, 1, "/dev/null", O_WRONLY, 0);
	posix_spawn_file_actions_addopen(&Actions, 2, "/dev/null", O_WRONLY, 0);
	posix_spawn_file_actions_adddup2(&Actions, WriteEnd, ReaderPipe);
	posix_spawn_file_actions_addclosefrom_np(&Actions, ReaderPipe + 1);
	const int Failure = posix_spawn(&Pid, Options.Program.c_str(), &Actions, nullptr, Arguments.data(), environ);
	posix_spawn_file_actions_destroy(&Actions);
	return Failure;
}

enum class EReceive
{
	Complete,
	TooLate,
	TooLarge
};

EReceive Receive(int ReadEnd, const FModelReaderOptions& Options, std::string& Bytes)
{
	const auto Deadline = FClock::now() + std::chrono::seconds(Options.WallSeconds);
	std::vector<char> Piece(std::size_t(1) << 20);
	while (true)
	{
		const auto Left = std::chrono::duration_cast<std::chrono::milliseconds>(Deadline - FClock::now()).count();
		pollfd Poll{ReadEnd, POLLIN, 0};
		const int Ready = Left > 0 ? poll(&Poll, 1, static_cast<int>(Left)) : 0;
		if (Ready == 0)
		{
			return EReceive::TooLate;
		}
		if (Ready < 0)
		{
			continue; // a signal of this process
		}
		const ssize_t Count = read(ReadEnd, Piece.data(), Piece.size());
		if (Count < 0 && errno == EINTR)
		{
			continue;
		}
		if (Count <= 0)
		{
			return EReceive::Complete;
		}
		if (Bytes.size() + static_cast<std::size_t>(Count) > Options.MemoryBytes)
		{
			return EReceive::TooLarge;
		}
		Bytes.append(Piece.data(), static_cast<std::size_t>(Count));
	}
}

/** Why there is no answer, from how the process ended. */
std::string DescribeEnd(int Status, const FModelReaderOptions& Options)
{
	if (WIFSIGNALED(Status))
	{
		const int Signal = WTERMSIG(Status);
		if (Signal == SIGXCPU || Signal == SIGKILL)
		{
			return "reading it was ended after " + std::to_string(Options.CpuSeconds) + " s of processor time.";
		}
		return std::string("it broke the library that reads it: ") + strsignal(Signal) + ".";
	}
	return "its reader ended without an answer, with status " + std::to_string(WEXITSTATUS(Status)) + ".";
}

} // namespace

void SetModelReaderOptions(const FModelReaderOptions& Options)
{
	const std::lock_guard Lock(OptionsMutex);
	CurrentOptions = Options;
}

FModelReaderOptions ModelReaderOptions()
{
	const std::lock_guard Lock(OptionsMutex);
	return CurrentOptions;
}

FReaderAnswer RunReader(EObjectType Type, const std::filesystem::path& File, const FModelReaderOptions& Options)
{
	FReaderAnswer Answer;
	int Ends[2];
	if (pipe2(Ends, O_CLOEXEC) != 0)
	{
		Answer.Error = std::string("no pipe to its reader: ") + std::strerror(errno) + ".";
		return Answer;
	}
	pid_t Pid = -1;
	const int Failure = Start(Options, Type, File, Ends[1], Pid);
	close(Ends[1]);
	if (Failure != 0)
	{
		close(Ends[0]);
		Answer.Error = "its reader " + Options.Program + " cannot be started: " + std::strerror(Failure) + ".";
		return Answer;
	}
	std::string Bytes;
	const EReceive Received = Receive(Ends[0], Options, Bytes);
	close(Ends[0]);
	if (Received != EReceive::Complete)
	{
		kill(Pid, SIGKILL);
	}
	int Status = 0;
	while (waitpid(Pid, &Status, 0) < 0 && errno == EINTR)
	{
	}
	if (Received == EReceive::TooLate)
	{
		Answer.Error = "reading it was ended after " + std::to_string(Options.WallSeconds) + " s.";
	}
	else if (Received == EReceive::TooLarge)
	{
		Answer.Error = "it unpacks to more than " + std::to_string(Options.MemoryBytes >> 20) + " MiB.";
	}
	else if (!WIFEXITED(Status) || WEXITSTATUS(Status) != 0)
	{
		Answer.Error = DescribeEnd(Status, Options);
	}
	else if (!UnpackAnswer(Bytes, Answer))
	{
		Answer = {};
		Answer.Error = "its reader gave an answer that cannot be understood.";
	}
	return Answer;
}

} // namespace Zef::Peer
