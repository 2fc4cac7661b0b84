// SPDX-License-Identifier: MIT
// The tabs of the editor instance.
#include "Editor/ZEFTandemEditor.h"

#include "Editor/Widgets/TandemTree/SZEFTandemTree.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/ZEFPreviewScene.h"
#include "EditorViewportTabContent.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "IDetailsView.h"
#include "Internationalization/Internationalization.h"
#include "Styling/AppStyle.h"
#include "Textures/SlateIcon.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "ZEFTandemEditor"

namespace
{

FSlateIcon GetAppIcon(const TCHAR* StyleName)
{
	return FSlateIcon(FAppStyle::GetAppStyleSetName(), StyleName);
}

} // namespace

void FZEFTandemEditor::RegisterTabSpawners(const TSharedRef<FTabManager>& InTabManager)
{
	InTabManager->AddLocalWorkspaceMenuCategory(LOCTEXT("WorkspaceMenu_ZEFTandemEditor", "ZEF/KR Tandem Editor"));
	IZEFTandemEditor::RegisterTabSpawners(InTabManager);
	const TSharedRef<FWorkspaceItem> Category = GetWorkspaceMenuCategory();

	InTabManager->RegisterTabSpawner(ViewportTabId, FOnSpawnTab::CreateSP(this, &FZEFTandemEditor::SpawnViewportTab))
		.SetDisplayName(LOCTEXT("ViewportTab", "Viewport"))
		.SetGroup(Category)
		.SetIcon(GetAppIcon(TEXT("LevelEditor.Tabs.Viewports")));
	InTabManager->RegisterTabSpawner(
					PropertiesTabId, FOnSpawnTab::CreateSP(this, &FZEFTandemEditor::SpawnPropertiesTab))
		.SetDisplayName(LOCTEXT("PropertiesTab", "Details"))
		.SetGroup(Category)
		.SetIcon(GetAppIcon(TEXT("LevelEditor.Tabs.Details")));
	InTabManager
		->RegisterTabSpawner(
			PreviewSceneSettingsTabId, FOnSpawnTab::CreateSP(this, &FZEFTandemEditor::SpawnPreviewSceneSettingsTab))
		.SetDisplayName(LOCTEXT("PreviewSceneTab", "Preview Scene Settings"))
		.SetGroup(Category)
		.SetIcon(GetAppIcon(TEXT("LevelEditor.Tabs.Details")));
	InTabManager->RegisterTabSpawner(
					TandemTreeTabId, FOnSpawnTab::CreateSP(this, &FZEFTandemEditor::SpawnTandemTreeTab))
		.SetDisplayName(LOCTEXT("TandemTreeTab", "Tandem Tree"))
		.SetGroup(Category)
		.SetIcon(GetAppIcon(TEXT("LevelEditor.Tabs.Details")));
	InTabManager
		->RegisterTabSpawner(
			SecondaryToolbarTabId, FOnSpawnTab::CreateSP(this, &FZEFTandemEditor::SpawnSecondaryToolbarTab))
		.SetDisplayName(LOCTEXT("ToolbarTab", "Secondary Toolbar"))
		.SetGroup(Category)
		.SetIcon(GetAppIcon(TEXT("Toolbar.Icon")));

	OnRegisterTabs().Broadcast(InTabManager);
}

void FZEFTandemEditor::UnregisterTabSpawners(const TSharedRef<FTabManager>& InTabManager)
{
	InTabManager->ClearLocalWorkspaceMenuCategories();
	InTabManager->UnregisterTabSpawner(ViewportTabId);
	InTabManager->UnregisterTabSpawner(PropertiesTabId);
	InTabManager->UnregisterTabSpawner(PreviewSceneSettingsTabId);
	InTabManager->UnregisterTabSpawner(TandemTreeTabId);
	InTabManager->UnregisterTabSpawner(SecondaryToolbarTabId);
	OnUnregisterTabs().Broadcast(InTabManager);
}

