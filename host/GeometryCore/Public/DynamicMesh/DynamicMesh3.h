// SPDX-License-Identifier: MIT
/** Editable triangle mesh. */
#pragma once

#include "BoxTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "DynamicMesh/InfoTypes.h"
#include "GeometryTypes.h"
#include "IndexTypes.h"
#include "Misc/EnumClassFlags.h"
#include "Misc/Optional.h"
#include "Templates/UniquePtr.h"
#include "Util/BlockArray.h"
#include "Util/RecordPool.h"

namespace UE::Geometry
{

class FDynamicMeshAttributeSet;

/** Arrays that a mesh may carry beside positions and triangles. */
enum class EMeshComponents : uint8
{
	None = 0,
	VertexNormals = 1,
	VertexColors = 2,
	VertexUVs = 4,
	FaceGroups = 8
};
ENUM_CLASS_FLAGS(EMeshComponents);

/**
 * A triangle mesh that stays manifold along its edges: no edge ever has more than two triangles, and no three vertices
 * form more than one. The winding of neighbours is not looked at, and vertices may be isolated or bow ties.
 *
 * Ids are given out in ascending order while nothing is removed; a freed id is used again before any new one.
 * Attributes that change along seams (normals, texture coordinates, material ids) live in the attribute set, which
 * a mesh has only after EnableAttributes().
 */
class GEOMETRYCORE_API FDynamicMesh3
{
public:
	constexpr static int InvalidID = IndexConstants::InvalidID;
	/** Answer of AppendTriangle(): an edge would get a third triangle. */
	constexpr static int NonManifoldID = -2;
	/** Answer of AppendTriangle(): the three vertices form a triangle already. */
	constexpr static int DuplicateTriangleID = -3;
	constexpr static FIndex3i InvalidTriangle{InvalidID, InvalidID, InvalidID};
	constexpr static FIndex2i InvalidEdge{InvalidID, InvalidID};

	/** Empty, with positions and triangles only. */
	FDynamicMesh3();
	explicit FDynamicMesh3(bool bWantNormals, bool bWantColors, bool bWantUVs, bool bWantTriGroups);
	explicit FDynamicMesh3(EMeshComponents Flags);
	/** Copies take over everything, with an attribute set of their own. */
	FDynamicMesh3(const FDynamicMesh3& CopyMesh);
	FDynamicMesh3(FDynamicMesh3&& MoveMesh);
	~FDynamicMesh3();
	FDynamicMesh3& operator=(const FDynamicMesh3& CopyMesh);
	FDynamicMesh3& operator=(FDynamicMesh3&& MoveMesh);

	// Counts are of live ids; Max...ID() is one past the highest id ever used.

	int VertexCount() const { return Vertices.Num(); }
	int TriangleCount() const { return Triangles.Num(); }
	int EdgeCount() const { return Edges.Num(); }
	int MaxVertexID() const { return Vertices.MaxID(); }
	int MaxTriangleID() const { return Triangles.MaxID(); }
	int MaxEdgeID() const { return Edges.MaxID(); }
	bool IsVertex(int VertexID) const { return Vertices.IsLive(VertexID); }
	bool IsTriangle(int TriangleID) const { return Triangles.IsLive(TriangleID); }
	bool IsEdge(int EdgeID) const { return Edges.IsLive(EdgeID); }
	/** Whether no id was freed. */
	bool IsCompact() const { return Vertices.IsDense() && Triangles.IsDense() && Edges.IsDense(); }

	/** Live ids in ascending order, for range-based loops. */
	auto VertexIndicesItr() const { return Vertices.Ids(); }
	auto TriangleIndicesItr() const { return Triangles.Ids(); }
	auto EdgeIndicesItr() const { return Edges.Ids(); }

	// Queries. An id that is not live is a fault unless said otherwise.

