// SPDX-License-Identifier: MIT
#include "Editor/ZEFEditorToolkit.h"

#include "AssetEditorModeManager.h"
#include "CoreGlobals.h"
#include "Editor/ZEFEditorToolkitHost.h"
#include "Editor/ZEFEditorToolkitPlacement.h"
#include "Editor/ZEFExtensibilityManager.h"
#include "Engine/StaticMesh.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/LayoutService.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "IDocumentation.h"
#include "Internationalization/Internationalization.h"
#include "Styling/ISlateStyle.h"
#include "Toolkits/AssetEditorCommonCommands.h"
#include "Toolkits/GlobalEditorCommonCommands.h"
#include "Toolkits/IToolkitHost.h"
#include "Toolkits/ToolkitManager.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "ZEFEditorToolkit"

namespace
{

const TCHAR* const SharedDocumentation = TEXT("Shared/");

/** Taken over by the toolkit that opens next. */
TWeakPtr<IToolkitHost>& GetPreviousWorldCentricToolkitHostForNewEditor()
{
	static TWeakPtr<IToolkitHost> Host;
	return Host;
}

} // namespace

FZEFEditorToolkit::FZEFEditorToolkit()
{
	WorkspaceMenuCategory = FWorkspaceItem::NewGroup(LOCTEXT("WorkspaceMenu_BaseZEFEditor", "ZEF Editor"));
}

FZEFEditorToolkit::~FZEFEditorToolkit() = default;

void FZEFEditorToolkit::InitAssetEditor(const TSharedPtr<IToolkitHost>& Host, FName AppIdentifier,
	const TSharedRef<FTabManager::FLayout>& Layout, bool bCreateDefaultStandaloneMenu, bool bCreateDefaultToolbar,
	bool bInIsToolbarFocusable, bool bUseSmallToolbarIcons)
{
	bIsToolbarFocusable = bInIsToolbarFocusable;
	bIsToolbarUsingSmallIcons = bUseSmallToolbarIcons;
	PreviousWorldCentricToolkitHost = GetPreviousWorldCentricToolkitHostForNewEditor();
	GetPreviousWorldCentricToolkitHostForNewEditor().Reset();
	check(AppIdentifier != NAME_None);

	ToolkitMode = Host.IsValid() ? EToolkitMode::WorldCentric : EToolkitMode::Standalone;
	CreateEditorModeManager();
	TSharedPtr<SDockTab> MajorTab;
	TSharedPtr<SZEFEditorToolkitHost> NewHost;
	if (IsWorldCentricAssetEditor())
	{
		TabManager = Host->GetTabManager();
		ToolkitHost = Host;
	}
	else
	{
		TabManager = OpenStandaloneTab(MajorTab);
		NewHost = SNew(SZEFEditorToolkitHost, TabManager, AppIdentifier);
		StandaloneHost = NewHost;
		ToolkitHost = NewHost;
	}
	FToolkitManager::Get().RegisterNewToolkit(SharedThis(this));
	MapCommands();

	UStaticMesh* const Dummy = NewObject<UStaticMesh>(GetTransientPackage(), FName(TEXT("Dummy")), RF_Transient);
	const TArray<UObject*> Objects = {Dummy};
	if (NewHost.IsValid())
	{
		AddMenuExtender(GetSharedMenuExtensibilityManager()->GetAllExtenders(ToolkitCommands, Objects));
		NewHost->SetupInitialContent(
			FLayoutSaveRestore::LoadFromConfig(GEditorLayoutIni, Layout), MajorTab, bCreateDefaultStandaloneMenu);
	}
	AddToolbarExtender(GetSharedToolBarExtensibilityManager()->GetAllExtenders(ToolkitCommands, Objects));
	if (bCreateDefaultToolbar)
	{
		GenerateToolbar();
	}
	else
	{
		Toolbar = SNullWidget::NullWidget;
	}
	EditorModeManager->SetToolkitHost(GetToolkitHost());
	PostInitAssetEditor();
}

