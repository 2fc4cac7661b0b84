// SPDX-License-Identifier: MIT
#include "ServedAddress.h"

#include "OwnFile.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

namespace Zef
{

namespace
{
FLinkFault Taken(const std::string& Path)
{
	return MakeFault(EFault::AddressTaken, "",
		"Another garment application serves \"" + Path + "\"; close it, or choose another channel.");
}

/** ZeroMQ's own choice for it would be a folder in the working directory, left there by a program that is killed. */
constexpr const char* AnyName = "ipc://*";

#ifndef _WIN32
constexpr const char* FreeName = "free-";

/** Removes the socket files of processes that are gone. */
void RemoveLeftOver(const std::string& Folder)
{
	std::error_code Ignored;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Folder, Ignored))
	{
		const std::string Name = Entry.path().filename().string();
		const pid_t Process = Name.starts_with(FreeName) ? std::atoi(Name.c_str() + std::strlen(FreeName)) : 0;
		if (Process > 0 && kill(Process, 0) != 0 && errno == ESRCH)
		{
			std::filesystem::remove(Entry.path(), Ignored);
		}
	}
}

/** True when somebody listens behind a socket file: an application that does not know of the lock. */
bool Answers(const std::string& Path)
{
	sockaddr_un Name{};
	Name.sun_family = AF_UNIX;
	if (Path.size() >= sizeof(Name.sun_path))
	{
		return false;
	}
	std::memcpy(Name.sun_path, Path.c_str(), Path.size() + 1);
	const int Probe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
	if (Probe < 0)
	{
		return false;
	}
	// EAGAIN: the listener is there and its queue is full.
	const bool bAnswers =
		connect(Probe, reinterpret_cast<const sockaddr*>(&Name), sizeof(Name)) == 0 || errno == EAGAIN;
	close(Probe);
	return bAnswers;
}
#endif
} // namespace

FServedAddress::FServedAddress(FAddress InAddress)
	: Address(std::move(InAddress))
{
}

FServedAddress::~FServedAddress()
{
	std::error_code Ignored;
	if (bPublished && !Address.SocketFile.empty())
	{
		std::filesystem::remove(Address.SocketFile, Ignored);
	}
	if (bPublished && !Address.PortFile.empty())
	{
		std::filesystem::remove(Address.PortFile, Ignored);
	}
#ifndef _WIN32
	if (Lock >= 0)
	{
		close(Lock);
	}
#endif
}

FLinkFault FServedAddress::TakeAnyName()
{
#ifdef _WIN32
	return MakeFault(EFault::AddressRefused, "", "This system has no socket files; use tcp://127.0.0.1:*.");
#else
	static std::atomic<unsigned> Count{0};
	FAddress Channel;
	Channel.Folder = LinkFolder();
	if (FLinkFault Fault = PrepareFolder(Channel))
	{
		return Fault;
	}
	RemoveLeftOver(Channel.Folder);
	const std::string Name = FreeName + std::to_string(getpid()) + "-" + std::to_string(++Count) + ".sock";
	TResult<FAddress> Found = AddressOfEndpoint("ipc://" + Channel.Folder + "/" + Name);
	if (!Found)
	{
		return Found.Fault();
	}
	Address = std::move(*Found);
	Address.Folder = Channel.Folder;
	// No lock: the name is this process's own. What a process of the same number left is not served any more.
	unlink(Address.SocketFile.c_str());
	return {};
#endif
}

FLinkFault FServedAddress::Take()
{
	if (Address.Endpoint == AnyName)
	{
		return TakeAnyName();
	}
	if (FLinkFault Fault = PrepareFolder(Address))
	{
		return Fault;
	}
#ifndef _WIN32
	const std::string Path = Address.PortFile.empty() ? Address.SocketFile : Address.PortFile;
	if (Path.empty())
	{
		return {};
	}
	// The lock file stays where it is: removing it would let two applications lock two files of one name.
	const std::string LockPath = Path + ".lock";
	Lock = open(LockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
	if (Lock < 0)
	{
		return MakeFault(EFault::AddressRefused, "", "\"" + LockPath + "\" cannot be opened: " + LastError() + ".");
	}
	if (flock(Lock, LOCK_EX | LOCK_NB) != 0)
	{
		return Taken(Path);
	}
	if (!Address.SocketFile.empty())
	{
		if (Answers(Address.SocketFile))
		{
			return Taken(Path);
		}
		std::error_code Ignored;
		std::filesystem::remove(Address.SocketFile, Ignored);
	}
#endif
	return {};
}

std::string FServedAddress::Endpoint() const
{
	return Address.PortFile.empty() ? Address.Endpoint : "tcp://127.0.0.1:*";
}

FLinkFault FServedAddress::Publish(const std::string& BoundEndpoint)
{
#ifndef _WIN32
	if (!Address.SocketFile.empty() && chmod(Address.SocketFile.c_str(), 0600) != 0)
	{
		return MakeFault(EFault::AddressRefused, "",
			"\"" + Address.SocketFile + "\" cannot be closed to others: " + LastError() + ".");
	}
#endif
	bPublished = true;
	if (Address.PortFile.empty())
	{
		return {};
	}
	// Written aside and renamed, so that no editor reads half a line.
	const std::string Aside = Address.PortFile + ".new";
	std::ofstream(Aside) << BoundEndpoint << "\n";
	std::error_code Error;
	std::filesystem::permissions(
		Aside, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write, Error);
	std::filesystem::rename(Aside, Address.PortFile, Error);
	return Error ? MakeFault(EFault::AddressRefused, "",
					   "\"" + Address.PortFile + "\" cannot be written: " + Error.message() + ".")
				 : FLinkFault{};
}

} // namespace Zef
