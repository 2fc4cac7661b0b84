// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "Host/SceneCamera.h"
#include "Host/SceneCapture.h"
#include "Host/SceneRenderer.h"
#include "host/Engine/MaterialSamples.h"
#include "host/Engine/SkeletalMeshSamples.h"
#include "render/SceneShapes.h"

#include "Components/DynamicMeshComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "PreviewScene.h"
#include "Templates/Casts.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace Host;
using namespace UE::Geometry;

namespace
{

/** A preview scene that is looked at. */
class SceneCapture : public FEngineFixture
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

	FSceneSnapshot Take() { return Capture.Capture(*Scene->GetWorld()); }

	UDynamicMeshComponent* Show(FDynamicMesh3&& Mesh, const FTransform& Transform = FTransform::Identity)
	{
		UDynamicMeshComponent* Component = NewObject<UDynamicMeshComponent>(GetTransientPackage());
		Component->SetMesh(MoveTemp(Mesh));
		Scene->AddComponent(Component, Transform);
		return Component;
	}

	std::unique_ptr<FPreviewScene> Scene;
	FSceneCapture Capture;
};

// 2---3
// | \ |   in the plane Z = 0, one unit wide; element ids are vertex ids
// 0---1
FDynamicMesh3 MakeQuad()
{
	FDynamicMesh3 Mesh;
	Mesh.EnableAttributes();
	Mesh.Attributes()->EnableTangents();
	Mesh.Attributes()->EnableMaterialID();
	for (int Index = 0; Index < 4; ++Index)
	{
		const float X = float(Index % 2), Y = float(Index / 2);
		Mesh.AppendVertex(FVector3d(X, Y, 0.0));
		Mesh.Attributes()->GetNormalLayer(0)->AppendElement(FVector3f(0.0f, 0.0f, 1.0f));
		Mesh.Attributes()->GetNormalLayer(1)->AppendElement(FVector3f(1.0f, 0.0f, 0.0f));
		Mesh.Attributes()->GetNormalLayer(2)->AppendElement(FVector3f(0.0f, 1.0f, 0.0f));
		Mesh.Attributes()->GetUVLayer(0)->AppendElement(FVector2f(X, Y));
	}
	for (const FIndex3i& Corners : {FIndex3i(0, 1, 2), FIndex3i(1, 3, 2)})
	{
		const int Triangle = Mesh.AppendTriangle(Corners);
		for (int Layer = 0; Layer < 3; ++Layer)
		{
			Mesh.Attributes()->GetNormalLayer(Layer)->SetTriangle(Triangle, Corners);
		}
		Mesh.Attributes()->GetUVLayer(0)->SetTriangle(Triangle, Corners);
	}
	return Mesh;
}

/** The shape as a dynamic mesh, all of it material id 0. */
FDynamicMesh3 ToDynamicMesh(const FMeshSnapshot& Shape)
{
	FDynamicMesh3 Mesh;
	Mesh.EnableAttributes();
	Mesh.Attributes()->EnableTangents();
	for (size_t Index = 0; Index < Shape.Positions.size(); ++Index)
	{
		const FFloat3 &P = Shape.Positions[Index], &N = Shape.Normals[Index];
		const FFloat4& T = Shape.Tangents[Index];
		Mesh.AppendVertex(FVector3d(P.X, P.Y, P.Z));
		Mesh.Attributes()->GetNormalLayer(0)->AppendElement(FVector3f(N.X, N.Y, N.Z));
		Mesh.Attributes()->GetNormalLayer(1)->AppendElement(FVector3f(T.X, T.Y, T.Z));
		Mesh.Attributes()->GetUVLayer(0)->AppendElement(FVector2f(Shape.UVs[Index].X, Shape.UVs[Index].Y));
	}
	const std::vector<uint32_t>& Indices = Shape.Sections[0].Indices;
	for (size_t First = 0; First < Indices.size(); First += 3)
	{
		const FIndex3i Corners(int(Indices[First]), int(Indices[First + 1]), int(Indices[First + 2]));
		const int Triangle = Mesh.AppendTriangle(Corners);
		if (Triangle >= 0)
		{
			Mesh.Attributes()->GetNormalLayer(0)->SetTriangle(Triangle, Corners);
			Mesh.Attributes()->GetNormalLayer(1)->SetTriangle(Triangle, Corners);
			Mesh.Attributes()->GetUVLayer(0)->SetTriangle(Triangle, Corners);
		}
	}
	return Mesh;
}

