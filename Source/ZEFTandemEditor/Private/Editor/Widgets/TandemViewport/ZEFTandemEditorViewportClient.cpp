// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"

#include "AdvancedPreviewScene.h"
#include "AssetViewerSettings.h"
#include "Editor/IZEFTandemEditor.h"
#include "Editor/ZEFPreviewScene.h"
#include "Engine/World.h"
#include "SEditorViewport.h"

namespace
{

constexpr float NearClipPlane = 1.0f;

} // namespace

FZEFTandemEditorViewportClient::FZEFTandemEditorViewportClient(const TSharedRef<FZEFPreviewScene>& InPreviewScene,
	const TWeakPtr<SEditorViewport>& InViewport, const TWeakPtr<IZEFTandemEditor>& InEditor)
	: FEditorViewportClient(nullptr, &InPreviewScene.Get(), InViewport)
	, EditorInstance(InEditor)
	, AdvancedPreviewScene(&InPreviewScene.Get())
{
	SetViewMode(VMI_Lit);
	OverrideNearClipPlane(NearClipPlane);
	bUsingOrbitCamera = true;
	DrawHelper.bDrawPivot = false;
	DrawHelper.bDrawWorldBox = false;
	DrawHelper.bDrawKillZ = false;
	DrawHelper.GridColorAxis = FColor(160, 160, 160);
	DrawHelper.GridColorMajor = FColor(144, 144, 144);
	DrawHelper.GridColorMinor = FColor(128, 128, 128);
	DrawHelper.PerspectiveGridSize = 2048.0f;
	DrawHelper.NumCells = 64;

	const TArray<FPreviewSceneProfile>& Profiles = UAssetViewerSettings::Get()->Profiles;
	const int32 Profile = AdvancedPreviewScene->GetCurrentProfileIndex();
	if (Profiles.IsValidIndex(Profile))
	{
		SetAdvancedShowFlagsForScene(Profiles[Profile].bPostProcessingEnabled);
	}
}

void FZEFTandemEditorViewportClient::Tick(float DeltaSeconds)
{
	FEditorViewportClient::Tick(DeltaSeconds);
	AdvancedPreviewScene->GetWorld()->Tick(LEVELTICK_All, DeltaSeconds);
}
