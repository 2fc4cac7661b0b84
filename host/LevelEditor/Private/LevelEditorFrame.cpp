// SPDX-License-Identifier: MIT

#include "Host/LevelEditorFrame.h"

#include "CoreGlobals.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/LayoutService.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Host/Docking.h"
#include "IDocumentation.h"
#include "Input/Events.h"
#include "Internationalization/Internationalization.h"
#include "LevelEditorCommands.h"
#include "LevelEditorMenus.h"
#include "Misc/MessageDialog.h"
#include "Misc/Paths.h"
#include "SStartPage.h"
#include "StatusBarSubsystem.h"
#include "Styling/AppStyle.h"
#include "Toolkits/GlobalEditorCommonCommands.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"

#define LOCTEXT_NAMESPACE "LevelEditor"

namespace Host
{
namespace
{
const FName LevelEditorTabId(TEXT("LevelEditor"));
const FName ContentBrowserTabId(TEXT("ContentBrowserTab1"));

TWeakPtr<FLevelEditorFrame>& CurrentFrame()
{
	static TWeakPtr<FLevelEditorFrame> Frame;
	return Frame;
}

/** What fills the level editor's tab; keys that nothing inside it wants run the frame's commands. */
class SLevelEditorContent : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SLevelEditorContent) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<FUICommandList>& InCommands)
	{
		Commands = InCommands;
		ChildSlot[InArgs._Content.Widget];
	}
	bool SupportsKeyboardFocus() const override { return true; }
	FReply OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent) override
	{
		const TSharedRef<SWidget> KeepAlive = AsShared();
		return Commands->ProcessCommandBindings(InKeyEvent) ? FReply::Handled() : FReply::Unhandled();
	}

private:
	TSharedPtr<FUICommandList> Commands;
};

/** Editors dock beside the level editor, or open in a window of their own. */
TSharedRef<FTabManager::FLayout> DefaultGlobalLayout()
{
	return FTabManager::NewLayout("UnrealEd_Layout_v1.0")
		->AddArea(FTabManager::NewPrimaryArea()->Split(FTabManager::NewStack()
														   ->SetHideTabWell(true)
														   ->AddTab(LevelEditorTabId, ETabState::OpenedTab)
														   ->AddTab("DockedToolkit", ETabState::ClosedTab)
														   ->SetForegroundTab(FTabId(LevelEditorTabId))))
		->AddArea(FTabManager::NewArea(1400.0f, 850.0f)
					  ->Split(FTabManager::NewStack()->AddTab("StandaloneToolkit", ETabState::ClosedTab)));
}

TSharedRef<FTabManager::FLayout> DefaultLevelEditorLayout()
{
	return FTabManager::NewLayout("LevelEditor_Layout_v1.0")
		->AddArea(FTabManager::NewPrimaryArea()->Split(
			FTabManager::NewStack()->AddTab(ContentBrowserTabId, ETabState::OpenedTab)));
}

void SaveLayout(const TSharedRef<FTabManager::FLayout>& Layout)
{
	FLayoutSaveRestore::SaveToConfig(GEditorLayoutIni, Layout);
}

FText MakeTitle()
{
	const FString Project = FPaths::GetPathLeaf(FPaths::ProjectDir());
	return Project.IsEmpty() ? LOCTEXT("TitleWithoutProject", "Level Editor")
							 : FText::Format(LOCTEXT("Title", "{0} - Level Editor"), FText::FromString(Project));
}
} // namespace

TSharedRef<FLevelEditorFrame> FLevelEditorFrame::Open()
{
	checkf(!Get().IsValid(), TEXT("The level editor's frame is open already"));
	const TSharedRef<FLevelEditorFrame> Frame = MakeShareable(new FLevelEditorFrame());
	CurrentFrame() = Frame;
	Frame->Construct();
	return Frame;
}

TSharedPtr<FLevelEditorFrame> FLevelEditorFrame::Get()
{
	const TSharedPtr<FLevelEditorFrame> Frame = CurrentFrame().Pin();
	return Frame.IsValid() && Frame->IsOpen() ? Frame : nullptr;
}

FLevelEditorFrame::FLevelEditorFrame()
	: Commands(MakeShared<FUICommandList>())
{
}

