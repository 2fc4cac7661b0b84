// SPDX-License-Identifier: MIT
#include "EditorViewportClient.h"

#include "Editor.h"
#include "EditorModeManager.h"
#include "Engine/World.h"
#include "Host/ViewPainter.h"
#include "PreviewScene.h"
#include "SEditorViewport.h"
#include "SceneView.h"
#include "Templates/UniquePtr.h"

namespace
{
constexpr float DefaultNearPlane = 10.0f;	 // cm
constexpr double SmallestFocusRadius = 10.0; // cm
constexpr float DegreesPerPixel = 0.25f;
constexpr float SteepestPitch = 89.0f; // degrees; straight up and down have no direction to turn
constexpr float NearerPerPixel = 0.01f;
constexpr float NearerPerWheelStep = 1.0f;

Host::IViewPainter* Painter = nullptr;

class FLineCollector : public FPrimitiveDrawInterface
{
public:
	using FPrimitiveDrawInterface::FPrimitiveDrawInterface;

	void DrawLine(const FVector& Start, const FVector& End, const FLinearColor& Color, uint8 DepthPriorityGroup,
		float Thickness) override
	{
		Lines.Add({Start, End, Color, static_cast<ESceneDepthPriorityGroup>(DepthPriorityGroup), Thickness});
	}

	TArray<Host::FViewLine> Lines;
};
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

void FEditorCommonDrawHelper::Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI) const
{
	if (!bDrawGrid || !View->Family->EngineShowFlags.Grid || NumCells <= 0)
	{
		return;
	}
	constexpr int32 CellsPerMajorLine = 8;
	const double Half = PerspectiveGridSize;
	const double Cell = 2.0 * Half / NumCells;
	for (int32 Index = 0; Index <= NumCells; ++Index)
	{
		const double Offset = -Half + Index * Cell;
		const bool bAxis = 2 * Index == NumCells;
		const bool bMajor = Index % CellsPerMajorLine == 0;
		const FLinearColor Color(bAxis ? GridColorAxis : bMajor ? GridColorMajor : GridColorMinor);
		const double Ground = -GridDepthBias;
		PDI->DrawLine(FVector(Offset, -Half, Ground), FVector(Offset, Half, Ground), Color, DepthPriorityGroup);
		PDI->DrawLine(FVector(-Half, Offset, Ground), FVector(Half, Offset, Ground), Color, DepthPriorityGroup);
	}
}

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

void FEditorViewportClient::Tick(float)
{
	const bool bMoves = GetViewTransform().IsPlaying();
	GetViewTransform().UpdateTransition();
	if (bMoves || bIsRealtime)
	{
		Invalidate(false, false);
	}
}

