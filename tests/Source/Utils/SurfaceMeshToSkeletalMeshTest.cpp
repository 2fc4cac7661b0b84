// SPDX-License-Identifier: MIT
#include "Animation/Skeleton.h"
#include "Engine/SkeletalMesh.h"
#include "Engine/SkinnedAssetCommon.h"
#include "EngineFixture.h"
#include "ReferenceSkeleton.h"
#include "Rendering/SkeletalMeshLODModel.h"
#include "Rendering/SkeletalMeshModel.h"
#include "Rendering/SkeletalMeshLODRenderData.h"
#include "Rendering/SkeletalMeshRenderData.h"
#include "Source/AssertionChecks.h"
#include "Source/SampleMeshes.h"
#include "Utils/ZEFTandemEditorUtils.h"

#include <gtest/gtest.h>

#include <numeric>

using namespace SampleMeshes;

namespace
{

class SurfaceMeshToSkeletalMesh : public FEngineFixture
{
protected:
	const FSkeletalMeshLODModel& Convert(const FZEFSurfaceMesh& Mesh)
	{
		EXPECT_TRUE(ZEFEditorUtils::ZEFSurfaceMeshToSkeletalMeshData(Mesh, TEXT("SkeletalMesh"), &Data));
		return Data.SkeletalMesh->GetImportedModel()->LODModels[0];
	}

	/** The first vertex of a triangle whose first vertex has the given influences. */
	const FSoftSkinVertex& ConvertWeights(const TArray<FZEFBoneInfluence>& Influences)
	{
		FZEFSurfaceMesh Mesh = MakeSkinned();
		for (int32 Joint = 2; Joint < 40; ++Joint)
		{
			Mesh.Joints.Add(MakeJoint(*FString::Printf(TEXT("Bone%d"), Joint), 0));
		}
		Mesh.VertexInfluences[0].Influences = Influences;
		return Convert(Mesh).Sections[0].SoftVertices[0];
	}

	FZEFSkeletalMeshData Data;
};

int32 SumOfWeights(const FSoftSkinVertex& Vertex)
{
	return std::accumulate(std::begin(Vertex.InfluenceWeights), std::end(Vertex.InfluenceWeights), 0);
}

TArray<uint32> Indices(std::initializer_list<uint32> Values)
{
	return TArray<uint32>(Values);
}

} // namespace

TEST_F(SurfaceMeshToSkeletalMesh, AnswersFalseWithoutAResult)
{
	EXPECT_FALSE(ZEFEditorUtils::ZEFSurfaceMeshToSkeletalMeshData(MakeSkinned(), TEXT("SkeletalMesh"), nullptr));
}

TEST_F(SurfaceMeshToSkeletalMesh, NamesMeshAndSkeletonAndLinksThem)
{
	Data.Name = TEXT("Before");
	Convert(MakeSkinned());

	EXPECT_EQ(Data.SkeletalMesh->GetName(), FString(TEXT("SkeletalMesh")));
	EXPECT_EQ(Data.Skeleton->GetName(), FString(TEXT("SkeletalMesh_Skeleton")));
	EXPECT_EQ(Data.SkeletalMesh->GetSkeleton(), Data.Skeleton);
	EXPECT_EQ(Data.Skeleton->GetPreviewMesh(), Data.SkeletalMesh);
	EXPECT_EQ(Data.Name, FString(TEXT("Before")));
}