	FVector3d GetVertex(int VertexID) const { return Positions[VertexID]; }
	/** (0, 1, 0) on a mesh without vertex normals. */
	FVector3f GetVertexNormal(int VertexID) const;
	/** White on a mesh without vertex colours. */
	FVector3f GetVertexColor(int VertexID) const;
	/** (0, 0) on a mesh without vertex texture coordinates. */
	FVector2f GetVertexUV(int VertexID) const;
	/** Vertex ids in the order in which they were appended. */
	FIndex3i GetTriangle(int TriangleID) const { return Triangles[TriangleID].Vert; }
	/** Positions of the three corners. */
	void GetTriVertices(int TriangleID, FVector3d& V0, FVector3d& V1, FVector3d& V2) const;
	/** Ids of the edges AB, BC and CA. */
	FIndex3i GetTriEdges(int TriangleID) const;
	/** 0 on a mesh without triangle groups. */
	int GetTriangleGroup(int TriangleID) const;
	/** How many triangles have the vertex as a corner. */
	int GetVtxTriangleCount(int VertexID) const { return Vertices[VertexID].NumTriangles; }
	/** Edge between two vertices in either order, InvalidID when there is none. */
	int FindEdge(int VertexA, int VertexB) const;
	/** Triangle of three vertices in any order, InvalidID when there is none. */
	int FindTriangle(int A, int B, int C) const;
	/** Vertices of an edge, the lower id first. */
	FIndex2i GetEdgeV(int EdgeID) const { return Edges[EdgeID].Vert; }
	/** Triangles of an edge; the second is InvalidID at a boundary. */
	FIndex2i GetEdgeT(int EdgeID) const { return Edges[EdgeID].Tri; }
	bool IsBoundaryEdge(int EdgeID) const { return Edges[EdgeID].Tri.B == InvalidID; }

	/** Box around all vertices, isolated ones included; empty on an empty mesh. One thread is used either way. */
	FAxisAlignedBox3d GetBounds(bool bParallel = false) const;

	bool HasVertexNormals() const { return VertexNormals.IsSet(); }
	bool HasVertexColors() const { return VertexColors.IsSet(); }
	bool HasVertexUVs() const { return VertexUVs.IsSet(); }
	bool HasTriangleGroups() const { return TriangleGroups.IsSet(); }
	/** Gives each vertex a normal, a colour or a texture coordinate; nothing happens when there are some already. */
	void EnableVertexNormals(const FVector3f& InitialNormal);
	void EnableVertexColors(const FVector3f& InitialColor);
	void EnableVertexUVs(const FVector2f& InitialUV);
	/** Gives each triangle a group; nothing happens when there are some already. */
	void EnableTriangleGroups(int InitialGroupID = 0);

	// Edits.

	/** Drops everything, attributes included: the state of a default mesh. */
	void Clear();

	/** Id of a new vertex. Normal, colour and texture coordinate count only where the mesh has such an array. */
	int AppendVertex(const FVertexInfo& VertInfo);
	int AppendVertex(const FVector3d& Position);
	/** Copies a live vertex of another mesh. */
	int AppendVertex(const FDynamicMesh3& SourceMesh, int SourceVertexID);

	/**
	 * Appends one triangle over existing vertices. It starts unset in every overlay and with material id 0.
	 *
	 * @param TriVertices  three different live vertex ids
	 * @param GroupID      group of the triangle; not kept on a mesh without groups
	 * @return id of the new triangle; on refusal the mesh is unchanged and the result is the first that applies of
	 *         InvalidID (a vertex is missing or named twice),
	 *         NonManifoldID (an edge would get a third triangle) or
	 *         DuplicateTriangleID (the three vertices form a triangle already, in either winding)
	 */
	int AppendTriangle(const FIndex3i& TriVertices, int GroupID = 0)
	{
		return AppendTriangle(TriVertices.A, TriVertices.B, TriVertices.C, GroupID);
	}
	int AppendTriangle(int Vertex0, int Vertex1, int Vertex2, int GroupID = 0);

	/**
	 * Removes a triangle, the edges that only it had, and its overlay elements that nothing else uses.
	 *
	 * @param bRemoveIsolatedVertices  whether vertices that are left without a triangle go too
	 * @return Ok, or Failed_NotATriangle
	 */
	EMeshResult RemoveTriangle(int TriangleID, bool bRemoveIsolatedVertices = true);

