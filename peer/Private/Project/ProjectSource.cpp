// SPDX-License-Identifier: MIT
#include "Zef/Peer/ProjectSource.h"

namespace Zef::Peer
{

FLoadResult LoadObject(EObjectType Type, const std::vector<std::filesystem::path>& Files)
{
	FLoadResult Result;
	for (const std::filesystem::path& File : Files)
	{
		Result.Errors.push_back(
			File.string() + ": this build reads no model files for the " + ObjectTypeName(Type) + ".");
	}
	if (Files.empty())
	{
		Result.Errors.push_back(std::string("No file was named for the ") + ObjectTypeName(Type) + ".");
	}
	return Result;
}

} // namespace Zef::Peer
