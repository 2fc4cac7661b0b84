// SPDX-License-Identifier: MIT
/** The one editor instance: owns the link client, the preview scene and what the preview holds. */
#pragma once

#include "AssetEditorViewportLayout.h"
#include "CoreMinimal.h"
#include "Editor/IZEFTandemEditor.h"
#include "EditorUndoClient.h"
#include "Misc/NotifyHook.h"
#include "TickableEditorObject.h"
#include "ZefTandemCore.h"
#include "ZEFTandemRecords.h"

class FEditorViewportTabContent;
class FExtender;
class FSpawnTabArgs;
class FToolBarBuilder;
class FZEFPreviewScene;
class IDetailsView;
class IToolkitHost;
class IZEFTandemTree;
class SBorder;
class SDockTab;
class SWidget;
class SWindow;
class UZEFTandemClientComponent;

class FZEFTandemEditor : public IZEFTandemEditor,
						 public FEditorUndoClient,
						 public FNotifyHook,
						 public FTickableEditorObject
{
public:
	FZEFTandemEditor();
	virtual ~FZEFTandemEditor() override;

	/** Must follow construction at once; an empty host opens the instance on its own. */
	void Initialize(const TSharedPtr<IToolkitHost>& InitToolkitHost);

	// IZEFTandemEditor
	virtual TArray<UPrimitiveComponent*> GetObjectComponents(int32 ObjectType) const override;
	virtual TSharedPtr<SZEFTandemEditorViewport> GetViewport() const override;
	virtual FIntVector GetObjectStats(int32 ObjectType) override;
	virtual UPrimitiveComponent* AddObject(int32 ObjectType, const FZEFSurfaceMesh& Mesh) override;
	virtual void RemoveObject(int32 ObjectType, UPrimitiveComponent* Component) override;
	virtual void FocusCamera() override;
	virtual TArray<UPrimitiveComponent*> GetSelectedObjects() const override { return SelectedObjects; }
	virtual void SetSelectedObjects(const TArray<UPrimitiveComponent*>& Objects, bool bUpdateViewport) override;

	// FZEFEditorToolkit
	virtual void RegisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) override;
	virtual void UnregisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) override;
	/** Notes the window that the editor stands in. */
	virtual void PostInitAssetEditor() override;
	virtual FName GetEditorName() const override;
	virtual FName GetToolkitFName() const override;
	virtual FText GetBaseToolkitName() const override;
	virtual FText GetToolkitName() const override;
	virtual FText GetToolkitToolTipText() const override;
	virtual FText GetTabSuffix() const override;
	virtual FString GetWorldCentricTabPrefix() const override;
	virtual FLinearColor GetWorldCentricTabColorScale() const override;

	// FEditorUndoClient
	virtual void PostUndo(bool bSuccess) override;
	virtual void PostRedo(bool bSuccess) override;

	// FTickableEditorObject
	virtual void Tick(float DeltaTime) override;
	virtual TStatId GetStatId() const override;

	virtual void ReservedEditorSlot() {}
	virtual void RegisterOnPostUndo(const FSimpleDelegate& Delegate);
	virtual void UnregisterOnPostUndo(const FSimpleDelegate& Delegate);

	/** Asks the user, then the garment application for everything it holds. */
	void RequestUpdate();

	/** Tells the garment application that the link is wanted, or no longer. */
	void ToggleTandem();

	bool IsTandemEnabled() const { return bTandemEnabled; }
	bool IsUnifiedMaterial() const { return bUnifiedMaterial; }
	bool IsWeld() const { return bWeld; }

	bool CanSaveAsStaticMesh() const;
	bool CanSaveAsSkeletalMesh() const;
	bool CanSaveAsGeometryCache() const;
	bool CanSaveAsAnimSequence() const;

	/** Asks for the availability flags when exactly one row is selected; called while the Save menu is built. */
	void RequestAvailability();

	static const FName ViewportTabId;
	static const FName PropertiesTabId;
	static const FName PreviewSceneSettingsTabId;
	static const FName TandemTreeTabId;
	static const FName SecondaryToolbarTabId;

	TSharedPtr<FZEFPreviewScene> GetPreviewScene() const { return PreviewScene; }
	TSharedPtr<IZEFTandemTree> GetTandemTree() const { return TandemTree; }
	UZEFTandemClientComponent* GetClient() const { return Client; }

