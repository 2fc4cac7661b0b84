// SPDX-License-Identifier: MIT
#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "EngineFixture.h"
#include "Materials/Material.h"
#include "Source/AssertionChecks.h"
#include "Source/SampleMeshes.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Utils/ZEFTandemEditorUtils.h"

#include <gtest/gtest.h>

using namespace SampleMeshes;
using UE::Geometry::FDynamicMesh3;
using UE::Geometry::FIndex3i;

namespace
{

class SurfaceMeshToDynamicMesh : public FEngineFixture
{
protected:
	const FDynamicMesh3& Convert(const FZEFSurfaceMesh& Mesh)
	{
		ZEFEditorUtils::ZEFSurfaceMeshToDynamicMeshData(Mesh, TEXT("DynamicMesh"), &Data);
		return *Data.DynamicMesh;
	}

	FZEFDynamicMeshData Data;
};

void ExpectTriangle(const FIndex3i& Triangle, int A, int B, int C)
{
	EXPECT_EQ(Triangle.A, A);
	EXPECT_EQ(Triangle.B, B);
	EXPECT_EQ(Triangle.C, C);
}

} // namespace

TEST_F(SurfaceMeshToDynamicMesh, DoesNothingWithoutAResult)
{
	ZEFEditorUtils::ZEFSurfaceMeshToDynamicMeshData(MakeRigid(), TEXT("DynamicMesh"), nullptr);

	EXPECT_EQ(FindObject<UMaterial>(GetTransientPackage(), TEXT("TempMaterial")), nullptr);
}

TEST_F(SurfaceMeshToDynamicMesh, KeepsPositionsNormalsTangentsAndUVs)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0].Positions[1] = FVector3f(0.1f, -2.5f, 1e6f);
	Mesh.Surfaces[0].Normals[1] = FVector3f(0.0f, 2.0f, 0.0f);
	Mesh.Surfaces[0].Tangents[1] = FVector3f(3.0f, 0.0f, 0.0f);
	Mesh.Surfaces[0].UVs[1] = FVector2f(-1.5f, 7.25f);

	const FDynamicMesh3& Built = Convert(Mesh);

	EXPECT_EQ(Built.VertexCount(), 3);
	EXPECT_EQ(Built.GetVertex(1).X, static_cast<double>(0.1f));
	EXPECT_EQ(Built.GetVertex(1).Y, -2.5);
	EXPECT_EQ(Built.GetVertex(1).Z, 1e6);
	EXPECT_EQ(Built.Attributes()->GetNormalLayer(0)->GetElement(1), FVector3f(0.0f, 2.0f, 0.0f));
	EXPECT_EQ(Built.Attributes()->GetNormalLayer(1)->GetElement(1), FVector3f(3.0f, 0.0f, 0.0f));
	EXPECT_EQ(Built.Attributes()->GetUVLayer(0)->GetElement(1), FVector2f(-1.5f, 7.25f));
	ExpectTriangle(Built.GetTriangle(0), 0, 1, 2);
	ExpectTriangle(Built.Attributes()->GetUVLayer(0)->GetTriangle(0), 0, 1, 2);
}

TEST_F(SurfaceMeshToDynamicMesh, BitangentIsNormalCrossTangentNormalised)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0].Normals[0] = FVector3f(0.0f, 0.0f, 2.0f);
	Mesh.Surfaces[0].Tangents[0] = FVector3f(0.0f, 3.0f, 0.0f);

	const FVector3f Bitangent = Convert(Mesh).Attributes()->GetNormalLayer(2)->GetElement(0);

	constexpr float InverseSquareRootError = 1e-6f;
	EXPECT_NEAR(Bitangent.X, -1.0f, InverseSquareRootError);
	EXPECT_EQ(Bitangent.Y, 0.0f);
	EXPECT_EQ(Bitangent.Z, 0.0f);
}

TEST_F(SurfaceMeshToDynamicMesh, BitangentOfAZeroOrParallelTangentIsZero)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0].Tangents[0] = FVector3f(0.0f, 0.0f, 0.0f);
	Mesh.Surfaces[0].Tangents[1] = FVector3f(0.0f, 0.0f, 5.0f);
	Mesh.Surfaces[0].Tangents[2] = FVector3f(9.9e-5f, 0.0f, 0.0f); // squared length just below 1e-8

	const FDynamicMesh3& Built = Convert(Mesh);

	for (int Vertex = 0; Vertex < 3; ++Vertex)
	{
		EXPECT_EQ(Built.Attributes()->GetNormalLayer(2)->GetElement(Vertex), FVector3f(0.0f, 0.0f, 0.0f));
	}
}

TEST_F(SurfaceMeshToDynamicMesh, SecondSurfaceIsShiftedByItsOffset)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces.Add(MakeSurface(3, 3));
	Mesh.Surfaces[1].Sections.Add(MakeSection(7, {2, 1, 0}));
	Mesh.Materials.Add(7, MakeMaterial(7, TEXT("Lace"), 5));

	const FDynamicMesh3& Built = Convert(Mesh);

	EXPECT_EQ(Built.VertexCount(), 6);
	ExpectTriangle(Built.GetTriangle(1), 5, 4, 3);
	ExpectTriangle(Built.Attributes()->GetNormalLayer(2)->GetTriangle(1), 5, 4, 3);
	EXPECT_EQ(Built.Attributes()->GetMaterialID()->GetValue(0), 0);
	EXPECT_EQ(Built.Attributes()->GetMaterialID()->GetValue(1), 1);
}

