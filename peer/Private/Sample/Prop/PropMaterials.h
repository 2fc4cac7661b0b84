// SPDX-License-Identifier: MIT
/** The prop's materials with their pictures. */
#pragma once

#include "Sample/Parts/Assembly.h"

namespace Zef::Peer
{

struct FPropMaterials
{
	int Knit, Velvet, Piping, Sheepskin, Brass, Globe, Marble, Clay, Soil, Leaf, Stem, Glass, Cover, Paper;
};
FPropMaterials AddPropMaterials(FAssembly& Assembly);

} // namespace Zef::Peer