FLevelEditorFrame::~FLevelEditorFrame()
{
	if (const TSharedPtr<SWindow> Open = Window)
	{
		// The window's delegate no longer reaches an object that is dying.
		Open->RequestDestroyWindow();
		HandleWindowClosed(Open.ToSharedRef());
	}
}

void FLevelEditorFrame::Construct()
{
	FLevelEditorFrameCommands::Register();
	MapCommands();
	LevelEditorMenus::Register();
	RegisterTabs();
	Window = SNew(SWindow).Title(MakeTitle()).ClientSize(FVector2D(1600.0, 900.0));
	Window->SetOnWindowClosed(FOnWindowClosed::CreateSP(this, &FLevelEditorFrame::HandleWindowClosed));
	FSlateApplication::Get().AddWindow(Window.ToSharedRef());
	FGlobalTabmanager::Get()->SetRootWindow(Window.ToSharedRef());
	FGlobalTabmanager::Get()->SetOnPersistLayout(FTabManager::FOnPersistLayout::CreateStatic(&SaveLayout));
	Restore(FLayoutSaveRestore::LoadFromConfig(GEditorLayoutIni, DefaultGlobalLayout()));
}

void FLevelEditorFrame::MapCommands()
{
	const FLevelEditorFrameCommands& Own = FLevelEditorFrameCommands::Get();
	Commands->MapAction(Own.Exit, FExecuteAction::CreateSP(this, &FLevelEditorFrame::Close));
	Commands->MapAction(Own.LoadDefaultLayout, FExecuteAction::CreateSP(this, &FLevelEditorFrame::LoadDefaultLayout));
	FGlobalEditorCommonCommands::MapActions(Commands);
	Commands->MapAction(FGlobalEditorCommonCommands::Get().OpenDocumentation,
		FExecuteAction::CreateLambda([] { IDocumentation::Get()->Open(TEXT("%ROOT%")); }));
	const FGenericCommands& Generic = FGenericCommands::Get();
	Commands->MapAction(Generic.Undo, FExecuteAction::CreateLambda([] { GEditor->UndoTransaction(); }));
	Commands->MapAction(Generic.Redo, FExecuteAction::CreateLambda([] { GEditor->RedoTransaction(); }));
}

void FLevelEditorFrame::RegisterTabs()
{
	const FSlateIcon Icon(FAppStyle::GetAppStyleSetName(), "LevelEditor.Tab");
	FGlobalTabmanager::Get()
		->RegisterTabSpawner(LevelEditorTabId, FOnSpawnTab::CreateSP(this, &FLevelEditorFrame::SpawnLevelEditor))
		.SetDisplayName(LOCTEXT("LevelEditorTab", "Level Editor"))
		.SetIcon(Icon)
		.SetAutoGenerateMenuEntry(false);
}

void FLevelEditorFrame::Restore(const TSharedRef<FTabManager::FLayout>& Layout)
{
	const TSharedRef<FGlobalTabmanager> Manager = FGlobalTabmanager::Get();
	TSharedPtr<SWidget> Area = Manager->RestoreFrom(Layout, Window);
	if (!Area.IsValid() || !Manager->FindExistingLiveTab(FTabId(LevelEditorTabId)).IsValid())
	{
		// A saved layout without the level editor leaves nothing to work in.
		Manager->CloseAllAreas();
		Area = Manager->RestoreFrom(DefaultGlobalLayout(), Window);
	}
	Window->SetContent(Area.ToSharedRef());
	if (const TSharedPtr<SDockTab> LevelEditor = Tab.Pin())
	{
		FSlateApplication::Get().SetKeyboardFocus(LevelEditor->GetContent());
	}
}

