// SPDX-License-Identifier: MIT
#include "Modules/ModuleManager.h"

/** The module holds records, conversions and the client component; it has nothing to start. */
IMPLEMENT_MODULE(FDefaultModuleImpl, ZEFTandemRuntime)
