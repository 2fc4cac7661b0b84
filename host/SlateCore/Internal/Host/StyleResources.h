// SPDX-License-Identifier: MIT
#pragma once

// The pictures that the application's own style uses, and what stands in for a missing one.

#include "Styling/SlateBrush.h"
#include "Templates/SharedPointer.h"

namespace Host
{
/**
 * Folder of the application's pictures, without a "/" at the end. It is looked for beside the program and in the
 * folders above it, as "host/SlateCore/Resources" in a source tree and as "share/zef-tandem/Slate" in an installation,
 * and last where the program was built.
 */
const FString& StyleResourceDir();

/** A brush that can be seen on any ground: the picture for what is missing, or a plain box when that is missing too. */
TSharedRef<FSlateBrush> MakeMissingImageBrush(const FVector2D& ImageSize);
} // namespace Host
