// SPDX-License-Identifier: MIT
#include "Zef/Peer/SampleProject.h"

#include "Sample/Avatar/Avatar.h"
#include "Sample/Garment/Garment.h"
#include "Sample/Outfit/Outfit.h"
#include "Sample/Prop/Prop.h"

namespace Zef::Peer
{

FProject MakeSampleProject()
{
	const auto Figure = std::make_shared<const FFigure>(MakeFigure());
	FProject Project;
	Project.Name = "sample";
	Project.Objects.push_back(MakeGarment(Figure));
	Project.Objects.push_back(MakeAvatar(*Figure));
	Project.Objects.push_back(MakeOutfit(*Figure));
	Project.Objects.push_back(MakeProp());
	return Project;
}

} // namespace Zef::Peer
