// SPDX-License-Identifier: MIT
#include "PreviewScene.h"

#include "Components/DirectionalLightComponent.h"
#include "Components/SkyLightComponent.h"
#include "Engine/World.h"
#include "EngineFixture.h"
#include "EngineUtils.h"
#include "GameFramework/Actor.h"
#include "GameFramework/WorldSettings.h"
#include "Host/Scene.h"
#include "TickingComponents.h"
#include "UObject/Package.h"

using PreviewScene = FEngineFixture;

TEST_F(PreviewScene, StandsInAWorldOfItsOwnWithLight)
{
	FPreviewScene Scene;
	EXPECT_EQ(Scene.GetWorld()->WorldType, EWorldType::EditorPreview);
	ASSERT_TRUE(Scene.DirectionalLight);
	EXPECT_TRUE(Scene.DirectionalLight->IsRegistered());
	EXPECT_TRUE(Scene.SkyLight->IsRegistered());
	EXPECT_EQ(Host::FScene::Of(Scene.GetWorld())->GetLights().Num(), 2);

	FPreviewScene Dark(FPreviewScene::ConstructionValues().SetCreateDefaultLighting(false));
	EXPECT_FALSE(Dark.DirectionalLight);
	EXPECT_EQ(Host::FScene::Of(Dark.GetWorld())->GetLights().Num(), 0);
}

TEST_F(PreviewScene, TurnsItsLight)
{
	FPreviewScene Scene(FPreviewScene::ConstructionValues().SetLightRotation(FRotator(-90.0, 0.0, 0.0)));
	EXPECT_NEAR(Scene.DirectionalLight->GetDirection().Z, -1.0, 1e-6);
	const uint64 Before = Host::FScene::Of(Scene.GetWorld())->GetRevision();
	Scene.SetLightDirection(FRotator(0.0, 0.0, 0.0));
	EXPECT_NEAR(Scene.DirectionalLight->GetDirection().X, 1.0, 1e-6);
	EXPECT_GT(Host::FScene::Of(Scene.GetWorld())->GetRevision(), Before);
}

TEST_F(PreviewScene, RegistersAComponentWithoutOwnerAndKeepsItAlive)
{
	FPreviewScene Scene;
	const TWeakObjectPtr<UCountingComponent> Component =
		NewObject<UCountingComponent>(GetTransientPackage(), NAME_None, RF_Transient);
	Scene.AddComponent(Component.Get(), FTransform::Identity);
	CollectAll();
	ASSERT_TRUE(Component.IsValid());
	EXPECT_TRUE(Component->IsRegistered());
	EXPECT_EQ(Component->GetWorld(), Scene.GetWorld());
	Scene.GetWorld()->Tick(LEVELTICK_All, 0.1f);
	EXPECT_EQ(Component->Ticks, 1);

	Scene.RemoveComponent(Component.Get());
	EXPECT_FALSE(Component->IsRegistered());
	CollectAll();
	EXPECT_FALSE(Component.IsValid());
}

TEST_F(PreviewScene, AComponentThatWasAddedTwiceIsListedTwice)
{
	FPreviewScene Scene;
	const TWeakObjectPtr<UCountingComponent> Component =
		NewObject<UCountingComponent>(GetTransientPackage(), NAME_None, RF_Transient);
	Scene.AddComponent(Component.Get(), FTransform::Identity);
	Scene.AddComponent(Component.Get(), FTransform::Identity);
	EXPECT_EQ(Component->Registrations, 1);
	Scene.RemoveComponent(Component.Get());
	CollectAll();
	EXPECT_TRUE(Component.IsValid());
}

TEST_F(PreviewScene, PlacesComponentsAndAttachesThemToTheRootWhenAsked)
{
	FPreviewScene Scene;
	USceneComponent* const Root = Scene.GetWorld()->GetWorldSettings()->GetRootComponent();
	USceneComponent* const Placed = NewObject<USceneComponent>(GetTransientPackage(), NAME_None, RF_Transient);
	Scene.AddComponent(Placed, FTransform(FVector(1.0, 2.0, 3.0)));
	EXPECT_EQ(Placed->GetComponentLocation(), FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(Placed->GetAttachParent(), nullptr);

	USceneComponent* const Attached = NewObject<USceneComponent>(GetTransientPackage(), NAME_None, RF_Transient);
	Scene.AddComponent(Attached, FTransform::Identity, true);
	EXPECT_EQ(Attached->GetAttachParent(), Root);
	Scene.RemoveComponent(Attached);
	EXPECT_EQ(Attached->GetAttachParent(), nullptr);
}

TEST_F(PreviewScene, TakesTheComponentsOfItsActorsAlongAtItsEnd)
{
	TWeakObjectPtr<UCountingComponent> Component;
	TWeakObjectPtr<AActor> Actor;
	{
		FPreviewScene Scene;
		Actor = Scene.GetWorld()->SpawnActor<AActor>();
		Component = NewObject<UCountingComponent>(Actor.Get(), NAME_None, RF_Transient);
		Scene.AddComponent(Component.Get(), FTransform::Identity);
	}
	EXPECT_FALSE(Component->IsRegistered());
	CollectAll();
	EXPECT_FALSE(Component.IsValid());
	EXPECT_FALSE(Actor.IsValid());
}

TEST_F(PreviewScene, ForgetsAComponentThatWasDestroyed)
{
	FPreviewScene Scene;
	AActor* const Actor = Scene.GetWorld()->SpawnActor<AActor>();
	UCountingComponent* const Component = NewObject<UCountingComponent>(Actor, NAME_None, RF_Transient);
	Scene.AddComponent(Component, FTransform::Identity);
	const TWeakObjectPtr<UCountingComponent> Weak = Component;
	Actor->Destroy();
	CollectAll();
	EXPECT_FALSE(Weak.IsValid());
}

TEST(HitProxies, KnowTheirClass)
{
	HActor Hit(nullptr, nullptr);
	HHitProxy* const Base = &Hit;
	EXPECT_TRUE(Base->IsA(HActor::StaticGetType()));
	EXPECT_TRUE(Base->IsA(HHitProxy::StaticGetType()));
	EXPECT_EQ(HitProxyCast<HActor>(Base), &Hit);

	HHitProxy Other;
	EXPECT_FALSE(Other.IsA(HActor::StaticGetType()));
	EXPECT_EQ(HitProxyCast<HActor>(&Other), nullptr);
	EXPECT_EQ(HitProxyCast<HActor>(nullptr), nullptr);
}
