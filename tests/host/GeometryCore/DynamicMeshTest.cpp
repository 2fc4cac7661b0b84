// SPDX-License-Identifier: MIT
#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "MeshSamples.h"

#include <gtest/gtest.h>
#include <type_traits>

using namespace UE::Geometry;

TEST(DynamicMesh, GivesIdsInAscendingOrder)
{
	FDynamicMesh3 Mesh;

	EXPECT_EQ(Mesh.AppendVertex(FVector3d(0, 0, 0)), 0);
	EXPECT_EQ(Mesh.AppendVertex(FVertexInfo(FVector3d(1, 0, 0))), 1);
	EXPECT_EQ(Mesh.AppendVertex(FVector3d(0, 1, 0)), 2);
	EXPECT_EQ(Mesh.AppendTriangle(0, 1, 2), 0);
	EXPECT_EQ(Mesh.GetVertex(1), FVector3d(1, 0, 0));
	EXPECT_EQ(Mesh.GetTriangle(0), FIndex3i(0, 1, 2));
	EXPECT_EQ(Mesh.VertexCount(), 3);
	EXPECT_EQ(Mesh.TriangleCount(), 1);
	EXPECT_EQ(Mesh.EdgeCount(), 3);
}

TEST(DynamicMesh, RefusesAMissingVertexAndKeepsTheRest)
{
	FDynamicMesh3 Mesh = MeshWith(3, {{0, 1, 2}});

	for (const FIndex3i& Bad : {FIndex3i(0, 1, 3), FIndex3i(-1, 1, 2), FIndex3i(0, 1000000, 2)})
	{
		EXPECT_EQ(Mesh.AppendTriangle(Bad), FDynamicMesh3::InvalidID);
	}
	EXPECT_EQ(Mesh.TriangleCount(), 1);
	EXPECT_EQ(Mesh.EdgeCount(), 3);
}

TEST(DynamicMesh, RefusesARepeatedVertexAndKeepsTheRest)
{
	FDynamicMesh3 Mesh = MeshWith(3, {});

	for (const FIndex3i& Bad : {FIndex3i(0, 0, 1), FIndex3i(0, 1, 1), FIndex3i(1, 0, 1), FIndex3i(2, 2, 2)})
	{
		EXPECT_EQ(Mesh.AppendTriangle(Bad), FDynamicMesh3::InvalidID);
	}
	EXPECT_EQ(Mesh.EdgeCount(), 0);
	EXPECT_EQ(Mesh.AppendTriangle(0, 1, 2), 0);
}

// 2---3
// | \ |   4 lies elsewhere; edge 1-2 already has two triangles
// 0---1
TEST(DynamicMesh, RefusesAThirdTriangleOnAnEdgeAndKeepsTheRest)
{
	FDynamicMesh3 Mesh = MeshWith(5, {{0, 1, 2}, {1, 3, 2}});

	EXPECT_EQ(Mesh.AppendTriangle({1, 2, 4}), FDynamicMesh3::NonManifoldID);
	EXPECT_EQ(Mesh.AppendTriangle({4, 2, 1}), FDynamicMesh3::NonManifoldID);
	EXPECT_EQ(Mesh.TriangleCount(), 2);
	EXPECT_EQ(Mesh.EdgeCount(), 5);
	EXPECT_EQ(Mesh.FindEdge(2, 4), FDynamicMesh3::InvalidID);
	EXPECT_EQ(Mesh.AppendTriangle({2, 3, 4}), 2);
}

TEST(DynamicMesh, RefusesASecondTriangleOverTheSameVerticesInEitherWinding)
{
	FDynamicMesh3 Mesh = MeshWith(3, {{0, 1, 2}});

	for (const FIndex3i& Same : {FIndex3i(0, 1, 2), FIndex3i(1, 2, 0), FIndex3i(2, 1, 0), FIndex3i(0, 2, 1)})
	{
		EXPECT_EQ(Mesh.AppendTriangle(Same), FDynamicMesh3::DuplicateTriangleID);
	}
	EXPECT_EQ(Mesh.TriangleCount(), 1);
}

