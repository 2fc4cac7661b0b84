// SPDX-License-Identifier: MIT
// The source of a skeletal mesh: one model for each level of detail.
#pragma once

#include "CoreMinimal.h"
#include "Containers/IndirectArray.h"
#include "Misc/Guid.h"
#include "Rendering/SkeletalMeshLODModel.h"

/** The source of a skeletal mesh. */
class FSkeletalMeshModel
{
public:
	/** Owns its elements; the finest level first. */
	TIndirectArray<FSkeletalMeshLODModel> LODModels;

	/** Identity of the source; a hash of its content when `bGuidIsHash`. */
	FGuid SkeletalMeshModelGUID;
	bool bGuidIsHash = false;

	/** Drops the unreduced source of reduced levels. Levels are never reduced here, so none is ever kept. */
	void EmptyOriginalReductionSourceMeshData() {}
};