TEST_F(SurfaceMeshToSkeletalMesh, KeepsJointsInOrderWithExportNames)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Joints[1].Transform = FTransform3f(FQuat4f(0.5f, 0.5f, 0.5f, 0.5f), FVector3f(1, 2, 3), FVector3f(1, 1, 2));
	Convert(Mesh);

	const FReferenceSkeleton& Bones = Data.SkeletalMesh->GetRefSkeleton();
	ASSERT_EQ(Bones.GetRawBoneNum(), 2);
	EXPECT_EQ(Bones.GetRawRefBoneInfo()[1].Name, FName(TEXT("Spine")));
	EXPECT_EQ(Bones.GetRawRefBoneInfo()[1].ExportName, FString(TEXT("Spine_Export")));
	EXPECT_EQ(Bones.GetRawRefBoneInfo()[1].ParentIndex, 0);
	EXPECT_EQ(Bones.GetRawRefBoneInfo()[0].ParentIndex, -1);
	const FTransform& Pose = Bones.GetRawRefBonePose()[1];
	EXPECT_EQ(Pose.GetTranslation(), FVector(1, 2, 3));
	EXPECT_EQ(Pose.GetScale3D(), FVector(1, 1, 2));
	EXPECT_EQ(Pose.GetRotation().W, 0.5);
	EXPECT_EQ(Data.Skeleton->GetReferenceSkeleton().GetRawBoneNum(), 2);
}

TEST_F(SurfaceMeshToSkeletalMesh, SingleInfluenceOfWeightOneIs65535)
{
	const FSoftSkinVertex& Vertex = ConvertWeights({{1, 1.0f}});

	EXPECT_EQ(Vertex.InfluenceBones[0], 1);
	EXPECT_EQ(Vertex.InfluenceWeights[0], 65535);
	EXPECT_EQ(Vertex.InfluenceWeights[1], 0);
}

TEST_F(SurfaceMeshToSkeletalMesh, ResidueOfRoundingGoesToTheHeaviest)
{
	// 0.5 gives 32768, 0.3 gives 19661, 0.2 gives 13107: one above 65535, which the heaviest loses.
	const FSoftSkinVertex& Vertex = ConvertWeights({{3, 0.5f}, {4, 0.3f}, {5, 0.2f}});

	EXPECT_EQ(Vertex.InfluenceBones[0], 3);
	EXPECT_EQ(Vertex.InfluenceWeights[0], 32767);
	EXPECT_EQ(Vertex.InfluenceWeights[1], 19661);
	EXPECT_EQ(Vertex.InfluenceWeights[2], 13107);
	EXPECT_EQ(SumOfWeights(Vertex), 65535);
}

TEST_F(SurfaceMeshToSkeletalMesh, SortsInfluencesHeaviestFirst)
{
	const FSoftSkinVertex& Vertex = ConvertWeights({{2, 0.1f}, {3, 0.6f}, {4, 0.3f}});

	EXPECT_EQ(Vertex.InfluenceBones[0], 3);
	EXPECT_EQ(Vertex.InfluenceBones[1], 4);
	EXPECT_EQ(Vertex.InfluenceBones[2], 2);
}

TEST_F(SurfaceMeshToSkeletalMesh, KeepsTheTwelveHeaviestOfThirteenInfluences)
{
	TArray<FZEFBoneInfluence> Influences;
	for (int32 Bone = 0; Bone < 12; ++Bone)
	{
		Influences.Add({Bone + 10, 0.08f});
	}
	Influences.Add({30, 0.04f});
	Influences[0].Weight = 0.09f;

	const FSoftSkinVertex& Vertex = ConvertWeights(Influences);

	// 0.08 gives 5243 eleven times and 0.09 gives 5899; 65535 - 11 * 5243 - 5899 = 1963 go to the heaviest.
	EXPECT_EQ(Vertex.InfluenceBones[0], 10);
	EXPECT_EQ(Vertex.InfluenceWeights[0], 5899 + 1963);
	EXPECT_EQ(Vertex.InfluenceWeights[11], 5243);
	EXPECT_EQ(SumOfWeights(Vertex), 65535);
	for (const FBoneIndexType Bone : Vertex.InfluenceBones)
	{
		EXPECT_NE(Bone, 30);
	}
}

TEST_F(SurfaceMeshToSkeletalMesh, WeightOfZeroBecomesOne)
{
	const FSoftSkinVertex& Vertex = ConvertWeights({{1, 1.0f}, {2, 0.0f}});

	EXPECT_EQ(Vertex.InfluenceWeights[1], 1);
	EXPECT_EQ(Vertex.InfluenceWeights[0], 65534);
}

