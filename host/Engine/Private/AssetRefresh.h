// SPDX-License-Identifier: MIT
// Telling components that an asset which they show has changed.
#pragma once

class UMaterialInterface;
class USkinnedAsset;
class UTexture;

namespace Host
{
/** Components that show a mesh take its new bounds and are drawn anew. */
void RefreshComponents(const USkinnedAsset& Mesh);

/** Components that use a material, or an instance that leads to it, are drawn anew. */
void RefreshComponents(const UMaterialInterface& Material);

/** Components that use a material which uses the texture are drawn anew. */
void RefreshComponents(const UTexture& Texture);
} // namespace Host
