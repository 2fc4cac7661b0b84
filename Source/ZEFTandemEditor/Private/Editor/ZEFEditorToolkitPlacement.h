// SPDX-License-Identifier: MIT
/** Where the tab of a toolkit opens. */
#pragma once

#include "Templates/SharedPointer.h"

class SDockTab;

namespace ZEFEditorToolkitPlacement
{

/**
 * Opens a toolkit's major tab where the user's preference for asset editors says. Without a preference the integer
 * "ZEFEditorToolkit" of the section "ZEFEditorToolkitTabLocation" decides: 1, the default, for a window of its own, 0
 * for a tab beside the level editor's.
 */
void InsertMajorTab(const TSharedRef<SDockTab>& MajorTab);

} // namespace ZEFEditorToolkitPlacement
