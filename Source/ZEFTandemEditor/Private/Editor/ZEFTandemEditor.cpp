// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditor.h"

#include "DetailsViewArgs.h"
#include "Editor.h"
#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Editor/ZEFPreviewScene.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Editor/ZEFTandemProgress.h"
#include "EditorReimportHandler.h"
#include "EditorViewportTabContent.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "IDetailsView.h"
#include "Internationalization/Internationalization.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Stats/Stats.h"
#include "Styling/AppStyle.h"
#include "Subsystems/ImportSubsystem.h"
#include "Toolkits/IToolkitHost.h"
#include "UObject/Package.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SWindow.h"
#include "ZEFTandemClientComponent.h"

#define LOCTEXT_NAMESPACE "ZEFTandemEditor"

const FName FZEFTandemEditor::ViewportTabId(TEXT("ZEFTandemEditor_Viewport"));
const FName FZEFTandemEditor::PropertiesTabId(TEXT("ZEFTandemEditor_Properties"));
const FName FZEFTandemEditor::PreviewSceneSettingsTabId(TEXT("ZEFTandemEditor_PreviewScene"));
const FName FZEFTandemEditor::TandemTreeTabId(TEXT("ZEFTandemEditor_TandemTree"));
const FName FZEFTandemEditor::SecondaryToolbarTabId(TEXT("ZEFTandemEditor_SecondaryToolbar"));

namespace
{

const FString ChannelName(TEXT("Tandem"));
const FName ZEFTandemEditorAppIdentifier(TEXT("ZEFTandemEditorApp"));

TSharedRef<FTabManager::FLayout> MakeDefaultLayout()
{
	// clang-format off
	return FTabManager::NewLayout("Standalone_ZEFTandemEditor_Layout_v0.1")
		->AddArea
		(
			FTabManager::NewPrimaryArea()->SetOrientation(Orient_Vertical)
			->Split
			(
				FTabManager::NewStack()->SetSizeCoefficient(0.1f)->SetHideTabWell(true)
				->AddTab(FZEFTandemEditor::SecondaryToolbarTabId, ETabState::ClosedTab)
			)
			->Split
			(
				FTabManager::NewSplitter()->SetSizeCoefficient(0.9f)->SetOrientation(Orient_Horizontal)
				->Split
				(
					FTabManager::NewStack()->SetSizeCoefficient(0.2f)->SetHideTabWell(true)
					->AddTab(FZEFTandemEditor::TandemTreeTabId, ETabState::OpenedTab)
				)
				->Split
				(
					FTabManager::NewStack()->SetSizeCoefficient(0.6f)->SetHideTabWell(true)
					->AddTab(FZEFTandemEditor::ViewportTabId, ETabState::OpenedTab)
				)
				->Split
				(
					FTabManager::NewSplitter()->SetSizeCoefficient(0.2f)->SetOrientation(Orient_Vertical)
					->Split
					(
						FTabManager::NewStack()->SetSizeCoefficient(0.7f)
						->AddTab(FZEFTandemEditor::PreviewSceneSettingsTabId, ETabState::OpenedTab)
						->AddTab(FZEFTandemEditor::PropertiesTabId, ETabState::OpenedTab)
					)
				)
			)
		);
	// clang-format on
}

FDetailsViewArgs MakeDetailsViewArgs(FNotifyHook* NotifyHook)
{
	FDetailsViewArgs Args;
	Args.NameAreaSettings = static_cast<FDetailsViewArgs::ENameAreaSettings>(
		FDetailsViewArgs::ObjectsUseNameArea | FDetailsViewArgs::ActorsUseNameArea);
	Args.NotifyHook = NotifyHook;
	Args.ColumnWidth = 0.6f;
	return Args;
}

} // namespace

FZEFTandemEditor::FZEFTandemEditor()
	: PreviewScene(MakeShared<FZEFPreviewScene>())
	, Client(NewObject<UZEFTandemClientComponent>(
		  GetTransientPackage(), FName(TEXT("ZEFTandemClientComponent")), RF_Transient))
{
	Client->Create(ANSI_TO_TCHAR(TCHAR_TO_ANSI(*ChannelName)));
	Client->OnSurfaceMeshReceived.AddRaw(this, &FZEFTandemEditor::OnSurfaceMeshReceived);
	Client->OnJointAnimationReceived.AddRaw(this, &FZEFTandemEditor::OnJointAnimationReceived);
	Client->OnMeshSequenceReceived.AddRaw(this, &FZEFTandemEditor::OnMeshSequenceReceived);
	Client->OnAvailabilityReceived.AddRaw(this, &FZEFTandemEditor::OnAvailabilityReceived);
	Client->OnConnectionChanged.AddRaw(this, &FZEFTandemEditor::OnConnectionChanged);
	PreviewScene->AddComponent(Client, FTransform::Identity, false);
	Availability = ZefTandemCore::TandemAvailability();
}

void FZEFTandemEditor::Initialize(const TSharedPtr<IToolkitHost>& InitToolkitHost)
{
	GEditor->RegisterForUndo(this);
	BindCommands();
	// Carries the icon alone; it is never opened.
	const TSharedRef<SDockTab> IconTab = SNew(SDockTab).Icon(FAppStyle::GetBrush("LevelEditor.Tabs.Viewports"));
	FPropertyEditorModule& PropertyEditor =
		FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
	DetailsView = PropertyEditor.CreateDetailView(MakeDetailsViewArgs(this));

	InitAssetEditor(InitToolkitHost, ZEFTandemEditorAppIdentifier, MakeDefaultLayout(), true, true, true, false);
	ExtendToolbar();
	RegenerateMenusAndToolbars();
	GenerateSecondaryToolbar();

	FZEFTandemEditorModule& Module = FModuleManager::GetModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	Module.GetOnEditorCreated().Broadcast(SharedThis(static_cast<IZEFTandemEditor*>(this)));
}

