// SPDX-License-Identifier: MIT
#include "AtomicFile.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace Host
{
FAtomicFile::FAtomicFile(const FString& Path)
	: Target(TCHAR_TO_UTF8(*Path))
	, Beside(Target + ".XXXXXX")
{
	// A name of its own, so that two programs that write the same target do not write into one file.
	const int Descriptor = mkstemp(Beside.data());
	if (Descriptor < 0)
	{
		NoteError();
		return;
	}
	// mkstemp makes the file readable by the user alone; a saved file gets what the user's mask allows.
	const mode_t Mask = umask(0);
	umask(Mask);
	fchmod(Descriptor, 0666 & ~Mask);
	Stream = fdopen(Descriptor, "wb");
	if (!Stream)
	{
		NoteError();
		close(Descriptor);
		unlink(Beside.c_str());
	}
}

FAtomicFile::~FAtomicFile()
{
	if (Stream)
	{
		std::fclose(Stream);
		unlink(Beside.c_str());
	}
}

bool FAtomicFile::Commit()
{
	std::FILE* Closing = Stream;
	const bool bFlushed = std::fflush(Stream) == 0 && std::ferror(Stream) == 0;
	if (!bFlushed)
	{
		NoteError();
	}
	Stream = nullptr;
	const bool bClosed = std::fclose(Closing) == 0;
	if (bFlushed && !bClosed)
	{
		NoteError();
	}
	if (bFlushed && bClosed && std::rename(Beside.c_str(), Target.c_str()) == 0)
	{
		return true;
	}
	if (bFlushed && bClosed)
	{
		NoteError();
	}
	unlink(Beside.c_str());
	return false;
}

void FAtomicFile::NoteError()
{
	Error = FString(UTF8_TO_TCHAR(std::strerror(errno)));
}
} // namespace Host
