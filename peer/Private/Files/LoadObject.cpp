// SPDX-License-Identifier: MIT
#include <new>
#include <utility>

#include "Files/Merge.h"
#include "Files/Process/ReaderProcess.h"
#include "Zef/Check.h"
#include "Zef/Peer/ProjectSource.h"

namespace Zef::Peer
{

namespace
{

/** Why the link would refuse what was read, or empty. */
std::string WhyRefused(const FReadObject& Object)
{
	if (const FLinkFault Fault = CheckMesh(Object.Mesh, EIndexBase::Surface))
	{
		return Fault.Path + ": " + Fault.Message;
	}
	if (const FLinkFault Fault = CheckJointSequence(Pack(Object.Sequence), Object.Mesh.Joints.size()))
	{
		return Fault.Path + ": " + Fault.Message;
	}
	std::uint64_t Vertices = 0;
	for (const FSurface& Surface : Object.Mesh.Surfaces)
	{
		Vertices += Surface.Positions.size();
	}
	for (std::size_t F = 0; F < Object.Frames.size(); ++F)
	{
		if (const FLinkFault Fault = CheckSequenceFrame(Object.Frames[F], static_cast<std::uint32_t>(F), Vertices))
		{
			return Fault.Path + ": " + Fault.Message;
		}
	}
	return {};
}

FProjectObject Finish(EObjectType Type, const std::vector<std::filesystem::path>& Files, FReadObject Read)
{
	FProjectObject Object;
	Object.Type = Type;
	for (const std::filesystem::path& File : Files)
	{
		Object.Source += (Object.Source.empty() ? "" : ", ") + File.filename().string();
	}
	RenumberFor(Type, Read.Mesh);
	Object.Mesh = std::move(Read.Mesh);
	Object.JointSequence = std::move(Read.Sequence);
	if (!Read.Frames.empty())
	{
		Object.MakeMeshSequence = [Frames = std::move(Read.Frames)] { return Frames; };
	}
	return Object;
}

} // namespace

FLoadResult LoadObject(EObjectType Type, const std::vector<std::filesystem::path>& Files)
{
	FLoadResult Result;
	if (Files.empty())
	{
		Result.Errors.push_back(std::string("No file was named for the ") + ObjectTypeName(Type) + ".");
		return Result;
	}
	FReadObject All;
	bool bFirst = true;
	for (const std::filesystem::path& File : Files)
	{
		const auto Complain = [&](const std::string& Reason)
		{ Result.Errors.push_back(File.string() + ": " + Reason); };
		std::error_code Ignored;
		if (!std::filesystem::is_regular_file(File, Ignored))
		{
			Complain("there is no such file.");
			continue;
		}
		try
		{
			FReaderAnswer Answer = RunReader(Type, File, ModelReaderOptions());
			if (Answer.Error.empty())
			{
				Answer.Error = WhyRefused(Answer.Object);
			}
			if (!Answer.Error.empty())
			{
				Complain(Answer.Error);
				continue;
			}
			for (const std::string& Warning : Answer.Object.Warnings)
			{
				Result.Warnings.push_back(File.string() + ": " + Warning);
			}
			bFirst ? (void)(All = std::move(Answer.Object)) : MergeInto(All, std::move(Answer.Object));
			bFirst = false;
		}
		catch (const std::bad_alloc&)
		{
			Complain("there is not enough memory for what it holds.");
		}
	}
	if (Result.Errors.empty())
	{
		const std::string Reason = Files.size() > 1 ? WhyRefused(All) : std::string();
		if (!Reason.empty())
		{
			Result.Errors.push_back(
				std::string("The files of the ") + ObjectTypeName(Type) + " do not go together: " + Reason);
			return Result;
		}
		Result.Object = Finish(Type, Files, std::move(All));
	}
	return Result;
}

} // namespace Zef::Peer