FZEFTandemEditor::~FZEFTandemEditor()
{
	ParentFrame.Reset();
	SetSelectedObjects(TArray<UPrimitiveComponent*>(), false);
	ObjectComponents.Empty();
	PreviewScene->RemoveComponent(Client);
	Client->Destroy();
	if (ViewportTabContent.IsValid())
	{
		ViewportTabContent->OnViewportTabContentLayoutChanged().RemoveAll(this);
	}
	OnEditorClosed().Broadcast();
	FReimportManager::Instance()->OnPostReimport().RemoveAll(this);
	GEditor->UnregisterForUndo(this);
	if (UImportSubsystem* const Import = GEditor->GetEditorSubsystem<UImportSubsystem>())
	{
		Import->OnAssetPostImport.RemoveAll(this);
	}
}

void FZEFTandemEditor::BindCommands()
{
	FZEFTandemEditorCommands::Register();
	const FZEFTandemEditorCommands& Commands = FZEFTandemEditorCommands::Get();
	ToolkitCommands->MapAction(
		FGenericCommands::Get().Undo, FExecuteAction::CreateLambda([] { GEditor->UndoTransaction(); }));
	ToolkitCommands->MapAction(
		FGenericCommands::Get().Redo, FExecuteAction::CreateLambda([] { GEditor->RedoTransaction(); }));
	ToolkitCommands->MapAction(Commands.FocusCamera, FExecuteAction::CreateSP(this, &FZEFTandemEditor::FocusCamera));
	ToolkitCommands->MapAction(Commands.Tandem, FExecuteAction::CreateSP(this, &FZEFTandemEditor::ToggleTandem),
		FCanExecuteAction(), FIsActionChecked::CreateSP(this, &FZEFTandemEditor::IsTandemEnabled));
	ToolkitCommands->MapAction(Commands.SetUnifiedMaterial,
		FExecuteAction::CreateSP(this, &FZEFTandemEditor::ToggleUnifiedMaterial), FCanExecuteAction(),
		FIsActionChecked::CreateSP(this, &FZEFTandemEditor::IsUnifiedMaterial));
	ToolkitCommands->MapAction(Commands.Update, FExecuteAction::CreateSP(this, &FZEFTandemEditor::RequestUpdate));
	ToolkitCommands->MapAction(Commands.SaveAsStaticMesh, FExecuteAction(),
		FCanExecuteAction::CreateSP(this, &FZEFTandemEditor::CanSaveAsStaticMesh));
	ToolkitCommands->MapAction(Commands.SaveAsSkeletalMesh, FExecuteAction(),
		FCanExecuteAction::CreateSP(this, &FZEFTandemEditor::CanSaveAsSkeletalMesh));
	ToolkitCommands->MapAction(Commands.SaveAsGeometryCache, FExecuteAction(),
		FCanExecuteAction::CreateSP(this, &FZEFTandemEditor::CanSaveAsGeometryCache));
	ToolkitCommands->MapAction(Commands.SaveAsAnimSequence, FExecuteAction(),
		FCanExecuteAction::CreateSP(this, &FZEFTandemEditor::CanSaveAsAnimSequence));
}

void FZEFTandemEditor::PostInitAssetEditor()
{
	ParentFrame = FSlateApplication::Get().FindWidgetWindow(GetToolkitHost()->GetParentWidget());
	GetZEFTandemParentFrame() = ParentFrame;
}

FName FZEFTandemEditor::GetEditorName() const
{
	return FName(TEXT("ZEFTandemEditor"));
}

FName FZEFTandemEditor::GetToolkitFName() const
{
	return FName(TEXT("ZEFTandemEditor"));
}

FText FZEFTandemEditor::GetBaseToolkitName() const
{
	return LOCTEXT("AppLabel", "ZEFTandem Editor");
}

FText FZEFTandemEditor::GetToolkitName() const
{
	return FText::FromString(TEXT("ZEF/KR Tandem Editor"));
}

FText FZEFTandemEditor::GetToolkitToolTipText() const
{
	return FText::FromString(TEXT("ZEF/KR Tandem Editor"));
}

FText FZEFTandemEditor::GetTabSuffix() const
{
	return FText::GetEmpty();
}

FString FZEFTandemEditor::GetWorldCentricTabPrefix() const
{
	return LOCTEXT("WorldCentricTabPrefix", "ZEFTandem").ToString();
}

FLinearColor FZEFTandemEditor::GetWorldCentricTabColorScale() const
{
	return FLinearColor(0.3f, 0.2f, 0.5f, 0.5f);
}

void FZEFTandemEditor::PostUndo(bool /*bSuccess*/)
{
	OnPostUndo.Broadcast();
}

void FZEFTandemEditor::PostRedo(bool /*bSuccess*/)
{
	OnPostRedo.Broadcast();
}

void FZEFTandemEditor::Tick(float /*DeltaTime*/) {}

TStatId FZEFTandemEditor::GetStatId() const
{
	RETURN_QUICK_DECLARE_CYCLE_STAT(FZEFTandemEditor, STATGROUP_TaskGraphTasks);
}

void FZEFTandemEditor::RegisterOnPostUndo(const FSimpleDelegate& Delegate)
{
	OnPostUndo.Add(Delegate);
}

void FZEFTandemEditor::UnregisterOnPostUndo(const FSimpleDelegate& Delegate)
{
	OnPostUndo.RemoveAll(Delegate.GetObjectForTimerManager());
}

#undef LOCTEXT_NAMESPACE
