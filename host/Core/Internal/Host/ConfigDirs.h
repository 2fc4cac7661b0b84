// SPDX-License-Identifier: MIT
/** Where the ini files are. */
#pragma once

#include "Containers/UnrealString.h"

namespace Host
{

/**
 * Sets the folders of the configuration and the names that stand on them, such as GEngineIni. Everything that GConfig
 * holds is forgotten, unwritten changes too. A folder that does not exist counts as empty.
 *
 * @param EngineConfigDir        folder of Base*.ini; may be empty
 * @param ProjectConfigDir       folder of Default*.ini; may be empty
 * @param ProjectSavedConfigDir  folder of the files that are written; empty keeps changes in memory
 */
void SetConfigDirs(
	const FString& EngineConfigDir, const FString& ProjectConfigDir, const FString& ProjectSavedConfigDir);

} // namespace Host
