// SPDX-License-Identifier: MIT
#pragma once

#include "Host/SceneSnapshot.h"

class FSkeletalMeshLODRenderData;

namespace UE::Geometry
{
class FDynamicMesh3;
}

namespace Host
{

/**
 * One vertex for each combination of mesh vertex and overlay elements that a triangle corner has. A corner without a
 * normal, tangent or texture coordinate gets a zero one. Material ids become the sections' slots, -1 included; without
 * ids all is slot 0.
 */
FMeshSnapshot SnapshotOf(const UE::Geometry::FDynamicMesh3& Mesh);

/** The vertices as they lie in the buffers, which is the reference pose. Disabled sections are left out. */
FMeshSnapshot SnapshotOf(const FSkeletalMeshLODRenderData& Level);

} // namespace Host