UMaterialInterface* LoadMaster(const char* Label)
{
	const FString Name = FString(TEXT("M_ZEF_")) + FString(Label);
	const FString Path = FString(TEXT("/ZEFTandem/Material/UE/")) + Name + TEXT(".") + Name;
	return Cast<UMaterialInterface>(StaticLoadObject(UMaterialInterface::StaticClass(), nullptr, *Path));
}

} // namespace

TEST_F(SceneCapture, FindsNothingInAnEmptyScene)
{
	EXPECT_TRUE(Take().Objects.empty());
}

TEST_F(SceneCapture, TakesTheCornersOfADynamicMesh)
{
	Show(MakeQuad());

	const FSceneSnapshot Snapshot = Take();

	ASSERT_EQ(Snapshot.Objects.size(), 1u);
	const FMeshSnapshot& Mesh = *Snapshot.Objects[0].Mesh;
	ASSERT_EQ(Mesh.Positions.size(), 4u);
	ASSERT_EQ(Mesh.Sections.size(), 1u);
	EXPECT_EQ(Mesh.Sections[0].MaterialIndex, 0);
	EXPECT_EQ(Mesh.Sections[0].Indices, (std::vector<uint32_t>{0, 1, 2, 1, 3, 2}));
	EXPECT_EQ(Mesh.Positions[3].X, 1.0f);
	EXPECT_EQ(Mesh.Positions[3].Y, 1.0f);
	EXPECT_EQ(Mesh.Normals[3].Z, 1.0f);
	EXPECT_EQ(Mesh.Tangents[3].X, 1.0f);
	EXPECT_EQ(Mesh.Tangents[3].W, 1.0f);
	EXPECT_EQ(Mesh.UVs[3].Y, 1.0f);
}

TEST_F(SceneCapture, TurnsTheSignOfTheTangentsWithTheBitangents)
{
	FDynamicMesh3 Mesh = MakeQuad();
	for (int Element = 0; Element < 4; ++Element)
	{
		Mesh.Attributes()->GetNormalLayer(2)->SetElement(Element, FVector3f(0.0f, -1.0f, 0.0f));
	}
	Show(MoveTemp(Mesh));

	EXPECT_EQ(Take().Objects[0].Mesh->Tangents[0].W, -1.0f);
}

TEST_F(SceneCapture, SplitsVerticesAtSeams)
{
	FDynamicMesh3 Mesh = MakeQuad();
	FDynamicMeshUVOverlay* UVs = Mesh.Attributes()->GetUVLayer(0);
	const int Other = UVs->AppendElement(FVector2f(7.0f, 8.0f));
	UVs->SetTriangle(1, FIndex3i(Other, 3, 2));
	Show(MoveTemp(Mesh));

	const FSceneSnapshot Snapshot = Take();

	const FMeshSnapshot& Taken = *Snapshot.Objects[0].Mesh;
	ASSERT_EQ(Taken.Positions.size(), 5u);
	EXPECT_EQ(Taken.Sections[0].Indices, (std::vector<uint32_t>{0, 1, 2, 3, 4, 2}));
	EXPECT_EQ(Taken.Positions[3].X, Taken.Positions[1].X);
	EXPECT_EQ(Taken.UVs[3].X, 7.0f);
}

TEST_F(SceneCapture, MakesASectionOfEachMaterialIdEvenOfThoseWithoutASlot)
{
	FDynamicMesh3 Mesh = MakeQuad();
	Mesh.Attributes()->GetMaterialID()->SetValue(0, -1);
	Mesh.Attributes()->GetMaterialID()->SetValue(1, 3);
	UDynamicMeshComponent* Component = Show(MoveTemp(Mesh));
	Component->SetMaterial(0, MaterialSamples::MakeMaster());

	const FSceneSnapshot Snapshot = Take();

	const FObjectSnapshot& Object = Snapshot.Objects[0];
	ASSERT_EQ(Object.Mesh->Sections.size(), 2u);
	EXPECT_EQ(Object.Mesh->Sections[0].MaterialIndex, -1);
	EXPECT_EQ(Object.Mesh->Sections[0].Indices.size(), 3u);
	EXPECT_EQ(Object.Mesh->Sections[1].MaterialIndex, 3);
	EXPECT_EQ(Object.Materials.size(), 1u);
}

