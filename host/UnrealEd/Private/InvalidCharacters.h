// SPDX-License-Identifier: MIT
// Replacing the characters that a name may not hold.
#pragma once

#include "CoreMinimal.h"

namespace Host
{
/** `Text` with `Replacement` in place of each character that stands in `Characters`; as long as before. */
FString ReplaceCharacters(const FString& Text, const TCHAR* Characters, TCHAR Replacement);
} // namespace Host
