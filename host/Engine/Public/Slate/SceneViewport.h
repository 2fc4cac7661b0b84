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

	/** Handled when the client used the key. */
	FReply OnKeyDown(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent);
	FReply OnKeyUp(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent);

	/** @param InSize  pixels */
	void SetFixedViewportSize(uint32 NewViewportSizeX, uint32 NewViewportSizeY);

	TWeakPtr<SWidget> GetViewportWidget() const { return ViewportWidget; }

private:
	TWeakPtr<SWidget> ViewportWidget;
	TMap<FKey, bool> KeyStateMap;
	FIntPoint MousePosition = FIntPoint(0, 0);
};
