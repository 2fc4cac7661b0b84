// SPDX-License-Identifier: MIT
#include "EngineFixture.h"
#include "MaterialSamples.h"
#include "SkeletalMeshSamples.h"
#include "UObject/GarbageCollection.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

using namespace SkeletalMeshSamples;

namespace
{
using SkeletalMesh = FEngineFixture;

/** Half a step of a signed byte. */
constexpr float TangentError = 0.5f / 127.0f;

std::vector<uint32> Indices(const FSkeletalMeshLODRenderData& LOD)
{
	TArray<uint32> Read;
	LOD.MultiSizeIndexContainer.GetIndexBuffer(Read);
	return std::vector<uint32>(Read.begin(), Read.end());
}

int32 SumOfLowBytes(const FSkinWeightInfo& Info)
{
	return std::accumulate(std::begin(Info.InfluenceWeights), std::end(Info.InfluenceWeights), 0,
		[](int32 Sum, uint16 Weight) { return Sum + (Weight & 255); });
}
} // namespace

TEST_F(SkeletalMesh, StartsWithoutLevelsBonesAndRenderData)
{
	USkeletalMesh* Mesh = NewObject<USkeletalMesh>(GetTransientPackage());
	ASSERT_NE(Mesh->GetImportedModel(), nullptr);
	EXPECT_EQ(Mesh->GetImportedModel()->LODModels.Num(), 0);
	EXPECT_EQ(Mesh->GetRefSkeleton().GetNum(), 0);
	EXPECT_EQ(Mesh->GetLODNum(), 0);
	EXPECT_EQ(Mesh->GetSkeleton(), nullptr);
	EXPECT_EQ(Mesh->GetResourceForRendering(), nullptr);
	EXPECT_FALSE(Mesh->GetHasVertexColors());
}

TEST_F(SkeletalMesh, BuildsOneRenderSectionForEachSectionInOrder)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
	FSkeletalMeshLODModel& Model = AddLevel(Mesh);
	AddTriangle(Model, 0.0f, 1);
	AddTriangle(Model, 10.0f, 65535).bCastShadow = false;
	Model.Sections[1].bDisabled = true;
	Model.ActiveBoneIndices = {0};
	Model.RequiredBones = {0};
	Mesh->Build();

	ASSERT_EQ(Mesh->GetResourceForRendering()->LODRenderData.Num(), 1);
	const FSkeletalMeshLODRenderData& LOD = Mesh->GetResourceForRendering()->LODRenderData[0];
	ASSERT_EQ(LOD.RenderSections.Num(), 2);
	EXPECT_EQ(LOD.RenderSections[0].MaterialIndex, 1);
	EXPECT_EQ(LOD.RenderSections[1].MaterialIndex, 65535);
	EXPECT_EQ(LOD.RenderSections[1].BaseIndex, 3u);
	EXPECT_EQ(LOD.RenderSections[1].BaseVertexIndex, 3u);
	EXPECT_EQ(LOD.RenderSections[1].NumTriangles, 1u);
	EXPECT_EQ(LOD.RenderSections[1].NumVertices, 3u);
	EXPECT_TRUE(LOD.RenderSections[0].bCastShadow);
	EXPECT_FALSE(LOD.RenderSections[1].bCastShadow);
	EXPECT_TRUE(LOD.RenderSections[1].bDisabled);
	EXPECT_EQ(LOD.RenderSections[0].BoneMap.Num(), 1);
	EXPECT_EQ(LOD.GetNumVertices(), 6u);
	EXPECT_EQ(LOD.GetTotalFaces(), 2);
	EXPECT_EQ(Indices(LOD), (std::vector<uint32>{0, 1, 2, 3, 4, 5}));
	EXPECT_EQ(LOD.RequiredBones.Num(), 1);
	EXPECT_EQ(LOD.ActiveBoneIndices.Num(), 1);
}