// Each edge of the middle triangle has two triangles already, so its duplicate is refused for that reason.
TEST(DynamicMesh, NamesADuplicateInsideTheMeshNonManifold)
{
	FDynamicMesh3 Mesh = MeshWith(6, {{0, 1, 2}, {1, 0, 3}, {2, 1, 4}, {0, 2, 5}});

	EXPECT_EQ(Mesh.AppendTriangle({0, 1, 2}), FDynamicMesh3::NonManifoldID);
}

TEST(DynamicMesh, NamesAnInvalidTriangleInvalidBeforeAnythingElse)
{
	FDynamicMesh3 Mesh = MeshWith(5, {{0, 1, 2}, {1, 3, 2}});

	EXPECT_EQ(Mesh.AppendTriangle({1, 2, 7}), FDynamicMesh3::InvalidID);
	EXPECT_EQ(Mesh.AppendTriangle({1, 2, 2}), FDynamicMesh3::InvalidID);
}

// All three edges exist, each with one triangle, but no triangle has these three vertices.
TEST(DynamicMesh, ATriangleThatOnlyFillsAHoleIsNoDuplicate)
{
	FDynamicMesh3 Mesh = MeshWith(6, {{1, 0, 3}, {2, 1, 4}, {0, 2, 5}});

	EXPECT_EQ(Mesh.AppendTriangle({0, 1, 2}), 3);
	EXPECT_EQ(Mesh.EdgeCount(), 9);
}

TEST(DynamicMesh, DoesNotLookAtTheWindingOfNeighbours)
{
	FDynamicMesh3 Mesh = MeshWith(4, {{0, 1, 2}});

	EXPECT_EQ(Mesh.AppendTriangle({1, 2, 3}), 1);
}

TEST(DynamicMesh, ATetrahedronIsClosed)
{
	const FDynamicMesh3 Mesh = MeshWith(4, {{0, 1, 2}, {0, 3, 1}, {1, 3, 2}, {2, 3, 0}});

	EXPECT_EQ(Mesh.TriangleCount(), 4);
	EXPECT_EQ(Mesh.EdgeCount(), 6);
	for (const int EdgeID : Mesh.EdgeIndicesItr())
	{
		EXPECT_FALSE(Mesh.IsBoundaryEdge(EdgeID));
	}
}

TEST(DynamicMesh, FindsEdgesAndTrianglesByTheirVertices)
{
	const FDynamicMesh3 Mesh = MeshWith(5, {{0, 1, 2}, {1, 3, 2}});

	const int Shared = Mesh.FindEdge(2, 1);
	ASSERT_NE(Shared, FDynamicMesh3::InvalidID);
	EXPECT_EQ(Mesh.GetEdgeV(Shared), FIndex2i(1, 2));
	EXPECT_EQ(Mesh.GetEdgeT(Shared), FIndex2i(0, 1));
	EXPECT_EQ(Mesh.FindTriangle(2, 3, 1), 1);
	EXPECT_EQ(Mesh.FindTriangle(0, 1, 3), FDynamicMesh3::InvalidID);
	EXPECT_EQ(Mesh.FindEdge(0, 4), FDynamicMesh3::InvalidID);
	EXPECT_EQ(Mesh.FindEdge(0, 9), FDynamicMesh3::InvalidID);
	EXPECT_EQ(Mesh.GetTriEdges(0), FIndex3i(Mesh.FindEdge(0, 1), Shared, Mesh.FindEdge(2, 0)));
}

