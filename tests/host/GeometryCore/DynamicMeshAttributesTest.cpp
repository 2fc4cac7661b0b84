// SPDX-License-Identifier: MIT
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "MeshSamples.h"
#include "fixtures/AssertionsThrow.h"

#include <gtest/gtest.h>

using namespace UE::Geometry;

namespace
{

/** Two triangles over the edge 1-2, with attributes. */
FDynamicMesh3 TwoTriangles()
{
	FDynamicMesh3 Mesh = MeshWith(4, {{0, 1, 2}, {1, 3, 2}});
	Mesh.EnableAttributes();
	return Mesh;
}

/** Appends elements whose first component is their id. */
void AppendElements(FDynamicMeshUVOverlay& Overlay, int Num)
{
	for (int Index = 0; Index < Num; ++Index)
	{
		ASSERT_EQ(Overlay.AppendElement(FVector2f(static_cast<float>(Index), 0.0f)), Index);
	}
}

} // namespace

TEST(DynamicMeshAttributes, StartWithOneUVLayerAndOneNormalLayer)
{
	FDynamicMesh3 Mesh;
	EXPECT_EQ(Mesh.Attributes(), nullptr);

	Mesh.EnableAttributes();
	const FDynamicMeshAttributeSet* const Set = Mesh.Attributes();

	ASSERT_NE(Set, nullptr);
	EXPECT_EQ(Set->NumUVLayers(), 1);
	EXPECT_EQ(Set->NumNormalLayers(), 1);
	EXPECT_EQ(Set->PrimaryColors(), nullptr);
	EXPECT_EQ(Set->GetMaterialID(), nullptr);
	EXPECT_EQ(Set->PrimaryTangents(), nullptr);
	EXPECT_EQ(Set->GetUVLayer(1), nullptr);
	EXPECT_EQ(Set->GetNormalLayer(-1), nullptr);

	Mesh.EnableAttributes();
	EXPECT_EQ(Mesh.Attributes(), Set);
	Mesh.DiscardAttributes();
	EXPECT_FALSE(Mesh.HasAttributes());
}

TEST(DynamicMeshAttributes, EnablingTangentsMakesTwoMoreNormalLayersAndKeepsTheFirst)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshAttributeSet* const Set = Mesh.Attributes();
	Set->PrimaryNormals()->AppendElement(FVector3f(0, 0, 1));

	Set->EnableTangents();

	EXPECT_TRUE(Set->HasTangentSpace());
	EXPECT_EQ(Set->NumNormalLayers(), 3);
	EXPECT_EQ(Set->PrimaryTangents(), Set->GetNormalLayer(1));
	EXPECT_EQ(Set->PrimaryBiTangents(), Set->GetNormalLayer(2));
	EXPECT_EQ(Set->PrimaryNormals()->ElementCount(), 1);
	EXPECT_EQ(Set->PrimaryTangents()->ElementCount(), 0);

	Set->DisableTangents();
	EXPECT_EQ(Set->NumNormalLayers(), 1);
}

TEST(DynamicMeshAttributes, MaterialIdsStartAtZeroAndKeepNegativeValues)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	Mesh.Attributes()->EnableMaterialID();
	FDynamicMeshMaterialAttribute* const Materials = Mesh.Attributes()->GetMaterialID();
	ASSERT_NE(Materials, nullptr);
	EXPECT_EQ(Materials->GetValue(0), 0);

	Materials->SetValue(1, -1);
	EXPECT_EQ(Mesh.AppendTriangle(0, 3, 1), 2);

	EXPECT_EQ(Materials->GetValue(1), -1);
	EXPECT_EQ(Materials->GetValue(2), 0);
	Materials->SetNewValue(2, 5);
	EXPECT_EQ(Materials->GetValue(2), 5);

	Mesh.Attributes()->EnableMaterialID();
	EXPECT_EQ(Mesh.Attributes()->GetMaterialID()->GetValue(2), 5);
}

TEST(DynamicMeshAttributes, AMaterialIdPastTheTrianglesIsAFault)
{
	FAssertionsThrow Assertions;
	FDynamicMesh3 Mesh = TwoTriangles();
	Mesh.Attributes()->EnableMaterialID();

	EXPECT_THROW(Mesh.Attributes()->GetMaterialID()->SetValue(2, 1), FAssertionFailure);
	EXPECT_THROW(Mesh.Attributes()->GetMaterialID()->GetValue(-1), FAssertionFailure);
}

