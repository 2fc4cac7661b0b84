// SPDX-License-Identifier: MIT
/** Triangles and edges of the mesh. */

#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"

namespace UE::Geometry
{

int& FDynamicMesh3::NextEdge(int VertexID, int EdgeID)
{
	FEdge& Edge = Edges.GetData()[EdgeID];
	return Edge.Vert.A == VertexID ? Edge.Next.A : Edge.Next.B;
}

int FDynamicMesh3::FindEdge(int VertexA, int VertexB) const
{
	if (VertexA == VertexB || !IsVertex(VertexA) || !IsVertex(VertexB))
	{
		return InvalidID;
	}
	// Every edge hangs in the lists of both its vertices; the shorter list keeps a vertex with a huge fan cheap.
	const FVertexEdges* const Lists = VertexEdges.GetData();
	const bool bFromA = Lists[VertexA].Num <= Lists[VertexB].Num;
	const int From = bFromA ? VertexA : VertexB;
	const int To = bFromA ? VertexB : VertexA;
	const FEdge* const AllEdges = Edges.GetData();
	int EdgeID = Lists[From].First;
	while (EdgeID != InvalidID)
	{
		const FEdge& Edge = AllEdges[EdgeID];
		const bool bFirst = Edge.Vert.A == From;
		if ((bFirst ? Edge.Vert.B : Edge.Vert.A) == To)
		{
			break;
		}
		EdgeID = bFirst ? Edge.Next.A : Edge.Next.B;
	}
	return EdgeID;
}

int FDynamicMesh3::FindTriangle(int A, int B, int C) const
{
	const int EdgeID = FindEdge(A, B);
	if (EdgeID == InvalidID || C == A || C == B)
	{
		return InvalidID;
	}
	const FIndex2i Tri = Edges[EdgeID].Tri;
	if (Triangles[Tri.A].Contains(C))
	{
		return Tri.A;
	}
	return Tri.B != InvalidID && Triangles[Tri.B].Contains(C) ? Tri.B : InvalidID;
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
	if (A == B || B == C || C == A || !IsVertex(A) || !IsVertex(B) || !IsVertex(C))
	{
		return InvalidID;
	}

	const int EdgeIDs[3] = {FindEdge(A, B), FindEdge(B, C), FindEdge(C, A)};
	for (const int EdgeID : EdgeIDs)
	{
		if (EdgeID != InvalidID && !IsBoundaryEdge(EdgeID))
		{
			return NonManifoldID;
		}
	}
	if (EdgeIDs[0] != InvalidID && EdgeIDs[1] != InvalidID && EdgeIDs[2] != InvalidID &&
		Triangles[Edges[EdgeIDs[0]].Tri.A].Contains(C))
	{
		return DuplicateTriangleID;
	}

	const int TriangleID = TriangleRefCounts.Allocate();
	if (TriangleID == Triangles.Num())
	{
		Triangles.Add(TriVertices);
	}
	else
	{
		Triangles[TriangleID] = TriVertices;
	}
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
			Edges.GetData()[EdgeIDs[Side]].Tri.B = TriangleID;
		}
		else
		{
			AddEdge(Corners[Side], Corners[Side + 1], TriangleID);
		}
		VertexRefCounts.Increment(Corners[Side]);
	}
	return TriangleID;
}

void FDynamicMesh3::AddEdge(int VertexA, int VertexB, int TriangleID)
{
	const int Low = VertexA < VertexB ? VertexA : VertexB;
	const int High = VertexA < VertexB ? VertexB : VertexA;
	const int EdgeID = EdgeRefCounts.Allocate();
	FVertexEdges& AtLow = VertexEdges.GetData()[Low];
	FVertexEdges& AtHigh = VertexEdges.GetData()[High];
	const FEdge Edge{{Low, High}, {TriangleID, InvalidID}, {AtLow.First, AtHigh.First}};
	if (EdgeID == Edges.Num())
	{
		Edges.Add(Edge);
	}
	else
	{
		Edges[EdgeID] = Edge;
	}
	AtLow.First = EdgeID;
	++AtLow.Num;
	AtHigh.First = EdgeID;
	++AtHigh.Num;
}

void FDynamicMesh3::UnlinkEdge(int VertexID, int EdgeID)
{
	FVertexEdges& List = VertexEdges[VertexID];
	int* Link = &List.First;
	while (*Link != EdgeID)
	{
		Link = &NextEdge(VertexID, *Link);
	}
	*Link = NextEdge(VertexID, EdgeID);
	--List.Num;
}

void FDynamicMesh3::RemoveEdge(int EdgeID)
{
	UnlinkEdge(Edges[EdgeID].Vert.A, EdgeID);
	UnlinkEdge(Edges[EdgeID].Vert.B, EdgeID);
	Edges[EdgeID] = FEdge{InvalidEdge, InvalidEdge, InvalidEdge};
	EdgeRefCounts.Decrement(EdgeID);
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
	Triangles[TriangleID] = InvalidTriangle;
	TriangleRefCounts.Decrement(TriangleID);
	for (int Corner = 0; Corner < 3; ++Corner)
	{
		VertexRefCounts.Decrement(Triangle[Corner]);
		if (bRemoveIsolatedVertices && VertexRefCounts.GetRefCount(Triangle[Corner]) == 1)
		{
			VertexRefCounts.Decrement(Triangle[Corner]);
		}
	}
	return EMeshResult::Ok;
}

} // namespace UE::Geometry