TEST_F(SceneCapture, LeavesCornersWithoutElementsAtZero)
{
	FDynamicMesh3 Mesh;
	Mesh.AppendVertex(FVector3d(0.0, 0.0, 0.0));
	Mesh.AppendVertex(FVector3d(1.0, 0.0, 0.0));
	Mesh.AppendVertex(FVector3d(0.0, 1.0, 0.0));
	Mesh.AppendTriangle(FIndex3i(0, 1, 2));
	Show(MoveTemp(Mesh));

	const FSceneSnapshot Snapshot = Take();

	const FMeshSnapshot& Taken = *Snapshot.Objects[0].Mesh;
	ASSERT_EQ(Taken.Normals.size(), 3u);
	EXPECT_EQ(Taken.Normals[0].Z, 0.0f);
	EXPECT_EQ(Taken.Tangents[0].X, 0.0f);
	EXPECT_EQ(Taken.UVs[2].X, 0.0f);
}

TEST_F(SceneCapture, PlacesObjectsAsTheirComponents)
{
	Show(MakeQuad(), FTransform(FQuat(FRotator(0.0, 90.0, 0.0)), FVector(10.0, 20.0, 30.0), FVector(2.0, 3.0, 4.0)));

	const FSceneSnapshot Snapshot = Take();

	const FPlacement& Placement = Snapshot.Objects[0].Placement;
	EXPECT_NEAR(Placement.AxisX.Y, 2.0f, 1e-5f); // a quarter turn of yaw brings X to Y
	EXPECT_NEAR(Placement.AxisY.X, -3.0f, 1e-5f);
	EXPECT_NEAR(Placement.AxisZ.Z, 4.0f, 1e-5f);
	EXPECT_EQ(Placement.Origin.X, 10.0f);
	EXPECT_EQ(Placement.Origin.Y, 20.0f);
	EXPECT_EQ(Placement.Origin.Z, 30.0f);
}

TEST_F(SceneCapture, LeavesOutWhatIsNotVisible)
{
	UDynamicMeshComponent* Component = Show(MakeQuad());
	Component->SetVisibility(false);
	EXPECT_TRUE(Take().Objects.empty());

	Component->SetVisibility(true);
	EXPECT_EQ(Take().Objects.size(), 1u);

	Scene->RemoveComponent(Component);
	EXPECT_TRUE(Take().Objects.empty());
}

TEST_F(SceneCapture, SharesAMeshBetweenSnapshotsUntilItChanges)
{
	UDynamicMeshComponent* Component = Show(MakeQuad());
	const FSceneSnapshot First = Take();
	const FSceneSnapshot Second = Take();
	Component->GetMesh()->SetVertex(0, FVector3d(-5.0, 0.0, 0.0));
	Component->NotifyMeshUpdated();
	const FSceneSnapshot Third = Take();

	EXPECT_EQ(First.Objects[0].Mesh, Second.Objects[0].Mesh);
	EXPECT_NE(First.Objects[0].Mesh, Third.Objects[0].Mesh);
	EXPECT_EQ(First.Objects[0].Mesh->Positions[0].X, 0.0f);
	EXPECT_EQ(Third.Objects[0].Mesh->Positions[0].X, -5.0f);
}