TEST_F(SurfaceMeshToSkeletalMesh, WeightsAboveOneTogetherWrapInSixteenBits)
{
	const FSoftSkinVertex& Vertex = ConvertWeights({{1, 1.0f}, {2, 1.0f}});

	// Rest = 65535 - 65535 - 65535 = 1 in 16 bits; the heaviest becomes 65535 + 1 = 0.
	EXPECT_EQ(Vertex.InfluenceWeights[0], 0);
	EXPECT_EQ(Vertex.InfluenceWeights[1], 65535);
}

TEST_F(SurfaceMeshToSkeletalMesh, SecondEntryOfABoneReplacesTheFirst)
{
	const FSoftSkinVertex& Vertex = ConvertWeights({{1, 0.25f}, {2, 0.5f}, {1, 0.5f}});

	EXPECT_EQ(Vertex.InfluenceWeights[0] + Vertex.InfluenceWeights[1], 65535);
	EXPECT_EQ(Vertex.InfluenceWeights[2], 0);
}

TEST_F(SurfaceMeshToSkeletalMesh, BoneIndexIsReadAsSixteenBits)
{
	const FSoftSkinVertex& Vertex = ConvertWeights({{65536 + 3, 1.0f}});

	EXPECT_EQ(Vertex.InfluenceBones[0], 3);
}

TEST_F(SurfaceMeshToSkeletalMesh, EmptyInfluenceListHangsOnBoneZeroWith65534)
{
	const FSoftSkinVertex& Vertex = ConvertWeights({});

	EXPECT_EQ(Vertex.InfluenceBones[0], 0);
	EXPECT_EQ(Vertex.InfluenceWeights[0], 65534);
}

TEST_F(SurfaceMeshToSkeletalMesh, VertexBeyondTheInfluencesHangsOnBoneZeroWhole)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.VertexInfluences.SetNum(2);

	const FSoftSkinVertex& Vertex = Convert(Mesh).Sections[0].SoftVertices[2];

	EXPECT_EQ(Vertex.InfluenceBones[0], 0);
	EXPECT_EQ(Vertex.InfluenceWeights[0], 65535);
}

TEST_F(SurfaceMeshToSkeletalMesh, InfluencesOfASecondSurfaceStartAtItsOffset)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces.Add(MakeSurface(3, 3));
	Mesh.Surfaces[1].Sections.Add(MakeSection(1, {0, 1, 2}));
	for (int32 Vertex = 0; Vertex < 3; ++Vertex)
	{
		Mesh.VertexInfluences.AddDefaulted_GetRef().Influences.Add({0, 0.5f});
	}

	const FSkeletalMeshLODModel& Model = Convert(Mesh);

	EXPECT_EQ(Model.Sections[0].SoftVertices[0].InfluenceBones[0], 1);
	EXPECT_EQ(Model.Sections[1].SoftVertices[0].InfluenceBones[0], 0);
	EXPECT_EQ(Model.Sections[1].BaseVertexIndex, 3u);
	EXPECT_EQ(Model.Sections[1].BaseIndex, 3u);
	EXPECT_EQ(Model.IndexBuffer, Indices({0, 1, 2, 3, 4, 5}));
}

TEST_F(SurfaceMeshToSkeletalMesh, UnknownMaterialKeyGivesMaterialIndex65535)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces[0].Sections[0].MaterialIndex = 4;

	EXPECT_EQ(Convert(Mesh).Sections[0].MaterialIndex, 65535);
}

