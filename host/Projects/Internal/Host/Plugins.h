// SPDX-License-Identifier: MIT
/** Discovering and enabling plug-ins. */
#pragma once

#include "Containers/UnrealString.h"

namespace Host
{

/**
 * Discovers the plug-ins of a folder: the folder itself when it holds a .uplugin file, else all folders below it that
 * do. Folders below a plug-in are not looked at. A name that is known already keeps its first place.
 *
 * @return number of plug-ins that are new; 0 when the folder does not exist
 */
int32 AddPluginSearchPath(const FString& Directory);

/** Enables or disables a discovered plug-in; a new one is disabled. @return false when there is none of this name */
bool SetPluginEnabled(const FString& Name, bool bEnabled);

/** Forgets all plug-ins. Pointers that others hold stay valid. */
void ForgetPlugins();

} // namespace Host