// A fan of 200 triangles around vertex 0, closed, and a second one from below over the same rim.
TEST(DynamicMesh, KeepsItsRulesAroundVerticesWithManyEdges)
{
	constexpr int Rim = 200;
	FDynamicMesh3 Mesh = MeshWith(Rim + 3, {});
	for (const int Centre : {0, Rim + 1})
	{
		for (int Index = 0; Index < Rim; ++Index)
		{
			ASSERT_GE(Mesh.AppendTriangle(Centre, 1 + Index, 1 + (Index + 1) % Rim), 0);
		}
	}

	EXPECT_EQ(Mesh.TriangleCount(), 2 * Rim);
	EXPECT_EQ(Mesh.EdgeCount(), 3 * Rim);
	EXPECT_EQ(Mesh.AppendTriangle(0, 1, 2), FDynamicMesh3::NonManifoldID);
	EXPECT_EQ(Mesh.AppendTriangle(1, 2, Rim + 2), FDynamicMesh3::NonManifoldID);
	EXPECT_EQ(Mesh.FindTriangle(1, 0, Rim), Rim - 1);
}

// The complete graph: every two of the vertices share an edge, so that every vertex has many.
TEST(DynamicMesh, FindsEveryEdgeAmongVerticesThatAllMeet)
{
	constexpr int NumVertices = 60;
	FDynamicMesh3 Mesh = MeshWith(NumVertices, {});
	int Accepted = 0;
	for (int Step = 1; Step < NumVertices / 2; ++Step)
	{
		for (int First = 0; First < NumVertices; ++First)
		{
			Accepted +=
				Mesh.AppendTriangle(First, (First + Step) % NumVertices, (First + 2 * Step + 1) % NumVertices) >= 0;
		}
	}

	EXPECT_EQ(Mesh.TriangleCount(), Accepted);
	int Found = 0;
	for (int A = 0; A < NumVertices; ++A)
	{
		for (int B = A + 1; B < NumVertices; ++B)
		{
			const int EdgeID = Mesh.FindEdge(A, B);
			if (EdgeID != FDynamicMesh3::InvalidID)
			{
				++Found;
				EXPECT_EQ(Mesh.GetEdgeV(EdgeID), FIndex2i(A, B));
			}
		}
	}
	EXPECT_EQ(Found, Mesh.EdgeCount());
	EXPECT_GT(Found, 1000);
}

TEST(DynamicMesh, RemovedTrianglesFreeTheirIdsAndEdges)
{
	FDynamicMesh3 Mesh = MeshWith(4, {{0, 1, 2}, {1, 3, 2}});

	EXPECT_EQ(Mesh.RemoveTriangle(0, false), EMeshResult::Ok);
	EXPECT_EQ(Mesh.RemoveTriangle(0), EMeshResult::Failed_NotATriangle);
	EXPECT_FALSE(Mesh.IsTriangle(0));
	EXPECT_EQ(Mesh.TriangleCount(), 1);
	EXPECT_EQ(Mesh.MaxTriangleID(), 2);
	EXPECT_EQ(Mesh.EdgeCount(), 3);
	EXPECT_EQ(Mesh.VertexCount(), 4);
	EXPECT_EQ(Mesh.FindEdge(0, 1), FDynamicMesh3::InvalidID);
	EXPECT_TRUE(Mesh.IsBoundaryEdge(Mesh.FindEdge(1, 2)));

	EXPECT_EQ(Mesh.AppendTriangle(2, 1, 0), 0);
	EXPECT_EQ(Mesh.MaxTriangleID(), 2);
	EXPECT_EQ(Mesh.EdgeCount(), 5);
}

TEST(DynamicMesh, RemovingTheLastTriangleOfAVertexRemovesIt)
{
	FDynamicMesh3 Mesh = MeshWith(4, {{0, 1, 2}, {1, 3, 2}});

	Mesh.RemoveTriangle(0);

	EXPECT_FALSE(Mesh.IsVertex(0));
	EXPECT_TRUE(Mesh.IsVertex(1));
	EXPECT_EQ(Mesh.VertexCount(), 3);
	EXPECT_EQ(Mesh.MaxVertexID(), 4);
	EXPECT_EQ(Mesh.AppendTriangle(0, 1, 2), FDynamicMesh3::InvalidID);
	EXPECT_EQ(Mesh.AppendVertex(FVector3d(9, 9, 9)), 0);
	EXPECT_EQ(Mesh.GetVertex(0), FVector3d(9, 9, 9));
	EXPECT_EQ(Mesh.AppendVertex(FVector3d(0, 0, 0)), 4);
}

