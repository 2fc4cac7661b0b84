// SPDX-License-Identifier: MIT
#include "Zef/Peer/JointAnimationStore.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

#include "Files/Write/GltfWriter.h"
#include "Zef/Peer/Project.h"

namespace Zef::Peer
{

namespace
{

/** Writes beside the target and gives it its name only when it is whole; a name that is taken stays as it is. */
std::string WriteWhole(const std::filesystem::path& Target, const std::string& Bytes, bool& bTaken)
{
	const std::string Beside = Target.string() + ".part-" + std::to_string(getpid());
	bTaken = false;
	std::FILE* Stream = std::fopen(Beside.c_str(), "wb");
	if (!Stream)
	{
		return Beside + " cannot be written: " + std::strerror(errno) + ".";
	}
	bool bGood = std::fwrite(Bytes.data(), 1, Bytes.size(), Stream) == Bytes.size();
	bGood = std::fflush(Stream) == 0 && fsync(fileno(Stream)) == 0 && bGood;
	int Failure = errno;
	bGood = std::fclose(Stream) == 0 && bGood;
	std::string Error;
	if (!bGood)
	{
		Error = Beside + " cannot be written: " + std::strerror(Failure) + ".";
	}
	else if (renameat2(AT_FDCWD, Beside.c_str(), AT_FDCWD, Target.c_str(), RENAME_NOREPLACE) != 0)
	{
		Failure = errno;
		bTaken = Failure == EEXIST;
		Error = Target.string() + " cannot be made: " + std::strerror(Failure) + ".";
	}
	if (!Error.empty())
	{
		std::remove(Beside.c_str());
	}
	return Error;
}

class FGltfJointAnimationStore final : public IJointAnimationStore
{
public:
	explicit FGltfJointAnimationStore(std::filesystem::path InDirectory)
		: Directory(std::move(InDirectory))
	{
	}

	FStoreResult Store(const FObjectTypeInfo& Info, const FJointAnimation& Animation) override
	{
		FStoreResult Result;
		const std::string Name = ObjectTypeName(Info.ObjectType);
		const std::string Bytes = WriteGlb(Animation, Name);
		if (Bytes.empty())
		{
			Result.Error = "The joint animation of the " + Name + " has no joints or no triangles over its vertices.";
			return Result;
		}
		std::error_code Failure;
		std::filesystem::create_directories(Directory, Failure);
		if (Failure)
		{
			Result.Error = Directory.string() + " cannot be made: " + Failure.message() + ".";
			return Result;
		}
		bool bTaken = true;
		for (int Number = 1; bTaken; ++Number)
		{
			char Suffix[16];
			std::snprintf(Suffix, sizeof Suffix, "-%03d.glb", Number);
			Result.File = Directory / (Name + Suffix);
			bTaken = std::filesystem::exists(Result.File, Failure);
			if (!bTaken)
			{
				Result.Error = WriteWhole(Result.File, Bytes, bTaken);
			}
		}
		if (!Result.Error.empty())
		{
			Result.File.clear();
		}
		return Result;
	}

private:
	std::filesystem::path Directory;
};

} // namespace

std::unique_ptr<IJointAnimationStore> MakeGltfJointAnimationStore(const std::filesystem::path& Directory)
{
	return std::make_unique<FGltfJointAnimationStore>(Directory);
}

} // namespace Zef::Peer
