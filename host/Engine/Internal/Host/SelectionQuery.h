// SPDX-License-Identifier: MIT
// Who knows what is selected.
#pragma once

class UPrimitiveComponent;

namespace Host
{
using FSelectionQuery = bool (*)(const UPrimitiveComponent& Component);

/** Null: nothing is selected. */
void SetSelectionQuery(FSelectionQuery Query);
} // namespace Host
