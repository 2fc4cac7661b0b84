// SPDX-License-Identifier: MIT
#include "AtomicFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <random>
#include <system_error>

namespace Host
{
namespace
{
/** A name of its own, so that two programs that write the same target do not write into one file. */
std::string NameBeside(const std::string& Target)
{
	std::random_device Random;
	return Target + ".part-" + std::to_string(Random());
}

void Remove(const std::string& Path)
{
	std::error_code Ignored;
	std::filesystem::remove(Path, Ignored);
}
} // namespace

FAtomicFile::FAtomicFile(const FString& Path)
	: Target(TCHAR_TO_UTF8(*Path))
	, Beside(NameBeside(Target))
{
	// "x" refuses a file that is there already.
	Stream = std::fopen(Beside.c_str(), "wbx");
	if (!Stream)
	{
		NoteError(errno);
	}
}

FAtomicFile::~FAtomicFile()
{
	if (Stream)
	{
		std::fclose(Stream);
		Remove(Beside);
	}
}

bool FAtomicFile::Commit()
{
	// The first error is the one that tells what happened; closing goes on regardless.
	int FirstError = std::fflush(Stream) == 0 && std::ferror(Stream) == 0 ? 0 : errno;
	const bool bClosed = std::fclose(Stream) == 0;
	Stream = nullptr;
	if (FirstError == 0 && !bClosed)
	{
		FirstError = errno;
	}
	if (FirstError == 0)
	{
		std::error_code Failure;
		std::filesystem::rename(Beside, Target, Failure);
		FirstError = Failure.value();
	}
	if (FirstError != 0)
	{
		NoteError(FirstError);
		Remove(Beside);
	}
	return FirstError == 0;
}

void FAtomicFile::NoteError(int Code)
{
	Error = FString(UTF8_TO_TCHAR(std::strerror(Code)));
}
} // namespace Host
