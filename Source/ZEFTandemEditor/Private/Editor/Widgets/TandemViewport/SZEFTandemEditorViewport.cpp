// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"

#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Editor.h"
#include "Editor/IZEFTandemEditor.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewportToolbar.h"
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"
#include "Editor/ZEFPreviewScene.h"
#include "Editor/ZEFTandemEditorCommands.h"
#include "Engine/EngineTypes.h"
#include "Engine/SkeletalMesh.h"
#include "Engine/World.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "GameFramework/Actor.h"
#include "Styling/AppStyle.h"
#include "UnrealClient.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

namespace
{

const FVector InitialViewLocation(512.0, 0.0, 512.0);
const FRotator InitialViewRotation(-15.0, 180.0, 0.0);

AActor* SpawnPreviewActor(FZEFPreviewScene& Scene)
{
	return Scene.GetWorld()->SpawnActor<AActor>(AActor::StaticClass(), FTransform::Identity, FActorSpawnParameters());
}

bool IsPreviewBelowSM5()
{
	return GEditor->PreviewPlatform.GetEffectivePreviewFeatureLevel() <= ERHIFeatureLevel::ES3_1;
}

/** Puts a finished component into the scene as its actor's root. */
void ShowComponent(
	FZEFPreviewScene& Scene, AActor* Actor, UPrimitiveComponent* Component, FEditorViewportClient& Client)
{
	Actor->AddOwnedComponent(Component);
	Scene.AddComponent(Component, FTransform::Identity, false);
	Component->UpdateBounds();
	Actor->SetRootComponent(Component);
	if (Client.Viewport != nullptr)
	{
		Client.Viewport->Invalidate();
	}
}

} // namespace

SZEFTandemEditorViewport::~SZEFTandemEditorViewport()
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.RemoveAll(this);
	if (GEditor)
	{
		GEditor->OnPreviewFeatureLevelChanged().Remove(FeatureLevelChangedHandle);
	}
}

void SZEFTandemEditorViewport::Construct(const FArguments& /*InArgs*/,
	const TSharedPtr<FZEFPreviewScene>& InPreviewScene, const TSharedPtr<IZEFTandemEditor>& InEditor)
{
	PreviewScene = InPreviewScene;
	EditorInstance = InEditor;
	PreviewScene->GetWorld()->ChangeFeatureLevel(GEditor->GetEditorWorldContext().World()->GetFeatureLevel());
	FeatureLevelChangedHandle =
		GEditor->OnPreviewFeatureLevelChanged().AddRaw(this, &SZEFTandemEditorViewport::OnPreviewFeatureLevelChanged);
	SEditorViewport::Construct(SEditorViewport::FArguments());
	FCoreUObjectDelegates::OnObjectPropertyChanged.AddRaw(this, &SZEFTandemEditorViewport::OnObjectPropertyChanged);
}

void SZEFTandemEditorViewport::OnPreviewFeatureLevelChanged(ERHIFeatureLevel::Type NewFeatureLevel)
{
	PreviewScene->GetWorld()->ChangeFeatureLevel(NewFeatureLevel);
}

void SZEFTandemEditorViewport::OnObjectPropertyChanged(UObject* /*Object*/, FPropertyChangedEvent& /*Event*/)
{
	// What was edited may be shown through a material or a mesh: the picture is out of date either way.
	Invalidate();
}

TSharedRef<FEditorViewportClient> SZEFTandemEditorViewport::MakeEditorViewportClient()
{
	ViewportClient = MakeShared<FZEFTandemEditorViewportClient>(
		PreviewScene.ToSharedRef(), SharedThis(static_cast<SEditorViewport*>(this)), EditorInstance);
	ViewportClient->SetViewportType(LVT_Perspective);
	ViewportClient->SetViewLocation(InitialViewLocation);
	ViewportClient->SetViewRotation(InitialViewRotation);
	ViewportClient->SetRealtime(true);
	return ViewportClient.ToSharedRef();
}

TSharedRef<SEditorViewport> SZEFTandemEditorViewport::GetViewportWidget()
{
	return SharedThis(static_cast<SEditorViewport*>(this));
}

TSharedPtr<FExtender> SZEFTandemEditorViewport::GetExtenders() const
{
	return MakeShared<FExtender>();
}

