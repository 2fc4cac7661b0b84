// SPDX-License-Identifier: MIT
/** Global variables of the program. */
#pragma once

#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"

class FConfigCacheIni;

/** The settings of the program; null before it is brought up. */
extern CORE_API FConfigCacheIni* GConfig;

// Names of the settings files, for the calls of GConfig.
extern CORE_API FString GEngineIni;
extern CORE_API FString GEditorIni;
extern CORE_API FString GEditorPerProjectIni;
extern CORE_API FString GEditorLayoutIni;
extern CORE_API FString GEditorSettingsIni;
extern CORE_API FString GGameIni;

extern CORE_API bool GIsEditor;

/** Category for lines that have none of their own. */
DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);

/** True when the calling thread is the one that runs the editor's loop. */
CORE_API bool IsInGameThread();
