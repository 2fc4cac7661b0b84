// SPDX-License-Identifier: MIT
/** Camera, clock, input and selection of the preview. */
#pragma once

#include "EditorViewportClient.h"

class FAdvancedPreviewScene;
class FZEFPreviewScene;
class IZEFTandemEditor;
class SEditorViewport;
class UPrimitiveComponent;

/**
 * A click selects the object under it, with Ctrl held it adds or removes that object; F frames the selection, Delete
 * removes the selected garments and avatars.
 *
 * The three vector toggles keep a state for the menu and draw nothing.
 */
class FZEFTandemEditorViewportClient : public FEditorViewportClient
{
public:
	FZEFTandemEditorViewportClient(const TSharedRef<FZEFPreviewScene>& InPreviewScene,
		const TWeakPtr<SEditorViewport>& InViewport, const TWeakPtr<IZEFTandemEditor>& InEditor);
	virtual ~FZEFTandemEditorViewportClient() override;

	// FEditorViewportClient
	using FEditorViewportClient::Draw;
	using FEditorViewportClient::InputAxis;
	using FEditorViewportClient::InputKey;
	virtual void Tick(float DeltaSeconds) override;
	virtual void Draw(const FSceneView* View, FPrimitiveDrawInterface* PDI) override;
	virtual void DrawCanvas(FViewport& InViewport, FSceneView& View, FCanvas& Canvas) override;
	virtual bool InputKey(const FInputKeyEventArgs& EventArgs) override;
	virtual bool InputAxis(FViewport* InViewport, FInputDeviceId DeviceID, FKey Key, float Delta, float DeltaTime,
		int32 NumSamples = 1, bool bGamepad = false) override;
	virtual void ProcessClick(
		FSceneView& View, HHitProxy* HitProxy, FKey Key, EInputEvent Event, uint32 HitX, uint32 HitY) override;

	void ToggleDrawNormals();
	void ToggleDrawTangents();
	void ToggleDrawBinormals();
	void SetDrawNormals(bool bInDrawNormals);
	void SetDrawTangents(bool bInDrawTangents);
	void SetDrawBinormals(bool bInDrawBinormals);
	bool IsDrawingNormals() const { return bDrawNormals; }
	bool IsDrawingTangents() const { return bDrawTangents; }
	bool IsDrawingBinormals() const { return bDrawBinormals; }

	/** Switches the engine's grid, and reports it. */
	void ToggleGrid();

private:
	/** Takes the selected objects of a type out of the scene. */
	void RemoveSelected(int32 ObjectType, const TArray<UPrimitiveComponent*>& Selection);
	void OnAssetViewerSettingsChanged(const FName& PropertyName);
	/** The profile's post-processing decides the advanced show flags. */
	void ApplyProfile();

	TWeakPtr<IZEFTandemEditor> EditorInstance;
	bool bDrawNormals = false;
	bool bDrawTangents = false;
	bool bDrawBinormals = false;
	FAdvancedPreviewScene* AdvancedPreviewScene; // not owned; the editor instance's
};
