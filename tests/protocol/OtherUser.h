// SPDX-License-Identifier: MIT
/** Does something in a process of another user. */
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace LinkTest
{

/** ThreadSanitizer does not let a fork of a process with threads start threads of its own. */
inline bool CanBecomeAnotherUser()
{
#ifdef __SANITIZE_THREAD__
	return false;
#else
	return geteuid() == 0;
#endif
}

/** A child process of user 65534 that runs a function and ends with its result; killed with the object. */
class FOtherUser
{
public:
	explicit FOtherUser(const std::function<int()>& Body)
	{
		Process = fork();
		if (Process == 0)
		{
			_exit(setgid(65534) == 0 && setuid(65534) == 0 ? Body() : 99);
		}
	}
	~FOtherUser()
	{
		if (Process > 0)
		{
			kill(Process, SIGKILL);
			waitpid(Process, nullptr, 0);
		}
	}
	FOtherUser(const FOtherUser&) = delete;
	FOtherUser& operator=(const FOtherUser&) = delete;

	/** The result; -1 when it ended in another way. */
	int Wait()
	{
		int Status = 0;
		waitpid(Process, &Status, 0);
		Process = -1;
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	}

	/** Until the child has made that file; false when it has ended before. */
	bool WaitForFile(const std::string& Path)
	{
		while (!std::filesystem::exists(Path))
		{
			if (waitpid(Process, nullptr, WNOHANG) != 0)
			{
				Process = -1;
				return false;
			}
			usleep(1000);
		}
		return true;
	}

private:
	pid_t Process = -1;
};

inline int AsAnotherUser(const std::function<int()>& Body)
{
	return FOtherUser(Body).Wait();
}

} // namespace LinkTest
