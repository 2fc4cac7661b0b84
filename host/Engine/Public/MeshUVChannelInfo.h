// SPDX-License-Identifier: MIT
// How densely a material slot's texture coordinates cover its surface.
#pragma once

#include "CoreMinimal.h"
#include "Components.h"
#include "UObject/ObjectMacros.h"
#include "MeshUVChannelInfo.generated.h"

/** How densely a material slot's texture coordinates cover its surface; used to stream textures. */
USTRUCT()
struct FMeshUVChannelInfo
{
	GENERATED_BODY()

	/** Whether the densities have been computed. */
	UPROPERTY()
	bool bInitialized = false;

	/** Whether the densities were given by hand. */
	UPROPERTY()
	bool bOverrideDensities = false;

	/** World size of one unit of texture coordinate, for each set. */
	UPROPERTY()
	float LocalUVDensities[MAX_TEXCOORDS] = {};
};
