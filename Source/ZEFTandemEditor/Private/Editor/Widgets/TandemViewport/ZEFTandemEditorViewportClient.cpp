// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"

#include "AdvancedPreviewScene.h"
#include "AssetViewerSettings.h"
#include "Editor/IZEFTandemEditor.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/Widgets/TandemViewport/ZEFOverlayTextItem.h"
#include "Editor/ZEFPreviewScene.h"
#include "Engine/World.h"
#include "EngineAnalytics.h"
#include "IAnalyticsProviderET.h"
#include "Internationalization/Internationalization.h"
#include "ZefTandemCore.h"

#define LOCTEXT_NAMESPACE "UnrealEd"

namespace
{

constexpr float NearClipPlane = 1.0f;
constexpr float GridSize = 2048.0f;
constexpr int32 GridCells = 64;

const TCHAR* const ToggleEvent = TEXT("Editor.Usage.ZEF.Toolbar");
const TCHAR* const SetEvent = TEXT("Editor.Usage.StaticMesh.Toolbar");

void ReportUse(const TCHAR* EventName, const TCHAR* Attribute, bool bValue)
{
	if (FEngineAnalytics::IsAvailable())
	{
		FEngineAnalytics::GetProvider().RecordEvent(
			FString(EventName), FString(Attribute), bValue ? FString(TEXT("True")) : FString(TEXT("False")));
	}
}

FText Numbered(const FText& Pattern, int32 Number)
{
	return FText::Format(Pattern, FText::AsNumber(Number));
}

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
	DrawHelper.PerspectiveGridSize = GridSize;
	DrawHelper.NumCells = GridCells;
	ApplyProfile();
	UAssetViewerSettings::Get()->OnAssetViewerSettingsChanged().AddRaw(
		this, &FZEFTandemEditorViewportClient::OnAssetViewerSettingsChanged);
}

FZEFTandemEditorViewportClient::~FZEFTandemEditorViewportClient()
{
	UAssetViewerSettings::Get()->OnAssetViewerSettingsChanged().RemoveAll(this);
}

void FZEFTandemEditorViewportClient::Tick(float DeltaSeconds)
{
	FEditorViewportClient::Tick(DeltaSeconds);
	AdvancedPreviewScene->GetWorld()->Tick(LEVELTICK_All, DeltaSeconds);
}

void FZEFTandemEditorViewportClient::Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI)
{
	FEditorViewportClient::Draw(View, PDI);
}

void FZEFTandemEditorViewportClient::DrawCanvas(FViewport& InViewport, FSceneView& View, FCanvas& Canvas)
{
	const TSharedPtr<IZEFTandemEditor> Editor = EditorInstance.Pin();
	const TSharedPtr<SEditorViewport> Widget = EditorViewportWidget.Pin();
	if (!Editor.IsValid() || !Widget.IsValid())
	{
		return;
	}
	const FIntVector Garment = Editor->GetObjectStats(static_cast<int32>(ZefTandemCore::TandemObjectType::Garment));
	const FIntVector Avatar = Editor->GetObjectStats(static_cast<int32>(ZefTandemCore::TandemObjectType::Avatar));
	const FName Style(TEXT("TextBlock.ShadowedText"));
	TArray<FOverlayTextItem> Lines;
	Lines.Add(FOverlayTextItem(LOCTEXT("GarmentStart_F", "[Garment]"), Style));
	Lines.Add(
		FOverlayTextItem(Numbered(LOCTEXT("GarmentNum_F", "Number of Complete Garment:  {0}"), Garment.X), Style));
	Lines.Add(FOverlayTextItem(Numbered(LOCTEXT("GarmentTriangles_F", "Triangles:  {0}"), Garment.Y), Style));
	Lines.Add(FOverlayTextItem(Numbered(LOCTEXT("GarmentVertices_F", "Vertices:  {0}"), Garment.Z), Style));
	Lines.Add(FOverlayTextItem(FText::GetEmpty(), Style));
	Lines.Add(FOverlayTextItem(FText::GetEmpty(), Style));
	Lines.Add(FOverlayTextItem(LOCTEXT("AvatarStart_F", "[Avatar]"), Style));
	Lines.Add(FOverlayTextItem(Numbered(LOCTEXT("AvatarNum_F", "Number of Avatar:  {0}"), Avatar.X), Style));
	Lines.Add(FOverlayTextItem(Numbered(LOCTEXT("AvatarTriangles_F", "Triangles:  {0}"), Avatar.Y), Style));
	Lines.Add(FOverlayTextItem(Numbered(LOCTEXT("AvatarVertices_F", "Vertices:  {0}"), Avatar.Z), Style));
	StaticCastSharedPtr<SZEFTandemEditorViewport>(Widget)->PopulateOverlayText(Lines);
	FEditorViewportClient::DrawCanvas(InViewport, View, Canvas);
}

void FZEFTandemEditorViewportClient::OnAssetViewerSettingsChanged(const FName& PropertyName)
{
	if (PropertyName == NAME_None || PropertyName == FName(TEXT("bPostProcessingEnabled")))
	{
		ApplyProfile();
	}
	Invalidate();
}

void FZEFTandemEditorViewportClient::ApplyProfile()
{
	const TArray<FPreviewSceneProfile>& Profiles = UAssetViewerSettings::Get()->Profiles;
	const int32 Profile = AdvancedPreviewScene->GetCurrentProfileIndex();
	if (Profiles.IsValidIndex(Profile))
	{
		SetAdvancedShowFlagsForScene(Profiles[Profile].bPostProcessingEnabled);
	}
}

void FZEFTandemEditorViewportClient::ToggleDrawNormals()
{
	bDrawNormals = !bDrawNormals;
	ReportUse(ToggleEvent, TEXT("bDrawNormals"), bDrawNormals);
	Invalidate();
}

void FZEFTandemEditorViewportClient::ToggleDrawTangents()
{
	bDrawTangents = !bDrawTangents;
	ReportUse(ToggleEvent, TEXT("bDrawTangents"), bDrawTangents);
	Invalidate();
}

void FZEFTandemEditorViewportClient::ToggleDrawBinormals()
{
	bDrawBinormals = !bDrawBinormals;
	ReportUse(ToggleEvent, TEXT("bDrawBinormals"), bDrawBinormals);
	Invalidate();
}

void FZEFTandemEditorViewportClient::SetDrawNormals(bool bInDrawNormals)
{
	bDrawNormals = bInDrawNormals;
	ReportUse(SetEvent, TEXT("bDrawNormals"), bDrawNormals);
	Invalidate();
}

void FZEFTandemEditorViewportClient::SetDrawTangents(bool bInDrawTangents)
{
	bDrawTangents = bInDrawTangents;
	ReportUse(SetEvent, TEXT("bDrawTangents"), bDrawTangents);
	Invalidate();
}

void FZEFTandemEditorViewportClient::SetDrawBinormals(bool bInDrawBinormals)
{
	bDrawBinormals = bInDrawBinormals;
	ReportUse(SetEvent, TEXT("bDrawBinormals"), bDrawBinormals);
	Invalidate();
}

void FZEFTandemEditorViewportClient::ToggleGrid()
{
	SetShowGrid();
	ReportUse(ToggleEvent, TEXT("EngineShowFlags.Grid"), IsSetShowGridChecked());
}

#undef LOCTEXT_NAMESPACE
