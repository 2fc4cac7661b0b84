// SPDX-License-Identifier: MIT
#include "Zef/Peer/SampleProject.h"

#include <future>

#include "Sample/Avatar/Avatar.h"
#include "Sample/Garment/Garment.h"
#include "Sample/Outfit/Outfit.h"
#include "Sample/Prop/Prop.h"

namespace Zef::Peer
{

FProject MakeSampleProject()
{
	const auto Figure = std::make_shared<const FFigure>(MakeFigure());
	// They do not depend on each other, and the garments take longest.
	auto Avatar = std::async(std::launch::async, [&] { return MakeAvatar(*Figure); });
	auto Outfit = std::async(std::launch::async, [&] { return MakeOutfit(*Figure); });
	auto Prop = std::async(std::launch::async, [] { return MakeProp(); });
	FProject Project;
	Project.Name = "sample";
	Project.Objects.push_back(MakeGarment(Figure));
	Project.Objects.push_back(Avatar.get());
	Project.Objects.push_back(Outfit.get());
	Project.Objects.push_back(Prop.get());
	return Project;
}

} // namespace Zef::Peer