void FEditorViewportClient::Draw(FViewport* InViewport, FCanvas* Canvas)
{
	FSceneViewFamily Family;
	const TUniquePtr<FSceneView> OwnedView(CalcSceneView(&Family));
	FSceneView& View = *OwnedView;
	FLineCollector Collector(&View);
	Draw(&View, &Collector);
	DrawCanvas(*InViewport, View, *Canvas);
	if (Painter)
	{
		Painter->Paint(*InViewport, View, Collector.Lines);
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
	FSceneView* const Result = new FSceneView();
	FSceneView& View = *Result;
	View.Family = ViewFamily;
	View.ViewLocation = GetViewLocation();
	View.ViewRotation = GetViewRotation();
	View.FOV = ViewFOV;
	View.NearClipPlane = GetNearClipPlane();
	View.bPerspective = IsPerspective();
	View.ViewSize = Viewport ? Viewport->GetSizeXY() : FIntPoint(0, 0);
	return Result;
}

bool FEditorViewportClient::InputKey(const FInputKeyEventArgs& EventArgs)
{
	if (bDisableInput || EventArgs.Event == IE_Released)
	{
		return bDisableInput;
	}
	if (EventArgs.Key == EKeys::MouseScrollUp || EventArgs.Key == EKeys::MouseScrollDown)
	{
		MoveNearer(EventArgs.Key == EKeys::MouseScrollUp ? NearerPerWheelStep : -NearerPerWheelStep);
		return true;
	}
	// A mouse button begins a drag, which InputAxis carries out.
	return EventArgs.Key.IsMouseButton();
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
	if (InViewport->KeyState(EKeys::LeftMouseButton))
	{
		TurnAroundLookAt(bHorizontal ? Delta * DegreesPerPixel : 0.0f, bHorizontal ? 0.0f : Delta * DegreesPerPixel);
		return true;
	}
	if (InViewport->KeyState(EKeys::MiddleMouseButton))
	{
		Shift(bHorizontal ? -Delta : 0.0f, bHorizontal ? 0.0f : -Delta);
		return true;
	}
	if (InViewport->KeyState(EKeys::RightMouseButton))
	{
		MoveNearer(Delta * NearerPerPixel);
		return true;
	}
	return false;
}

void FEditorViewportClient::ProcessClick(FSceneView&, HHitProxy*, FKey, EInputEvent, uint32, uint32) {}

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

void FEditorViewportClient::FocusViewportOnBox(const FBox& BoundingBox, bool bInstant)
{
	FViewportCameraTransform& View = GetViewTransform();
	const FVector Center = BoundingBox.GetCenter();
	const double Radius = FMath::Max(BoundingBox.GetExtent().Size(), SmallestFocusRadius);
	View.SetLookAt(Center);
	FVector Location = Center;
	if (IsPerspective())
	{
		// The sphere touches the sides of the narrower of the two angles: Distance * sin(Angle / 2) = Radius.
		const double HalfHorizontal = FMath::DegreesToRadians(double(ViewFOV)) * 0.5;
		const double HalfVertical = FMath::Atan(FMath::Tan(HalfHorizontal) / GetAspect());
		const double Distance = Radius / FMath::Sin(FMath::Min(HalfHorizontal, HalfVertical));
		Location -= View.GetRotation().Vector() * Distance;
	}
	else
	{
		View.SetOrthoZoom(2.0 * Radius * FMath::Max(1.0, double(GetAspect())));
	}
	View.TransitionToLocation(Location, EditorViewportWidget, bInstant);
	Invalidate();
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
	Invalidate();
}

void FEditorViewportClient::SetViewMode(EViewModeIndex InViewModeIndex)
{
	ViewMode = InViewModeIndex;
	Invalidate();
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

float FEditorViewportClient::GetAspect() const
{
	const FIntPoint Size = Viewport ? Viewport->GetSizeXY() : FIntPoint(0, 0);
	return Size.X > 0 && Size.Y > 0 ? float(Size.X) / float(Size.Y) : AspectRatio;
}

void FEditorViewportClient::TurnAroundLookAt(float Yaw, float Pitch)
{
	FViewportCameraTransform& View = GetViewTransform();
	FRotator Rotation = View.GetRotation();
	Rotation.Yaw += Yaw;
	Rotation.Pitch = FMath::Clamp(Rotation.Pitch + Pitch, -double(SteepestPitch), double(SteepestPitch));
	View.SetRotation(Rotation);
	if (bUsingOrbitCamera)
	{
		const double Distance = FVector::Dist(View.GetLocation(), View.GetLookAt());
		View.SetLocation(View.GetLookAt() - Rotation.Vector() * Distance);
	}
	Invalidate();
}

void FEditorViewportClient::Shift(float Right, float Up)
{
	FViewportCameraTransform& View = GetViewTransform();
	const FQuat Rotation = View.GetRotation().Quaternion();
	const double Distance = FVector::Dist(View.GetLocation(), View.GetLookAt());
	// What lies as far away as the point looked at follows the pointer.
	const int32 Width = Viewport && Viewport->GetSizeXY().X > 0 ? Viewport->GetSizeXY().X : 1280;
	const double WidthThere = IsPerspective()
								  ? 2.0 * Distance * FMath::Tan(FMath::DegreesToRadians(double(ViewFOV)) * 0.5)
								  : View.GetOrthoZoom();
	const FVector Offset =
		(Rotation.RotateVector(FVector(0.0, 1.0, 0.0)) * Right + Rotation.RotateVector(FVector(0.0, 0.0, 1.0)) * Up) *
		(WidthThere / Width);
	View.SetLocation(View.GetLocation() + Offset);
	View.SetLookAt(View.GetLookAt() + Offset);
	Invalidate();
}

void FEditorViewportClient::MoveNearer(float Steps)
{
	// Each step takes a tenth of the way that is left, so the point looked at is never passed.
	const double Left = FMath::Pow(0.9, double(Steps));
	FViewportCameraTransform& View = GetViewTransform();
	if (IsPerspective())
	{
		View.SetLocation(View.GetLookAt() + (View.GetLocation() - View.GetLookAt()) * Left);
	}
	else
	{
		View.SetOrthoZoom(View.GetOrthoZoom() * Left);
	}
	Invalidate();
}
