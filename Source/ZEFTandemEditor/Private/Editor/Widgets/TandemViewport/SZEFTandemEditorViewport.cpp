// SPDX-License-Identifier: MIT
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"

#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "DynamicMesh/DynamicMesh3.h"
#include "Editor.h"
#include "Editor/IZEFTandemEditor.h"
#include "Editor/Widgets/TandemViewport/ZEFTandemEditorViewportClient.h"
#include "Editor/ZEFPreviewScene.h"
#include "Engine/EngineTypes.h"
#include "Engine/SkeletalMesh.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "UnrealClient.h"

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

void SZEFTandemEditorViewport::Construct(const FArguments& /*InArgs*/,
	const TSharedPtr<FZEFPreviewScene>& InPreviewScene, const TSharedPtr<IZEFTandemEditor>& InEditor)
{
	PreviewScene = InPreviewScene;
	EditorInstance = InEditor;
	PreviewScene->GetWorld()->ChangeFeatureLevel(GEditor->GetEditorWorldContext().World()->GetFeatureLevel());
	SEditorViewport::Construct(SEditorViewport::FArguments());
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