void SZEFTandemEditorViewport::BindCommands()
{
	SAssetEditorViewport::BindCommands();
	const FZEFTandemEditorCommands& Commands = FZEFTandemEditorCommands::Get();
	const TSharedRef<FZEFTandemEditorViewportClient> View = ViewportClient.ToSharedRef();
	const TSharedRef<FEditorViewportClient> EngineView = View;
	CommandList->MapAction(Commands.SetShowGrid,
		FExecuteAction::CreateSP(EngineView, &FEditorViewportClient::SetShowGrid), FCanExecuteAction(),
		FIsActionChecked::CreateSP(EngineView, &FEditorViewportClient::IsSetShowGridChecked));
	CommandList->MapAction(Commands.SetShowNormals,
		FExecuteAction::CreateSP(View, &FZEFTandemEditorViewportClient::ToggleDrawNormals), FCanExecuteAction(),
		FIsActionChecked::CreateSP(View, &FZEFTandemEditorViewportClient::IsDrawingNormals));
	CommandList->MapAction(Commands.SetShowTangents,
		FExecuteAction::CreateSP(View, &FZEFTandemEditorViewportClient::ToggleDrawTangents), FCanExecuteAction(),
		FIsActionChecked::CreateSP(View, &FZEFTandemEditorViewportClient::IsDrawingTangents));
	CommandList->MapAction(Commands.SetShowBinormals,
		FExecuteAction::CreateSP(View, &FZEFTandemEditorViewportClient::ToggleDrawBinormals), FCanExecuteAction(),
		FIsActionChecked::CreateSP(View, &FZEFTandemEditorViewportClient::IsDrawingBinormals));
}

TSharedPtr<SWidget> SZEFTandemEditorViewport::MakeViewportToolbar()
{
	return SNew(SZEFTandemEditorViewportToolbar, SharedThis(this));
}

void SZEFTandemEditorViewport::PopulateViewportOverlays(TSharedRef<SOverlay> Overlay)
{
	OverlayTextBox = SNew(SVerticalBox);
	Overlay->AddSlot()
		.VAlign(VAlign_Top)
		.HAlign(HAlign_Left)
		.Padding(FMargin(10.0f, 40.0f, 10.0f, 10.0f))[OverlayTextBox.ToSharedRef()];
	Overlay->AddSlot().VAlign(VAlign_Bottom).HAlign(HAlign_Right).Padding(5.0f)[BuildFeatureLevelWidget()];
}

void SZEFTandemEditorViewport::PopulateOverlayText(const TArray<FOverlayTextItem>& TextItems)
{
	// Asked for every frame, and mostly for what is there: widgets that are made anew must be laid out anew.
	const auto IsShown = [this](const FOverlayTextItem& Item, int32 Index)
	{
		return ShownItems.IsValidIndex(Index) && ShownItems[Index].Style == Item.Style &&
			   ShownItems[Index].Text.EqualTo(Item.Text);
	};
	bool bSame = TextItems.Num() == ShownItems.Num();
	for (int32 Index = 0; bSame && Index < TextItems.Num(); ++Index)
	{
		bSame = IsShown(TextItems[Index], Index);
	}
	if (bSame)
	{
		return;
	}
	ShownItems = TextItems;
	OverlayTextBox->ClearChildren();
	for (const FOverlayTextItem& Item : TextItems)
	{
		OverlayTextBox->AddSlot().AutoHeight()
			[SNew(STextBlock).Text(Item.Text).TextStyle(&FAppStyle::GetWidgetStyle<FTextBlockStyle>(Item.Style))];
	}
}

USkeletalMeshComponent* SZEFTandemEditorViewport::AddSkeletalMeshComponent(USkeletalMesh* Mesh)
{
	AActor* const Actor = SpawnPreviewActor(*PreviewScene);
	USkeletalMeshComponent* const Component =
		NewObject<USkeletalMeshComponent>(Actor, FName(TEXT("SkeletalMesh")), RF_Transient);
	Component->SetSkeletalMesh(Mesh, true);
	if (IsPreviewBelowSM5())
	{
		Component->SetMobility(EComponentMobility::Movable);
	}
	ShowComponent(*PreviewScene, Actor, Component, *ViewportClient);
	return Component;
}

UDynamicMeshComponent* SZEFTandemEditorViewport::AddDynamicMeshComponent(
	const UE::Geometry::FDynamicMesh3* Mesh, const TArray<UMaterialInterface*>& Materials)
{
	AActor* const Actor = SpawnPreviewActor(*PreviewScene);
	UDynamicMeshComponent* const Component =
		NewObject<UDynamicMeshComponent>(Actor, FName(TEXT("DynamicMesh")), RF_Transient);
	for (int32 Index = 0; Index < Materials.Num(); ++Index)
	{
		Component->SetMaterial(Index, Materials[Index]);
	}
	*Component->GetMesh() = *Mesh;
	Component->NotifyMeshUpdated();
	if (IsPreviewBelowSM5())
	{
		Component->SetMobility(EComponentMobility::Static);
	}
	ShowComponent(*PreviewScene, Actor, Component, *ViewportClient);
	return Component;
}
