// SPDX-License-Identifier: MIT
#include "OwnFile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zef
{

namespace
{
constexpr std::size_t MaxBytes = 4096;

#ifndef _WIN32
/** Closes a descriptor at the end of a block. */
struct FDescriptor
{
	int Number;
	~FDescriptor()
	{
		if (Number >= 0)
		{
			close(Number);
		}
	}
};
#endif
} // namespace

std::string LastError()
{
	return std::error_code(errno, std::generic_category()).message();
}

FLinkFault WriteOwnFile(const std::string& Path, const std::string& Text, EFault Code)
{
#ifdef _WIN32
	std::error_code Error;
	if (std::filesystem::exists(Path, Error))
	{
		return MakeFault(Code, "", "\"" + Path + "\" is there already; remove it first, or choose another name.");
	}
	std::ofstream File(Path, std::ios::binary);
	File << Text;
	return File.flush() ? FLinkFault{} : MakeFault(Code, "", "\"" + Path + "\" cannot be written.");
#else
	const FDescriptor File{open(Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600)};
	if (File.Number < 0)
	{
		return errno == EEXIST
				   ? MakeFault(Code, "", "\"" + Path + "\" is there already; remove it first, or choose another name.")
				   : MakeFault(Code, "", "\"" + Path + "\" cannot be made: " + LastError() + ".");
	}
	// The mode is not left to the user's mask.
	const bool bWritten = fchmod(File.Number, 0600) == 0 &&
						  write(File.Number, Text.data(), Text.size()) == static_cast<ssize_t>(Text.size()) &&
						  fsync(File.Number) == 0;
	if (!bWritten)
	{
		const std::string Reason = LastError();
		unlink(Path.c_str());
		return MakeFault(Code, "", "\"" + Path + "\" cannot be written: " + Reason + ".");
	}
	return {};
#endif
}

TResult<std::string> ReadOwnFile(const std::string& Path, EFault Code)
{
	const auto Refused = [&](const std::string& Reason) { return MakeFault(Code, "", "\"" + Path + "\" " + Reason); };
#ifdef _WIN32
	// Files under a user's profile are closed to others by the system.
	std::ifstream File(Path, std::ios::binary);
	std::stringstream Text;
	if (!File || !(Text << File.rdbuf()) || Text.str().size() > MaxBytes)
	{
		return Refused("cannot be read.");
	}
	return Text.str();
#else
	const FDescriptor File{open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
	struct stat Status
	{
	};
	if (File.Number < 0 || fstat(File.Number, &Status) != 0)
	{
		return Refused("cannot be read: " + LastError() + ".");
	}
	if (!S_ISREG(Status.st_mode))
	{
		return Refused("is no file.");
	}
	if (Status.st_uid != geteuid())
	{
		return Refused("belongs to user " + std::to_string(Status.st_uid) + ", not to user " +
					   std::to_string(geteuid()) + "; make a copy of your own.");
	}
	if ((Status.st_mode & 077) != 0)
	{
		return Refused(
			"can be read or written by others; run chmod 600 on it, and make new keys if others had access.");
	}
	std::string Text(MaxBytes + 1, '\0');
	const ssize_t Count = read(File.Number, Text.data(), Text.size());
	if (Count < 0)
	{
		return Refused("cannot be read: " + LastError() + ".");
	}
	if (static_cast<std::size_t>(Count) > MaxBytes)
	{
		return Refused("is longer than " + std::to_string(MaxBytes) + " bytes, so it is none of ours.");
	}
	Text.resize(static_cast<std::size_t>(Count));
	return Text;
#endif
}

} // namespace Zef
