// SPDX-License-Identifier: MIT
/** Triangles and edges of the mesh. */

#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"

namespace UE::Geometry
{

namespace
{
/**
 * Longest list of edges that is looked through. Vertices of ordinary meshes have about six edges, and a list in memory
 * order is read faster than a hash table; beyond some dozens it is the other way round.
 */
constexpr int32 MaxListedEdges = 32;
} // namespace

int& FDynamicMesh3::NextEdge(int VertexID, int EdgeID)
{
	FEdge& Edge = Edges.At(EdgeID);
	return Edge.Vert.A == VertexID ? Edge.Next.A : Edge.Next.B;
}

int FDynamicMesh3::FindEdgeBetween(int IdA, const FVertex& A, int IdB, const FVertex& B) const
{
	// Every edge hangs in the lists of both its vertices, so the shorter list is enough: a fan costs its centre
	// nothing.
	const bool bFromA = A.NumEdges <= B.NumEdges;
	const int From = bFromA ? IdA : IdB;
	const int To = bFromA ? IdB : IdA;
	if (A.bHub && B.bHub)
	{
		const int32* const Found = HubEdges.Find(FHubEdgeKey(IdA, IdB));
		return Found != nullptr ? *Found : InvalidID;
	}
	int EdgeID = bFromA ? A.FirstEdge : B.FirstEdge;
	while (EdgeID != InvalidID)
	{
		const FEdge& Edge = Edges.At(EdgeID);
		const bool bFirst = Edge.Vert.A == From;
		if ((bFirst ? Edge.Vert.B : Edge.Vert.A) == To)
		{
			break;
		}
		EdgeID = bFirst ? Edge.Next.A : Edge.Next.B;
	}
	return EdgeID;
}

int FDynamicMesh3::FindEdge(int VertexA, int VertexB) const
{
	if (VertexA == VertexB || !IsVertex(VertexA) || !IsVertex(VertexB))
	{
		return InvalidID;
	}
	return FindEdgeBetween(VertexA, Vertices[VertexA], VertexB, Vertices[VertexB]);
}

int FDynamicMesh3::FindTriangle(int A, int B, int C) const
{
	const int EdgeID = FindEdge(A, B);
	if (EdgeID == InvalidID || C == A || C == B)
	{
		return InvalidID;
	}
	const FIndex2i Tri = Edges[EdgeID].Tri;
	if (Triangles[Tri.A].Vert.Contains(C))
	{
		return Tri.A;
	}
	return Tri.B != InvalidID && Triangles[Tri.B].Vert.Contains(C) ? Tri.B : InvalidID;
}

FIndex3i FDynamicMesh3::GetTriEdges(int TriangleID) const
{
	const FIndex3i Triangle = GetTriangle(TriangleID);
	return FIndex3i(
		FindEdge(Triangle.A, Triangle.B), FindEdge(Triangle.B, Triangle.C), FindEdge(Triangle.C, Triangle.A));
}

int FDynamicMesh3::AppendTriangle(const FIndex3i& TriVertices, int GroupID)
{
	const int A = TriVertices.A;
	const int B = TriVertices.B;
	const int C = TriVertices.C;
	FVertex* const VertexA = Vertices.Find(A);
	FVertex* const VertexB = Vertices.Find(B);
	FVertex* const VertexC = Vertices.Find(C);
	if (A == B || B == C || C == A || VertexA == nullptr || VertexB == nullptr || VertexC == nullptr)
	{
		return InvalidID;
	}

	const int EdgeIDs[3] = {FindEdgeBetween(A, *VertexA, B, *VertexB), FindEdgeBetween(B, *VertexB, C, *VertexC),
		FindEdgeBetween(C, *VertexC, A, *VertexA)};
	for (const int EdgeID : EdgeIDs)
	{
		if (EdgeID != InvalidID && !IsBoundaryEdge(EdgeID))
		{
			return NonManifoldID;
		}
	}
	if (EdgeIDs[0] != InvalidID && EdgeIDs[1] != InvalidID && EdgeIDs[2] != InvalidID &&
		Triangles[Edges[EdgeIDs[0]].Tri.A].Vert.Contains(C))
	{
		return DuplicateTriangleID;
	}

	const int TriangleID = Triangles.Add(FTriangle{TriVertices});
	if (TriangleGroups.IsSet())
	{
		TArray<int32>& Groups = TriangleGroups.GetValue();
		if (TriangleID == Groups.Num())
		{
			Groups.Add(GroupID);
		}
		else
		{
			Groups[TriangleID] = GroupID;
		}
	}

	const int Corners[4] = {A, B, C, A};
	for (int Side = 0; Side < 3; ++Side)
	{
		if (EdgeIDs[Side] != InvalidID)
		{
			Edges.At(EdgeIDs[Side]).Tri.B = TriangleID;
		}
		else
		{
			AddEdge(Corners[Side], Corners[Side + 1], TriangleID);
		}
	}
	++VertexA->NumTriangles;
	++VertexB->NumTriangles;
	++VertexC->NumTriangles;
	return TriangleID;
}

void FDynamicMesh3::AddEdge(int VertexA, int VertexB, int TriangleID)
{
	const FIndex2i Vert = VertexA < VertexB ? FIndex2i(VertexA, VertexB) : FIndex2i(VertexB, VertexA);
	const int EdgeID = Edges.Add(FEdge{Vert, {TriangleID, InvalidID}, InvalidEdge});
	LinkEdge(VertexA, EdgeID);
	LinkEdge(VertexB, EdgeID);
	if (Vertices[VertexA].bHub && Vertices[VertexB].bHub)
	{
		HubEdges.Add(FHubEdgeKey(VertexA, VertexB), EdgeID);
	}
}

void FDynamicMesh3::LinkEdge(int VertexID, int EdgeID)
{
	FVertex& Vertex = Vertices.At(VertexID);
	NextEdge(VertexID, EdgeID) = Vertex.FirstEdge;
	Vertex.FirstEdge = EdgeID;
	if (++Vertex.NumEdges > MaxListedEdges && !Vertex.bHub)
	{
		MakeHub(VertexID);
	}
}

void FDynamicMesh3::MakeHub(int VertexID)
{
	Vertices[VertexID].bHub = true;
	for (int EdgeID = Vertices[VertexID].FirstEdge; EdgeID != InvalidID; EdgeID = NextEdge(VertexID, EdgeID))
	{
		const int Other = Edges[EdgeID].Vert.OtherElement(VertexID);
		if (Vertices[Other].bHub)
		{
			HubEdges.Add(FHubEdgeKey(VertexID, Other), EdgeID);
		}
	}
}

void FDynamicMesh3::UnlinkEdge(int VertexID, int EdgeID)
{
	FVertex& Vertex = Vertices[VertexID];
	int* Link = &Vertex.FirstEdge;
	while (*Link != EdgeID)
	{
		Link = &NextEdge(VertexID, *Link);
	}
	*Link = NextEdge(VertexID, EdgeID);
	--Vertex.NumEdges;
}

void FDynamicMesh3::RemoveEdge(int EdgeID)
{
	const FIndex2i Vert = GetEdgeV(EdgeID);
	UnlinkEdge(Vert.A, EdgeID);
	UnlinkEdge(Vert.B, EdgeID);
	HubEdges.Remove(FHubEdgeKey(Vert.A, Vert.B));
	Edges.Free(EdgeID);
}

EMeshResult FDynamicMesh3::RemoveTriangle(int TriangleID, bool bRemoveIsolatedVertices)
{
	if (!IsTriangle(TriangleID))
	{
		return EMeshResult::Failed_NotATriangle;
	}
	if (AttributeSet.IsValid())
	{
		AttributeSet->OnRemoveTriangle(TriangleID);
	}
	const FIndex3i Triangle = GetTriangle(TriangleID);
	const FIndex3i EdgeIDs = GetTriEdges(TriangleID);
	for (int Side = 0; Side < 3; ++Side)
	{
		FIndex2i& Tri = Edges[EdgeIDs[Side]].Tri;
		if (Tri.A == TriangleID)
		{
			Tri.Swap();
		}
		Tri.B = InvalidID;
		if (Tri.A == InvalidID)
		{
			RemoveEdge(EdgeIDs[Side]);
		}
	}
	Triangles.Free(TriangleID);
	for (int Corner = 0; Corner < 3; ++Corner)
	{
		const int VertexID = Triangle[Corner];
		if (--Vertices[VertexID].NumTriangles == 0 && bRemoveIsolatedVertices)
		{
			Vertices.Free(VertexID);
		}
	}
	return EMeshResult::Ok;
}

} // namespace UE::Geometry
