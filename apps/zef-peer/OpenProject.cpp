// SPDX-License-Identifier: MIT
#include "OpenProject.h"

#include <utility>

#include <fmt/format.h>

#include "Zef/Peer/ProjectSource.h"
#include "Zef/Peer/SampleProject.h"

using namespace Zef;
using namespace Zef::Peer;

std::optional<FProject> OpenProject(const FProjectOptions& Options)
{
	if (!Options.HasFiles())
	{
		return MakeSampleProject();
	}
	FProject Project;
	Project.Name = "files";
	FProject Sample;
	if (Options.bSample)
	{
		Sample = MakeSampleProject();
		Project.Name = "files and sample";
	}
	bool bGood = true;
	for (const auto& [Type, Files] :
		{std::pair{EObjectType::Garment, &Options.Garment}, std::pair{EObjectType::Avatar, &Options.Avatar},
			std::pair{EObjectType::Outfit, &Options.Outfit}, std::pair{EObjectType::Prop, &Options.Prop}})
	{
		if (Files->empty())
		{
			if (const FProjectObject* Object = Sample.Find(Type))
			{
				Project.Objects.push_back(*Object);
			}
			continue;
		}
		FLoadResult Result = LoadObject(Type, *Files);
		for (const std::string& Warning : Result.Warnings)
		{
			fmt::print(stderr, "warning: {}\n", Warning);
		}
		for (const std::string& Error : Result.Errors)
		{
			fmt::print(stderr, "error: {}\n", Error);
		}
		if (!Result.Object)
		{
			bGood = false;
			continue;
		}
		Project.Objects.push_back(std::move(*Result.Object));
	}
	if (!bGood)
	{
		return std::nullopt;
	}
	return Project;
}
