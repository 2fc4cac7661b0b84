// SPDX-License-Identifier: MIT
#include "EditorViewportClient.h"

#include "CanvasTypes.h"
#include "Editor.h"
#include "EditorModeManager.h"
#include "Engine/World.h"
#include "Host/HitTester.h"
#include "Host/Scene.h"
#include "Host/ViewPainter.h"
#include "Host/ViewportState.h"
#include "PreviewScene.h"
#include "SEditorViewport.h"
#include "SceneView.h"
#include "Templates/UniquePtr.h"
#include "ViewDrawing.h"

namespace
{
constexpr float DefaultNearPlane = 10.0f; // cm

Host::IViewPainter* Painter = nullptr;

/** Direction of looking of each parallel view; above, X points up and Y to the right. */
FRotator RotationOf(ELevelViewportType Type)
{
	switch (Type)
	{
		case LVT_OrthoTop:
			return FRotator(-90.0, 0.0, 0.0);
		case LVT_OrthoBottom:
			return FRotator(90.0, 0.0, 0.0);
		case LVT_OrthoLeft:
			return FRotator(0.0, 90.0, 0.0);
		case LVT_OrthoRight:
			return FRotator(0.0, -90.0, 0.0);
		case LVT_OrthoFront:
			return FRotator(0.0, 180.0, 0.0);
		default:
			return FRotator(0.0, 0.0, 0.0);
	}
}
} // namespace

namespace Host
{
IViewPainter* SetViewPainter(IViewPainter* NewPainter)
{
	IViewPainter* const Former = Painter;
	Painter = NewPainter;
	return Former;
}
} // namespace Host

FEditorViewportClient::FEditorViewportClient(FEditorModeTools* InModeTools, FPreviewScene* InPreviewScene,
	const TWeakPtr<SEditorViewport>& InEditorViewportWidget)
	: PreviewScene(InPreviewScene)
	, ModeTools(MakeShareable(InModeTools ? InModeTools : new FEditorModeTools()))
	, EditorViewportWidget(InEditorViewportWidget)
{
	if (GEditor)
	{
		GEditor->AddViewportClients(this);
	}
}

FEditorViewportClient::~FEditorViewportClient()
{
	if (GEditor)
	{
		GEditor->RemoveViewportClients(this);
	}
}

void FEditorViewportClient::Tick(float DeltaSeconds)
{
	const bool bMoves = GetViewTransform().IsPlaying();
	GetViewTransform().UpdateTransition();
	Fly(DeltaSeconds);
	if (bMoves)
	{
		Invalidate(false, true);
	}
}

void FEditorViewportClient::Draw(FViewport* InViewport, FCanvas* Canvas)
{
	FSceneViewFamily Family;
	const TUniquePtr<FSceneView> OwnedView(CalcSceneView(&Family));
	FSceneView& View = *OwnedView;
	View.ViewSize = InViewport->GetSizeXY();
	if (auto* const Query = dynamic_cast<Host::FHitQuery*>(Canvas->GetHitProxyConsumer()))
	{
		Query->Look(View);
		return;
	}
	Host::FViewDrawingCollector Collector(&View);
	Draw(&View, &Collector);
	DrawCanvas(*InViewport, View, *Canvas);

	FPictureKey Picture;
	Picture.Scene = Family.Scene;
	Picture.SceneRevision = Family.Scene ? static_cast<Host::FScene*>(Family.Scene)->GetRevision() : 0;
	Picture.Location = View.ViewLocation;
	Picture.Rotation = View.ViewRotation;
	Picture.Size = View.ViewSize;
	Picture.OrthoWidth = View.OrthoWidth;
	Picture.FOV = View.FOV;
	// A realtime view is drawn all the time, and mostly nothing in it has moved.
	if (Host::FViewportAccess::IsDrawingInvalidated(*InViewport) || Picture != PaintedPicture)
	{
		PaintedPicture = Picture;
		if (Painter)
		{
			Painter->Paint(*InViewport, View, Collector.Drawing);
		}
	}
}

void FEditorViewportClient::Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI)
{
	DrawHelper.Draw(View, PDI);
}

void FEditorViewportClient::DrawCanvas(FViewport&, FSceneView&, FCanvas&) {}