TEST_F(SceneCapture, TakesASkeletalMeshInItsReferencePose)
{
	using namespace SkeletalMeshSamples;
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1, FVector(0.0, 0.0, 50.0)}});
	FSkeletalMeshLODModel& Level = AddLevel(Mesh);
	AddTriangle(Level, 0.0f, 0);
	AddTriangle(Level, 5.0f, 65535);
	Mesh->Build();
	USkeletalMeshComponent* Component = NewObject<USkeletalMeshComponent>(GetTransientPackage());
	Component->SetSkeletalMesh(Mesh);
	Scene->AddComponent(Component, FTransform::Identity);

	const FSceneSnapshot Snapshot = Take();

	ASSERT_EQ(Snapshot.Objects.size(), 1u);
	const FMeshSnapshot& Taken = *Snapshot.Objects[0].Mesh;
	ASSERT_EQ(Taken.Positions.size(), 6u);
	EXPECT_EQ(Taken.Positions[4].X, 6.0f);
	EXPECT_EQ(Taken.Positions[4].Z, 0.0f);
	EXPECT_NEAR(Taken.Normals[4].Z, 1.0f, 0.01f); // packed into 8 bits
	EXPECT_NEAR(Taken.Tangents[4].X, 1.0f, 0.01f);
	EXPECT_EQ(Taken.Tangents[4].W, 1.0f);
	EXPECT_EQ(Taken.UVs[4].X, 6.0f);
	ASSERT_EQ(Taken.Sections.size(), 2u);
	EXPECT_EQ(Taken.Sections[0].Indices, (std::vector<uint32_t>{0, 1, 2}));
	EXPECT_EQ(Taken.Sections[1].Indices, (std::vector<uint32_t>{3, 4, 5}));
	EXPECT_EQ(Taken.Sections[1].MaterialIndex, 65535);
}

TEST_F(SceneCapture, TakesTheValuesThatAMaterialInstanceHasInEffect)
{
	UMaterialInstanceConstant* Instance = MaterialSamples::MakeInstance(MaterialSamples::MakeMaster());
	UTexture2D* Texture = MaterialSamples::MakeTexture(TEXT("Map"));
	const uint8 Pixels[8] = {1, 2, 3, 4, 5, 6, 7, 8};
	Texture->Source.Init(2, 1, 1, 1, TSF_BGRA8, Pixels);
	Texture->SRGB = false;
	const auto Info = [](const TCHAR* Name) { return MaterialSamples::Info(Name); };
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("Roughness")), 0.125f);
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("BaseColor_UAmount")), 3.0f);
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("BaseColor_Angle")), 0.25f);
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("BaseColor_UOffset")), 0.5f);
	Instance->SetScalarParameterValueEditorOnly(Info(TEXT("BaseColor_Intensity")), 0.75f);
	Instance->SetTextureParameterValueEditorOnly(Info(TEXT("BaseColor_Texture")), Texture);
	Instance->SetStaticSwitchParameterValueEditorOnly(Info(TEXT("BaseColor_HasMap")), true);
	Instance->SetStaticSwitchParameterValueEditorOnly(Info(TEXT("Opacity_AlphaMode")), true);
	Instance->BasePropertyOverrides.bOverride_BlendMode = true;
	Instance->BasePropertyOverrides.BlendMode = BLEND_Masked;
	Instance->BasePropertyOverrides.bOverride_TwoSided = true;
	Instance->BasePropertyOverrides.TwoSided = true;
	Instance->PostEditChange();
	Show(MakeQuad())->SetMaterial(0, Instance);

	const FSceneSnapshot Snapshot = Take();

	ASSERT_EQ(Snapshot.Objects[0].Materials.size(), 1u);
	const FMaterialSnapshot& Material = *Snapshot.Objects[0].Materials[0];
	EXPECT_EQ(Material.BaseColor.Y, 0.5f);
	EXPECT_EQ(Material.Roughness, 0.125f);
	EXPECT_EQ(Material.Blend, EBlend::Masked);
	EXPECT_TRUE(Material.bTwoSided);
	EXPECT_TRUE(Material.bOpacityFromAlpha);
	EXPECT_EQ(Material.Look.SheenColor.Y, 0.25f);
	const FChannelMap& Map = Material.Map(ESurfaceChannel::BaseColor);
	ASSERT_NE(Map.Texture, nullptr);
	EXPECT_EQ(Map.UAmount, 3.0f);
	EXPECT_EQ(Map.AngleTurns, 0.25f);
	EXPECT_EQ(Map.UOffset, 0.5f);
	EXPECT_EQ(Map.Intensity, 0.75f);
	EXPECT_EQ(Map.Texture->Width, 2);
	EXPECT_EQ(Map.Texture->Height, 1);
	EXPECT_EQ(Map.Texture->Layout, ETextureLayout::Bgra8);
	EXPECT_FALSE(Map.Texture->bSRGB);
	EXPECT_EQ(Map.Texture->Pixels.get(), Texture->Source.LockMipReadOnly(0)); // shared, not copied
	EXPECT_EQ(Material.Map(ESurfaceChannel::Opacity).Texture, nullptr);
}

