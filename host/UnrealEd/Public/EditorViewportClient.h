// SPDX-License-Identifier: MIT
// Camera, input and clock of an editor viewport.
#pragma once

#include "CoreMinimal.h"
#include "EditorComponents.h"
#include "Engine/EngineBaseTypes.h"
#include "ShowFlags.h"
#include "UnrealClient.h"

class FEditorModeTools;
class FPreviewScene;
class FSceneView;
class FSceneViewFamily;
class SEditorViewport;
class SWidget;

/** Where a viewport looks from, and where to. */
struct FViewportCameraTransform
{
	/** Moves at once, and ends a move that is under way. */
	void SetLocation(const FVector& Position);
	void SetRotation(const FRotator& Rotation) { ViewRotation = Rotation; }
	/** The point that an orbit turns around. */
	void SetLookAt(const FVector& InLookAt) { LookAt = InLookAt; }
	/** cm across the width of a parallel view. */
	void SetOrthoZoom(double InOrthoZoom) { OrthoZoom = InOrthoZoom; }

	const FVector& GetLocation() const { return ViewLocation; }
	const FRotator& GetRotation() const { return ViewRotation; }
	const FVector& GetLookAt() const { return LookAt; }
	double GetOrthoZoom() const { return OrthoZoom; }

	/** Moves to a place, at once or over a quarter of a second of the application's clock. */
	void TransitionToLocation(const FVector& InDesiredLocation, TWeakPtr<SWidget> EditorViewportWidget, bool bInstant);
	/** Takes the place that the clock says; true while a move is under way. */
	bool UpdateTransition();
	bool IsPlaying() const { return bInTransition; }

private:
	FVector ViewLocation = FVector(0.0, 0.0, 0.0);
	FRotator ViewRotation = FRotator(0.0, 0.0, 0.0);
	FVector LookAt = FVector(0.0, 0.0, 0.0);
	double OrthoZoom = 10000.0;
	FVector StartLocation = FVector(0.0, 0.0, 0.0);
	FVector DesiredLocation = FVector(0.0, 0.0, 0.0);
	double StartTime = 0.0;
	bool bInTransition = false;
};

/**
 * Fills a viewport with a preview scene, and turns keys and mouse moves into camera moves: the left button turns around
 * the point looked at, the middle one shifts, the right one and the wheel move nearer and farther.
 *
 * The preview scene is not owned and must outlive the client.
 */
class FEditorViewportClient : public FViewportClient
{
public:
	explicit FEditorViewportClient(FEditorModeTools* InModeTools, FPreviewScene* InPreviewScene = nullptr,
		const TWeakPtr<SEditorViewport>& InEditorViewportWidget = nullptr);
	virtual ~FEditorViewportClient() override;

	FEditorViewportClient(const FEditorViewportClient&) = delete;
	FEditorViewportClient& operator=(const FEditorViewportClient&) = delete;

	/** Called by the editor each frame. */
	virtual void Tick(float DeltaSeconds);
	/** Makes the view, then calls the two below. */
	virtual void Draw(FViewport* InViewport, FCanvas* Canvas) override;
	/** Lines into the view. */
	virtual void Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI);
	/** What stands flat in front of the view. */
	virtual void DrawCanvas(FViewport& InViewport, FSceneView& View, FCanvas& Canvas);
	/** The view at this moment, owned by the caller; fills the family, which must outlive it. */
	virtual FSceneView* CalcSceneView(FSceneViewFamily* ViewFamily, const int32 StereoViewIndex = INDEX_NONE);

	virtual bool InputKey(const FInputKeyEventArgs& EventArgs) override;
	virtual bool InputAxis(FViewport* InViewport, FInputDeviceId DeviceID, FKey Key, float Delta, float DeltaTime,
		int32 NumSamples = 1, bool bGamepad = false) override;
	/** A click that was no drag. `HitProxy` is null over nothing. */
	virtual void ProcessClick(
		FSceneView& View, HHitProxy* HitProxy, FKey Key, EInputEvent Event, uint32 HitX, uint32 HitY);

	virtual UWorld* GetWorld() const override;
	void Invalidate(bool bInvalidateChildViews = true, bool bInvalidateHitProxies = true);

	/**
	 * Moves back along the view's direction until the sphere around the box fits into the view, at least one of radius
	 * 10 cm; the middle of the box becomes the point looked at.
	 *
	 * @param bInstant  false moves over a quarter of a second
	 */
	void FocusViewportOnBox(const FBox& BoundingBox, bool bInstant = false);

	FViewportCameraTransform& GetViewTransform();
	const FViewportCameraTransform& GetViewTransform() const;
	void SetViewLocation(const FVector& NewLocation) { GetViewTransform().SetLocation(NewLocation); }
	void SetViewRotation(const FRotator& NewRotation) { GetViewTransform().SetRotation(NewRotation); }
	void SetLookAtLocation(const FVector& LookAt) { GetViewTransform().SetLookAt(LookAt); }
	const FVector& GetViewLocation() const { return GetViewTransform().GetLocation(); }
	const FRotator& GetViewRotation() const { return GetViewTransform().GetRotation(); }
	const FVector& GetLookAtLocation() const { return GetViewTransform().GetLookAt(); }

	bool IsPerspective() const { return ViewportType == LVT_Perspective; }
	bool IsOrtho() const { return !IsPerspective(); }
	ELevelViewportType GetViewportType() const { return ViewportType; }
	virtual void SetViewportType(ELevelViewportType InViewportType);
	EViewModeIndex GetViewMode() const { return ViewMode; }
	virtual void SetViewMode(EViewModeIndex InViewModeIndex);
	bool IsRealtime() const { return bIsRealtime; }
	void SetRealtime(bool bInRealtime) { bIsRealtime = bInRealtime; }

	/** Negative switches the override off. */
	void OverrideNearClipPlane(float InNearPlane) { NearPlane = InNearPlane; }
	/** cm. */
	float GetNearClipPlane() const;
	/** What makes the picture look finished: all on or all off. */
	void SetAdvancedShowFlagsForScene(const bool bAdvancedShowFlags);
	/** Switches the grid. */
	void SetShowGrid();
	bool IsSetShowGridChecked() const { return EngineShowFlags.Grid; }

	/** Not owned; null before the widget gives one. */
	FViewport* Viewport = nullptr;
	FEngineShowFlags EngineShowFlags = FEngineShowFlags(ESFIM_Editor);
	FEditorCommonDrawHelper DrawHelper;
	bool bUsingOrbitCamera = false;
	bool bDisableInput = false;
	ELevelViewportType ViewportType = LVT_Perspective;
	FViewportCameraTransform ViewTransformPerspective;
	FViewportCameraTransform ViewTransformOrthographic;
	/** Horizontal, degrees. */
	float ViewFOV = 90.0f;
	/** Width by height while no viewport tells it. */
	float AspectRatio = 16.0f / 9.0f;

protected:
	FPreviewScene* PreviewScene;
	TSharedPtr<FEditorModeTools> ModeTools;
	TWeakPtr<SEditorViewport> EditorViewportWidget;

private:
	float GetAspect() const;
	void TurnAroundLookAt(float Yaw, float Pitch);
	void Shift(float Right, float Up);
	void MoveNearer(float Steps);

	EViewModeIndex ViewMode = VMI_Lit;
	bool bIsRealtime = false;
	float NearPlane = -1.0f;
};
