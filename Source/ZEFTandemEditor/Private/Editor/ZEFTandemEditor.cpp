// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditor.h"

#include "DetailsViewArgs.h"
#include "Editor.h"
#include "Editor/Widgets/TandemTree/SZEFTandemTree.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/ZEFPreviewScene.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Editor/ZEFTandemProgress.h"
#include "EditorReimportHandler.h"
#include "EditorViewportTabContent.h"
#include "Framework/Commands/GenericCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "IDetailsView.h"
#include "Internationalization/Internationalization.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Stats/Stats.h"
#include "Subsystems/ImportSubsystem.h"
#include "UObject/Package.h"
#include "ZEFTandemClientComponent.h"

#define LOCTEXT_NAMESPACE "ZEFTandemEditor"

namespace
{

const FString ChannelName(TEXT("Tandem"));

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

void FZEFTandemEditor::Initialize(const TSharedPtr<IToolkitHost>& /*InitToolkitHost*/)
{
	GEditor->RegisterForUndo(this);
	BindCommands();
	FPropertyEditorModule& PropertyEditor =
		FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
	DetailsView = PropertyEditor.CreateDetailView(MakeDetailsViewArgs(this));
	TandemTree = SNew(SZEFTandemTree, SharedThis(static_cast<IZEFTandemEditor*>(this)));
	CreateViewportTabContent();

	FZEFTandemEditorModule& Module = FModuleManager::GetModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	Module.GetOnEditorCreated().Broadcast(SharedThis(static_cast<IZEFTandemEditor*>(this)));
}

FZEFTandemEditor::~FZEFTandemEditor()
{
	GetZEFTandemParentFrame().Reset();
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
}

void FZEFTandemEditor::CreateViewportTabContent()
{
	ViewportTabContent = MakeShared<FEditorViewportTabContent>();
	const TSharedPtr<IZEFTandemEditor> Self = SharedThis(static_cast<IZEFTandemEditor*>(this));
	const TSharedPtr<FZEFPreviewScene> Scene = PreviewScene;
	const TWeakPtr<IZEFTandemEditor> WeakSelf = Self;
	const AssetEditorViewportFactoryFunction MakeViewport =
		[Scene, WeakSelf](const FAssetEditorViewportConstructionArgs&) -> TSharedRef<SAssetEditorViewport>
	{ return SNew(SZEFTandemEditorViewport, Scene, WeakSelf.Pin()); };
	ViewportTabContent->Initialize(MakeViewport, nullptr, TEXT("ZEFTandemEditorViewport"));
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