TEST(DynamicMeshAttributes, TheMaterialIdOfAnIdUsedAgainStartsAtZero)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	Mesh.Attributes()->EnableMaterialID();
	Mesh.Attributes()->GetMaterialID()->SetValue(0, 3);

	Mesh.RemoveTriangle(0, false);
	ASSERT_EQ(Mesh.AppendTriangle(0, 1, 2), 0);

	EXPECT_EQ(Mesh.Attributes()->GetMaterialID()->GetValue(0), 0);
}

TEST(DynamicMeshOverlay, NewElementsHaveAscendingIdsAndNoParent)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshUVOverlay* const UVs = Mesh.Attributes()->PrimaryUV();
	const float Raw[2] = {0.25f, 0.5f};

	EXPECT_EQ(UVs->AppendElement(FVector2f(1, 2)), 0);
	EXPECT_EQ(UVs->AppendElement(Raw), 1);
	EXPECT_EQ(UVs->GetElement(1), FVector2f(0.25f, 0.5f));
	EXPECT_EQ(UVs->GetParentVertex(0), FDynamicMesh3::InvalidID);
	EXPECT_EQ(UVs->ElementCount(), 2);
	EXPECT_EQ(UVs->MaxElementID(), 2);
	EXPECT_FALSE(UVs->IsElement(2));
}

TEST(DynamicMeshOverlay, SettingATriangleGivesItsElementsTheirVertices)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshUVOverlay* const UVs = Mesh.Attributes()->PrimaryUV();
	AppendElements(*UVs, 6);
	EXPECT_FALSE(UVs->IsSetTriangle(0));
	EXPECT_EQ(UVs->GetTriangle(1), FIndex3i(-1, -1, -1));

	EXPECT_EQ(UVs->SetTriangle(1, {5, 3, 4}), EMeshResult::Ok);

	EXPECT_TRUE(UVs->IsSetTriangle(1));
	EXPECT_FALSE(UVs->IsSetTriangle(0));
	EXPECT_EQ(UVs->GetTriangle(1), FIndex3i(5, 3, 4));
	EXPECT_EQ(UVs->GetParentVertex(5), 1);
	EXPECT_EQ(UVs->GetParentVertex(3), 3);
	EXPECT_EQ(UVs->GetParentVertex(4), 2);
	FVector2f A, B, C;
	UVs->GetTriElements(1, A, B, C);
	EXPECT_EQ(A, FVector2f(5, 0));
	EXPECT_EQ(B, FVector2f(3, 0));
	EXPECT_EQ(C, FVector2f(4, 0));
}

// A surface without texture coordinates: no elements, and its triangles are set all the same.
TEST(DynamicMeshOverlay, RefusesElementsThatDoNotExistAndChangesNothing)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshUVOverlay* const UVs = Mesh.Attributes()->PrimaryUV();

	EXPECT_EQ(UVs->SetTriangle(0, {0, 1, 2}), EMeshResult::Failed_NotAVertex);
	EXPECT_FALSE(UVs->IsSetTriangle(0));

	AppendElements(*UVs, 3);
	ASSERT_EQ(UVs->SetTriangle(0, {0, 1, 2}), EMeshResult::Ok);
	EXPECT_EQ(UVs->SetTriangle(0, {0, 1, 3}), EMeshResult::Failed_NotAVertex);
	EXPECT_EQ(UVs->SetTriangle(0, {-1, 1, 2}), EMeshResult::Failed_NotAVertex);
	EXPECT_EQ(UVs->SetTriangle(0, {0, 1, 1}), EMeshResult::Failed_InvalidNeighbourhood);
	EXPECT_EQ(UVs->SetTriangle(2, {0, 1, 2}), EMeshResult::Failed_NotATriangle);
	EXPECT_EQ(UVs->GetTriangle(0), FIndex3i(0, 1, 2));
	EXPECT_EQ(UVs->ElementCount(), 3);
}