TEST_F(SurfaceMeshToSkeletalMesh, CornersOfOneSourceVertexShareASoftVertex)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces[0] = MakeSurface(4);
	Mesh.Surfaces[0].Sections.Add(MakeSection(1, {2, 1, 0, 1, 2, 3}));

	const FSkeletalMeshLODModel& Model = Convert(Mesh);

	EXPECT_EQ(Model.Sections[0].SoftVertices.Num(), 4);
	EXPECT_EQ(Model.Sections[0].NumVertices, 4);
	EXPECT_EQ(Model.NumVertices, 4u);
	EXPECT_EQ(Model.IndexBuffer, Indices({0, 1, 2, 1, 0, 3}));
	EXPECT_EQ(Model.MeshToImportVertexMap, TArray<int32>({0, 1, 2, 1, 0, 3}));
	EXPECT_EQ(Model.Sections[0].SoftVertices[0].Position, FVector3f(2, 0, 0));
}

TEST_F(SurfaceMeshToSkeletalMesh, EqualVerticesOfDifferentSourcesStaySeparate)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces[0].Positions[1] = Mesh.Surfaces[0].Positions[0];
	Mesh.Surfaces[0].UVs[1] = Mesh.Surfaces[0].UVs[0];

	EXPECT_EQ(Convert(Mesh).Sections[0].SoftVertices.Num(), 3);
}

TEST_F(SurfaceMeshToSkeletalMesh, ASourceVertexOfTwoSectionsBecomesOneSoftVertexInEach)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces[0].Sections.Add(MakeSection(1, {0, 2, 1}));

	const FSkeletalMeshLODModel& Model = Convert(Mesh);

	EXPECT_EQ(Model.Sections.Num(), 2);
	EXPECT_EQ(Model.NumVertices, 6u);
	EXPECT_EQ(Model.IndexBuffer, Indices({0, 1, 2, 3, 4, 5}));
	EXPECT_EQ(Model.MeshToImportVertexMap, TArray<int32>({0, 1, 2, 0, 1, 2}));
}

TEST_F(SurfaceMeshToSkeletalMesh, TrailingIndicesKeepTheirSlotsAsZero)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces[0].Sections.Insert(MakeSection(1, {2, 1, 0, 1, 2}), 0);

	const FSkeletalMeshLODModel& Model = Convert(Mesh);

	EXPECT_EQ(Model.Sections[0].NumTriangles, 1u);
	EXPECT_EQ(Model.IndexBuffer, Indices({0, 1, 2, 0, 0, 3, 4, 5}));
	EXPECT_EQ(Model.Sections[1].BaseIndex, 5u);
}

TEST_F(SurfaceMeshToSkeletalMesh, FillsTheTangentFrame)
{
	const FSoftSkinVertex& Vertex = Convert(MakeSkinned()).Sections[0].SoftVertices[0];

	EXPECT_EQ(Vertex.TangentX, FVector3f(1, 0, 0));
	EXPECT_EQ(Vertex.TangentY, FVector3f(0, 1, 0));
	EXPECT_EQ(Vertex.TangentZ, FVector4f(0, 0, 1, 1));
	EXPECT_EQ(Vertex.UVs[0], FVector2f(0.0f, 0.5f));
}

TEST_F(SurfaceMeshToSkeletalMesh, BonesOfSectionsAndOfTheLevelOfDetailAreThoseOfTheSkeleton)
{
	const FSkeletalMeshLODModel& Model = Convert(MakeSkinned());

	EXPECT_EQ(Model.ActiveBoneIndices, TArray<FBoneIndexType>({0, 1}));
	EXPECT_EQ(Model.RequiredBones, TArray<FBoneIndexType>({0, 1}));
	EXPECT_EQ(Model.Sections[0].BoneMap, TArray<FBoneIndexType>({0, 1}));
	EXPECT_EQ(Model.Sections[0].MaxBoneInfluences, 1);
	EXPECT_FALSE(Model.Sections[0].bUse16BitBoneIndex);
	EXPECT_EQ(Model.NumTexCoords, 1u);
}