TEST(DynamicMesh, FreedIdsAreUsedAgainTheLastOneFirst)
{
	FDynamicMesh3 Mesh = MeshWith(5, {{0, 1, 2}, {1, 3, 2}, {3, 4, 2}});

	Mesh.RemoveTriangle(0, false);
	Mesh.RemoveTriangle(2, false);

	EXPECT_EQ(Mesh.AppendTriangle(0, 1, 2), 2);
	EXPECT_EQ(Mesh.AppendTriangle(3, 4, 2), 0);
	EXPECT_EQ(Mesh.AppendTriangle(0, 4, 1), 3);
}

TEST(DynamicMesh, IteratesOverLiveIdsInAscendingOrder)
{
	FDynamicMesh3 Mesh = MeshWith(5, {{0, 1, 2}, {1, 3, 2}, {3, 4, 2}});
	Mesh.RemoveTriangle(0);

	EXPECT_EQ(IdsOf(Mesh.VertexIndicesItr()), (std::vector<int>{1, 2, 3, 4}));
	EXPECT_EQ(IdsOf(Mesh.TriangleIndicesItr()), (std::vector<int>{1, 2}));
	EXPECT_EQ(IdsOf(FDynamicMesh3().VertexIndicesItr()), std::vector<int>());
	EXPECT_FALSE(Mesh.IsCompact());
}

TEST(DynamicMesh, BoundsHoldEveryVertexAndAreEmptyWithoutAny)
{
	FDynamicMesh3 Mesh;
	EXPECT_TRUE(Mesh.GetBounds().IsEmpty());

	Mesh.AppendVertex(FVector3d(1, -2, 3));
	Mesh.AppendVertex(FVector3d(-1, 5, 0));

	EXPECT_EQ(Mesh.GetBounds(), FAxisAlignedBox3d(FVector3d(-1, -2, 0), FVector3d(1, 5, 3)));
	EXPECT_EQ(FBox(Mesh.GetBounds()), FBox(FVector(-1, -2, 0), FVector(1, 5, 3)));
	EXPECT_FALSE(FBox(FDynamicMesh3().GetBounds()).IsValid);
}

TEST(DynamicMesh, HasGroupsOnlyWhenTheyAreOn)
{
	FDynamicMesh3 Mesh = MeshWith(5, {{0, 1, 2}});
	EXPECT_FALSE(Mesh.HasTriangleGroups());
	EXPECT_EQ(Mesh.GetTriangleGroup(0), 0);

	Mesh.EnableTriangleGroups(4);
	Mesh.AppendTriangle({1, 3, 2}, 7);
	Mesh.EnableTriangleGroups(9);

	EXPECT_EQ(Mesh.GetTriangleGroup(0), 4);
	EXPECT_EQ(Mesh.GetTriangleGroup(1), 7);
}