TEST(DynamicMeshOverlay, FreesElementsThatOnlyTheTriangleUsed)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshUVOverlay* const UVs = Mesh.Attributes()->PrimaryUV();
	AppendElements(*UVs, 7);
	UVs->SetTriangle(0, {0, 1, 2});
	UVs->SetTriangle(1, {1, 3, 2});

	// 0 goes, 1 and 2 stay with the other triangle, 6 was never used.
	EXPECT_EQ(UVs->SetTriangle(0, {4, 1, 5}), EMeshResult::Ok);

	EXPECT_FALSE(UVs->IsElement(0));
	EXPECT_TRUE(UVs->IsElement(1));
	EXPECT_TRUE(UVs->IsElement(2));
	EXPECT_TRUE(UVs->IsElement(6));
	EXPECT_EQ(UVs->ElementCount(), 6);
	EXPECT_EQ(IdsOf(UVs->ElementIndicesItr()), (std::vector<int>{1, 2, 3, 4, 5, 6}));
	EXPECT_EQ(UVs->AppendElement(FVector2f(9, 9)), 0);
	EXPECT_EQ(UVs->GetParentVertex(0), FDynamicMesh3::InvalidID);
}

TEST(DynamicMeshOverlay, KeepsUnusedElementsWhenFreeingIsNotAllowed)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshUVOverlay* const UVs = Mesh.Attributes()->PrimaryUV();
	AppendElements(*UVs, 6);
	UVs->SetTriangle(0, {0, 1, 2});

	UVs->SetTriangle(0, {3, 4, 5}, false);
	EXPECT_EQ(UVs->ElementCount(), 6);

	UVs->FreeUnusedElements();
	EXPECT_EQ(UVs->ElementCount(), 3);
	EXPECT_FALSE(UVs->IsElement(0));
}

TEST(DynamicMeshOverlay, SettingTheSameElementsAgainKeepsThem)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshUVOverlay* const UVs = Mesh.Attributes()->PrimaryUV();
	AppendElements(*UVs, 3);
	UVs->SetTriangle(0, {0, 1, 2});

	EXPECT_EQ(UVs->SetTriangle(0, {1, 2, 0}), EMeshResult::Ok);

	EXPECT_EQ(UVs->ElementCount(), 3);
	EXPECT_EQ(UVs->GetParentVertex(1), 0);
}

TEST(DynamicMeshOverlay, UnsettingFreesTheElements)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshUVOverlay* const UVs = Mesh.Attributes()->PrimaryUV();
	AppendElements(*UVs, 3);
	UVs->SetTriangle(0, {0, 1, 2});

	UVs->UnsetTriangle(0);
	UVs->UnsetTriangle(1);

	EXPECT_FALSE(UVs->IsSetTriangle(0));
	EXPECT_EQ(UVs->ElementCount(), 0);
	EXPECT_EQ(UVs->MaxElementID(), 3);
}

TEST(DynamicMeshOverlay, ARemovedTriangleTakesItsElementsAlong)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshNormalOverlay* const Normals = Mesh.Attributes()->PrimaryNormals();
	for (int Index = 0; Index < 4; ++Index)
	{
		Normals->AppendElement(FVector3f(0, 0, 1));
	}
	Normals->SetTriangle(0, {0, 1, 2});
	Normals->SetTriangle(1, {1, 3, 2});

	Mesh.RemoveTriangle(0, false);
	ASSERT_EQ(Mesh.AppendTriangle(0, 1, 2), 0);

	EXPECT_FALSE(Normals->IsSetTriangle(0));
	EXPECT_EQ(Normals->ElementCount(), 3);
}

TEST(DynamicMeshOverlay, AnElementThatIsNotThereIsAFault)
{
	FAssertionsThrow Assertions;
	FDynamicMesh3 Mesh = TwoTriangles();

	EXPECT_THROW(Mesh.Attributes()->PrimaryUV()->GetElement(0), FAssertionFailure);
	EXPECT_THROW(Mesh.Attributes()->PrimaryUV()->SetElement(0, FVector2f(1, 1)), FAssertionFailure);
}

