// SPDX-License-Identifier: MIT
#include "Support/Processes.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Bench
{

namespace
{

/** A line of the kernel's account of this process, in bytes. */
double StatusField(const std::string& Key)
{
	std::ifstream Stream("/proc/self/status");
	for (std::string Line; std::getline(Stream, Line);)
	{
		if (Line.starts_with(Key + ":"))
		{
			return std::strtod(Line.c_str() + Key.size() + 1, nullptr) * 1024.0;
		}
	}
	return 0.0;
}

} // namespace

FChildProcess::FChildProcess(const std::function<void(int Socket)>& Body)
{
	int Sockets[2] = {-1, -1};
	if (socketpair(AF_UNIX, SOCK_STREAM, 0, Sockets) != 0)
	{
		return;
	}
	Child = fork();
	if (Child == 0)
	{
		prctl(PR_SET_PDEATHSIG, SIGKILL);
		close(Sockets[0]);
		Body(Sockets[1]);
		_exit(0);
	}
	close(Sockets[1]);
	Descriptor = Sockets[0];
}

FChildProcess::~FChildProcess()
{
	close(Descriptor);
	if (Child > 0)
	{
		kill(Child, SIGTERM);
		waitpid(Child, nullptr, 0);
	}
}

bool FChildProcess::WaitForByte() const
{
	char Byte = 0;
	return read(Descriptor, &Byte, 1) == 1;
}

double PeakMemory()
{
	return StatusField("VmHWM");
}

double PresentMemory()
{
	return StatusField("VmRSS");
}

std::string FreshEndpoint(const char* Name)
{
	std::string Folder = (std::filesystem::temp_directory_path() / "zef-bench-XXXXXX").string();
	if (mkdtemp(Folder.data()) == nullptr)
	{
		return {};
	}
	return "ipc://" + Folder + "/" + Name;
}

} // namespace Bench