FSceneView* FEditorViewportClient::CalcSceneView(FSceneViewFamily* ViewFamily, const int32)
{
	ViewFamily->Scene = PreviewScene ? PreviewScene->GetScene() : nullptr;
	ViewFamily->EngineShowFlags = EngineShowFlags;
	ViewFamily->ViewMode = GetViewMode();
	FSceneView* const Result = new FSceneView();
	FSceneView& View = *Result;
	View.Family = ViewFamily;
	GetShownView(View.ViewLocation, View.ViewRotation);
	View.FOV = ViewFOV;
	View.NearClipPlane = GetNearClipPlane();
	View.bPerspective = IsPerspective();
	View.OrthoWidth = IsPerspective() ? 0.0 : GetViewTransform().GetOrthoZoom();
	View.ViewSize = Viewport ? Viewport->GetSizeXY() : FIntPoint(0, 0);
	return Result;
}

UWorld* FEditorViewportClient::GetWorld() const
{
	if (PreviewScene)
	{
		return PreviewScene->GetWorld();
	}
	return GEditor ? GEditor->GetEditorWorldContext().World() : nullptr;
}

void FEditorViewportClient::Invalidate(bool, bool bInvalidateHitProxies)
{
	if (!Viewport)
	{
		return;
	}
	if (bInvalidateHitProxies)
	{
		Viewport->Invalidate();
	}
	else
	{
		Viewport->InvalidateDisplay();
	}
}

FViewportCameraTransform& FEditorViewportClient::GetViewTransform()
{
	return IsPerspective() ? ViewTransformPerspective : ViewTransformOrthographic;
}

const FViewportCameraTransform& FEditorViewportClient::GetViewTransform() const
{
	return IsPerspective() ? ViewTransformPerspective : ViewTransformOrthographic;
}

void FEditorViewportClient::SetViewportType(ELevelViewportType InViewportType)
{
	ViewportType = InViewportType;
	if (!IsPerspective() && ViewportType != LVT_OrthoFreelook)
	{
		GetViewTransform().SetRotation(RotationOf(ViewportType));
	}
	ApplyViewMode(GetViewMode(), IsPerspective(), EngineShowFlags);
	Invalidate();
}

void FEditorViewportClient::SetViewMode(EViewModeIndex InViewModeIndex)
{
	(IsPerspective() ? PerspViewMode : OrthoViewMode) = InViewModeIndex;
	ApplyViewMode(InViewModeIndex, IsPerspective(), EngineShowFlags);
	Invalidate();
}

bool FEditorViewportClient::IsVisible() const
{
	const TSharedPtr<SEditorViewport> Widget = EditorViewportWidget.Pin();
	return !Widget.IsValid() || Widget->IsVisible();
}

bool FEditorViewportClient::IsRealtime() const
{
	return RealtimeOverrides.IsEmpty() ? bIsRealtime : RealtimeOverrides.Last().bIsRealtime;
}

void FEditorViewportClient::SetRealtime(bool bInRealtime)
{
	bIsRealtime = bInRealtime;
}

void FEditorViewportClient::AddRealtimeOverride(bool bShouldBeRealtime, FText SystemDisplayName)
{
	RealtimeOverrides.Add({SystemDisplayName, bShouldBeRealtime});
}

bool FEditorViewportClient::HasRealtimeOverride(FText SystemDisplayName) const
{
	return RealtimeOverrides.ContainsByPredicate(
		[&](const FRealtimeOverride& Override) { return Override.SystemDisplayName.EqualTo(SystemDisplayName); });
}

void FEditorViewportClient::RemoveRealtimeOverride(FText SystemDisplayName, bool bCheckMissing)
{
	for (int32 Index = RealtimeOverrides.Num() - 1; Index >= 0; --Index)
	{
		if (RealtimeOverrides[Index].SystemDisplayName.EqualTo(SystemDisplayName))
		{
			RealtimeOverrides.RemoveAt(Index);
			return;
		}
	}
	ensureMsgf(!bCheckMissing, TEXT("There is no realtime override of %s"), *SystemDisplayName.ToString());
}

float FEditorViewportClient::GetNearClipPlane() const
{
	return NearPlane < 0.0f ? DefaultNearPlane : NearPlane;
}

void FEditorViewportClient::SetAdvancedShowFlagsForScene(const bool bAdvancedShowFlags)
{
	if (bAdvancedShowFlags)
	{
		EngineShowFlags.EnableAdvancedFeatures();
	}
	else
	{
		EngineShowFlags.DisableAdvancedFeatures();
	}
	Invalidate();
}

void FEditorViewportClient::SetShowGrid()
{
	EngineShowFlags.SetGrid(!EngineShowFlags.Grid);
	Invalidate();
}
