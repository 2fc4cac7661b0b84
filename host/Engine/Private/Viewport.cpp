// SPDX-License-Identifier: MIT
#include "UnrealClient.h"

#include "CanvasTypes.h"
#include "EngineUtils.h"
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
	, Lighting(true)
	, PostProcessing(true)
	, Bloom(true)
	, AmbientOcclusion(true)
	, AntiAliasing(true)
	, DynamicShadows(true)
{
}

bool FViewportClient::InputKey(const FInputKeyEventArgs&)
{
	return false;
}

bool FViewportClient::InputAxis(FViewport*, FInputDeviceId, FKey, float, float, int32, bool)
{
	return false;
}

void FViewport::Draw(bool)
{
	// Cleared first: what the client does while it draws may ask for another picture.
	bDisplayDirty = false;
	bHitProxiesDirty = false;
	if (ViewportClient)
	{
		FCanvas Canvas(Size);
		ViewportClient->Draw(this, &Canvas);
	}
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

FReply FSceneViewport::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	KeyStateMap.Add(InKeyEvent.GetKey(), true);
	const EInputEvent Event = InKeyEvent.IsRepeat() ? IE_Repeat : IE_Pressed;
	const bool bUsed =
		ViewportClient && ViewportClient->InputKey(FInputKeyEventArgs(
							  this, static_cast<int32>(InKeyEvent.GetUserIndex()), InKeyEvent.GetKey(), Event));
	return bUsed ? FReply::Handled() : FReply::Unhandled();
}

FReply FSceneViewport::OnKeyUp(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	KeyStateMap.Add(InKeyEvent.GetKey(), false);
	const bool bUsed =
		ViewportClient && ViewportClient->InputKey(FInputKeyEventArgs(
							  this, static_cast<int32>(InKeyEvent.GetUserIndex()), InKeyEvent.GetKey(), IE_Released));
	return bUsed ? FReply::Handled() : FReply::Unhandled();
}

void FSceneViewport::SetFixedViewportSize(uint32 NewViewportSizeX, uint32 NewViewportSizeY)
{
	Size = FIntPoint(static_cast<int32>(NewViewportSizeX), static_cast<int32>(NewViewportSizeY));
	Invalidate();
}