TEST_F(SkeletalMesh, LaysTheVerticesOfAllSectionsOneAfterTheOther)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
	FSkeletalMeshLODModel& Model = AddLevel(Mesh);
	AddTriangle(Model, 0.0f, 0);
	AddTriangle(Model, 10.0f, 0);
	Model.Sections[1].SoftVertices[1].TangentZ = FVector4f(0.0f, 0.6f, 0.8f, -1.0f);
	Mesh->Build();

	const FSkeletalMeshLODRenderData& LOD = Mesh->GetResourceForRendering()->LODRenderData[0];
	const FStaticMeshVertexBuffer& Vertices = LOD.StaticVertexBuffers.StaticMeshVertexBuffer;
	EXPECT_EQ(LOD.StaticVertexBuffers.PositionVertexBuffer.VertexPosition(4), FVector3f(11.0f, 0.0f, 0.0f));
	EXPECT_EQ(Vertices.GetVertexUV(4, 0), FVector2f(11.0f, 0.5f)) << "11 and 0.5 are exact in 16 bits";
	EXPECT_NEAR(Vertices.VertexTangentZ(4).Y, 0.6f, TangentError);
	EXPECT_NEAR(Vertices.VertexTangentZ(4).Z, 0.8f, TangentError);
	EXPECT_EQ(Vertices.VertexTangentZ(4).W, -1.0f);
	EXPECT_EQ(Vertices.VertexTangentX(0), FVector4f(1.0f, 0.0f, 0.0f, 1.0f));
	EXPECT_EQ(Vertices.VertexTangentY(0), FVector3f(0.0f, 1.0f, 0.0f));
	EXPECT_EQ(LOD.GetNumTexCoords(), 1u);
}

TEST_F(SkeletalMesh, HasVertexColoursInTheBufferOnlyWhenItSaysSo)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
	AddTriangle(AddLevel(Mesh), 0.0f, 0);
	Mesh->Build();
	EXPECT_EQ(
		Mesh->GetResourceForRendering()->LODRenderData[0].StaticVertexBuffers.ColorVertexBuffer.GetNumVertices(), 0u);

	Mesh->SetHasVertexColors(true);
	Mesh->PostEditChange();
	const FColorVertexBuffer& Colors =
		Mesh->GetResourceForRendering()->LODRenderData[0].StaticVertexBuffers.ColorVertexBuffer;
	ASSERT_EQ(Colors.GetNumVertices(), 3u);
	EXPECT_EQ(Colors.VertexColor(2), FColor(10, 20, 30, 40));
}

TEST_F(SkeletalMesh, StoresWeightsAsBytesThatAddUpTo255)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
	FSkeletalMeshLODModel& Model = AddLevel(Mesh);
	FSkelMeshSection& Section = AddTriangle(Model, 0.0f, 0);
	const uint16 Thirds[] = {21845, 21845, 21845};
	const uint16 Tenths[] = {6555, 6554, 6554, 6554, 6553, 6553, 6553, 6553, 6553, 6553};
	FMemory::Memcpy(Section.SoftVertices[0].InfluenceWeights, Thirds, sizeof(Thirds));
	FMemory::Memcpy(Section.SoftVertices[1].InfluenceWeights, Tenths, sizeof(Tenths));
	Section.CalcMaxBoneInfluences();
	Mesh->Build();

	const FSkinWeightVertexBuffer& Weights =
		*Mesh->GetResourceForRendering()->LODRenderData[0].GetSkinWeightVertexBuffer();
	EXPECT_EQ(Weights.GetMaxBoneInfluences(), 10u);
	EXPECT_FALSE(Weights.Use16BitBoneWeight());
	EXPECT_EQ(Weights.GetBoneWeight(0, 1), 85 * 257);
	EXPECT_EQ(SumOfLowBytes(Weights.GetVertexSkinWeights(0)), 255);
	EXPECT_EQ(SumOfLowBytes(Weights.GetVertexSkinWeights(1)), 255);
	EXPECT_EQ(Weights.GetBoneWeight(2, 0), 65535);
	EXPECT_EQ(Weights.GetBoneWeight(2, 11), 0) << "past the slots of the buffer";
}

TEST_F(SkeletalMesh, KeepsSixteenBitsWhereTheLevelAsksForThem)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
	FSkeletalMeshLODModel& Model = AddLevel(Mesh);
	FSkelMeshSection& Section = AddTriangle(Model, 0.0f, 0);
	Section.SoftVertices[0].InfluenceBones[0] = 300;
	Section.SoftVertices[0].InfluenceWeights[0] = 65533;
	Section.SoftVertices[0].InfluenceWeights[1] = 2;
	Section.SoftVertices[0].UVs[0] = FVector2f(0.1f, 0.2f);
	Section.CalcMaxBoneInfluences();
	Section.CalcUse16BitBoneIndex();
	FSkeletalMeshBuildSettings& Settings = Mesh->GetLODInfo(0)->BuildSettings;
	Settings.bUseHighPrecisionSkinWeights = true;
	Settings.bUseFullPrecisionUVs = true;
	Settings.bUseHighPrecisionTangentBasis = true;
	Mesh->Build();

	const FSkeletalMeshLODRenderData& LOD = Mesh->GetResourceForRendering()->LODRenderData[0];
	EXPECT_TRUE(LOD.SkinWeightVertexBuffer.Use16BitBoneIndex());
	EXPECT_EQ(LOD.SkinWeightVertexBuffer.GetBoneIndex(0, 0), 300u);
	EXPECT_EQ(LOD.SkinWeightVertexBuffer.GetBoneWeight(0, 0), 65533);
	EXPECT_EQ(LOD.SkinWeightVertexBuffer.GetBoneWeight(0, 1), 2);
	EXPECT_EQ(LOD.StaticVertexBuffers.StaticMeshVertexBuffer.GetVertexUV(0, 0), FVector2f(0.1f, 0.2f));
	EXPECT_EQ(LOD.StaticVertexBuffers.StaticMeshVertexBuffer.VertexTangentZ(0), FVector4f(0.0f, 0.0f, 1.0f, 1.0f));
}

