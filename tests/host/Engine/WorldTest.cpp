// SPDX-License-Identifier: MIT
#include "Components/SceneComponent.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "EngineFixture.h"
#include "GameFramework/Actor.h"
#include "Host/Scene.h"
#include "PreviewScene.h"
#include "TickingComponents.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"

namespace
{
class World : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Scene = std::make_unique<FPreviewScene>();
	}
	void TearDown() override
	{
		Scene.reset();
		FEngineFixture::TearDown();
	}

	AActor* Spawn() { return Scene->GetWorld()->SpawnActor<AActor>(); }

	template <class T>
	T* MakeComponent(AActor* Owner, const TCHAR* Name)
	{
		return NewObject<T>(Owner, FName(Name), RF_Transient);
	}

	std::unique_ptr<FPreviewScene> Scene;
};
} // namespace

TEST_F(World, SpawnsAnActorIntoItsLevelAndDestroysIt)
{
	AActor* const Actor = Spawn();
	ASSERT_NE(Actor, nullptr);
	EXPECT_EQ(Actor->GetWorld(), Scene->GetWorld());
	EXPECT_EQ(Actor->GetFlags() & RF_Transactional, RF_Transactional);
	EXPECT_TRUE(Scene->GetWorld()->PersistentLevel->Actors.Contains(Actor));
	EXPECT_EQ(Actor->GetActorLocation(), FVector(0.0, 0.0, 0.0));

	const TWeakObjectPtr<AActor> Weak = Actor;
	EXPECT_TRUE(Actor->Destroy());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Scene->GetWorld()->PersistentLevel->Actors.Contains(Actor));
	EXPECT_FALSE(Actor->Destroy());
}

TEST_F(World, SpawnsNothingFromAClassThatIsNoActor)
{
	EXPECT_EQ(Scene->GetWorld()->SpawnActor(USceneComponent::StaticClass(), nullptr), nullptr);
	EXPECT_EQ(Scene->GetWorld()->SpawnActor(nullptr, nullptr), nullptr);
}

TEST_F(World, AComponentBelongsToTheActorThatItWasMadeIn)
{
	AActor* const Actor = Spawn();
	USceneComponent* const Component = MakeComponent<USceneComponent>(Actor, TEXT("Part"));
	EXPECT_EQ(Component->GetOwner(), Actor);
	EXPECT_TRUE(Actor->OwnsComponent(Component));
	Actor->AddOwnedComponent(Component);
	EXPECT_EQ(Actor->GetComponents().Num(), 1);
	EXPECT_EQ(NewObject<USceneComponent>()->GetOwner(), nullptr);
}

TEST_F(World, AnActorRefusesTheComponentsOfAnother)
{
	AActor* const Actor = Spawn();
	AActor* const Other = Spawn();
	USceneComponent* const Component = MakeComponent<USceneComponent>(Other, TEXT("Part"));
	EXPECT_NE(CatchAssertion([&] { Actor->AddOwnedComponent(Component); }), "");
	EXPECT_FALSE(Actor->SetRootComponent(Component));
	EXPECT_TRUE(Other->SetRootComponent(Component));
	EXPECT_EQ(Other->GetRootComponent(), Component);
	EXPECT_TRUE(Other->SetRootComponent(nullptr));
}

TEST_F(World, TicksRegisteredComponentsThatAskForIt)
{
	AActor* const Actor = Spawn();
	UCountingComponent* const Counting = MakeComponent<UCountingComponent>(Actor, TEXT("Counting"));
	UWorld& Preview = *Scene->GetWorld();
	Preview.Tick(LEVELTICK_All, 0.5f);
	EXPECT_EQ(Counting->Ticks, 0);

	Counting->RegisterComponent();
	Preview.Tick(LEVELTICK_All, 0.5f);
	EXPECT_EQ(Counting->Ticks, 1);
	EXPECT_EQ(Counting->LastDelta, 0.5f);
	EXPECT_EQ(Counting->LastTickType, LEVELTICK_All);

	Preview.Tick(LEVELTICK_TimeOnly, 0.5f);
	EXPECT_EQ(Counting->Ticks, 1);
	EXPECT_DOUBLE_EQ(Preview.GetTimeSeconds(), 1.5);

	Counting->SetComponentTickEnabled(false);
	Preview.Tick(LEVELTICK_All, 0.5f);
	EXPECT_EQ(Counting->Ticks, 1);

	Counting->SetComponentTickEnabled(true);
	Counting->UnregisterComponent();
	Preview.Tick(LEVELTICK_All, 0.5f);
	EXPECT_EQ(Counting->Ticks, 1);
}

TEST_F(World, HoldsATickBackForItsInterval)
{
	UCountingComponent* const Counting = MakeComponent<UCountingComponent>(Spawn(), TEXT("Counting"));
	Counting->PrimaryComponentTick.TickInterval = 1.0f;
	Counting->RegisterComponent();
	for (int Frame = 0; Frame < 4; ++Frame)
	{
		Scene->GetWorld()->Tick(LEVELTICK_All, 0.5f);
	}
	EXPECT_EQ(Counting->Ticks, 2);
	EXPECT_EQ(Counting->LastDelta, 1.0f);
}

