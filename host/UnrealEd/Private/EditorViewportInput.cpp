// SPDX-License-Identifier: MIT
// Keys, mouse and clicks of an editor viewport.
#include "EditorViewportClient.h"

#include "HitProxies.h"
#include "Host/Screenshots.h"
#include "SceneView.h"
#include "Templates/UniquePtr.h"

namespace
{
// Nobody holds the mouse quite still while clicking.
constexpr double DragPixels = 4.0;

bool IsDragButton(const FKey& Key)
{
	return Key == EKeys::LeftMouseButton || Key == EKeys::MiddleMouseButton || Key == EKeys::RightMouseButton;
}

bool IsAnyButtonDown(const FViewport& Viewport)
{
	return Viewport.KeyState(EKeys::LeftMouseButton) || Viewport.KeyState(EKeys::MiddleMouseButton) ||
		   Viewport.KeyState(EKeys::RightMouseButton);
}
} // namespace

bool FEditorViewportClient::InputKey(const FInputKeyEventArgs& EventArgs)
{
	if (bDisableInput)
	{
		return true;
	}
	if (IsDragButton(EventArgs.Key))
	{
		return InputMouseButton(EventArgs);
	}
	if (EventArgs.Key == EKeys::MouseScrollUp || EventArgs.Key == EKeys::MouseScrollDown)
	{
		return InputWheel(EventArgs);
	}
	// While it flies the keys of the flight are no commands.
	return EventArgs.Event != IE_Released && EventArgs.Viewport && IsPerspective() && IsFlightKey(EventArgs.Key) &&
		   EventArgs.Viewport->KeyState(EKeys::RightMouseButton);
}

bool FEditorViewportClient::InputMouseButton(const FInputKeyEventArgs& EventArgs)
{
	FViewport* const InViewport = EventArgs.Viewport;
	if (EventArgs.Event == IE_Pressed || EventArgs.Event == IE_DoubleClick)
	{
		const bool bSecondButton = Tracking.bTracking;
		if (!bSecondButton)
		{
			Tracking = FMouseTracking();
			Tracking.Button = EventArgs.Key;
			Tracking.bTracking = true;
		}
		Tracking.bNoClick |= bSecondButton;
		if (InViewport)
		{
			InViewport->CaptureMouse(true);
			if (EventArgs.Event == IE_DoubleClick && !bSecondButton)
			{
				Tracking.bNoClick = true;
				Click(*InViewport, EventArgs.Key, IE_DoubleClick);
			}
		}
		return true;
	}
	if (EventArgs.Event == IE_Released && Tracking.bTracking)
	{
		const bool bClick = EventArgs.Key == Tracking.Button && !Tracking.bDragged && !Tracking.bNoClick;
		if (!InViewport || !IsAnyButtonDown(*InViewport))
		{
			Tracking = FMouseTracking();
			if (InViewport)
			{
				InViewport->CaptureMouse(false);
				InViewport->ShowCursor(true);
			}
		}
		if (bClick && InViewport)
		{
			Click(*InViewport, EventArgs.Key, IE_Released);
		}
		return true;
	}
	return false;
}

bool FEditorViewportClient::InputWheel(const FInputKeyEventArgs& EventArgs)
{
	if (EventArgs.Event == IE_Released)
	{
		return false;
	}
	const bool bUp = EventArgs.Key == EKeys::MouseScrollUp;
	if (EventArgs.Viewport && IsPerspective() && EventArgs.Viewport->KeyState(EKeys::RightMouseButton))
	{
		Tracking.bNoClick = true;
		SetCameraSpeedSetting(CameraSpeedSetting + (bUp ? 1 : -1));
		return true;
	}
	TakeShownView();
	const float Steps = bUp ? 1.0f : -1.0f;
	if (IsPerspective() && !bUsingOrbitCamera)
	{
		MoveForward(Steps);
	}
	else
	{
		MoveNearer(Steps);
	}
	return true;
}

void FEditorViewportClient::Click(FViewport& InViewport, const FKey& Key, EInputEvent Event)
{
	const int32 X = InViewport.GetMouseX();
	const int32 Y = InViewport.GetMouseY();
	FSceneViewFamily Family;
	const TUniquePtr<FSceneView> View(CalcSceneView(&Family));
	ProcessClick(*View, InViewport.GetHitProxy(X, Y), Key, Event, static_cast<uint32>(X), static_cast<uint32>(Y));
}

bool FEditorViewportClient::InputAxis(FViewport* InViewport, FInputDeviceId, FKey Key, float Delta, float, int32, bool)
{
	if (bDisableInput)
	{
		return true;
	}
	const bool bHorizontal = Key == EKeys::MouseX;
	if (!InViewport || (!bHorizontal && Key != EKeys::MouseY))
	{
		return false;
	}
	const EDrag Kind = DragOf(*InViewport);
	FVector2D Move(bHorizontal ? Delta : 0.0, bHorizontal ? 0.0 : Delta);
	if (Tracking.bTracking && !Tracking.bDragged)
	{
		Tracking.HeldBack += Move;
		if (Tracking.HeldBack.Size() < DragPixels)
		{
			return Kind != EDrag::None;
		}
		Tracking.bDragged = true;
		Move = Tracking.HeldBack;
		if (Kind != EDrag::None)
		{
			InViewport->ShowCursor(false);
		}
	}
	return Drag(Kind, float(Move.X), float(Move.Y));
}

bool FEditorViewportClient::InputChar(FViewport*, int32, TCHAR)
{
	return bDisableInput;
}

void FEditorViewportClient::LostFocus(FViewport*)
{
	Tracking = FMouseTracking();
}

void FEditorViewportClient::ProcessClick(FSceneView&, HHitProxy*, FKey, EInputEvent, uint32, uint32) {}

bool FEditorViewportClient::InputTakeScreenshot(FViewport* InViewport, FKey Key, EInputEvent Event)
{
	if (Key != EKeys::F9 || !InViewport)
	{
		return false;
	}
	if (Event == IE_Pressed)
	{
		Host::TakeScreenshot(*InViewport);
	}
	return true;
}

bool FEditorViewportClient::IsAltPressed() const
{
	return Viewport && (Viewport->KeyState(EKeys::LeftAlt) || Viewport->KeyState(EKeys::RightAlt));
}

bool FEditorViewportClient::IsCtrlPressed() const
{
	return Viewport && (Viewport->KeyState(EKeys::LeftControl) || Viewport->KeyState(EKeys::RightControl));
}

bool FEditorViewportClient::IsShiftPressed() const
{
	return Viewport && (Viewport->KeyState(EKeys::LeftShift) || Viewport->KeyState(EKeys::RightShift));
}