TSharedRef<SDockTab> FZEFTandemEditor::SpawnViewportTab(const FSpawnTabArgs& Args)
{
	check(Args.GetTabId() == ViewportTabId);
	const TSharedRef<SDockTab> Tab = SNew(SDockTab);
	if (ViewportTabContent.IsValid())
	{
		ViewportTabContent->OnViewportTabContentLayoutChanged().RemoveAll(this);
	}
	ViewportTabContent = MakeShared<FEditorViewportTabContent>();
	ViewportTabContent->OnViewportTabContentLayoutChanged().AddRaw(this, &FZEFTandemEditor::OnViewportLayoutChanged);

	const TWeakPtr<IZEFTandemEditor> WeakThis = SharedThis(static_cast<IZEFTandemEditor*>(this));
	MakeViewportFunc = [WeakThis, Scene = PreviewScene](
						   const FAssetEditorViewportConstructionArgs&) -> TSharedRef<SAssetEditorViewport>
	{ return SNew(SZEFTandemEditorViewport, Scene, WeakThis.Pin()); };
	ViewportTabContent->Initialize(MakeViewportFunc, Tab, TEXT("ZEFTandemEditorViewport"));
	return Tab;
}

TSharedRef<SDockTab> FZEFTandemEditor::SpawnPropertiesTab(const FSpawnTabArgs& Args)
{
	check(Args.GetTabId() == PropertiesTabId);
	const TSharedRef<SDockTab> Tab =
		SNew(SDockTab).Label(LOCTEXT("ZEFTandemProperties_TabTitle", "Details"))[DetailsView.ToSharedRef()];
	Tab->SetTabIcon(FAppStyle::GetBrush("ZEFTandemEditor.Tabs.Properties"));
	return Tab;
}

TSharedRef<SDockTab> FZEFTandemEditor::SpawnPreviewSceneSettingsTab(const FSpawnTabArgs& Args)
{
	check(Args.GetTabId() == PreviewSceneSettingsTabId);
	const TSharedRef<SWidget> Content =
		PreviewSceneSettingsWidget.IsValid() ? PreviewSceneSettingsWidget.ToSharedRef() : SNullWidget::NullWidget;
	return SNew(SDockTab).Label(LOCTEXT("ZEFTandemPreviewScene_TabTitle", "Preview Scene Settings"))[Content];
}

TSharedRef<SDockTab> FZEFTandemEditor::SpawnTandemTreeTab(const FSpawnTabArgs& Args)
{
	check(Args.GetTabId() == TandemTreeTabId);
	TandemTree = SNew(SZEFTandemTree, SharedThis(static_cast<IZEFTandemEditor*>(this)));
	return SNew(SDockTab).Label(LOCTEXT("ZEFTandemTree_TabTitle", "Tandem Tree"))[TandemTree.ToSharedRef()];
}

TSharedRef<SDockTab> FZEFTandemEditor::SpawnSecondaryToolbarTab(const FSpawnTabArgs& Args)
{
	check(Args.GetTabId() == SecondaryToolbarTabId);
	const TSharedRef<SWidget> Content =
		SecondaryToolbarContent.IsValid() ? SecondaryToolbarContent.ToSharedRef() : SNullWidget::NullWidget;
	const TSharedRef<SDockTab> Tab =
		SNew(SDockTab)
			.Label(LOCTEXT("SecondaryToolbar_TabTitle", "Secondary Toolbar"))
			.ShouldAutosize(true)[SAssignNew(SecondaryToolbarBorder, SBorder)
									  .Padding(0.0f)
									  .BorderImage(FAppStyle::GetBrush("NoBorder"))[Content]];
	Tab->SetTabIcon(FAppStyle::GetBrush("LevelEditor.Tabs.Toolbar"));
	return Tab;
}

void FZEFTandemEditor::OnViewportLayoutChanged()
{
	// Panes that were made anew have drawn nothing yet.
	if (const TSharedPtr<SZEFTandemEditorViewport> Viewport = GetViewport())
	{
		Viewport->Invalidate();
	}
}

#undef LOCTEXT_NAMESPACE
