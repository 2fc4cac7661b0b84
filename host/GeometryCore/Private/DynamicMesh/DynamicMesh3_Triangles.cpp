// SPDX-License-Identifier: MIT
/** Triangles and edges of the mesh. */

#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"

namespace UE::Geometry
{

namespace
{
/**
 * Longest list of edges that is looked through. Vertices of ordinary meshes are the lower end of about three edges, and
 * a list in memory order is read faster than a hash table; beyond some dozens it is the other way round.
 */
constexpr int MaxListedEdges = 32;
} // namespace

/** OutSteps receives how many edges were looked at. */
FORCEINLINE int FDynamicMesh3::FindEdgeOf(const FVertex& Lower, int LowerID, int HigherID, int& OutSteps) const
{
	int Steps = 0;
	int EdgeID = Lower.FirstEdge;
	while (EdgeID >= 0)
	{
		const FEdge& Edge = Edges.At(EdgeID);
		if (Edge.Vert.B == HigherID)
		{
			break;
		}
		EdgeID = Edge.Next;
		++Steps;
	}
	OutSteps = Steps;
	if (UNLIKELY(EdgeID == HubMark))
	{
		const int32* const Found = HubEdges.Find(FHubEdgeKey(LowerID, HigherID));
		return Found != nullptr ? *Found : InvalidID;
	}
	return EdgeID;
}

int FDynamicMesh3::FindEdge(int VertexA, int VertexB) const
{
	if (VertexA == VertexB || !IsVertex(VertexA) || !IsVertex(VertexB))
	{
		return InvalidID;
	}
	const int Lower = VertexA < VertexB ? VertexA : VertexB;
	int Steps = 0;
	return FindEdgeOf(Vertices[Lower], Lower, VertexA < VertexB ? VertexB : VertexA, Steps);
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

int FDynamicMesh3::AppendTriangle(int A, int B, int C, int GroupID)
{
	const uint32 Bound = static_cast<uint32>(Vertices.MaxID());
	if (static_cast<uint32>(A) >= Bound || static_cast<uint32>(B) >= Bound || static_cast<uint32>(C) >= Bound ||
		A == B || B == C || C == A)
	{
		return InvalidID;
	}
	Vertices.Own();
	Edges.Own();
	FVertex& VertexA = Vertices.AtOwned(A);
	FVertex& VertexB = Vertices.AtOwned(B);
	FVertex& VertexC = Vertices.AtOwned(C);
	if (!VertexA.IsLive() || !VertexB.IsLive() || !VertexC.IsLive())
	{
		return InvalidID;
	}

	int StepsAB = 0;
	int StepsBC = 0;
	int StepsCA = 0;
	const int EdgeAB = A < B ? FindEdgeOf(VertexA, A, B, StepsAB) : FindEdgeOf(VertexB, B, A, StepsAB);
	const int EdgeBC = B < C ? FindEdgeOf(VertexB, B, C, StepsBC) : FindEdgeOf(VertexC, C, B, StepsBC);
	const int EdgeCA = C < A ? FindEdgeOf(VertexC, C, A, StepsCA) : FindEdgeOf(VertexA, A, C, StepsCA);
	if ((EdgeAB >= 0 && Edges.AtOwned(EdgeAB).Tri.B >= 0) || (EdgeBC >= 0 && Edges.AtOwned(EdgeBC).Tri.B >= 0) ||
		(EdgeCA >= 0 && Edges.AtOwned(EdgeCA).Tri.B >= 0))
	{
		return NonManifoldID;
	}
	if (EdgeAB >= 0 && EdgeBC >= 0 && EdgeCA >= 0 && Triangles[Edges.AtOwned(EdgeAB).Tri.A].Vert.Contains(C))
	{
		return DuplicateTriangleID;
	}

	const int TriangleID = Triangles.Add(FTriangle{{A, B, C}});
	if (TriangleGroups.IsSet())
	{
		StoreGroup(TriangleID, GroupID);
	}
	++VertexA.NumTriangles;
	++VertexB.NumTriangles;
	++VertexC.NumTriangles;
	JoinEdge(EdgeAB, A, B, TriangleID, StepsAB);
	JoinEdge(EdgeBC, B, C, TriangleID, StepsBC);
	JoinEdge(EdgeCA, C, A, TriangleID, StepsCA);
	return TriangleID;
}

/** Makes the triangle the second of an edge, or the first of a new one between two vertices. */
FORCEINLINE void FDynamicMesh3::JoinEdge(int EdgeID, int VertexA, int VertexB, int TriangleID, int Steps)
{
	if (EdgeID >= 0)
	{
		Edges.AtOwned(EdgeID).Tri.B = TriangleID;
	}
	else if (VertexA < VertexB)
	{
		AddEdge(VertexA, VertexB, TriangleID, Steps);
	}
	else
	{
		AddEdge(VertexB, VertexA, TriangleID, Steps);
	}
}

/** Steps is how many edges its lower vertex was seen to have. */
FORCEINLINE void FDynamicMesh3::AddEdge(int LowerID, int HigherID, int TriangleID, int Steps)
{
	FVertex& Lower = Vertices.AtOwned(LowerID);
	const int EdgeID = Edges.Add(FEdge{{LowerID, HigherID}, {TriangleID, InvalidID}, Lower.FirstEdge});
	if (UNLIKELY(Lower.FirstEdge == HubMark))
	{
		HubEdges.Add(FHubEdgeKey(LowerID, HigherID), EdgeID);
		return;
	}
	Lower.FirstEdge = EdgeID;
	if (UNLIKELY(Steps >= MaxListedEdges))
	{
		MakeHub(LowerID);
	}
}

FORCENOINLINE void FDynamicMesh3::MakeHub(int VertexID)
{
	FVertex& Vertex = Vertices[VertexID];
	for (int EdgeID = Vertex.FirstEdge; EdgeID != InvalidID; EdgeID = Edges[EdgeID].Next)
	{
		HubEdges.Add(FHubEdgeKey(VertexID, Edges[EdgeID].Vert.B), EdgeID);
	}
	Vertex.FirstEdge = HubMark;
}

FORCENOINLINE void FDynamicMesh3::StoreGroup(int TriangleID, int GroupID)
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

void FDynamicMesh3::RemoveEdge(int EdgeID)
{
	const FIndex2i Vert = GetEdgeV(EdgeID);
	if (Vertices[Vert.A].FirstEdge == HubMark)
	{
		HubEdges.Remove(FHubEdgeKey(Vert.A, Vert.B));
	}
	else
	{
		int32* Link = &Vertices[Vert.A].FirstEdge;
		while (*Link != EdgeID)
		{
			Link = &Edges[*Link].Next;
		}
		*Link = Edges[EdgeID].Next;
	}
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
