// SPDX-License-Identifier: MIT
// The viewport inside a widget.
#pragma once

#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Geometry.h"
#include "UnrealClient.h"

class SWidget;

/** Takes the widget's input, keeps what keys are down, and hands it on to its client. */
class FSceneViewport : public FViewport
{
public:
	FSceneViewport(FViewportClient* InViewportClient, TSharedPtr<SWidget> InViewportWidget);

	bool KeyState(FKey Key) const override;
	int32 GetMouseX() const override { return MousePosition.X; }
	int32 GetMouseY() const override { return MousePosition.Y; }
	void ShowCursor(bool bVisible) override { bCursorVisible = bVisible; }
	bool IsCursorVisible() const override { return bCursorVisible; }
	void CaptureMouse(bool bCapture) override { bMouseCaptured = bCapture; }
	bool HasMouseCapture() const override { return bMouseCaptured; }
	bool HasFocus() const override { return bFocused; }

	/** Handled when the client used the key. */
	FReply OnKeyDown(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent);
	FReply OnKeyUp(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent);

	/** @param InSize  pixels */
	void SetFixedViewportSize(uint32 NewViewportSizeX, uint32 NewViewportSizeY);

	TWeakPtr<SWidget> GetViewportWidget() const { return ViewportWidget; }

private:
	friend struct Host::FViewportAccess;

	/** Notes the state of the key, then asks the client. */
	bool SendKey(const FKey& Key, EInputEvent Event, int32 UserIndex);
	/** The state of the modifier keys counts from any event, also when their own went to another widget. */
	void ApplyModifierKeys(const FModifierKeysState& Keys);
	bool SendMouseMove(const FIntPoint& Position, const FVector2D& Delta, float DeltaTime);
	void SetFocus(bool bInFocused);

	TWeakPtr<SWidget> ViewportWidget;
	TMap<FKey, bool> KeyStateMap;
	FIntPoint MousePosition = FIntPoint(0, 0);
	/** Part of a step that the wheel has turned. */
	float WheelRest = 0.0f;
	bool bCursorVisible = true;
	bool bMouseCaptured = false;
	bool bFocused = false;
};
