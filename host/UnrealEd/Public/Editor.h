// SPDX-License-Identifier: MIT
// The one editor.
#pragma once

#include "Editor/EditorEngine.h"
#include "EditorUndoClient.h"

/** Null while no editor runs. */
extern UEditorEngine* GEditor;
