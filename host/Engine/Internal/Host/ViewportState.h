// SPDX-License-Identifier: MIT
// What a viewport keeps to itself, and the way into it for whoever has a window.
#pragma once

#include "Slate/SceneViewport.h"
#include "UnrealClient.h"

namespace Host
{
struct FViewportAccess
{
	static bool IsDisplayDirty(const FViewport& Viewport) { return Viewport.bDisplayDirty; }
	static bool IsDrawingInvalidated(const FViewport& Viewport) { return Viewport.bDrawingInvalidated; }
	static bool SendKey(FSceneViewport& Viewport, const FKey& Key, EInputEvent Event)
	{
		return Viewport.SendKey(Key, Event, 0);
	}
	static void ApplyModifierKeys(FSceneViewport& Viewport, const FModifierKeysState& Keys)
	{
		Viewport.ApplyModifierKeys(Keys);
	}
	static bool SendMouseMove(
		FSceneViewport& Viewport, const FIntPoint& Position, const FVector2D& Delta, float DeltaTime)
	{
		return Viewport.SendMouseMove(Position, Delta, DeltaTime);
	}
	static void SetMousePosition(FSceneViewport& Viewport, const FIntPoint& Position)
	{
		Viewport.MousePosition = Position;
	}
	/** Adds to the wheel's way; takes the whole steps of it. */
	static int32 TakeWheelSteps(FSceneViewport& Viewport, float Steps)
	{
		Viewport.WheelRest += Steps;
		const int32 Whole = static_cast<int32>(Viewport.WheelRest);
		Viewport.WheelRest -= float(Whole);
		return Whole;
	}
	static void SetFocus(FSceneViewport& Viewport, bool bFocused) { Viewport.SetFocus(bFocused); }
};

/** True from an invalidation until the viewport is drawn. */
inline bool IsDisplayDirty(const FViewport& Viewport)
{
	return FViewportAccess::IsDisplayDirty(Viewport);
}
} // namespace Host
