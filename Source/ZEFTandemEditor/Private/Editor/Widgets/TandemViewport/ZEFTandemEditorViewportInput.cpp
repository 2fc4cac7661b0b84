// SPDX-License-Identifier: MIT
// Keys, mouse moves and clicks of the preview.
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"

#include "AdvancedPreviewScene.h"
#include "Components/PrimitiveComponent.h"
#include "Editor/IZEFTandemEditor.h"
#include "EngineUtils.h"
#include "GameFramework/Actor.h"
#include "HitProxies.h"
#include "InputKeyEventArgs.h"
#include "Templates/Casts.h"
#include "UnrealClient.h"
#include "ZefTandemCore.h"

namespace
{

/** The component that was hit; null when nothing was, or when it is no component of the actor that was hit. */
UPrimitiveComponent* FindHitComponent(HHitProxy* HitProxy)
{
	if (HitProxy == nullptr || !HitProxy->IsA(HActor::StaticGetType()))
	{
		return nullptr;
	}
	const HActor* const ActorProxy = static_cast<HActor*>(HitProxy);
	if (ActorProxy->Actor == nullptr || ActorProxy->PrimComponent == nullptr)
	{
		return nullptr;
	}
	// The proxy's own pointer is to a constant component; the actor lists the same one as it may be selected.
	for (UActorComponent* const Component : ActorProxy->Actor->GetComponents())
	{
		if (Component == ActorProxy->PrimComponent)
		{
			return Cast<UPrimitiveComponent>(Component);
		}
	}
	return nullptr;
}

} // namespace

bool FZEFTandemEditorViewportClient::InputKey(const FInputKeyEventArgs& EventArgs)
{
	// All three see every key.
	bool bHandled = FEditorViewportClient::InputKey(EventArgs);
	bHandled |= InputTakeScreenshot(EventArgs.Viewport, EventArgs.Key, EventArgs.Event);
	bHandled |= AdvancedPreviewScene->HandleInputKey(EventArgs);

	const TSharedPtr<IZEFTandemEditor> Editor = EditorInstance.Pin();
	if (EventArgs.Key == EKeys::F)
	{
		Editor->FocusCamera();
	}
	else if (EventArgs.Key == EKeys::Platform_Delete)
	{
		const TArray<UPrimitiveComponent*> Selection = Editor->GetSelectedObjects();
		RemoveSelected(static_cast<int32>(ZefTandemCore::TandemObjectType::Garment), Selection);
		RemoveSelected(static_cast<int32>(ZefTandemCore::TandemObjectType::Avatar), Selection);
	}
	return bHandled;
}

void FZEFTandemEditorViewportClient::RemoveSelected(int32 ObjectType, const TArray<UPrimitiveComponent*>& Selection)
{
	const TSharedPtr<IZEFTandemEditor> Editor = EditorInstance.Pin();
	TArray<UPrimitiveComponent*> Chosen;
	for (UPrimitiveComponent* const Component : Editor->GetObjectComponents(ObjectType))
	{
		if (Selection.Contains(Component))
		{
			Chosen.Add(Component);
		}
	}
	for (UPrimitiveComponent* const Component : Chosen)
	{
		Editor->RemoveObject(ObjectType, Component);
	}
}

bool FZEFTandemEditorViewportClient::InputAxis(FViewport* InViewport, FInputDeviceId DeviceID, FKey Key, float Delta,
	float DeltaTime, int32 NumSamples, bool bGamepad)
{
	if (bDisableInput)
	{
		return true;
	}
	if (AdvancedPreviewScene->HandleViewportInput(InViewport, DeviceID, Key, Delta, DeltaTime, NumSamples, bGamepad))
	{
		Invalidate();
		return true;
	}
	return FEditorViewportClient::InputAxis(InViewport, DeviceID, Key, Delta, DeltaTime, NumSamples, bGamepad);
}

void FZEFTandemEditorViewportClient::ProcessClick(
	FSceneView& /*View*/, HHitProxy* HitProxy, FKey /*Key*/, EInputEvent /*Event*/, uint32 /*HitX*/, uint32 /*HitY*/)
{
	const bool bCtrl = Viewport->KeyState(EKeys::LeftControl) || Viewport->KeyState(EKeys::RightControl);
	const TSharedPtr<IZEFTandemEditor> Editor = EditorInstance.Pin();
	UPrimitiveComponent* const Hit = FindHitComponent(HitProxy);
	TArray<UPrimitiveComponent*> Selection = Editor->GetSelectedObjects();
	if (Hit == nullptr)
	{
		Selection.Empty();
	}
	else if (bCtrl)
	{
		if (Selection.Remove(Hit) == 0)
		{
			Selection.Add(Hit);
		}
	}
	else
	{
		Selection.Empty();
		Selection.Add(Hit);
	}
	Editor->SetSelectedObjects(Selection, true);
}
