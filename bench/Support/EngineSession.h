// SPDX-License-Identifier: MIT
/** A running engine with the plug-in mounted, for the life of the program. */
#pragma once

#include "Templates/SharedPointer.h"

#include <string>

class FZEFTandemEditor;

namespace Bench
{

/** Boots it at the first call. @return why it cannot run, or nothing */
std::string StartEngine();

/** Ends it, when nothing of it is held any more. */
void StopEngine();

/** An open editor that looks for its garment application at that endpoint. */
TSharedPtr<FZEFTandemEditor> OpenEditor(const std::string& Endpoint);

/** One frame. */
void TickEngine(double Seconds);

/** Drops what nothing refers to any more. */
void CollectObjects();

} // namespace Bench
