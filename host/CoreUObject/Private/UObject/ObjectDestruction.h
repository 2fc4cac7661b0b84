// SPDX-License-Identifier: MIT
/** Ending many objects at once. */
#pragma once

#include <vector>

class UObject;

namespace Host
{

/** Runs BeginDestroy of all, then FinishDestroy of all, then the destructors, and frees the memory. */
void DestroyObjects(const std::vector<UObject*>& Objects);

} // namespace Host