TEST(DynamicMesh, KeepsNormalsColorsAndUVsOnlyWhereItHasArrays)
{
	const FVertexInfo Info(FVector3d(1, 2, 3), FVector3f(0, 0, 1), FVector3f(0.5f, 0, 0), FVector2f(0.25f, 0.75f));
	FDynamicMesh3 Plain;
	FDynamicMesh3 Full(true, true, true, true);
	FDynamicMesh3 Normals(EMeshComponents::VertexNormals);

	Plain.AppendVertex(Info);
	Full.AppendVertex(Info);
	Normals.AppendVertex(Full, 0);

	EXPECT_FALSE(Plain.HasVertexNormals());
	EXPECT_EQ(Plain.GetVertexNormal(0), FVector3f(0, 1, 0));
	EXPECT_EQ(Full.GetVertexNormal(0), FVector3f(0, 0, 1));
	EXPECT_EQ(Full.GetVertexColor(0), FVector3f(0.5f, 0, 0));
	EXPECT_EQ(Full.GetVertexUV(0), FVector2f(0.25f, 0.75f));
	EXPECT_TRUE(Full.HasTriangleGroups());
	EXPECT_EQ(Normals.GetVertexNormal(0), FVector3f(0, 0, 1));
	EXPECT_FALSE(Normals.HasVertexUVs());
	EXPECT_EQ(Normals.GetVertex(0), FVector3d(1, 2, 3));
}

TEST(DynamicMesh, VertexInfoStartsWithZerosAndNoFlags)
{
	const FVertexInfo Info(FVector3d(1, 2, 3));

	EXPECT_EQ(Info.Normal, FVector3f(0, 0, 0));
	EXPECT_EQ(Info.Color, FVector3f(0, 0, 0));
	EXPECT_EQ(Info.UV, FVector2f(0, 0));
	EXPECT_FALSE(Info.bHaveN || Info.bHaveUV || Info.bHaveC);
}

TEST(DynamicMesh, ClearGivesADefaultMesh)
{
	FDynamicMesh3 Mesh(true, false, false, true);
	Mesh.AppendVertex(FVector3d(0, 0, 0));
	Mesh.EnableAttributes();

	Mesh.Clear();

	EXPECT_EQ(Mesh.MaxVertexID(), 0);
	EXPECT_FALSE(Mesh.HasVertexNormals());
	EXPECT_FALSE(Mesh.HasTriangleGroups());
	EXPECT_FALSE(Mesh.HasAttributes());
	EXPECT_EQ(Mesh.Attributes(), nullptr);
}

TEST(DynamicMesh, MovingLeavesAnEmptyMeshBehind)
{
	FDynamicMesh3 Source = MeshWith(3, {{0, 1, 2}});
	Source.EnableAttributes();

	FDynamicMesh3 Target;
	Target = MoveTemp(Source);

	EXPECT_EQ(Target.TriangleCount(), 1);
	EXPECT_EQ(Target.Attributes()->GetParentMesh(), &Target);
	EXPECT_EQ(Source.VertexCount(), 0);
	EXPECT_FALSE(Source.HasAttributes());
	EXPECT_EQ(Source.AppendVertex(FVector3d(0, 0, 0)), 0);
}

TEST(DynamicMesh, CopiesAreIndependent)
{
	FDynamicMesh3 Mesh = MeshWith(4, {{0, 1, 2}});
	FDynamicMesh3 Copy(Mesh);

	EXPECT_EQ(Copy.AppendTriangle({1, 3, 2}), 1);
	Copy.SetVertex(0, FVector3d(7, 7, 7));

	EXPECT_EQ(Mesh.TriangleCount(), 1);
	EXPECT_EQ(Mesh.GetVertex(0), FVector3d(0, 0, 0));
	EXPECT_EQ(Mesh.AppendTriangle({0, 1, 2}), FDynamicMesh3::DuplicateTriangleID);
}

TEST(DynamicMesh, GrowsToManyTriangles)
{
	constexpr int Side = 100;
	const FDynamicMesh3 Mesh = Grid(Side);

	EXPECT_EQ(Mesh.VertexCount(), (Side + 1) * (Side + 1));
	EXPECT_EQ(Mesh.TriangleCount(), 2 * Side * Side);
	EXPECT_EQ(Mesh.EdgeCount(), 3 * Side * Side + 2 * Side);
	EXPECT_EQ(Mesh.GetTriangle(2 * Side * Side - 1), FIndex3i(10099, 10200, 10199));
	EXPECT_EQ(Mesh.GetVertex(10200), FVector3d(100, 100, 0));
}