TEST_F(SkeletalMesh, CountsInfluencesByTheVertexThatHasMost)
{
	FSkelMeshSection Section;
	Section.SoftVertices.Add(MakeVertex(0.0f));
	Section.SoftVertices.Add(MakeVertex(1.0f));
	Section.SoftVertices[1].InfluenceWeights[4] = 1;
	Section.SoftVertices[1].InfluenceWeights[7] = 1;
	Section.CalcMaxBoneInfluences();
	EXPECT_EQ(Section.GetMaxBoneInfluences(), 3);
}

TEST_F(SkeletalMesh, NeedsSixteenBitsForABoneFrom256On)
{
	FSkelMeshSection Section;
	Section.SoftVertices.Add(MakeVertex(0.0f));
	Section.SoftVertices[0].InfluenceBones[0] = 255;
	Section.CalcUse16BitBoneIndex();
	EXPECT_FALSE(Section.Use16BitBoneIndex());
	Section.SoftVertices[0].InfluenceBones[0] = 256;
	Section.CalcUse16BitBoneIndex();
	EXPECT_TRUE(Section.Use16BitBoneIndex());
}

TEST_F(SkeletalMesh, UsesWideIndicesFrom65535VerticesOn)
{
	for (const int32 NumVertices : {65534, 65535})
	{
		USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
		FSkeletalMeshLODModel& Model = AddLevel(Mesh);
		FSkelMeshSection& Section = AddTriangle(Model, 0.0f, 0);
		while (Section.SoftVertices.Num() < NumVertices)
		{
			Section.SoftVertices.Add(MakeVertex(0.0f));
		}
		Model.IndexBuffer = {0, 1, uint32(NumVertices) - 1};
		Mesh->Build();
		const FSkeletalMeshLODRenderData& LOD = Mesh->GetResourceForRendering()->LODRenderData[0];
		EXPECT_EQ(LOD.MultiSizeIndexContainer.GetDataTypeSize(), NumVertices < 65535 ? 2 : 4);
		EXPECT_EQ(LOD.MultiSizeIndexContainer.GetIndexBuffer()->Get(2), uint32(NumVertices) - 1);
	}
}

TEST_F(SkeletalMesh, ListsTheVerticesInTheSamePlace)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
	FSkelMeshSection& Section = AddTriangle(AddLevel(Mesh), 0.0f, 0);
	Section.OverlappingVertices.Add(0, {2});
	Section.OverlappingVertices.Add(2, {0});
	Mesh->Build();

	const FDuplicatedVerticesBuffer& Buffer =
		Mesh->GetResourceForRendering()->LODRenderData[0].RenderSections[0].DuplicatedVerticesBuffer;
	EXPECT_TRUE(Buffer.bHasOverlappingVertices);
	ASSERT_EQ(Buffer.DupVertIndexData.Num(), 3);
	EXPECT_EQ(Buffer.DupVertIndexData[0].Length, 1u);
	EXPECT_EQ(Buffer.DupVertIndexData[1].Length, 0u);
	EXPECT_EQ(Buffer.DupVertIndexData[2].Index, 1u);
	EXPECT_EQ(Buffer.DupVertData[0], 2u);
	EXPECT_EQ(Buffer.DupVertData[1], 0u);
}

TEST_F(SkeletalMesh, RequiresEveryBoneInAscendingOrderButTheRemovedOnes)
{
	const USkeletalMesh* Mesh = MakeMesh({{TEXT("A"), -1}, {TEXT("B"), 0}, {TEXT("C"), 1}});
	FSkeletalMeshLODModel Model;
	USkeletalMesh::CalculateRequiredBones(Model, Mesh->GetRefSkeleton(), nullptr);
	EXPECT_EQ(Model.RequiredBones, (TArray<FBoneIndexType>{0, 1, 2}));

	const TMap<FBoneIndexType, FBoneIndexType> Removed = {{1, 0}};
	USkeletalMesh::CalculateRequiredBones(Model, Mesh->GetRefSkeleton(), &Removed);
	EXPECT_EQ(Model.RequiredBones, (TArray<FBoneIndexType>{0, 2}));
}

