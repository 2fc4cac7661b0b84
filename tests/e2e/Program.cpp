// SPDX-License-Identifier: MIT
#include "e2e/Program.h"

#include <csignal>
#include <fstream>
#include <sstream>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr std::chrono::milliseconds PollTime{5};
constexpr std::chrono::seconds EndLimit{20};

int ToExitCode(int Status)
{
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
}

} // namespace

FProgram::FProgram(const std::vector<std::string>& Arguments, const std::filesystem::path& InOutputFile)
	: OutputFile(InOutputFile)
{
	std::vector<char*> Pointers;
	for (const std::string& Argument : Arguments)
	{
		Pointers.push_back(const_cast<char*>(Argument.c_str()));
	}
	Pointers.push_back(nullptr);

	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_addopen(&Actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
	posix_spawn_file_actions_addopen(
		&Actions, STDOUT_FILENO, OutputFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0600);
	posix_spawn_file_actions_adddup2(&Actions, STDOUT_FILENO, STDERR_FILENO);
	if (posix_spawn(&Process, Pointers[0], &Actions, nullptr, Pointers.data(), environ) != 0)
	{
		Process = -1;
	}
	posix_spawn_file_actions_destroy(&Actions);
}

FProgram::~FProgram()
{
	if (IsRunning())
	{
		End(SIGKILL);
	}
}

bool FProgram::IsRunning()
{
	if (Process < 0)
	{
		return false;
	}
	int ChildStatus = 0;
	if (waitpid(Process, &ChildStatus, WNOHANG) == Process)
	{
		Status = ToExitCode(ChildStatus);
		Process = -1;
	}
	return Process >= 0;
}

int FProgram::Wait(std::chrono::seconds Limit)
{
	const auto Deadline = std::chrono::steady_clock::now() + Limit;
	while (IsRunning())
	{
		if (std::chrono::steady_clock::now() > Deadline)
		{
			return -1;
		}
		std::this_thread::sleep_for(PollTime);
	}
	return Status;
}

int FProgram::End(int Signal)
{
	if (Process >= 0)
	{
		kill(Process, Signal);
	}
	return Wait(EndLimit);
}

std::string FProgram::Output() const
{
	std::ifstream File(OutputFile);
	std::stringstream Text;
	Text << File.rdbuf();
	return Text.str();
}
