// SPDX-License-Identifier: MIT
#include "PreviewScene.h"

#include "Components/DirectionalLightComponent.h"
#include "Components/SkyLightComponent.h"
#include "Engine/World.h"
#include "GameFramework/WorldSettings.h"
#include "Templates/Casts.h"
#include "UObject/Package.h"

using FConstructionValues = FPreviewScene::ConstructionValues;

FPreviewScene::ConstructionValues::ConstructionValues()
	: LightRotation(-40.0, -67.5, 0.0)
	, LightBrightness(3.14159265f)
	, SkyBrightness(1.0f)
	, bDefaultLighting(true)
	, bCreatePhysicsScene(true)
	, bShouldSimulatePhysics(false)
	, bTransactional(true)
	, bEditor(true)
{
}

FConstructionValues& FPreviewScene::ConstructionValues::SetLightRotation(const FRotator& Rotation)
{
	LightRotation = Rotation;
	return *this;
}

FConstructionValues& FPreviewScene::ConstructionValues::SetLightBrightness(const float Brightness)
{
	LightBrightness = Brightness;
	return *this;
}

FConstructionValues& FPreviewScene::ConstructionValues::SetSkyBrightness(const float Brightness)
{
	SkyBrightness = Brightness;
	return *this;
}

FConstructionValues& FPreviewScene::ConstructionValues::SetCreateDefaultLighting(const bool bDefault)
{
	bDefaultLighting = bDefault;
	return *this;
}

FConstructionValues& FPreviewScene::ConstructionValues::SetCreatePhysicsScene(const bool bCreate)
{
	bCreatePhysicsScene = bCreate;
	return *this;
}

FConstructionValues& FPreviewScene::ConstructionValues::ShouldSimulatePhysics(const bool bSimulate)
{
	bShouldSimulatePhysics = bSimulate;
	return *this;
}

FConstructionValues& FPreviewScene::ConstructionValues::SetTransactional(const bool bInTransactional)
{
	bTransactional = bInTransactional;
	return *this;
}

FConstructionValues& FPreviewScene::ConstructionValues::SetEditor(const bool bInEditor)
{
	bEditor = bInEditor;
	return *this;
}

FPreviewScene::FPreviewScene(ConstructionValues CVS)
	: PreviewWorld(UWorld::CreateWorld(CVS.bEditor ? EWorldType::EditorPreview : EWorldType::GamePreview, false))
{
	if (CVS.bTransactional)
	{
		PreviewWorld->SetFlags(RF_Transactional);
	}
	if (CVS.bDefaultLighting)
	{
		DirectionalLight = NewObject<UDirectionalLightComponent>(GetTransientPackage(), NAME_None, RF_Transient);
		DirectionalLight->Intensity = CVS.LightBrightness;
		DirectionalLight->LightColor = FColor(255, 255, 255);
		AddComponent(DirectionalLight, FTransform(CVS.LightRotation.Quaternion()));

		SkyLight = NewObject<USkyLightComponent>(GetTransientPackage(), NAME_None, RF_Transient);
		SkyLight->Intensity = CVS.SkyBrightness;
		AddComponent(SkyLight, FTransform::Identity);
	}
}

FPreviewScene::~FPreviewScene()
{
	// A component that another world has taken over meanwhile stays there.
	for (const TObjectPtr<UActorComponent>& Component : Components)
	{
		if (Component && Component->IsRegistered() && Component->GetWorld() == PreviewWorld)
		{
			Component->UnregisterComponent();
		}
	}
	Components.Empty();
	if (PreviewWorld)
	{
		PreviewWorld->DestroyWorld(false);
	}
}

void FPreviewScene::AddComponent(UActorComponent* Component, const FTransform& LocalToWorld, bool bAttachToRoot)
{
	Components.Add(Component);
	if (USceneComponent* const SceneComponent = Cast<USceneComponent>(Component))
	{
		SceneComponent->SetRelativeTransform(LocalToWorld);
		if (bAttachToRoot)
		{
			SceneComponent->AttachToComponent(
				PreviewWorld->GetWorldSettings()->GetRootComponent(), FAttachmentTransformRules::KeepRelativeTransform);
		}
	}
	if (!Component->IsRegistered())
	{
		Component->RegisterComponentWithWorld(PreviewWorld);
	}
}

void FPreviewScene::RemoveComponent(UActorComponent* Component)
{
	Component->UnregisterComponent();
	if (USceneComponent* const SceneComponent = Cast<USceneComponent>(Component))
	{
		USceneComponent* const Root = PreviewWorld->GetWorldSettings()->GetRootComponent();
		if (SceneComponent->GetAttachParent() == Root)
		{
			SceneComponent->DetachFromComponent(FDetachmentTransformRules::KeepRelativeTransform);
		}
	}
	Components.RemoveSingle(Component);
}

UWorld* FPreviewScene::GetWorld() const
{
	return PreviewWorld;
}

FSceneInterface* FPreviewScene::GetScene() const
{
	return PreviewWorld->Scene;
}

void FPreviewScene::SetLightDirection(const FRotator& InLightDir)
{
	if (DirectionalLight)
	{
		DirectionalLight->SetRelativeRotation(InLightDir);
	}
}

FRotator FPreviewScene::GetLightDirection() const
{
	return DirectionalLight ? DirectionalLight->GetRelativeRotation() : FRotator(0.0, 0.0, 0.0);
}

void FPreviewScene::SetLightBrightness(float LightBrightness)
{
	if (DirectionalLight)
	{
		DirectionalLight->SetIntensity(LightBrightness);
	}
}

void FPreviewScene::SetSkyBrightness(float SkyBrightness)
{
	if (SkyLight)
	{
		SkyLight->SetIntensity(SkyBrightness);
	}
}

void FPreviewScene::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(PreviewWorld);
	Collector.AddReferencedObject(DirectionalLight);
	Collector.AddReferencedObject(SkyLight);
	Collector.AddReferencedObjects(Components);
	Components.RemoveAll([](const TObjectPtr<UActorComponent>& Component) { return Component == nullptr; });
}

FString FPreviewScene::GetReferencerName() const
{
	return TEXT("FPreviewScene");
}
