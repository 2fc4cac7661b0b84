// SPDX-License-Identifier: MIT
// Render data of a skeletal mesh from its imported model.
#pragma once

class FSkeletalMeshRenderData;
class USkeletalMesh;

namespace Host
{
/** Replaces the content of `RenderData`; buffers that are large enough already are filled again in place. */
void BuildSkeletalMeshRenderData(const USkeletalMesh& Mesh, FSkeletalMeshRenderData& RenderData);
} // namespace Host