TEST(DynamicMeshAttributes, CopiesBelongToTheCopiedMesh)
{
	FDynamicMesh3 Copy;
	{
		FDynamicMesh3 Mesh = TwoTriangles();
		FDynamicMeshAttributeSet* const Set = Mesh.Attributes();
		Set->EnableTangents();
		Set->EnableMaterialID();
		Set->EnablePrimaryColors();
		AppendElements(*Set->PrimaryUV(), 3);
		Set->PrimaryUV()->SetTriangle(0, {0, 1, 2});
		Set->GetMaterialID()->SetValue(1, 4);
		Set->PrimaryColors()->AppendElement(FVector4f(1, 0, 0, 1));
		Copy = Mesh;
		Set->PrimaryUV()->SetElement(0, FVector2f(8, 8));
	}
	FDynamicMeshAttributeSet* const Set = Copy.Attributes();

	ASSERT_NE(Set, nullptr);
	EXPECT_EQ(Set->GetParentMesh(), &Copy);
	EXPECT_EQ(Set->PrimaryUV()->GetParentMesh(), &Copy);
	EXPECT_EQ(Set->PrimaryUV()->GetElement(0), FVector2f(0, 0));
	EXPECT_EQ(Set->PrimaryColors()->GetElement(0), FVector4f(1, 0, 0, 1));
	EXPECT_TRUE(Set->HasTangentSpace());
	EXPECT_EQ(Set->GetMaterialID()->GetValue(1), 4);
	// The copied overlay asks its own mesh, which is the only one left.
	ASSERT_EQ(Copy.AppendTriangle(0, 3, 1), 2);
	EXPECT_EQ(Set->PrimaryUV()->SetTriangle(2, {2, 1, 0}), EMeshResult::Ok);
}

TEST(DynamicMeshAttributes, LayersCanBeAddedAndDropped)
{
	FDynamicMesh3 Mesh = TwoTriangles();
	FDynamicMeshAttributeSet* const Set = Mesh.Attributes();
	AppendElements(*Set->PrimaryUV(), 2);

	Set->SetNumUVLayers(3);
	EXPECT_EQ(Set->NumUVLayers(), 3);
	EXPECT_EQ(Set->PrimaryUV()->ElementCount(), 2);
	EXPECT_EQ(Set->GetUVLayer(2)->ElementCount(), 0);

	Set->SetNumUVLayers(0);
	EXPECT_EQ(Set->PrimaryUV(), nullptr);
	Set->SetNumNormalLayers(0);
	EXPECT_EQ(Set->PrimaryNormals(), nullptr);
}

namespace
{

/** Four triangles in a strip over the vertices 0 to 5, each with the elements of its vertices' ids. */
FDynamicMesh3 StripWithoutSeams()
{
	FDynamicMesh3 Mesh = MeshWith(6, {{0, 1, 2}, {1, 3, 2}, {2, 3, 4}, {3, 5, 4}});
	Mesh.EnableAttributes();
	FDynamicMeshUVOverlay& UVs = *Mesh.Attributes()->PrimaryUV();
	AppendElements(UVs, 6);
	for (const int TriangleID : Mesh.TriangleIndicesItr())
	{
		EXPECT_EQ(UVs.SetTriangle(TriangleID, Mesh.GetTriangle(TriangleID)), EMeshResult::Ok);
	}
	return Mesh;
}

} // namespace

TEST(DynamicMeshOverlay, WithoutSeamsElementsBelongToTheVerticesOfTheirIds)
{
	FDynamicMesh3 Mesh = StripWithoutSeams();
	FDynamicMeshUVOverlay& UVs = *Mesh.Attributes()->PrimaryUV();
	UVs.AppendElement(FVector2f(6, 0));

	EXPECT_EQ(UVs.GetTriangle(3), FIndex3i(3, 5, 4));
	EXPECT_EQ(UVs.GetTriangle(4), FIndex3i(-1, -1, -1));
	EXPECT_EQ(UVs.GetParentVertex(5), 5);
	EXPECT_EQ(UVs.GetParentVertex(6), FDynamicMesh3::InvalidID);
	EXPECT_EQ(UVs.ElementCount(), 7);
	EXPECT_EQ(IdsOf(UVs.ElementIndicesItr()), (std::vector<int>{0, 1, 2, 3, 4, 5, 6}));
}