TSharedRef<FTabManager> FZEFEditorToolkit::OpenStandaloneTab(TSharedPtr<SDockTab>& OutTab)
{
	const TSharedRef<SDockTab> Tab = SNew(SDockTab)
										 .TabRole(ETabRole::MajorTab)
										 .ContentPadding(FMargin(0.0f))
										 .Label(TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateSP(
											 this, &FZEFEditorToolkit::GetToolkitName)))
										 .Icon(GetDefaultTabIcon());
	Tab->SetToolTipText(TAttribute<FText>::Create(
		TAttribute<FText>::FGetter::CreateSP(this, &FZEFEditorToolkit::GetToolkitToolTipText)));
	OutTab = Tab;

	const TSharedRef<FTabManager> NewTabManager = FGlobalTabmanager::Get()->NewTabManager(Tab);
	NewTabManager->SetOnPersistLayout(
		FTabManager::FOnPersistLayout::CreateSP(this, &FZEFEditorToolkit::HandleTabManagerPersistLayout));
	NewTabManager->SetAllowWindowMenuBar(true);
	ZEFEditorToolkitPlacement::InsertMajorTab(Tab);
	return NewTabManager;
}

void FZEFEditorToolkit::MapCommands()
{
	FGlobalEditorCommonCommands::MapActions(ToolkitCommands);
	const FAssetEditorCommonCommands& Commands = FAssetEditorCommonCommands::Get();
	ToolkitCommands->MapAction(FGlobalEditorCommonCommands::Get().OpenDocumentation,
		FExecuteAction::CreateSP(this, &FZEFEditorToolkit::BrowseDocumentation_Execute));
	const TWeakPtr<FZEFEditorToolkit> WeakThis = SharedThis(this);
	if (IsWorldCentricAssetEditor())
	{
		ToolkitCommands->MapAction(Commands.SwitchToStandaloneEditor,
			FExecuteAction::CreateStatic(&FZEFEditorToolkit::SwitchToStandaloneEditor_Execute, WeakThis));
	}
	else if (PreviousWorldCentricToolkitHost.IsValid())
	{
		ToolkitCommands->MapAction(Commands.SwitchToWorldCentricEditor,
			FExecuteAction::CreateStatic(&FZEFEditorToolkit::SwitchToWorldCentricEditor_Execute, WeakThis));
	}
}

FName FZEFEditorToolkit::GetEditorName() const
{
	return GetToolkitFName();
}

void FZEFEditorToolkit::FocusWindow(UObject* /*ObjectToFocusOn*/)
{
	BringToolkitToFront();
}

bool FZEFEditorToolkit::CloseWindow(EAssetEditorCloseReason /*InCloseReason*/)
{
	return CloseWindow();
}

bool FZEFEditorToolkit::CloseWindow()
{
	if (OnRequestClose())
	{
		OnClose();
		FToolkitManager::Get().CloseToolkit(AsShared());
	}
	return true;
}

void FZEFEditorToolkit::InvokeTab(const FTabId& TabId)
{
	if (TabManager.IsValid())
	{
		TabManager->TryInvokeTab(TabId);
	}
}

TSharedPtr<FTabManager> FZEFEditorToolkit::GetAssociatedTabManager()
{
	return TabManager;
}

double FZEFEditorToolkit::GetLastActivationTime()
{
	const TSharedPtr<SDockTab> OwnerTab = TabManager.IsValid() ? TabManager->GetOwnerTab() : nullptr;
	return OwnerTab.IsValid() ? OwnerTab->GetLastActivationTime() : 0.0;
}

void FZEFEditorToolkit::RemoveEditingAsset(UObject* /*Asset*/) {}

void FZEFEditorToolkit::OnToolkitHostingStarted(const TSharedRef<IToolkit>& /*Toolkit*/) {}

void FZEFEditorToolkit::OnToolkitHostingFinished(const TSharedRef<IToolkit>& /*Toolkit*/) {}

void FZEFEditorToolkit::AddViewportOverlayWidget(TSharedRef<SWidget> /*InOverlaidWidget*/) {}

void FZEFEditorToolkit::RemoveViewportOverlayWidget(TSharedRef<SWidget> /*InOverlaidWidget*/) {}

void FZEFEditorToolkit::PostInitAssetEditor() {}

void FZEFEditorToolkit::BrowseDocumentation_Execute() const
{
	const FString Link = GetDocumentationLink();
	IDocumentation::Get()->Open(Link.StartsWith(SharedDocumentation) ? Link : SharedDocumentation + Link);
}

