// SPDX-License-Identifier: MIT
#include "Components/SkeletalMeshComponent.h"
#include "EngineFixture.h"
#include "Host/Scene.h"
#include "MaterialSamples.h"
#include "PreviewScene.h"
#include "SkeletalMeshSamples.h"

#include <gtest/gtest.h>

using namespace SkeletalMeshSamples;

namespace
{
/** A preview scene with a component that shows a mesh of one triangle in an instance's material. */
class AssetRefresh : public FEngineFixture
{
protected:
	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		Scene = new FPreviewScene(FPreviewScene::ConstructionValues());
		Instance = MaterialSamples::MakeInstance(MaterialSamples::MakeMaster());
		Mesh = MakeMesh({{TEXT("Root"), -1}});
		AddTriangle(AddLevel(Mesh), 0.0f, 0);
		Mesh->GetMaterials().Add(FSkeletalMaterial(Instance));
		Mesh->Build();
		Component = NewObject<USkeletalMeshComponent>(GetTransientPackage());
		Component->SetSkeletalMesh(Mesh);
		Scene->AddComponent(Component, FTransform::Identity);
	}

	virtual void TearDown() override
	{
		delete Scene;
		FEngineFixture::TearDown();
	}

	/** The revision of what the component looks like. */
	uint64 Revision() const
	{
		for (const Host::FScene::FPrimitive& Primitive : Host::FScene::Of(Scene->GetWorld())->GetPrimitives())
		{
			if (Primitive.Component == Component)
			{
				return Primitive.Revision;
			}
		}
		ADD_FAILURE() << "the component does not stand in the scene";
		return 0;
	}

	FPreviewScene* Scene = nullptr;
	UMaterialInstanceConstant* Instance = nullptr;
	USkeletalMesh* Mesh = nullptr;
	USkeletalMeshComponent* Component = nullptr;
};
} // namespace

TEST_F(AssetRefresh, DrawsAComponentAnewWhenItsMeshChanges)
{
	const uint64 Before = Revision();
	Mesh->SetImportedBounds(FBoxSphereBounds(FVector(0.0, 0.0, 0.0), FVector(5.0, 6.0, 7.0), 11.0));
	Mesh->PostEditChange();
	EXPECT_NE(Revision(), Before);
	EXPECT_EQ(Component->Bounds.BoxExtent, FVector(5.0, 6.0, 7.0));
}

TEST_F(AssetRefresh, DrawsAComponentAnewWhenAMaterialOfItsChainChanges)
{
	const uint64 Before = Revision();
	Instance->PostEditChange();
	const uint64 AfterInstance = Revision();
	EXPECT_NE(AfterInstance, Before);
	Instance->GetMaterial()->PostEditChange();
	EXPECT_NE(Revision(), AfterInstance);
}

TEST_F(AssetRefresh, DrawsAComponentAnewWhenATextureOfItsMaterialChanges)
{
	UTexture2D* Texture = MaterialSamples::MakeTexture(TEXT("Used"));
	Instance->SetTextureParameterValueEditorOnly(MaterialSamples::Info(TEXT("BaseColor_Texture")), Texture);
	const uint64 Before = Revision();
	Texture->PostEditChange();
	EXPECT_NE(Revision(), Before);
}

TEST_F(AssetRefresh, LeavesAComponentAloneWhenSomethingElseChanges)
{
	const uint64 Before = Revision();
	MaterialSamples::MakeInstance(Instance->Parent, TEXT("Sibling"))->PostEditChange();
	MaterialSamples::MakeTexture(TEXT("Unused"))->PostEditChange();
	MakeMesh({{TEXT("Root"), -1}}, TEXT("Other"))->PostEditChange();
	EXPECT_EQ(Revision(), Before);
}
