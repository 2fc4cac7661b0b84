// SPDX-License-Identifier: MIT
/** What the copies of a text share. */
#pragma once

#include "Containers/UnrealString.h"

struct FTextData
{
	/** What the user sees; for a text with a key also its source. */
	FString Shown;
	FString Namespace;
	FString Key;
	bool bHasKey = false;
	bool bCultureInvariant = false;
};
