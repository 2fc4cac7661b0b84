// SPDX-License-Identifier: MIT
/** Base of the editor instance: a toolkit with tabs, menus and tool bars of its own that edits no asset. */
#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/TabManager.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "Templates/SharedPointer.h"
#include "Toolkits/BaseToolkit.h"

class FEditorModeTools;
class FExtender;
class FZEFExtensibilityManager;
class IToolkitHost;
class SWidget;
class SZEFEditorToolkitHost;
class UObject;
struct FSlateBrush;
struct FToolMenuContext;
struct FToolMenuSection;
struct FWidgetDrawerConfig;

class FZEFEditorToolkit : public IAssetEditorInstance, public FBaseToolkit, public TSharedFromThis<FZEFEditorToolkit>
{
public:
	FZEFEditorToolkit();
	virtual ~FZEFEditorToolkit() override;

	// IAssetEditorInstance
	virtual FName GetEditorName() const override;
	/** Brings the toolkit to the front, whatever the argument. */
	virtual void FocusWindow(UObject* ObjectToFocusOn = nullptr) override;
	virtual bool CloseWindow(EAssetEditorCloseReason InCloseReason) override;
	/** Closes the toolkit unless OnRequestClose refuses; true in every case. */
	virtual bool CloseWindow() override;
	virtual bool IsPrimaryEditor() const override { return true; }
	virtual void InvokeTab(const FTabId& TabId) override;
	virtual TSharedPtr<FTabManager> GetAssociatedTabManager() override;
	virtual double GetLastActivationTime() override;
	virtual void RemoveEditingAsset(UObject* Asset) override;

	/** Name of the tool bar's menu; `OutParentName` becomes that of the tool bar that it adds to. */
	virtual FName GetToolMenuToolbarName(FName& OutParentName) const;
	/** Called before a menu or tool bar is generated; an override may add to the context. */
	virtual void InitToolMenuContext(FToolMenuContext& MenuContext);
	virtual void PostRegenerateMenusAndToolbars();
	/** Another toolkit has come into this one's host, or goes from there. */
	virtual void OnToolkitHostingStarted(const TSharedRef<IToolkit>& Toolkit);
	virtual void OnToolkitHostingFinished(const TSharedRef<IToolkit>& Toolkit);
	virtual void AddViewportOverlayWidget(TSharedRef<SWidget> InOverlaidWidget);
	virtual void RemoveViewportOverlayWidget(TSharedRef<SWidget> InOverlaidWidget);
	virtual void AddGraphEditorPinActionsToContextMenu(FToolMenuSection& Section) const;
	/** Called at the end of InitAssetEditor. */
	virtual void PostInitAssetEditor();
	/** Opens GetDocumentationLink in what shows documentation, with "Shared/" in front of it. */
	virtual void BrowseDocumentation_Execute() const;
	virtual FString GetDocumentationLink() const;
	virtual bool ShouldPromptForNewFilesOnReload(const UObject& EditingObject) const;
	/** False keeps the toolkit open. */
	virtual bool OnRequestClose();
	/** Called before the toolkit goes. */
	virtual void OnClose();
	virtual const FSlateBrush* GetDefaultTabIcon() const;
	virtual FLinearColor GetDefaultTabColor() const;

