// SPDX-License-Identifier: MIT
#include "UnrealClient.h"

#include "CanvasTypes.h"
#include "EngineUtils.h"
#include "Host/HitTester.h"
#include "ShowFlags.h"
#include "Slate/SceneViewport.h"
#include "Widgets/SWidget.h"

HHitProxyType* HHitProxy::StaticGetType()
{
	static HHitProxyType StaticType(nullptr, TEXT("HHitProxy"));
	return &StaticType;
}

bool HHitProxy::IsA(const HHitProxyType* TestType) const
{
	for (const HHitProxyType* Type = GetType(); Type; Type = Type->GetParent())
	{
		if (Type == TestType)
		{
			return true;
		}
	}
	return false;
}

IMPLEMENT_HIT_PROXY(HActor, HHitProxy)

FEngineShowFlags::FEngineShowFlags(EShowFlagInitMode InitMode)
	: Grid(InitMode == ESFIM_Editor)
	, Pivot(InitMode == ESFIM_Editor)
	, SelectionOutline(InitMode == ESFIM_Editor)
	, Wireframe(false)
	, Lighting(true)
	, PostProcessing(true)
	, Bloom(true)
	, AmbientOcclusion(true)
	, AntiAliasing(true)
	, DynamicShadows(true)
{
}

void ApplyViewMode(EViewModeIndex ViewModeIndex, bool, FEngineShowFlags& EngineShowFlags)
{
	EngineShowFlags.SetWireframe(ViewModeIndex == VMI_Wireframe || ViewModeIndex == VMI_BrushWireframe);
	EngineShowFlags.SetLighting(ViewModeIndex != VMI_Unlit && !EngineShowFlags.Wireframe);
}

bool FViewportClient::InputKey(const FInputKeyEventArgs&)
{
	return false;
}

bool FViewportClient::InputAxis(FViewport*, FInputDeviceId, FKey, float, float, int32, bool)
{
	return false;
}

bool FViewportClient::InputChar(FViewport*, int32, TCHAR)
{
	return false;
}

FViewport::FViewport(FViewportClient* InViewportClient)
	: ViewportClient(InViewportClient)
{
}

FViewport::~FViewport() = default;

void FViewport::Draw(bool)
{
	// Cleared first: what the client does while it draws may ask for another picture.
	bDrawingInvalidated = bDisplayDirty;
	bDisplayDirty = false;
	if (ViewportClient)
	{
		FCanvas Canvas(Size);
		ViewportClient->Draw(this, &Canvas);
	}
	bDrawingInvalidated = false;
}

void FViewport::InvalidateHitProxy()
{
	bHitProxiesDirty = true;
	HitProxy.Reset();
}

HHitProxy* FViewport::GetHitProxy(int32 X, int32 Y)
{
	const FIntPoint Point(X, Y);
	if (!ViewportClient || X < 0 || Y < 0 || X >= Size.X || Y >= Size.Y)
	{
		return nullptr;
	}
	if (bHitProxiesDirty || Point != HitProxyPoint)
	{
		HitProxy.Reset();
		Host::FHitQuery Query(Point);
		FCanvas Canvas(Size, &Query);
		ViewportClient->Draw(this, &Canvas);
		HitProxy = Query.Take();
		HitProxyPoint = Point;
		bHitProxiesDirty = false;
	}
	return HitProxy.Get();
}

FSceneViewport::FSceneViewport(FViewportClient* InViewportClient, TSharedPtr<SWidget> InViewportWidget)
	: FViewport(InViewportClient)
	, ViewportWidget(InViewportWidget)
{
}

bool FSceneViewport::KeyState(FKey Key) const
{
	const bool* const Down = KeyStateMap.Find(Key);
	return Down && *Down;
}

bool FSceneViewport::SendKey(const FKey& Key, EInputEvent Event, int32 UserIndex)
{
	KeyStateMap.Add(Key, Event != IE_Released);
	return ViewportClient && ViewportClient->InputKey(FInputKeyEventArgs(this, UserIndex, Key, Event));
}

void FSceneViewport::ApplyModifierKeys(const FModifierKeysState& Keys)
{
	const auto Apply = [this](bool bDown, const FKey& Left, const FKey& Right)
	{
		if (!bDown)
		{
			KeyStateMap.Add(Left, false);
			KeyStateMap.Add(Right, false);
		}
		else if (!KeyState(Left) && !KeyState(Right))
		{
			KeyStateMap.Add(Left, true);
		}
	};
	Apply(Keys.IsShiftDown(), EKeys::LeftShift, EKeys::RightShift);
	Apply(Keys.IsControlDown(), EKeys::LeftControl, EKeys::RightControl);
	Apply(Keys.IsAltDown(), EKeys::LeftAlt, EKeys::RightAlt);
	Apply(Keys.IsCommandDown(), EKeys::LeftCommand, EKeys::RightCommand);
}

bool FSceneViewport::SendMouseMove(const FIntPoint& Position, const FVector2D& Delta, float DeltaTime)
{
	MousePosition = Position;
	const bool bDragged =
		KeyState(EKeys::LeftMouseButton) || KeyState(EKeys::MiddleMouseButton) || KeyState(EKeys::RightMouseButton);
	if (!ViewportClient || !bDragged)
	{
		return false;
	}
	bool bUsed = false;
	if (Delta.X != 0.0)
	{
		bUsed |= ViewportClient->InputAxis(this, INPUTDEVICEID_NONE, EKeys::MouseX, float(Delta.X), DeltaTime);
	}
	if (Delta.Y != 0.0)
	{
		// The axis grows upwards, the picture's rows downwards.
		bUsed |= ViewportClient->InputAxis(this, INPUTDEVICEID_NONE, EKeys::MouseY, float(-Delta.Y), DeltaTime);
	}
	return bUsed;
}

void FSceneViewport::SetFocus(bool bInFocused)
{
	if (bFocused == bInFocused)
	{
		return;
	}
	bFocused = bInFocused;
	if (bFocused)
	{
		if (ViewportClient)
		{
			ViewportClient->ReceivedFocus(this);
		}
		return;
	}
	// Whoever has the keyboard now gets the releases: nothing may stay down here.
	KeyStateMap.Empty();
	CaptureMouse(false);
	ShowCursor(true);
	if (ViewportClient)
	{
		ViewportClient->LostFocus(this);
	}
}

FReply FSceneViewport::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	ApplyModifierKeys(InKeyEvent.GetModifierKeys());
	const bool bUsed = SendKey(InKeyEvent.GetKey(), InKeyEvent.IsRepeat() ? IE_Repeat : IE_Pressed,
		static_cast<int32>(InKeyEvent.GetUserIndex()));
	return bUsed ? FReply::Handled() : FReply::Unhandled();
}

FReply FSceneViewport::OnKeyUp(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	ApplyModifierKeys(InKeyEvent.GetModifierKeys());
	const bool bUsed = SendKey(InKeyEvent.GetKey(), IE_Released, static_cast<int32>(InKeyEvent.GetUserIndex()));
	return bUsed ? FReply::Handled() : FReply::Unhandled();
}

void FSceneViewport::SetFixedViewportSize(uint32 NewViewportSizeX, uint32 NewViewportSizeY)
{
	const FIntPoint NewSize(static_cast<int32>(NewViewportSizeX), static_cast<int32>(NewViewportSizeY));
	if (NewSize != Size)
	{
		Size = NewSize;
		Invalidate();
	}
}
