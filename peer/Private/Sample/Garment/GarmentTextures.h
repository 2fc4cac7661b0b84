// SPDX-License-Identifier: MIT
/** The garments' materials with their pictures. */
#pragma once

#include "Sample/Parts/Assembly.h"

namespace Zef::Peer
{

/** Keys of the garments' materials. */
struct FGarmentMaterials
{
	int Herringbone, Skirt, Bias, Satin, Velvet, Brocade, Lace, Pearl, Label, Organza, Sequins, Gem, Setting;
};
FGarmentMaterials AddGarmentMaterials(FAssembly& Assembly);

} // namespace Zef::Peer
