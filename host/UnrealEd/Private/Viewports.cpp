// SPDX-License-Identifier: MIT
#include "Host/Viewports.h"

#include "EditorViewportClient.h"
#include "Host/Clock.h"
#include "Host/ViewportState.h"
#include "SEditorViewport.h"
#include "SceneView.h"
#include "Templates/UniquePtr.h"
#include "ViewportDrawing.h"

namespace Host
{
namespace
{
constexpr float MostSecondsOfAMove = 0.1f; // a mouse that rested before does not count as slow

FEditorViewportClient* ClientOf(const FSceneViewport& Viewport)
{
	return dynamic_cast<FEditorViewportClient*>(Viewport.GetClient());
}

float SecondsSinceLastMove()
{
	static double Last = 0.0;
	const float Seconds = float(AppTime() - Last);
	Last = AppTime();
	return FMath::Clamp(Seconds, 0.0f, MostSecondsOfAMove);
}
} // namespace

TSharedPtr<SEditorViewport> AsEditorViewport(const TSharedRef<SWidget>& Widget)
{
	return dynamic_cast<SEditorViewport*>(&Widget.Get()) ? StaticCastSharedRef<SEditorViewport>(Widget)
														 : TSharedPtr<SEditorViewport>();
}

TSharedRef<SWidget> OverlayOf(const SEditorViewport& Viewport)
{
	return const_cast<SEditorViewport&>(Viewport).GetChildren()->GetChildAt(0);
}

void ResizeViewport(FSceneViewport& Viewport, const FIntPoint& Size)
{
	Viewport.SetFixedViewportSize(
		static_cast<uint32>(FMath::Max(Size.X, 0)), static_cast<uint32>(FMath::Max(Size.Y, 0)));
}

bool IsToBeDrawn(const FEditorViewportClient& Client)
{
	return Client.Viewport && Client.IsVisible() && (Client.IsRealtime() || IsDisplayDirty(*Client.Viewport));
}

bool NeedsRedraw(const FSceneViewport& Viewport)
{
	const FEditorViewportClient* const Client = ClientOf(Viewport);
	return Client ? IsToBeDrawn(*Client) : IsDisplayDirty(Viewport);
}

bool SendMouseButton(FSceneViewport& Viewport, const FKey& Button, EInputEvent Event, const FIntPoint& Position,
	const FModifierKeysState& Keys)
{
	FViewportAccess::ApplyModifierKeys(Viewport, Keys);
	FViewportAccess::SetMousePosition(Viewport, Position);
	return FViewportAccess::SendKey(Viewport, Button, Event);
}

bool SendMouseMove(
	FSceneViewport& Viewport, const FIntPoint& Position, const FVector2D& Delta, const FModifierKeysState& Keys)
{
	FViewportAccess::ApplyModifierKeys(Viewport, Keys);
	return FViewportAccess::SendMouseMove(Viewport, Position, Delta, SecondsSinceLastMove());
}

bool SendMouseWheel(FSceneViewport& Viewport, float Steps, const FIntPoint& Position, const FModifierKeysState& Keys)
{
	FViewportAccess::ApplyModifierKeys(Viewport, Keys);
	FViewportAccess::SetMousePosition(Viewport, Position);
	bool bUsed = false;
	for (int32 Count = FViewportAccess::TakeWheelSteps(Viewport, Steps); Count != 0; Count += Count > 0 ? -1 : 1)
	{
		const FKey& Key = Count > 0 ? EKeys::MouseScrollUp : EKeys::MouseScrollDown;
		bUsed |= FViewportAccess::SendKey(Viewport, Key, IE_Pressed);
		bUsed |= FViewportAccess::SendKey(Viewport, Key, IE_Released);
	}
	return bUsed;
}

bool SendViewportKey(FSceneViewport& Viewport, const FKey& Key, EInputEvent Event, const FModifierKeysState& Keys)
{
	FViewportAccess::ApplyModifierKeys(Viewport, Keys);
	return FViewportAccess::SendKey(Viewport, Key, Event);
}

bool SendCharacter(FSceneViewport& Viewport, TCHAR Character)
{
	return Viewport.GetClient() && Viewport.GetClient()->InputChar(&Viewport, 0, Character);
}

void SetViewportFocus(FSceneViewport& Viewport, bool bFocused)
{
	FViewportAccess::SetFocus(Viewport, bFocused);
}

FViewportWishes WishesOf(const FSceneViewport& Viewport)
{
	FViewportWishes Wishes;
	Wishes.bCapturesMouse = Viewport.HasMouseCapture();
	Wishes.bPinsPointer = !Viewport.IsCursorVisible();
	const bool bLeft = Viewport.KeyState(EKeys::LeftMouseButton);
	const bool bRight = Viewport.KeyState(EKeys::RightMouseButton);
	if (!Wishes.bPinsPointer)
	{
		return Wishes;
	}
	const FEditorViewportClient* const Client = ClientOf(Viewport);
	const bool bOrbit = Client && Client->bUsingOrbitCamera;
	if (Viewport.KeyState(EKeys::MiddleMouseButton) || (bLeft && bRight))
	{
		Wishes.Cursor = EViewportCursor::Shift;
	}
	else if (bRight && bOrbit)
	{
		Wishes.Cursor = EViewportCursor::Nearer;
	}
	else if (bLeft || bRight)
	{
		Wishes.Cursor = EViewportCursor::Turn;
	}
	return Wishes;
}

FSceneView ViewOf(const FSceneViewport& Viewport)
{
	FSceneView Result;
	if (FEditorViewportClient* const Client = ClientOf(Viewport))
	{
		FSceneViewFamily Family;
		const TUniquePtr<FSceneView> View(Client->CalcSceneView(&Family));
		Result = *View;
		Result.Family = nullptr;
		Result.ViewSize = Viewport.GetSizeXY();
	}
	return Result;
}
} // namespace Host