TEST_F(SurfaceMeshToSkeletalMesh, HasOneLevelOfDetailAtFullDetail)
{
	Convert(MakeSkinned());

	const FSkeletalMeshOptimizationSettings& Reduction = Data.SkeletalMesh->GetLODInfo(0)->ReductionSettings;
	EXPECT_EQ(Reduction.NumOfTrianglesPercentage, 1.0f);
	EXPECT_EQ(Reduction.NumOfVertPercentage, 1.0f);
	EXPECT_EQ(Reduction.MaxDeviationPercentage, 0.0f);
	EXPECT_EQ(Data.SkeletalMesh->GetImportedModel()->LODModels.Num(), 1);
	EXPECT_TRUE(Data.SkeletalMesh->GetHasVertexColors());
	EXPECT_TRUE(Data.SkeletalMesh->GetVertexColorGuid().IsValid());
}

TEST_F(SurfaceMeshToSkeletalMesh, BoundsSpanAllPositionsUsedOrNot)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces[0] = MakeSurface(4);
	Mesh.Surfaces[0].Sections.Add(MakeSection(1, {0, 1, 2}));
	Mesh.Surfaces[0].Positions[3] = FVector3f(-1, 5, 9);

	Convert(Mesh);

	const FBoxSphereBounds Bounds = Data.SkeletalMesh->GetImportedBounds();
	EXPECT_EQ(Bounds.Origin, FVector(0.5, 2.5, 4.5));
	EXPECT_EQ(Bounds.BoxExtent, FVector(1.5, 2.5, 4.5));
	EXPECT_EQ(Bounds.SphereRadius, FMath::Sqrt((9.0 + 25.0 + 81.0) * 0.25));
}

TEST_F(SurfaceMeshToSkeletalMesh, ASurfaceWithoutPositionsIsAnAssertion)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Surfaces.AddDefaulted();

	EXPECT_ASSERTION(Convert(Mesh));
}

TEST_F(SurfaceMeshToSkeletalMesh, SlotsFollowTheMaterialsAndEarlierOnesStay)
{
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Materials[1].UVTransform.SetTranslation(FVector3f(4, 5, 6));
	Data.Materials.SetNum(1);

	Convert(Mesh);

	ASSERT_EQ(Data.Materials.Num(), 2);
	EXPECT_EQ(Data.Materials[1].UVTransform.GetTranslation(), FVector3f(0, 0, 0));
	const TArray<FSkeletalMaterial>& Slots = Data.SkeletalMesh->GetMaterials();
	ASSERT_EQ(Slots.Num(), 2);
	EXPECT_EQ(Slots[0].MaterialInterface, nullptr);
	EXPECT_EQ(Slots[1].MaterialInterface, Data.Materials[1].Material);
	EXPECT_EQ(Slots[1].MaterialSlotName, FName(NAME_None));
}

TEST_F(SurfaceMeshToSkeletalMesh, RenderDataHasTheModelsCounts)
{
	Convert(MakeSkinned());

	const FSkeletalMeshLODRenderData& LOD = Data.SkeletalMesh->GetResourceForRendering()->LODRenderData[0];
	EXPECT_EQ(LOD.GetNumVertices(), 3u);
	ASSERT_EQ(LOD.RenderSections.Num(), 1);
	EXPECT_EQ(LOD.RenderSections[0].NumTriangles, 1u);
}

TEST_F(SurfaceMeshToSkeletalMesh, ASecondArrivalOfTheNameIsBuiltOverTheFirst)
{
	Convert(MakeSkinned());
	USkeletalMesh* const First = Data.SkeletalMesh;
	FZEFSkeletalMeshData Second;
	FZEFSurfaceMesh Mesh = MakeSkinned();
	Mesh.Joints[1].Name = TEXT("Chest");

	ASSERT_TRUE(ZEFEditorUtils::ZEFSurfaceMeshToSkeletalMeshData(Mesh, TEXT("SkeletalMesh"), &Second));

	EXPECT_EQ(Second.SkeletalMesh, First);
	EXPECT_EQ(Second.SkeletalMesh->GetRefSkeleton().FindBoneIndex(TEXT("Chest")), 1);
	EXPECT_EQ(Second.Skeleton->GetReferenceSkeleton().FindBoneIndex(TEXT("Spine")), INDEX_NONE);
}
