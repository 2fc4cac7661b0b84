// SPDX-License-Identifier: MIT
/** Forward declarations of Core's commonly named types. */
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"

class FName;
class FString;
class FText;
class FExec;
class FArchive;
class FOutputDevice;
class FConfigCacheIni;
struct FGuid;
class FNotifyHook;

template <typename FuncType>
class TFunction;
template <typename FuncType>
class TFunctionRef;