	// FBaseToolkit
	virtual FText GetToolkitName() const override;
	virtual FText GetToolkitToolTipText() const override;
	virtual bool IsAssetEditor() const override { return true; }
	virtual const TArray<UObject*>* GetObjectsCurrentlyBeingEdited() const override { return nullptr; }
	/** Groups the tabs under the first category of the tab manager's Window menu, so add one before this is called. */
	virtual void RegisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) override;
	virtual void UnregisterTabSpawners(const TSharedRef<FTabManager>& InTabManager) override;
	virtual FEditorModeTools& GetEditorModeManager() const override;

	/**
	 * Opens the toolkit in a tab of its own, with the layout that the user left, or in a host.
	 *
	 * @param Host                         the host to stand in; empty for a tab of its own
	 * @param AppIdentifier                not none
	 * @param Layout                       where the tabs go at first; its name is that of the saved layout
	 * @param bCreateDefaultStandaloneMenu whether the menu is registered and filled with the usual commands
	 * @param bCreateDefaultToolbar        false for no tool bar
	 */
	void InitAssetEditor(const TSharedPtr<IToolkitHost>& Host, FName AppIdentifier,
		const TSharedRef<FTabManager::FLayout>& Layout, bool bCreateDefaultStandaloneMenu, bool bCreateDefaultToolbar,
		bool bIsToolbarFocusable, bool bUseSmallToolbarIcons);

	/** Extenders take effect with the next RegenerateMenusAndToolbars. */
	void AddMenuExtender(TSharedPtr<FExtender> Extender);
	void RemoveMenuExtender(TSharedPtr<FExtender> Extender);
	void AddToolbarExtender(TSharedPtr<FExtender> Extender);
	void RemoveToolbarExtender(TSharedPtr<FExtender> Extender);
	void AddSecondaryToolbarExtender(TSharedPtr<FExtender> Extender);

	/** Widgets behind the tool bar; they go with RegenerateMenusAndToolbars. */
	void AddToolbarWidget(TSharedRef<SWidget> Widget);
	void RemoveAllToolbarWidgets();

	/** Adds a drawer to the status bar of the host; nothing happens without a host. */
	void RegisterDrawer(FWidgetDrawerConfig&& Drawer, int32 SlotIndex = INDEX_NONE);
	/** Shows a widget over the right end of the main menu. */
	void SetMenuOverlay(TSharedRef<SWidget> Widget);

	void RegenerateMenusAndToolbars();
	/** Keeps the present layout and goes over to another one, or to what the user made of that. */
	void RestoreFromLayout(const TSharedRef<FTabManager::FLayout>& NewLayout);

	void FillDefaultFileMenuCommands(FToolMenuSection& Section);
	void FillDefaultAssetMenuCommands(FToolMenuSection& Section);
	void FillDefaultHelpMenuCommands(FToolMenuSection& Section);

	/** Name of the toolkit in the names of its menus. */
	FName GetToolMenuAppName() const;
	FName GetToolMenuName() const;
	FName GetToolMenuToolbarName() const;
	/** Context of the toolkit's menus: its commands, the extenders, and the object that leads back to it. */
	FToolMenuContext MakeToolMenuContext(const TArray<TSharedPtr<FExtender>>& Extenders);
	const TArray<TSharedPtr<FExtender>>& GetMenuExtenders() const { return MenuExtenders; }

	static FText GetLabelForObject(const UObject* InObject);
	static FText GetToolTipTextForObject(const UObject* InObject);
	static void RegisterDefaultToolBar();

	/** Both close the toolkit; who opened it opens it again at the other place. */
	static void SwitchToStandaloneEditor_Execute(TWeakPtr<FZEFEditorToolkit> ThisToolkitWeakRef);
	static void SwitchToWorldCentricEditor_Execute(TWeakPtr<FZEFEditorToolkit> ThisToolkitWeakRef);
	/** The host that the next toolkit can be switched back to. */
	static void SetPreviousWorldCentricToolkitHostForNewAssetEditor(TSharedRef<IToolkitHost> ToolkitHost);

	/** Extenders for every toolkit of this kind; made at first use, for the life of the process. */
	static TSharedPtr<FZEFExtensibilityManager> GetSharedMenuExtensibilityManager();
	static TSharedPtr<FZEFExtensibilityManager> GetSharedToolBarExtensibilityManager();

protected:
	virtual void CreateEditorModeManager() override;

	TWeakPtr<IToolkitHost> PreviousWorldCentricToolkitHost;
	TSharedPtr<FTabManager> TabManager;
	TSharedPtr<FEditorModeTools> EditorModeManager;
	TArray<TSharedPtr<FExtender>> MenuExtenders;
	TWeakPtr<SZEFEditorToolkitHost> StandaloneHost;
	TSharedPtr<SWidget> Toolbar;
	TArray<TSharedPtr<FExtender>> ToolbarExtenders;
	TArray<TSharedPtr<FExtender>> SecondaryToolbarExtenders;
	TArray<TSharedRef<SWidget>> ToolbarWidgets;
	bool bIsToolbarFocusable = false;
	bool bIsToolbarUsingSmallIcons = false;

private:
	/** @return the tab manager of the new tab */
	TSharedRef<FTabManager> OpenStandaloneTab(TSharedPtr<SDockTab>& OutTab);
	void MapCommands();
	void GenerateToolbar();
	void HandleTabManagerPersistLayout(const TSharedRef<FTabManager::FLayout>& LayoutToSave);
};
