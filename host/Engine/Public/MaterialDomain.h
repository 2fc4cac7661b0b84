// SPDX-License-Identifier: MIT
// What a material is applied to.
#pragma once

#include "UObject/ObjectMacros.h"
#include "MaterialDomain.generated.h"

/** What a material is applied to. */
UENUM()
enum EMaterialDomain : int
{
	/** A surface of a mesh. */
	MD_Surface = 0,
	MD_DeferredDecal = 1,
	MD_LightFunction = 2,
	MD_Volume = 3,
	MD_PostProcess = 4,
	MD_UI = 5,
	MD_MAX = 6
};
