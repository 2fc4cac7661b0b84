// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "Commands.h"
#include "Describe.h"
#include "Zef/Peer/ProjectSource.h"

using namespace Zef;
using namespace Zef::Peer;

int Check(const FPaths& Files, const std::string& As)
{
	EObjectType Type = EObjectType::Prop;
	for (const EObjectType Each : {EObjectType::Garment, EObjectType::Avatar, EObjectType::Outfit})
	{
		Type = As == ObjectTypeName(Each) ? Each : Type;
	}
	int Status = 0;
	for (const std::filesystem::path& File : Files)
	{
		const FLoadResult Result = LoadObject(Type, {File});
		for (const std::string& Warning : Result.Warnings)
		{
			fmt::print("warning: {}\n", Warning);
		}
		for (const std::string& Error : Result.Errors)
		{
			fmt::print("error: {}\n", Error);
		}
		if (Result.Object)
		{
			PrintObject(*Result.Object);
		}
		else
		{
			Status = 1;
		}
	}
	return Status;
}
