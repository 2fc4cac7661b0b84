// SPDX-License-Identifier: MIT
#include "Components/SkeletalMeshComponent.h"

#include "Engine/SkeletalMesh.h"
#include "Engine/SkinnedAssetCommon.h"
#include "Engine/World.h"
#include "EngineFixture.h"
#include "GameFramework/Actor.h"
#include "Host/Scene.h"
#include "Materials/Material.h"
#include "PreviewScene.h"
#include "UObject/Package.h"

namespace
{
class SkeletalMeshComponent : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Scene = std::make_unique<FPreviewScene>();
		AActor* const Actor = Scene->GetWorld()->SpawnActor<AActor>();
		Component = NewObject<USkeletalMeshComponent>(Actor, FName(TEXT("Body")), RF_Transient);
		Actor->SetRootComponent(Component);
		Mesh = NewObject<USkeletalMesh>(Actor, FName(TEXT("Mesh")), RF_Transient);
		Mesh->SetImportedBounds(FBoxSphereBounds(FVector(0.0, 0.0, 10.0), FVector(1.0, 2.0, 3.0), 4.0));
		Skin = NewObject<UMaterial>(Actor, FName(TEXT("Skin")), RF_Transient);
		Paint = NewObject<UMaterial>(Actor, FName(TEXT("Paint")), RF_Transient);
		Mesh->SetMaterials({FSkeletalMaterial(Skin), FSkeletalMaterial(nullptr)});
	}
	void TearDown() override
	{
		Scene.reset();
		FEngineFixture::TearDown();
	}

	std::unique_ptr<FPreviewScene> Scene;
	USkeletalMeshComponent* Component = nullptr;
	USkeletalMesh* Mesh = nullptr;
	UMaterial* Skin = nullptr;
	UMaterial* Paint = nullptr;
};
} // namespace

TEST_F(SkeletalMeshComponent, ShowsAMeshAndItsBounds)
{
	EXPECT_EQ(Component->GetSkeletalMeshAsset(), nullptr);
	EXPECT_EQ(Component->GetSkeletalMeshRenderData(), nullptr);
	Component->SetSkeletalMesh(Mesh);
	EXPECT_EQ(Component->GetSkeletalMeshAsset(), Mesh);
	EXPECT_EQ(Component->Bounds.Origin, FVector(0.0, 0.0, 10.0));
	EXPECT_EQ(Component->Bounds.BoxExtent, FVector(1.0, 2.0, 3.0));

	Component->SetRelativeLocation(FVector(5.0, 0.0, 0.0));
	EXPECT_EQ(Component->Bounds.Origin, FVector(5.0, 0.0, 10.0));
	EXPECT_EQ(Component->GetLocalBounds().Origin, FVector(0.0, 0.0, 10.0));
	Component->SetSkeletalMesh(nullptr);
	EXPECT_EQ(Component->Bounds.BoxExtent, FVector(0.0, 0.0, 0.0));
}

TEST_F(SkeletalMeshComponent, OverridesTheSlotsOfItsMesh)
{
	Component->SetSkeletalMesh(Mesh);
	EXPECT_EQ(Component->GetNumMaterials(), 2);
	EXPECT_EQ(Component->GetMaterial(0), Skin);
	EXPECT_EQ(Component->GetMaterial(1), nullptr);
	EXPECT_EQ(Component->GetMaterial(2), nullptr);

	Component->SetMaterial(2, Paint);
	EXPECT_EQ(Component->GetNumMaterials(), 3);
	EXPECT_EQ(Component->GetMaterial(0), Skin);
	EXPECT_EQ(Component->GetMaterial(2), Paint);
	TArray<UMaterialInterface*> Used = {Paint};
	Component->GetUsedMaterials(Used);
	EXPECT_EQ(Used, TArray<UMaterialInterface*>({Paint, Skin, nullptr, Paint}));
}

TEST_F(SkeletalMeshComponent, StandsInTheSceneWhileRegistered)
{
	Host::FScene& Shown = *Host::FScene::Of(Scene->GetWorld());
	Scene->AddComponent(Component, FTransform::Identity);
	ASSERT_EQ(Shown.GetPrimitives().Num(), 1);
	const Host::FScene::FPrimitive First = Shown.GetPrimitives()[0];
	EXPECT_EQ(First.Component, Component);

	Component->SetSkeletalMesh(Mesh);
	const Host::FScene::FPrimitive Second = Shown.GetPrimitives()[0];
	EXPECT_NE(Second.Revision, First.Revision);
	Component->SetRelativeLocation(FVector(1.0, 0.0, 0.0));
	EXPECT_EQ(Shown.GetPrimitives()[0].Revision, Second.Revision);
	EXPECT_NE(Shown.GetPrimitives()[0].TransformRevision, Second.TransformRevision);
	Component->SetMaterial(0, Paint);
	EXPECT_NE(Shown.GetPrimitives()[0].Revision, Second.Revision);

	Scene->RemoveComponent(Component);
	EXPECT_EQ(Shown.GetPrimitives().Num(), 0);
}

TEST_F(SkeletalMeshComponent, KeepsItsMeshAlive)
{
	const TWeakObjectPtr<USkeletalMesh> Loose = NewObject<USkeletalMesh>(GetTransientPackage());
	Component->SetSkeletalMesh(Loose.Get());
	CollectAll();
	EXPECT_TRUE(Loose.IsValid());
	Component->SetSkeletalMesh(nullptr);
	CollectAll();
	EXPECT_FALSE(Loose.IsValid());
}

TEST_F(SkeletalMeshComponent, ChangesItsMobility)
{
	EXPECT_EQ(Component->Mobility, EComponentMobility::Movable);
	Component->SetMobility(EComponentMobility::Static);
	EXPECT_EQ(Component->Mobility, EComponentMobility::Static);
}
