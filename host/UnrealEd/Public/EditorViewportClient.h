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
	/**
	 * From the world to the eye of an orbit: the eye stands on the side of the rotation's back, as far from the point
	 * looked at as the location is. The inverse's origin is that eye, its rotation the one of the view.
	 */
	FMatrix ComputeOrbitMatrix() const;
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
 * Fills a viewport with a preview scene, and turns keys and mouse moves into camera moves and clicks.
 *
 * | drag          | orbit camera            | free camera                  | parallel view |
 * |---------------|-------------------------|------------------------------|---------------|
 * | left          | turns around the point  | moves level and turns        | -             |
 * | right         | nearer and farther      | turns the eye                | moves         |
 * | middle        | moves sideways          | moves sideways               | moves         |
 * | left + right  | moves sideways          | moves sideways               | zooms         |
 * | Alt + left    | as without              | turns around the point       | -             |
 * | Alt + right   | as without              | nearer and farther           | zooms         |
 *
 * The wheel moves nearer and farther. While the right button is held, W A S D move the eye level, E and Q up and down,
 * and the wheel sets how fast. A press and release without a drag between is a click.
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
	virtual bool InputChar(FViewport* InViewport, int32 ControllerId, TCHAR Character) override;
	virtual void LostFocus(FViewport* InViewport) override;
	/** F9 pressed keeps the picture as a file; true when the key was that. */
	bool InputTakeScreenshot(FViewport* InViewport, FKey Key, EInputEvent Event);
	bool IsAltPressed() const;
	bool IsCtrlPressed() const;
	bool IsShiftPressed() const;
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
	bool IsActiveViewportType(ELevelViewportType InViewportType) const { return ViewportType == InViewportType; }
	/** A parallel view looks along its axis from the side that its name tells. */
	virtual void SetViewportType(ELevelViewportType InViewportType);
	/** Of the present projection. */
	EViewModeIndex GetViewMode() const { return IsPerspective() ? PerspViewMode : OrthoViewMode; }
	virtual void SetViewMode(EViewModeIndex InViewModeIndex);
	bool IsViewModeEnabled(EViewModeIndex InViewModeIndex) const { return GetViewMode() == InViewModeIndex; }

	/** False while the widget or something around it is hidden; a client without a widget is always visible. */
	bool IsVisible() const;
	/** The override that came last, else the setting. */
	bool IsRealtime() const;
	void SetRealtime(bool bInRealtime);
	/**
	 * Takes the place of the setting until it is removed.
	 *
	 * @param SystemDisplayName  who wants it; identifies the override
	 */
	void AddRealtimeOverride(bool bShouldBeRealtime, FText SystemDisplayName);
	bool HasRealtimeOverride(FText SystemDisplayName) const;
	/** @param bCheckMissing  an override that is not there is a fault */
	void RemoveRealtimeOverride(FText SystemDisplayName, bool bCheckMissing = true);

	/** Changes between the cameras; the view stays as it is. */
	void ToggleOrbitCamera(bool bEnableOrbitCamera);
	/** 1..8. */
	int32 GetCameraSpeedSetting() const { return CameraSpeedSetting; }
	void SetCameraSpeedSetting(int32 SpeedSetting);
	/** cm per second. */
	float GetCameraSpeed() const;

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
	/** A button's press, until its release. */
	struct FMouseTracking
	{
		FKey Button;
		/** Moves held back while they may still belong to a click, pixels. */
		FVector2D HeldBack = FVector2D(0.0, 0.0);
		bool bTracking = false;
		bool bDragged = false;
		/** The release makes no click: it was a double click or came with another button. */
		bool bNoClick = false;
	};
	struct FRealtimeOverride
	{
		FText SystemDisplayName;
		bool bIsRealtime;
	};
	/** Everything of a picture that can change without an invalidation. */
	struct FPictureKey
	{
		const void* Scene = nullptr;
		uint64 SceneRevision = 0;
		FVector Location = FVector(0.0, 0.0, 0.0);
		FRotator Rotation = FRotator(0.0, 0.0, 0.0);
		FIntPoint Size = FIntPoint(0, 0);
		double OrthoWidth = 0.0;
		float FOV = 0.0f;
		bool operator==(const FPictureKey&) const = default;
	};
	enum class EDrag : uint8
	{
		None,
		Orbit,
		Look,
		Travel,
		Shift,
		Nearer,
	};

	float GetAspect() const;
	/** Where the view is seen from; of an orbit, not what the transform says. */
	void GetShownView(FVector& OutLocation, FRotator& OutRotation) const;
	/** Moves the transform to where the view is seen from. */
	void TakeShownView();

	bool InputMouseButton(const FInputKeyEventArgs& EventArgs);
	bool InputWheel(const FInputKeyEventArgs& EventArgs);
	void Click(FViewport& InViewport, const FKey& Key, EInputEvent Event);
	EDrag DragOf(const FViewport& InViewport) const;
	bool Drag(EDrag Kind, float Right, float Up);
	void TurnAroundLookAt(float Yaw, float Pitch);
	void TurnEye(float Yaw, float Pitch);
	void Travel(float Yaw, float Forward);
	void Shift(float Right, float Up);
	/** Towards the point looked at, which is never passed. */
	void MoveNearer(float Steps);
	/** With the point looked at. */
	void MoveForward(float Steps);
	bool IsFlightKey(const FKey& Key) const;
	void Fly(float DeltaSeconds);
	void MoveEye(const FVector& Offset);

	FMouseTracking Tracking;
	TArray<FRealtimeOverride> RealtimeOverrides;
	FPictureKey PaintedPicture;
	EViewModeIndex PerspViewMode = VMI_Lit;
	EViewModeIndex OrthoViewMode = VMI_BrushWireframe;
	int32 CameraSpeedSetting = 4;
	bool bIsRealtime = false;
	float NearPlane = -1.0f;
};
