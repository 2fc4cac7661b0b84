// SPDX-License-Identifier: MIT
// What a renderer needs to know of a texture's resource.
#pragma once

#include "CoreMinimal.h"

class UTexture;

namespace Host
{
/** Rises with every `UpdateResource`: what was made from an older version is stale. 0 before the first. */
uint32 GetTextureResourceVersion(const UTexture& Texture);
} // namespace Host
