// SPDX-License-Identifier: MIT
/** The material that stands in where none can be made. */
#pragma once

#include "CoreMinimal.h"

class UMaterial;
class UObject;

namespace ZEFEditorUtils
{

/** Copies the engine's default surface material into `Outer`, to be seen from both sides as cloth is. */
UMaterial* DuplicateDefaultMaterial(UObject* Outer, FName Name);

} // namespace ZEFEditorUtils