FString FZEFEditorToolkit::GetDocumentationLink() const
{
	return TEXT("%ROOT%");
}

bool FZEFEditorToolkit::ShouldPromptForNewFilesOnReload(const UObject& /*EditingObject*/) const
{
	return true;
}

bool FZEFEditorToolkit::OnRequestClose()
{
	return true;
}

void FZEFEditorToolkit::OnClose() {}

FText FZEFEditorToolkit::GetToolkitName() const
{
	return GetBaseToolkitName();
}

FText FZEFEditorToolkit::GetToolkitToolTipText() const
{
	return GetBaseToolkitName();
}

void FZEFEditorToolkit::RegisterTabSpawners(const TSharedRef<FTabManager>& InTabManager)
{
	const TSharedRef<FWorkspaceItem> Root = InTabManager->GetLocalWorkspaceMenuRoot();
	const TArray<TSharedRef<FWorkspaceItem>>& Categories = Root->GetChildItems();
	WorkspaceMenuCategory = Categories.IsEmpty() ? Root : Categories[0];
}

void FZEFEditorToolkit::UnregisterTabSpawners(const TSharedRef<FTabManager>& /*InTabManager*/) {}

FEditorModeTools& FZEFEditorToolkit::GetEditorModeManager() const
{
	check(EditorModeManager.IsValid());
	return *EditorModeManager;
}

void FZEFEditorToolkit::CreateEditorModeManager()
{
	EditorModeManager = MakeShared<FAssetEditorModeManager>();
}

void FZEFEditorToolkit::RestoreFromLayout(const TSharedRef<FTabManager::FLayout>& NewLayout)
{
	if (const TSharedPtr<SZEFEditorToolkitHost> Host = StandaloneHost.Pin())
	{
		TabManager->SavePersistentLayout();
		Host->RestoreFromLayout(FLayoutSaveRestore::LoadFromConfig(GEditorLayoutIni, NewLayout));
	}
}

void FZEFEditorToolkit::HandleTabManagerPersistLayout(const TSharedRef<FTabManager::FLayout>& LayoutToSave)
{
	FLayoutSaveRestore::SaveToConfig(GEditorLayoutIni, LayoutToSave);
}

void FZEFEditorToolkit::SwitchToStandaloneEditor_Execute(TWeakPtr<FZEFEditorToolkit> ThisToolkitWeakRef)
{
	const TSharedPtr<FZEFEditorToolkit> ThisToolkit = ThisToolkitWeakRef.Pin();
	check(ThisToolkit->IsWorldCentricAssetEditor());
	SetPreviousWorldCentricToolkitHostForNewAssetEditor(ThisToolkit->GetToolkitHost());
	ThisToolkit->CloseWindow();
}

void FZEFEditorToolkit::SwitchToWorldCentricEditor_Execute(TWeakPtr<FZEFEditorToolkit> ThisToolkitWeakRef)
{
	const TSharedPtr<FZEFEditorToolkit> ThisToolkit = ThisToolkitWeakRef.Pin();
	check(!ThisToolkit->IsWorldCentricAssetEditor());
	ThisToolkit->CloseWindow();
}

void FZEFEditorToolkit::SetPreviousWorldCentricToolkitHostForNewAssetEditor(TSharedRef<IToolkitHost> ToolkitHost)
{
	GetPreviousWorldCentricToolkitHostForNewEditor() = ToolkitHost;
}

TSharedPtr<FZEFExtensibilityManager> FZEFEditorToolkit::GetSharedMenuExtensibilityManager()
{
	static const TSharedPtr<FZEFExtensibilityManager> Manager = MakeShared<FZEFExtensibilityManager>();
	return Manager;
}

TSharedPtr<FZEFExtensibilityManager> FZEFEditorToolkit::GetSharedToolBarExtensibilityManager()
{
	static const TSharedPtr<FZEFExtensibilityManager> Manager = MakeShared<FZEFExtensibilityManager>();
	return Manager;
}

FText FZEFEditorToolkit::GetLabelForObject(const UObject* InObject)
{
	return FText::FromString(InObject->GetName());
}

FText FZEFEditorToolkit::GetToolTipTextForObject(const UObject* InObject)
{
	return FText::FromString(InObject->GetPathName());
}

#undef LOCTEXT_NAMESPACE
