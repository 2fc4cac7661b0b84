// SPDX-License-Identifier: MIT
// Plain objects that the editor ticks.
#pragma once

#include "Tickable.h"

/** Registers itself at construction and leaves at destruction. */
class FTickableEditorObject : public FTickableObjectBase
{
public:
	FTickableEditorObject();
	virtual ~FTickableEditorObject();

	FTickableEditorObject(const FTickableEditorObject&) = delete;
	FTickableEditorObject& operator=(const FTickableEditorObject&) = delete;

	/**
	 * Ticks every registered object that may tick. One that comes meanwhile waits for the next call, one that goes is
	 * not called any more.
	 */
	static void TickObjects(const float DeltaSeconds);
};
