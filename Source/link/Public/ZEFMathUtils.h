// SPDX-License-Identifier: MIT
/** Comparisons that the conversions of meshes share. */
#pragma once

#include "CoreMinimal.h"

struct FSoftSkinVertex;

namespace ZEFMathUtils
{

/**
 * Whether two soft vertices may be stored as one: every field is equal. Floats compare as numbers: 0 equals -0, and a
 * vertex with a NaN equals nothing, not even itself.
 */
ZEFTANDEMRUNTIME_API bool AreVerticesEqual(const FSoftSkinVertex& A, const FSoftSkinVertex& B);

} // namespace ZEFMathUtils
