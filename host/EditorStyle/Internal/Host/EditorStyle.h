// SPDX-License-Identifier: MIT
// The settings of the editor's look as the project's files have them.
#pragma once

namespace Host
{
/**
 * Reads the settings anew. A location in the section "/Script/EditorStyle.EditorStyleSettings" that is not known is
 * logged and counts as none.
 */
void LoadEditorStyleSettings();
} // namespace Host
