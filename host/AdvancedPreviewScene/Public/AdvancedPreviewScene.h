// SPDX-License-Identifier: MIT
// A preview scene whose light follows a profile.
#pragma once

#include "InputKeyEventArgs.h"
#include "PreviewScene.h"
#include "TickableEditorObject.h"

class FViewport;

/** L held while the mouse moves turns the light, K the sky; I, O and P switch environment, floor and post-processing.
 */
class FAdvancedPreviewScene : public FPreviewScene, public FTickableEditorObject
{
public:
	/** @param InFloorOffset  cm below the origin */
	FAdvancedPreviewScene(ConstructionValues CVS, float InFloorOffset = 0.0f);
	virtual ~FAdvancedPreviewScene() override;

	/** True when the mouse move turned something. */
	bool HandleViewportInput(FViewport* InViewport, FInputDeviceId DeviceId, FKey Key, float Delta, float DeltaTime,
		int32 NumSamples, bool bGamepad);
	/** True when the key switched something. */
	bool HandleInputKey(const FInputKeyEventArgs& EventArgs);

	int32 GetCurrentProfileIndex() const { return CurrentProfileIndex; }
	/** An index outside the profiles changes nothing. */
	void SetProfileIndex(const int32 InProfileIndex);
	void SetFloorOffset(const float InFloorOffset);
	float GetFloorOffset() const { return FloorOffset; }
	/** Yaw of the sky, degrees 0..360. */
	float GetSkyRotation() const { return SkyRotation; }

	virtual void Tick(float DeltaTime) override;
	virtual bool IsTickable() const override { return true; }
	virtual TStatId GetStatId() const override;

private:
	void ApplyProfile();
	/** Tells the scene what the profile shows around its objects. */
	void ShowSurroundings();
	void OnSettingsChanged(const FName& PropertyName);

	int32 CurrentProfileIndex = 0;
	float FloorOffset;
	float SkyRotation = 0.0f;
};