TEST(DynamicMeshOverlay, AVertexWhoseTrianglesHaveNoElementsYetOwnsNone)
{
	FDynamicMesh3 Mesh = MeshWith(4, {{0, 1, 2}, {1, 3, 2}});
	Mesh.EnableAttributes();
	FDynamicMeshUVOverlay& UVs = *Mesh.Attributes()->PrimaryUV();
	AppendElements(UVs, 4);
	UVs.SetTriangle(0, {0, 1, 2});

	EXPECT_EQ(UVs.GetParentVertex(1), 1);
	EXPECT_EQ(UVs.GetParentVertex(3), FDynamicMesh3::InvalidID);
	EXPECT_FALSE(UVs.IsSetTriangle(1));
}

TEST(DynamicMeshOverlay, ASeamLeavesTheTrianglesBeforeItAsTheyAre)
{
	FDynamicMesh3 Mesh = StripWithoutSeams();
	FDynamicMeshUVOverlay& UVs = *Mesh.Attributes()->PrimaryUV();
	ASSERT_EQ(UVs.AppendElement(FVector2f(6, 0)), 6);

	EXPECT_EQ(UVs.SetTriangle(3, {6, 5, 4}), EMeshResult::Ok);

	EXPECT_EQ(UVs.GetTriangle(0), FIndex3i(0, 1, 2));
	EXPECT_EQ(UVs.GetTriangle(2), FIndex3i(2, 3, 4));
	EXPECT_EQ(UVs.GetTriangle(3), FIndex3i(6, 5, 4));
	EXPECT_EQ(UVs.GetParentVertex(6), 3);
	EXPECT_EQ(UVs.GetParentVertex(3), 3);
	EXPECT_EQ(UVs.ElementCount(), 7);
}

TEST(DynamicMeshOverlay, ElementsOfARemovedTriangleThatNothingElseUsesAreFreed)
{
	FDynamicMesh3 Mesh = StripWithoutSeams();
	FDynamicMeshUVOverlay& UVs = *Mesh.Attributes()->PrimaryUV();

	Mesh.RemoveTriangle(0);

	EXPECT_FALSE(UVs.IsElement(0));
	EXPECT_TRUE(UVs.IsElement(1));
	EXPECT_EQ(UVs.ElementCount(), 5);
	EXPECT_EQ(UVs.GetTriangle(1), FIndex3i(1, 3, 2));
	EXPECT_FALSE(UVs.IsSetTriangle(0));
	EXPECT_EQ(UVs.AppendElement(FVector2f(9, 9)), 0);
	EXPECT_EQ(UVs.GetElement(0), FVector2f(9, 9));
}

TEST(DynamicMeshOverlay, ARefusedTriangleLeavesTheOthersAsTheyAre)
{
	FDynamicMesh3 Mesh = StripWithoutSeams();
	FDynamicMeshUVOverlay& UVs = *Mesh.Attributes()->PrimaryUV();

	EXPECT_EQ(UVs.SetTriangle(1, {1, 3, 9}), EMeshResult::Failed_NotAVertex);
	EXPECT_EQ(UVs.SetTriangle(9, {1, 3, 2}), EMeshResult::Failed_NotATriangle);

	EXPECT_EQ(UVs.GetTriangle(1), FIndex3i(1, 3, 2));
	EXPECT_EQ(UVs.GetParentVertex(4), 4);
}

TEST(DynamicMeshOverlay, ChangingACopyLeavesTheOriginalWithoutSeams)
{
	const FDynamicMesh3 Mesh = StripWithoutSeams();
	FDynamicMesh3 Copy = Mesh;
	FDynamicMeshUVOverlay& UVs = *Copy.Attributes()->PrimaryUV();
	UVs.AppendElement(FVector2f(6, 0));
	UVs.SetTriangle(0, {6, 1, 2});
	Copy.RemoveTriangle(3);

	EXPECT_EQ(Mesh.Attributes()->PrimaryUV()->GetTriangle(0), FIndex3i(0, 1, 2));
	EXPECT_EQ(Mesh.Attributes()->PrimaryUV()->ElementCount(), 6);
	EXPECT_EQ(Mesh.TriangleCount(), 4);
	EXPECT_EQ(Mesh.FindEdge(5, 3), Mesh.FindEdge(3, 5));
	EXPECT_NE(Mesh.FindEdge(3, 5), FDynamicMesh3::InvalidID);
	EXPECT_EQ(Copy.FindEdge(3, 5), FDynamicMesh3::InvalidID);
}