private:
	struct FObjectStats
	{
		int32 Count = 0;
		int32 Triangles = 0;
		int32 Vertices = 0;
	};

	void BindCommands();
	void ExtendToolbar();
	void FillToolbar(FToolBarBuilder& ToolBar);
	TSharedRef<SWidget> MakeUpdateOptionsMenu();
	TSharedRef<SWidget> MakeSaveMenu();
	/** Fills the secondary tool bar from its extenders; into its tab when that is open. */
	void GenerateSecondaryToolbar();

	TSharedRef<SDockTab> SpawnViewportTab(const FSpawnTabArgs& Args);
	TSharedRef<SDockTab> SpawnPropertiesTab(const FSpawnTabArgs& Args);
	TSharedRef<SDockTab> SpawnPreviewSceneSettingsTab(const FSpawnTabArgs& Args);
	TSharedRef<SDockTab> SpawnTandemTreeTab(const FSpawnTabArgs& Args);
	TSharedRef<SDockTab> SpawnSecondaryToolbarTab(const FSpawnTabArgs& Args);
	void OnViewportLayoutChanged();

	void ToggleUnifiedMaterial();
	void ToggleWeld();

	void OnSurfaceMeshReceived(const ZefTandemCore::TandemObjectType& Type, const FZEFSurfaceMesh& Mesh);
	void OnJointAnimationReceived(const ZefTandemCore::TandemObjectType& Type, const FZEFJointAnimation& Animation);
	void OnMeshSequenceReceived(const ZefTandemCore::TandemObjectType& Type, const FZEFSurfaceMesh& Mesh,
		const TArray<FZEFMeshSequenceFrame>& Frames);
	void OnAvailabilityReceived(const ZefTandemCore::TandemAvailability& InAvailability);
	void OnConnectionChanged(bool bConnected);

	void RemoveObjectsOfType(int32 ObjectType);
	void UpdateObjectStats(int32 InObjectType, const UPrimitiveComponent* Component);
	bool IsOneRowSelectedOfType(int32 ObjectType) const;

	TSharedPtr<FZEFPreviewScene> PreviewScene;
	TSharedPtr<SWidget> PreviewSceneSettingsWidget;
	TSharedPtr<FEditorViewportTabContent> ViewportTabContent;
	TSharedPtr<IDetailsView> DetailsView;
	TSharedPtr<IZEFTandemTree> TandemTree;
	TSharedPtr<FExtender> ToolbarExtender;
	AssetEditorViewportFactoryFunction MakeViewportFunc;
	TMap<int32, TArray<UPrimitiveComponent*>> ObjectComponents; // by object type; owned by their actors
	UZEFTandemClientComponent* Client = nullptr;				// kept alive by the preview scene
	TArray<UPrimitiveComponent*> SelectedObjects;
	TMap<int32, FObjectStats> ObjectStats; // by object type
	bool bAvatarReceived = false;
	bool bGarmentReceived = false;
	bool bTandemEnabled = false;
	bool bWeld = false;
	bool bUnifiedMaterial = false;
	ZefTandemCore::TandemAvailability Availability;
	TSharedPtr<SWindow> ParentFrame;
	FSimpleMulticastDelegate OnPostUndo;
	FSimpleMulticastDelegate OnPostRedo;
	TSharedPtr<SWidget> SecondaryToolbarContent; // kept for when its tab opens
	TSharedPtr<SBorder> SecondaryToolbarBorder;	 // in the open tab
};
