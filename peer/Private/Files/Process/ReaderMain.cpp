// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include "Files/Model/Readers.h"
#include "Files/Process/Answer.h"
#include "Files/Process/ReaderProcess.h"
#include "Zef/Peer/FilesReader.h"

namespace Zef::Peer
{

namespace
{

void Limit(int Resource, std::uint64_t Value)
{
	const rlimit Limits{Value, Value};
	setrlimit(static_cast<__rlimit_resource>(Resource), &Limits);
}

void LimitProcess(std::uint64_t MemoryBytes, std::uint64_t CpuSeconds)
{
	prctl(PR_SET_PDEATHSIG, SIGKILL); // a peer that goes away takes its readers along
	Limit(RLIMIT_CORE, 0);
	Limit(RLIMIT_CPU, CpuSeconds);
#ifndef __SANITIZE_ADDRESS__ // which takes terabytes of addresses for itself
	Limit(RLIMIT_AS, MemoryBytes);
#else
	(void)MemoryBytes;
#endif
}

bool WriteAll(const std::string& Bytes)
{
	for (std::size_t At = 0; At < Bytes.size();)
	{
		const ssize_t Written = write(ReaderPipe, Bytes.data() + At, Bytes.size() - At);
		if (Written <= 0)
		{
			return false;
		}
		At += static_cast<std::size_t>(Written);
	}
	return true;
}

void Misbehave(const std::string& Fault)
{
	if (Fault == "abort")
	{
		std::abort();
	}
	if (Fault == "hang")
	{
		while (true)
		{
			pause();
		}
	}
	if (Fault == "spin")
	{
		while (getppid() != 0)
		{
		}
	}
	std::vector<std::vector<char>> Eaten;
	while (Fault == "eat")
	{
		Eaten.emplace_back(std::size_t(16) << 20, 'x');
	}
	if (Fault == "garbage")
	{
		WriteAll("no answer at all");
		_exit(0);
	}
}

FReaderAnswer Read(EObjectType Type, const std::filesystem::path& File, float UnstatedUnit)
{
	FReaderAnswer Answer;
	std::string Extension = File.extension().string();
	std::transform(Extension.begin(), Extension.end(), Extension.begin(),
		[](unsigned char C) { return static_cast<char>(std::tolower(C)); });
	FModel Model;
	Answer.Error = Extension == ".gltf" || Extension == ".glb" ? ReadGltf(File, Model) : ReadWithAssimp(File, Model);
	if (Answer.Error.empty())
	{
		Answer.Error = BuildObject(Type, Model, UnstatedUnit, Answer.Object);
	}
	return Answer;
}

} // namespace

int MaybeRunModelReader(int ArgumentCount, char** Arguments)
{
	if (ArgumentCount != 8 || std::strcmp(Arguments[1], ReaderSwitch) != 0)
	{
		return -1;
	}
	const std::uint64_t MemoryBytes = std::strtoull(Arguments[4], nullptr, 10);
	LimitProcess(MemoryBytes, std::strtoull(Arguments[5], nullptr, 10));
	FReaderAnswer Answer;
	try
	{
		Misbehave(Arguments[7]);
		Answer =
			Read(static_cast<EObjectType>(std::atoi(Arguments[2])), Arguments[3], std::strtof(Arguments[6], nullptr));
	}
	catch (const std::bad_alloc&)
	{
		Answer = {};
		Answer.Error =
			"it needs more than the " + std::to_string(MemoryBytes >> 20) + " MiB of memory that a file may take.";
	}
	catch (const std::exception& Exception)
	{
		Answer = {};
		Answer.Error = std::string("its reader failed: ") + Exception.what();
	}
	if (!Answer.Error.empty())
	{
		Answer.Object = {};
	}
	const bool bSent = WriteAll(PackAnswer(Answer));
	_exit(bSent ? 0 : 1); // the libraries' own clean-up is one more thing that a file could break
}

} // namespace Zef::Peer