TSharedRef<SDockTab> FLevelEditorFrame::SpawnLevelEditor(const FSpawnTabArgs&)
{
	const TSharedRef<SDockTab> NewTab = SNew(SDockTab)
											.TabRole(ETabRole::MajorTab)
											.ContentPadding(FMargin(0.0f))
											.Label(LOCTEXT("LevelEditorTab", "Level Editor"))
											.Icon(FAppStyle::GetBrush("LevelEditor.Tab"))
											.CanEverClose(false);
	Tab = NewTab;
	TabManager = FGlobalTabmanager::Get()->NewTabManager(NewTab);
	TabManager->SetOnPersistLayout(FTabManager::FOnPersistLayout::CreateStatic(&SaveLayout));
	TabManager->SetAllowWindowMenuBar(true);
	TabManager
		->RegisterTabSpawner(ContentBrowserTabId, FOnSpawnTab::CreateSP(this, &FLevelEditorFrame::SpawnContentBrowser))
		.SetDisplayName(LOCTEXT("ContentBrowserTab", "Content Browser"))
		.SetIcon(FSlateIcon(FAppStyle::GetAppStyleSetName(), "ContentBrowser.TabIcon"))
		.SetGroup(TabManager->AddLocalWorkspaceMenuCategory(LOCTEXT("LevelEditorTabs", "Level Editor")));

	const TSharedRef<SWidget> MenuBar = LevelEditorMenus::MakeMenuBar(Commands, TabManager.ToSharedRef());
	TabManager->SetMenuMultiBox(StaticCastSharedRef<SMultiBoxWidget>(MenuBar)->GetMultiBox(), MenuBar);
	ToolBar = LevelEditorMenus::MakeToolBar(Commands);
	if (!StatusLine.IsValid())
	{
		StatusLine = SNew(SStatusLine);
	}
	const TSharedPtr<SWidget> Area = TabManager->RestoreFrom(
		FLayoutSaveRestore::LoadFromConfig(GEditorLayoutIni, DefaultLevelEditorLayout()), Window);
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	Column->AddSlot().AutoHeight()[ToolBar.ToSharedRef()];
	Column->AddSlot().FillHeight(1.0f)[Area.ToSharedRef()];
	Column->AddSlot().AutoHeight()[GEditor->GetEditorSubsystem<UStatusBarSubsystem>()->MakeStatusBarWidget(
		"LevelEditor.StatusBar", NewTab)];
	Column->AddSlot().AutoHeight()[StatusLine.ToSharedRef()];
	NewTab->SetContent(SNew(SLevelEditorContent, Commands)[Column]);
	return NewTab;
}

TSharedRef<SDockTab> FLevelEditorFrame::SpawnContentBrowser(const FSpawnTabArgs&)
{
	return SNew(SDockTab)
		.Label(LOCTEXT("ContentBrowserTab", "Content Browser"))
		.Icon(FAppStyle::GetBrush("ContentBrowser.TabIcon"))[SNew(SStartPage, ToolBar.ToSharedRef())];
}

TSharedPtr<SWidget> FLevelEditorFrame::GetMenuBar() const
{
	return TabManager.IsValid() ? TabManager->GetMenuWidget() : nullptr;
}

void FLevelEditorFrame::LoadDefaultLayout()
{
	const TSharedRef<FLevelEditorFrame> KeepAlive = SharedThis(this);
	const bool bOthersOpen = OpenTabs(*FGlobalTabmanager::Get()).Num() > 1;
	if (bOthersOpen && FMessageDialog::Open(EAppMsgType::YesNo,
						   LOCTEXT("DefaultLayoutQuestion", "The default layout closes all open editors. Load it?"),
						   LOCTEXT("DefaultLayoutTitle", "Load Default Layout")) != EAppReturnType::Yes)
	{
		return;
	}
	SaveLayout(DefaultLevelEditorLayout());
	TabManager->SetOnPersistLayout(FTabManager::FOnPersistLayout());
	FGlobalTabmanager::Get()->CloseAllAreas();
	Restore(DefaultGlobalLayout());
	FGlobalTabmanager::Get()->SavePersistentLayout();
}

void FLevelEditorFrame::Close()
{
	if (Window.IsValid())
	{
		Window->RequestDestroyWindow();
	}
}

void FLevelEditorFrame::HandleWindowClosed(const TSharedRef<SWindow>&)
{
	const TSharedRef<FGlobalTabmanager> Manager = FGlobalTabmanager::Get();
	Manager->SaveAllVisualState();
	Manager->SetOnPersistLayout(FTabManager::FOnPersistLayout());
	if (TabManager.IsValid())
	{
		TabManager->SetOnPersistLayout(FTabManager::FOnPersistLayout());
		TabManager->SetMenuMultiBox(nullptr, nullptr);
	}
	Manager->CloseAllAreas();
	Manager->UnregisterTabSpawner(LevelEditorTabId);
	Window.Reset();
	TabManager.Reset();
	ToolBar.Reset();
	StatusLine.Reset();
	Closed.Broadcast();
}
} // namespace Host

#undef LOCTEXT_NAMESPACE