TEST_F(World, ComponentsMayComeAndGoWhileItTicks)
{
	UCountingComponent* const First = MakeComponent<UCountingComponent>(Spawn(), TEXT("First"));
	UCountingComponent* const Second = MakeComponent<UCountingComponent>(Spawn(), TEXT("Second"));
	UCountingComponent* const Late = MakeComponent<UCountingComponent>(Spawn(), TEXT("Late"));
	First->RegisterComponent();
	Second->RegisterComponent();
	First->OnTick = [&]
	{
		Second->GetOwner()->Destroy();
		Late->RegisterComponent();
		First->UnregisterComponent();
	};

	Scene->GetWorld()->Tick(LEVELTICK_All, 0.1f);
	EXPECT_EQ(First->Ticks, 1);
	EXPECT_EQ(Second->Ticks, 0);
	EXPECT_EQ(Late->Ticks, 0);
	Scene->GetWorld()->Tick(LEVELTICK_All, 0.1f);
	EXPECT_EQ(First->Ticks, 1);
	EXPECT_EQ(Late->Ticks, 1);
}

TEST_F(World, TellsComponentsOfRegisteringAndDestruction)
{
	AActor* const Actor = Spawn();
	UCountingComponent* const Counting = MakeComponent<UCountingComponent>(Actor, TEXT("Counting"));
	Actor->SetRootComponent(nullptr);
	Counting->RegisterComponent();
	Counting->RegisterComponent();
	EXPECT_EQ(Counting->Registrations, 1);
	EXPECT_TRUE(Counting->IsRegistered());
	Counting->ReregisterComponent();
	EXPECT_EQ(Counting->Registrations, 2);
	EXPECT_EQ(Counting->Unregistrations, 1);

	const TWeakObjectPtr<UCountingComponent> Weak = Counting;
	Counting->DestroyComponent();
	EXPECT_EQ(Counting->Unregistrations, 2);
	EXPECT_FALSE(Counting->IsRegistered());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Actor->GetComponents().Num(), 0);
}

TEST_F(World, RegistersNothingThatHasNoWorld)
{
	UCountingComponent* const Loose = NewObject<UCountingComponent>();
	Loose->RegisterComponent();
	EXPECT_FALSE(Loose->IsRegistered());
	EXPECT_EQ(Log().CountContaining("there is no world"), 1);
}

TEST_F(World, AttachedComponentsFollowTheirParent)
{
	AActor* const Actor = Spawn();
	USceneComponent* const Parent = MakeComponent<USceneComponent>(Actor, TEXT("Parent"));
	USceneComponent* const Child = MakeComponent<USceneComponent>(Actor, TEXT("Child"));
	Child->SetRelativeLocation(FVector(10.0, 0.0, 0.0));
	ASSERT_TRUE(Child->AttachToComponent(Parent, FAttachmentTransformRules::KeepRelativeTransform));
	Parent->SetRelativeLocation(FVector(0.0, 5.0, 0.0));
	EXPECT_EQ(Child->GetComponentLocation(), FVector(10.0, 5.0, 0.0));
	EXPECT_FALSE(Parent->AttachToComponent(Child, FAttachmentTransformRules::KeepRelativeTransform));

	Parent->SetRelativeScale3D(FVector(2.0, 2.0, 2.0));
	EXPECT_EQ(Child->GetComponentLocation(), FVector(20.0, 5.0, 0.0));
	Child->DetachFromComponent(FDetachmentTransformRules::KeepWorldTransform);
	EXPECT_EQ(Child->GetComponentLocation(), FVector(20.0, 5.0, 0.0));
	EXPECT_EQ(Child->GetAttachParent(), nullptr);
}

// Root - A - A1
//      \ B - B1
TEST_F(World, ListsDirectChildrenFirstThenTheDescendantsOfEach)
{
	AActor* const Actor = Spawn();
	USceneComponent* const Root = MakeComponent<USceneComponent>(Actor, TEXT("Root"));
	USceneComponent* const A = MakeComponent<USceneComponent>(Actor, TEXT("A"));
	USceneComponent* const B = MakeComponent<USceneComponent>(Actor, TEXT("B"));
	USceneComponent* const A1 = MakeComponent<USceneComponent>(Actor, TEXT("A1"));
	USceneComponent* const B1 = MakeComponent<USceneComponent>(Actor, TEXT("B1"));
	A->AttachToComponent(Root, FAttachmentTransformRules::KeepRelativeTransform);
	B->AttachToComponent(Root, FAttachmentTransformRules::KeepRelativeTransform);
	A1->AttachToComponent(A, FAttachmentTransformRules::KeepRelativeTransform);
	B1->AttachToComponent(B, FAttachmentTransformRules::KeepRelativeTransform);

	TArray<USceneComponent*> Children = {Root};
	Root->GetChildrenComponents(false, Children);
	EXPECT_EQ(Children, TArray<USceneComponent*>({A, B}));
	Root->GetChildrenComponents(true, Children);
	EXPECT_EQ(Children, TArray<USceneComponent*>({A, B, A1, B1}));
}

TEST_F(World, ChangingTheFeatureLevelShowsEverythingAnew)
{
	UWorld& Preview = *Scene->GetWorld();
	const uint64 Before = Host::FScene::Of(&Preview)->GetRevision();
	Preview.ChangeFeatureLevel(ERHIFeatureLevel::SM5);
	EXPECT_EQ(Host::FScene::Of(&Preview)->GetRevision(), Before);
	Preview.ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(Preview.GetFeatureLevel(), ERHIFeatureLevel::ES3_1);
	EXPECT_GT(Host::FScene::Of(&Preview)->GetRevision(), Before);
}

TEST_F(World, ThousandsOfActorsLeaveNothingBehind)
{
	CollectAll();
	const std::size_t Before = NewObjects().size();
	for (int Round = 0; Round < 1000; ++Round)
	{
		AActor* const Actor = Spawn();
		UCountingComponent* const Component = MakeComponent<UCountingComponent>(Actor, TEXT("Part"));
		Scene->AddComponent(Component, FTransform::Identity);
		Scene->RemoveComponent(Component);
		Actor->Destroy();
	}
	CollectAll();
	EXPECT_EQ(NewObjects().size(), Before);
}
