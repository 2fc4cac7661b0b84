// SPDX-License-Identifier: MIT
#include "Components/DynamicMeshComponent.h"

#include "DynamicMesh/DynamicMesh3.h"
#include "EngineFixture.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Host/Scene.h"
#include "Materials/Material.h"
#include "PreviewScene.h"
#include "UDynamicMesh.h"
#include "UObject/Package.h"

using UE::Geometry::FDynamicMesh3;

namespace
{
class DynamicMeshComponent : public FEngineFixture
{
protected:
	void SetUp() override
	{
		FEngineFixture::SetUp();
		Scene = std::make_unique<FPreviewScene>();
		AActor* const Actor = Scene->GetWorld()->SpawnActor<AActor>();
		Component = NewObject<UDynamicMeshComponent>(Actor, FName(TEXT("DynamicMesh")), RF_Transient);
		Scene->AddComponent(Component, FTransform::Identity);
	}
	void TearDown() override
	{
		Scene.reset();
		FEngineFixture::TearDown();
	}

	/** One triangle from the origin to (2, 0, 0) and (0, 4, 6). */
	static FDynamicMesh3 MakeTriangle()
	{
		FDynamicMesh3 Mesh;
		Mesh.AppendVertex(FVector3d(0.0, 0.0, 0.0));
		Mesh.AppendVertex(FVector3d(2.0, 0.0, 0.0));
		Mesh.AppendVertex(FVector3d(0.0, 4.0, 6.0));
		Mesh.AppendTriangle(0, 1, 2);
		return Mesh;
	}

	std::unique_ptr<FPreviewScene> Scene;
	UDynamicMeshComponent* Component = nullptr;
};
} // namespace

TEST_F(DynamicMeshComponent, HoldsACopyOfTheMeshAndTakesItsBoundsWhenTold)
{
	FDynamicMesh3 Source = MakeTriangle();
	*Component->GetMesh() = Source;
	Source.Clear();
	EXPECT_EQ(Component->GetMesh()->TriangleCount(), 1);
	EXPECT_EQ(Component->Bounds.BoxExtent, FVector(0.0, 0.0, 0.0));

	const uint64 Before = Host::FScene::Of(Scene->GetWorld())->GetPrimitives()[0].Revision;
	Component->NotifyMeshUpdated();
	EXPECT_EQ(Component->Bounds.Origin, FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(Component->Bounds.BoxExtent, FVector(1.0, 2.0, 3.0));
	EXPECT_NE(Host::FScene::Of(Scene->GetWorld())->GetPrimitives()[0].Revision, Before);

	Component->SetRelativeLocation(FVector(10.0, 0.0, 0.0));
	EXPECT_EQ(Component->Bounds.Origin, FVector(11.0, 2.0, 3.0));
}

TEST_F(DynamicMeshComponent, AMeshThatMovesInIsShownAtOnce)
{
	Component->SetMesh(MakeTriangle());
	EXPECT_EQ(Component->Bounds.Origin, FVector(1.0, 2.0, 3.0));
	int Vertices = 0;
	Component->ProcessMesh([&](const FDynamicMesh3& Mesh) { Vertices = Mesh.VertexCount(); });
	EXPECT_EQ(Vertices, 3);
	EXPECT_EQ(Component->GetDynamicMesh()->GetMeshRef().VertexCount(), 3);

	Component->SetMesh(FDynamicMesh3());
	EXPECT_EQ(Component->Bounds.BoxExtent, FVector(0.0, 0.0, 0.0));
}

TEST_F(DynamicMeshComponent, GrowsItsMaterialSlotsAndLeavesEmptyOnesOutOfTheUsed)
{
	UMaterial* const Cloth = NewObject<UMaterial>(Component->GetOwner());
	EXPECT_EQ(Component->GetNumMaterials(), 0);
	Component->SetMaterial(2, Cloth);
	Component->SetMaterial(-1, Cloth);
	EXPECT_EQ(Component->GetNumMaterials(), 3);
	EXPECT_EQ(Component->GetMaterial(0), nullptr);
	EXPECT_EQ(Component->GetMaterial(2), Cloth);
	EXPECT_EQ(Component->GetMaterial(3), nullptr);
	Component->SetMaterial(0, Cloth);
	TArray<UMaterialInterface*> Used;
	Component->GetUsedMaterials(Used);
	EXPECT_EQ(Used, TArray<UMaterialInterface*>({Cloth, Cloth}));
}

TEST_F(DynamicMeshComponent, TheSameNameInTheSameActorIsBuiltOverInPlace)
{
	Component->SetMesh(MakeTriangle());
	AActor* const Actor = Component->GetOwner();
	UDynamicMeshComponent* const Again =
		NewObject<UDynamicMeshComponent>(Actor, FName(TEXT("DynamicMesh")), RF_Transient);
	EXPECT_EQ(Again, Component);
	EXPECT_EQ(Again->GetMesh()->TriangleCount(), 0);
	EXPECT_EQ(Actor->GetComponents().Num(), 1);
	EXPECT_FALSE(Again->IsRegistered());
	EXPECT_EQ(Host::FScene::Of(Scene->GetWorld())->GetPrimitives().Num(), 0);
}
