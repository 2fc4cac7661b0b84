// SPDX-License-Identifier: MIT
/** The 3D view of the preview scene, and the factory of what stands in it. */
#pragma once

#include "Editor/Widgets/TandemViewport/ZEFOverlayTextItem.h"
#include "RHIFeatureLevel.h"
#include "SAssetEditorViewport.h"
#include "SCommonEditorViewportToolbarBase.h"

class FZEFPreviewScene;
class FZEFTandemEditorViewportClient;
class IZEFTandemEditor;
class SVerticalBox;
class UDynamicMeshComponent;
class UMaterialInterface;
class USkeletalMesh;
class USkeletalMeshComponent;

struct FPropertyChangedEvent;

namespace UE::Geometry
{
class FDynamicMesh3;
}

class SZEFTandemEditorViewport : public SAssetEditorViewport, public ICommonEditorViewportToolbarInfoProvider
{
public:
	SLATE_BEGIN_ARGS(SZEFTandemEditorViewport) {}
	SLATE_END_ARGS()

	virtual ~SZEFTandemEditorViewport() override;

	void Construct(const FArguments& InArgs, const TSharedPtr<FZEFPreviewScene>& InPreviewScene,
		const TSharedPtr<IZEFTandemEditor>& InEditor);

	/** Spawns an actor that shows the mesh; its component is movable where the preview feature level is below SM5. */
	USkeletalMeshComponent* AddSkeletalMeshComponent(USkeletalMesh* Mesh);

	/**
	 * Spawns an actor that shows a copy of the mesh; its component is static where the preview feature level is below
	 * SM5.
	 *
	 * @param Materials  by material id of the mesh's triangles
	 */
	UDynamicMeshComponent* AddDynamicMeshComponent(
		const UE::Geometry::FDynamicMesh3* Mesh, const TArray<UMaterialInterface*>& Materials);

	/** Replaces the lines over the picture. */
	void PopulateOverlayText(const TArray<FOverlayTextItem>& TextItems);

	// ICommonEditorViewportToolbarInfoProvider
	virtual TSharedRef<SEditorViewport> GetViewportWidget() override;
	virtual TSharedPtr<FExtender> GetExtenders() const override;
	virtual void OnFloatingButtonClicked() override {}

protected:
	virtual void BindCommands() override;
	virtual TSharedPtr<SWidget> MakeViewportToolbar() override;
	virtual TSharedRef<FEditorViewportClient> MakeEditorViewportClient() override;
	virtual void PopulateViewportOverlays(TSharedRef<SOverlay> Overlay) override;

private:
	void OnPreviewFeatureLevelChanged(ERHIFeatureLevel::Type NewFeatureLevel);
	void OnObjectPropertyChanged(UObject* Object, FPropertyChangedEvent& Event);

	TSharedPtr<FZEFPreviewScene> PreviewScene;
	TWeakPtr<IZEFTandemEditor> EditorInstance; // which holds this widget
	TSharedPtr<FZEFTandemEditorViewportClient> ViewportClient;
	TSharedPtr<SVerticalBox> OverlayTextBox;
	TArray<FOverlayTextItem> ShownItems;
	FDelegateHandle FeatureLevelChangedHandle;
};
