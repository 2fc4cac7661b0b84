// SPDX-License-Identifier: MIT
// Who fills a viewport and gets its input.
#pragma once

#include "CoreMinimal.h"
#include "InputKeyEventArgs.h"

class FCanvas;
class FViewport;
class UWorld;

class FViewportClient
{
public:
	virtual ~FViewportClient() = default;

	/** Fills the viewport. */
	virtual void Draw(FViewport* Viewport, FCanvas* Canvas) = 0;
	virtual UWorld* GetWorld() const { return nullptr; }

	/** True when the key was used. */
	virtual bool InputKey(const FInputKeyEventArgs& EventArgs);
	/**
	 * Called at each move of the mouse or a stick.
	 *
	 * @param Delta      pixels for the mouse, -1..1 for a stick
	 * @param DeltaTime  seconds since the last call
	 */
	virtual bool InputAxis(FViewport* Viewport, FInputDeviceId InputDevice, FKey Key, float Delta, float DeltaTime,
		int32 NumSamples = 1, bool bGamepad = false);
	/** True when the typed character was used. */
	virtual bool InputChar(FViewport* Viewport, int32 ControllerId, TCHAR Character);
	/** The viewport got the keyboard, or lost it: keys that are held end then. */
	virtual void ReceivedFocus(FViewport* Viewport) { (void)Viewport; }
	virtual void LostFocus(FViewport* Viewport) { (void)Viewport; }
};

using FCommonViewportClient = FViewportClient;
