// SPDX-License-Identifier: MIT
// Editor viewports, for whoever shows them in a window.
//
// The way of a picture: the editor's tick draws the viewports that are out of date, and each one whose picture has
// changed is handed to the view painter (Host/ViewPainter.h). A window that was only covered shows the last picture
// again, or asks for a new one with Invalidate.
//
// The way of the input: the window calls the functions below. Keys go to the model's focused widget instead, as all
// keys do (SEditorViewport::OnKeyDown and OnKeyUp hand them on); SendViewportKey serves a window that has no such road.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"

class FSceneView;
class FSceneViewport;
class SEditorViewport;
class SWidget;

namespace Host
{
/** The widget as a viewport; empty when it is another kind of widget. */
TSharedPtr<SEditorViewport> AsEditorViewport(const TSharedRef<SWidget>& Widget);

/** What is over the picture, from back to front: tool bar and overlays. */
TSharedRef<SWidget> OverlayOf(const SEditorViewport& Viewport);

/** @param Size  pixels of the device; the picture is out of date when it differs from before */
void ResizeViewport(FSceneViewport& Viewport, const FIntPoint& Size);

/** True when the next tick of the editor draws the viewport; a realtime viewport is drawn in each, but its painter is
 * called only for what has changed. */
bool NeedsRedraw(const FSceneViewport& Viewport);

/**
 * A mouse button. Between a press and its release the window sends all moves of the mouse to the same viewport.
 *
 * @param Button    EKeys::LeftMouseButton, MiddleMouseButton or RightMouseButton
 * @param Event     IE_Pressed, IE_Released or IE_DoubleClick; the last takes the place of the second press
 * @param Position  pixels from the top left corner
 * @return true when the viewport used it
 */
bool SendMouseButton(FSceneViewport& Viewport, const FKey& Button, EInputEvent Event, const FIntPoint& Position,
	const FModifierKeysState& Keys);

/**
 * A move of the mouse.
 *
 * @param Delta  pixels since the last call, rows downwards; differs from that of the positions while the window pins
 *               the pointer
 */
bool SendMouseMove(
	FSceneViewport& Viewport, const FIntPoint& Position, const FVector2D& Delta, const FModifierKeysState& Keys);

/** @param Steps  of the wheel, positive away from the user; parts of a step add up */
bool SendMouseWheel(FSceneViewport& Viewport, float Steps, const FIntPoint& Position, const FModifierKeysState& Keys);

/** A key, without the commands of the widget. @param Event  IE_Pressed, IE_Repeat or IE_Released */
bool SendViewportKey(FSceneViewport& Viewport, const FKey& Key, EInputEvent Event, const FModifierKeysState& Keys);

bool SendCharacter(FSceneViewport& Viewport, TCHAR Character);

/** The keyboard came or went; when it goes, everything that is held counts as released and a drag ends. */
void SetViewportFocus(FSceneViewport& Viewport, bool bFocused);

enum class EViewportCursor : uint8
{
	Arrow,
	Turn,	// the view turns around a point, or the eye turns
	Shift,	// the view moves sideways
	Nearer, // the view moves nearer and farther
};

/** What the window does for a viewport's mouse. */
struct FViewportWishes
{
	EViewportCursor Cursor = EViewportCursor::Arrow;
	/** All moves come to the viewport, also from outside of it. */
	bool bCapturesMouse = false;
	/** The pointer is not seen, and stays where it was so that no drag ends at the edge of the screen. */
	bool bPinsPointer = false;
};
FViewportWishes WishesOf(const FSceneViewport& Viewport);

/** The view at this moment: eye, rotation, angle or width. Its Family is null. */
FSceneView ViewOf(const FSceneViewport& Viewport);
} // namespace Host
