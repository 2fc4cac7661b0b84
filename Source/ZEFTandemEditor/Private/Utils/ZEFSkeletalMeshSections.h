// SPDX-License-Identifier: MIT
/** Sections of a skeletal mesh's level of detail from the surfaces of a received object. */
#pragma once

#include "CoreMinimal.h"
#include "ZEFTandemRecords.h"

class FSkeletalMeshLODModel;

namespace ZEFEditorUtils
{

/**
 * Fills sections, soft vertices, index buffer and import map of an empty LOD model.
 *
 * Every source section becomes one output section with a vertex pool of its own: corners share a soft vertex when they
 * come from the same source index of that section and are equal in every attribute. One or two indices past the last
 * whole triangle keep their slots in the index buffer, as zero. The import map gets one section-local index a corner.
 *
 * @param NumBones  bones of the reference skeleton; each section's bone map is 0 .. NumBones - 1
 */
void BuildSkeletalMeshSections(const FZEFSurfaceMesh& SurfaceMesh, int32 NumBones, FSkeletalMeshLODModel& LODModel);

} // namespace ZEFEditorUtils
