// SPDX-License-Identifier: MIT
// What a renderer reads of a skeletal mesh.
#pragma once

#include "CoreMinimal.h"
#include "Containers/IndirectArray.h"
#include "Rendering/SkeletalMeshLODRenderData.h"

/** What a renderer reads of a skeletal mesh. */
class FSkeletalMeshRenderData
{
public:
	/** One for each level of detail, the finest first. */
	TIndirectArray<FSkeletalMeshLODRenderData> LODRenderData;

	/** The largest number of influences of a vertex over all levels. */
	ENGINE_API uint32 GetNumBoneInfluences() const;

	/** The largest bone map over all sections. */
	ENGINE_API int32 GetMaxBonesPerSection() const;
};