	void SetVertex(int VertexID, const FVector3d& NewPosition);
	/** Nothing happens on a mesh without vertex normals. */
	void SetVertexNormal(int VertexID, const FVector3f& NewNormal);
	/** Nothing happens on a mesh without groups. */
	void SetTriangleGroup(int TriangleID, int GroupID);

	// Attributes.

	/** Makes an attribute set with one normal layer and one UV layer; nothing happens when there is one already. */
	void EnableAttributes();
	void DiscardAttributes();
	bool HasAttributes() const { return AttributeSet.IsValid(); }
	/** The attribute set, null without one. Owned by the mesh. */
	FDynamicMeshAttributeSet* Attributes() { return AttributeSet.Get(); }
	const FDynamicMeshAttributeSet* Attributes() const { return AttributeSet.Get(); }

private:
	/** What hangs on a vertex. */
	struct FVertex
	{
		/** The list of the edges whose lower vertex this is, or HubMark. */
		int32 FirstEdge = InvalidID;
		/** -1 for a free id. */
		int32 NumTriangles = 0;

		bool IsLive() const { return NumTriangles >= 0; }
		void MakeFree() { NumTriangles = -1; }
	};

	struct FTriangle
	{
		FIndex3i Vert;

		bool IsLive() const { return Vert.A >= 0; }
		void MakeFree() { Vert = InvalidTriangle; }
	};

	/** An edge. It hangs in the list of its lower vertex alone, which is about three edges long in ordinary meshes. */
	struct FEdge
	{
		/** The lower id first. */
		FIndex2i Vert;
		FIndex2i Tri;
		/** Next edge at Vert.A. */
		int32 Next = InvalidID;

		bool IsLive() const { return Vert.A >= 0; }
		void MakeFree()
		{
			Vert = Tri = InvalidEdge;
			Next = InvalidID;
		}
	};

	/** FirstEdge of a vertex with so many edges that they are kept in HubEdges. */
	static constexpr int32 HubMark = -2;

	/** The vertices of an edge as a key. */
	struct FHubEdgeKey
	{
		FIndex2i Vert;

		FHubEdgeKey(int VertexA, int VertexB)
			: Vert(VertexA < VertexB ? FIndex2i(VertexA, VertexB) : FIndex2i(VertexB, VertexA))
		{
		}
		bool operator==(const FHubEdgeKey& Other) const = default;
		friend uint32 GetTypeHash(const FHubEdgeKey& Key)
		{
			// The ids are small and dense, so both need to be spread over all bits.
			const uint64 Both = uint64{static_cast<uint32>(Key.Vert.A)} << 32 | static_cast<uint32>(Key.Vert.B);
			return static_cast<uint32>((Both * 0x9E3779B97F4A7C15ull) >> 32);
		}
	};

	int FindEdgeOf(const FVertex& Lower, int LowerID, int HigherID, int& OutSteps) const;
	void JoinEdge(int EdgeID, int VertexA, int VertexB, int TriangleID, int Steps);
	void AddEdge(int LowerID, int HigherID, int TriangleID, int Steps);
	void StoreGroup(int TriangleID, int GroupID);
	void RemoveEdge(int EdgeID);
	void MakeHub(int VertexID);

	TRecordPool<FVertex> Vertices;
	TRecordPool<FTriangle> Triangles;
	TRecordPool<FEdge> Edges;
	/** All edges whose lower vertex is a hub. */
	TMap<FHubEdgeKey, int32> HubEdges;
	/** [MaxVertexID()] */
	TBlockArray<FVector3d> Positions;
	TOptional<TArray<FVector3f>> VertexNormals;
	TOptional<TArray<FVector3f>> VertexColors;
	TOptional<TArray<FVector2f>> VertexUVs;
	/** [MaxTriangleID()] */
	TOptional<TArray<int32>> TriangleGroups;
	TUniquePtr<FDynamicMeshAttributeSet> AttributeSet;
};

} // namespace UE::Geometry
