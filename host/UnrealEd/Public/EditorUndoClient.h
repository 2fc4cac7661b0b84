// SPDX-License-Identifier: MIT
// Who wants to know of undo and redo.
#pragma once

/** Registered with UEditorEngine::RegisterForUndo, and unregistered before it dies. */
class FEditorUndoClient
{
public:
	virtual ~FEditorUndoClient() = default;

	/** Called after a transaction was undone, or was not for the lack of one. */
	virtual void PostUndo(bool bSuccess) { (void)bSuccess; }
	virtual void PostRedo(bool bSuccess) { (void)bSuccess; }
};
