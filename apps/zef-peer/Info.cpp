// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "Describe.h"
#include "OpenProject.h"

using namespace Zef;
using namespace Zef::Peer;

int Info(const FProjectOptions& Options)
{
	const std::optional<FProject> Project = OpenProject(Options);
	if (!Project)
	{
		return 1;
	}
	fmt::print("project \"{}\"\n", Project->Name);
	for (const FProjectObject& Object : Project->Objects)
	{
		PrintObject(Object);
	}
	const FAvailability Flags = ProjectAvailability(*Project);
	const auto YesNo = [](bool b) { return b ? "yes" : "no"; };
	fmt::print("available: garment {}, garment animation {}, avatar {}, avatar animation {}, avatar skeleton {}\n",
		YesNo(Flags.bFlag0), YesNo(Flags.bGarmentHasAnimation), YesNo(Flags.bFlag2), YesNo(Flags.bAvatarHasAnimation),
		YesNo(Flags.bAvatarHasSkeleton));
	return 0;
}