TEST_F(SceneCapture, KeepsThePixelsOfATextureThatIsGone)
{
	UMaterialInstanceConstant* Instance = MaterialSamples::MakeInstance(MaterialSamples::MakeMaster());
	UTexture2D* Texture = MaterialSamples::MakeTexture(TEXT("Map"));
	const uint16 Pixels[4] = {0x1234, 0x5678, 0x9abc, 0xdef0};
	Texture->Source.Init(1, 1, 1, 1, TSF_RGBA16, reinterpret_cast<const uint8*>(Pixels));
	Instance->SetTextureParameterValueEditorOnly(MaterialSamples::Info(TEXT("BaseColor_Texture")), Texture);
	Instance->SetStaticSwitchParameterValueEditorOnly(MaterialSamples::Info(TEXT("BaseColor_HasMap")), true);
	Instance->PostEditChange();
	UDynamicMeshComponent* Component = Show(MakeQuad());
	Component->SetMaterial(0, Instance);
	const FSceneSnapshot Snapshot = Take();
	Scene->RemoveComponent(Component);
	CollectAll();

	const FTextureSnapshot& Taken = *Snapshot.Objects[0].Materials[0]->Map(ESurfaceChannel::BaseColor).Texture;

	EXPECT_EQ(Taken.Layout, ETextureLayout::Rgba16);
	EXPECT_EQ(reinterpret_cast<const uint16*>(Taken.Pixels.get())[2], 0x9abc);
}

TEST_F(SceneCapture, ShowsEachMasterInALookOfItsOwn)
{
	std::string Reason;
	const std::unique_ptr<FSceneRenderer> Renderer = FSceneRenderer::Create(Reason);
	if (!Renderer)
	{
		GTEST_SKIP() << Reason;
	}
	UDynamicMeshComponent* Component = Show(ToDynamicMesh(*SceneShapes::Ball(4.0f)));
	std::vector<std::pair<std::string, FImage>> Drawn;
	for (const char* Label : {"Default", "Matte", "Shiny", "Metal", "Plastic", "Leather", "Silk", "Velvet", "GlassGem",
			 "Fur", "Light", "Glitter", "Skin", "Iridescence", "KnitWear"})
	{
		UMaterialInterface* Master = LoadMaster(Label);
		ASSERT_NE(Master, nullptr) << Label;
		UMaterialInstanceConstant* Instance = MaterialSamples::MakeInstance(Master);
		Instance->SetVectorParameterValueEditorOnly(
			MaterialSamples::Info(TEXT("BaseColor")), FLinearColor(0.4f, 0.2f, 0.15f, 1.0f));
		Instance->PostEditChange();
		Component->SetMaterial(0, Instance);
		FSceneSnapshot Snapshot = Take();
		LookAtScene(Snapshot, 0.0f, 0.0f, 30.0f, 1.0f);
		FRenderResult Result = Renderer->Render(Snapshot, 96, 96);
		ASSERT_TRUE(Result.IsOk()) << Result.Error;
		for (const auto& [OtherLabel, Other] : Drawn)
		{
			double Difference = 0.0;
			for (size_t Index = 0; Index < Other.Pixels.size(); ++Index)
			{
				Difference += std::abs(int(Other.Pixels[Index]) - int(Result.Image.Pixels[Index]));
			}
			EXPECT_GT(Difference / double(Other.Pixels.size()), 0.4) << Label << " against " << OtherLabel;
		}
		Drawn.emplace_back(Label, std::move(Result.Image));
	}
	Scene->RemoveComponent(Component);
}
