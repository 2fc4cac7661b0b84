// SPDX-License-Identifier: MIT
#include "Recorder.h"

#include "OwnFile.h"

#include <cerrno>
#include <filesystem>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Zef
{

namespace
{
FByteView ViewOf(const std::string& Text)
{
	return {reinterpret_cast<const std::uint8_t*>(Text.data()), Text.size()};
}

FLinkFault Stopped(const std::string& Path, const std::string& What)
{
	return MakeFault(EFault::RecordingStopped, "", "\"" + Path + "\" " + What);
}

std::FILE* MakeFile(const std::string& Path)
{
#ifdef _WIN32
	return std::fopen(Path.c_str(), "wb");
#else
	// What was recorded is the user's own matter. A file that an earlier recorder left here is made anew.
	unlink(Path.c_str());
	const int Descriptor = open(Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
	return Descriptor < 0 ? nullptr : fdopen(Descriptor, "wb");
#endif
}

bool Sync(std::FILE* File)
{
#ifdef _WIN32
	return std::fflush(File) == 0;
#else
	return std::fflush(File) == 0 && fsync(fileno(File)) == 0;
#endif
}
} // namespace

TResult<std::unique_ptr<FRecorder>> FRecorder::Open(const std::string& Path)
{
	std::error_code Ignored;
	if (std::filesystem::exists(Path, Ignored) && !std::filesystem::is_regular_file(Path, Ignored))
	{
		return Stopped(Path, "is no file; name another one.");
	}
	std::string Aside = Path + ".part";
	std::FILE* const File = MakeFile(Aside);
	if (File == nullptr)
	{
		return Stopped(Aside, "cannot be made: " + LastError() + ".");
	}
	std::unique_ptr<FRecorder> Recorder(new FRecorder(Path, std::move(Aside), File));
	std::array<std::uint8_t, RecordingHeadBytes> Head{};
	std::copy(RecordingMark.begin(), RecordingMark.end(), Head.begin());
	PutNumber(&Head[RecordingMark.size()], 1, 4);
	Recorder->Put(Head);
	return Recorder;
}

FRecorder::FRecorder(std::string InTarget, std::string InAside, std::FILE* InFile)
	: Target(std::move(InTarget))
	, Aside(std::move(InAside))
	, File(InFile)
{
}

FRecorder::~FRecorder()
{
	if (File != nullptr)
	{
		Fail("was not finished.");
	}
}

void FRecorder::Fail(const std::string& What)
{
	if (File != nullptr)
	{
		std::fclose(File);
		File = nullptr;
		std::error_code Ignored;
		std::filesystem::remove(Aside, Ignored);
	}
	Failure = Stopped(Target, What);
}

void FRecorder::Put(FByteView Bytes)
{
	if (File != nullptr && !Bytes.empty() && std::fwrite(Bytes.data(), 1, Bytes.size(), File) != Bytes.size())
	{
		Fail("could not be written: " + LastError() + "; make room, or record to another disk. The link goes on.");
	}
}

void FRecorder::Write(ERecord Kind, std::uint16_t Version, std::span<const FByteView> Parts)
{
	const std::lock_guard Lock(Mutex);
	if (File == nullptr)
	{
		return;
	}
	const auto Time = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - Start);
	std::vector<std::uint8_t> Head(RecordHeadBytes + Parts.size() * 8);
	Head[0] = static_cast<std::uint8_t>(Kind);
	Head[1] = static_cast<std::uint8_t>(Parts.size());
	PutNumber(&Head[2], Version, 2);
	PutNumber(&Head[8], static_cast<std::uint64_t>(Time.count()), 8);
	for (std::size_t Index = 0; Index < Parts.size(); ++Index)
	{
		PutNumber(&Head[RecordHeadBytes + Index * 8], Parts[Index].size(), 8);
	}
	std::uint32_t Sum = Checksum(0, Head);
	for (const FByteView Part : Parts)
	{
		Sum = Checksum(Sum, Part);
	}
	PutNumber(&Head[4], Sum, 4);
	Put(Head);
	for (const FByteView Part : Parts)
	{
		Put(Part);
	}
	++Count;
}

void FRecorder::Connected(std::uint16_t ProtocolVersion, const std::string& Program)
{
	const FByteView Part = ViewOf(Program);
	Write(ERecord::Connected, ProtocolVersion, {&Part, 1});
}

void FRecorder::Request(FByteView Header)
{
	Write(ERecord::Request, 0, {&Header, 1});
}

void FRecorder::Message(std::span<const FByteView> Parts)
{
	Write(ERecord::Message, 0, Parts.first(std::min(Parts.size(), MaxRecordParts)));
}

void FRecorder::Lost(const std::string& Reason)
{
	const FByteView Part = ViewOf(Reason);
	Write(ERecord::Lost, 0, {&Part, 1});
}

FLinkFault FRecorder::TakeFailure()
{
	const std::lock_guard Lock(Mutex);
	if (bFailureTaken || !Failure)
	{
		return {};
	}
	bFailureTaken = true;
	return Failure;
}

FLinkFault FRecorder::Finish()
{
	std::array<std::uint8_t, 8> Total{};
	{
		const std::lock_guard Lock(Mutex);
		if (bFinished)
		{
			return {};
		}
		PutNumber(Total.data(), Count, 8);
	}
	const FByteView Part(Total);
	Write(ERecord::End, 0, {&Part, 1});

	const std::lock_guard Lock(Mutex);
	if (File == nullptr)
	{
		return Failure;
	}
	if (!Sync(File))
	{
		Fail("could not be written: " + LastError() + "; make room, or record to another disk.");
		return Failure;
	}
	std::fclose(File);
	File = nullptr;
	std::error_code Error;
	std::filesystem::rename(Aside, Target, Error);
	if (Error)
	{
		Failure = Stopped(Target, "could not be put in place: " + Error.message() + ".");
		std::filesystem::remove(Aside, Error);
		return Failure;
	}
	bFinished = true;
	return {};
}

} // namespace Zef
