// SPDX-License-Identifier: MIT
// The editing modes of an asset editor.
#pragma once

#include "EditorModeManager.h"

class FAssetEditorModeManager : public FEditorModeTools
{
};