TEST_F(SkeletalMesh, InvertsTheReferencePoseOfEachBoneOnceForANumberOfBones)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("A"), -1, FVector(1.0, 0.0, 0.0)}, {TEXT("B"), 0, FVector(0.0, 2.0, 0.0)}});
	Mesh->CalculateInvRefMatrices();
	ASSERT_EQ(Mesh->GetRefBasesInvMatrix().Num(), 2);
	const FVector4f Origin = Mesh->GetRefBasesInvMatrix()[1].TransformPosition(FVector3f(1.0f, 2.0f, 0.0f));
	EXPECT_EQ(FVector3f(Origin), FVector3f(0.0f, 0.0f, 0.0f));
	EXPECT_EQ(Mesh->GetComposedRefPoseMatrix(1).GetOrigin(), FVector(1.0, 2.0, 0.0));

	Mesh->GetRefBasesInvMatrix()[1] = FMatrix44f::Identity;
	Mesh->CalculateInvRefMatrices();
	EXPECT_EQ(Mesh->GetRefBasesInvMatrix()[1], FMatrix44f::Identity) << "as many as bones: they stay";
}

TEST_F(SkeletalMesh, HalvesTheSizeOfEachFurtherLevel)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("A"), -1}});
	Mesh->AddLODInfo();
	Mesh->AddLODInfo();
	EXPECT_EQ(Mesh->GetLODInfo(0)->ScreenSize.GetValue(), 1.0f);
	EXPECT_EQ(Mesh->GetLODInfo(1)->ScreenSize.GetValue(), 0.5f);
	EXPECT_EQ(Mesh->GetLODInfo(2), nullptr);
	Mesh->ResetLODInfo();
	EXPECT_EQ(Mesh->GetLODNum(), 0);
}

TEST_F(SkeletalMesh, AnswersTheImportedBounds)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("A"), -1}});
	Mesh->SetImportedBounds(FBoxSphereBounds(FVector(1.0, 2.0, 3.0), FVector(4.0, 5.0, 6.0), 7.0));
	EXPECT_EQ(Mesh->GetBounds().Origin, FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(Mesh->GetBounds().SphereRadius, 7.0);
}

TEST_F(SkeletalMesh, KeepsItsMaterialsAndSkeletonAlive)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("A"), -1}});
	Mesh->AddToRoot();
	Mesh->GetMaterials().Add(FSkeletalMaterial(MaterialSamples::MakeMaster()));
	Mesh->SetSkeleton(NewObject<USkeleton>(GetTransientPackage(), TEXT("Skeleton")));
	const TWeakObjectPtr<UMaterialInterface> Material = Mesh->GetMaterials()[0].MaterialInterface.Get();
	const TWeakObjectPtr<USkeleton> Skeleton = Mesh->GetSkeleton();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Material.IsValid());
	EXPECT_TRUE(Skeleton.IsValid());
	Mesh->RemoveFromRoot();
}

TEST_F(SkeletalMesh, GivesADuplicateItsOwnSourceAndRenderData)
{
	USkeletalMesh* Mesh = MakeMesh({{TEXT("Root"), -1}});
	AddTriangle(AddLevel(Mesh), 0.0f, 0);
	Mesh->GetMaterials().Add(FSkeletalMaterial(MaterialSamples::MakeMaster(), FName(TEXT("Slot"))));
	Mesh->Build();

	USkeletalMesh* Copy = DuplicateObject<USkeletalMesh>(Mesh, GetTransientPackage(), TEXT("Copy"));
	Mesh->GetImportedModel()->LODModels[0].Sections[0].SoftVertices[0].Position.X = 99.0f;
	ASSERT_EQ(Copy->GetImportedModel()->LODModels.Num(), 1);
	EXPECT_EQ(Copy->GetImportedModel()->LODModels[0].Sections[0].SoftVertices[0].Position.X, 0.0f);
	EXPECT_EQ(Copy->GetRefSkeleton().GetNum(), 1);
	EXPECT_EQ(Copy->GetMaterials()[0].MaterialSlotName, FName(TEXT("Slot")));
	ASSERT_NE(Copy->GetResourceForRendering(), nullptr);
	EXPECT_NE(Copy->GetResourceForRendering(), Mesh->GetResourceForRendering());
	EXPECT_EQ(Copy->GetResourceForRendering()->LODRenderData[0].GetNumVertices(), 3u);
}