TEST_F(SurfaceMeshToDynamicMesh, SurfaceWithoutUVsLeavesItsTrianglesUnsetInTheUVLayer)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0].UVs.Empty();

	const FDynamicMesh3& Built = Convert(Mesh);

	EXPECT_EQ(Built.TriangleCount(), 1);
	EXPECT_EQ(Built.Attributes()->GetUVLayer(0)->ElementCount(), 0);
	EXPECT_FALSE(Built.Attributes()->GetUVLayer(0)->IsSetTriangle(0));
	EXPECT_TRUE(Built.Attributes()->GetNormalLayer(0)->IsSetTriangle(0));
}

TEST_F(SurfaceMeshToDynamicMesh, UnknownMaterialKeyGivesMaterialIdMinusOne)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0].Sections[0].MaterialIndex = 99;

	EXPECT_EQ(Convert(Mesh).Attributes()->GetMaterialID()->GetValue(0), -1);
}

TEST_F(SurfaceMeshToDynamicMesh, IgnoresOneOrTwoTrailingIndices)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0] = MakeSurface(5);
	Mesh.Surfaces[0].Sections.Add(MakeSection(1, {0, 1, 2, 3, 4}));

	EXPECT_EQ(Convert(Mesh).TriangleCount(), 1);
}

// 2---3   4 lies elsewhere; the edge 1-2 has two triangles already
// | \ |
// 0---1
TEST_F(SurfaceMeshToDynamicMesh, DropsRefusedTrianglesAndKeepsTheRest)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0] = MakeSurface(5);
	Mesh.Surfaces[0].Sections.Add(MakeSection(1, {
													 0,
													 0,
													 1, // a vertex twice
													 0,
													 1,
													 2,
													 0,
													 1,
													 2, // the same again
													 1,
													 3,
													 2,
													 1,
													 2,
													 4, // third on its edge
													 0,
													 1,
													 77, // no such vertex
													 2,
													 3,
													 4,
												 }));

	const FDynamicMesh3& Built = Convert(Mesh);

	EXPECT_EQ(Built.TriangleCount(), 3);
	EXPECT_EQ(Built.VertexCount(), 5);
	EXPECT_EQ(Built.Attributes()->GetNormalLayer(0)->ElementCount(), 5);
	ExpectTriangle(Built.GetTriangle(2), 2, 3, 4);
}

TEST_F(SurfaceMeshToDynamicMesh, ObjectWithoutSurfacesGivesAnEmptyMeshWithItsMaterials)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces.Empty();

	EXPECT_EQ(Convert(Mesh).VertexCount(), 0);
	EXPECT_EQ(Data.Materials.Num(), 1);
	EXPECT_NE(Data.Materials[0].Material, nullptr);
}

TEST_F(SurfaceMeshToDynamicMesh, ReplacesMaterialsOfAnEarlierCallAndTakesTheUVPlacement)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Materials[1].bSubstance = true;
	Mesh.Materials[1].SubstanceAssetPath = TEXT("/Game/Fabric");
	Mesh.Materials[1].SubstanceGraphName = TEXT("Twill");
	Mesh.Materials[1].UVTransform.SetTranslation(FVector3f(4, 5, 6));
	Data.Materials.SetNum(3);

	Convert(Mesh);

	ASSERT_EQ(Data.Materials.Num(), 1);
	EXPECT_TRUE(Data.Materials[0].bSubstance);
	EXPECT_EQ(Data.Materials[0].SubstanceAssetPath, FString(TEXT("/Game/Fabric")));
	EXPECT_EQ(Data.Materials[0].SubstanceGraphName, FString(TEXT("Twill")));
	EXPECT_EQ(Data.Materials[0].UVTransform.GetTranslation(), FVector3f(4, 5, 6));
}

TEST_F(SurfaceMeshToDynamicMesh, StoresTheNameAlsoWhenItIsTheResultsOwn)
{
	Data.Name = TEXT("Skirt");
	ZEFEditorUtils::ZEFSurfaceMeshToDynamicMeshData(MakeRigid(), Data.Name, &Data);

	EXPECT_EQ(Data.Name, FString(TEXT("Skirt")));
}

TEST_F(SurfaceMeshToDynamicMesh, LeavesATwoSidedCopyOfTheDefaultMaterialBehind)
{
	Convert(MakeRigid());

	const UMaterial* const Copy = FindObject<UMaterial>(GetTransientPackage(), TEXT("TempMaterial"));
	ASSERT_NE(Copy, nullptr);
	EXPECT_TRUE(Copy->TwoSided);
}

TEST_F(SurfaceMeshToDynamicMesh, TooFewNormalsAreAnAssertion)
{
	FZEFSurfaceMesh Mesh = MakeRigid();
	Mesh.Surfaces[0].Normals.SetNum(2);

	EXPECT_ASSERTION(Convert(Mesh));
}
