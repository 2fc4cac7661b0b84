// SPDX-License-Identifier: MIT
/** Where the project is on disk. */
#pragma once

#include "Containers/UnrealString.h"

namespace Host
{

/** Sets the folder that FPaths::ProjectDir and its like stand on; the working directory until then. */
void SetProjectDir(const FString& Directory);

} // namespace Host
