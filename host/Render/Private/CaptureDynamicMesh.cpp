// SPDX-License-Identifier: MIT
#include "CaptureMesh.h"

#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"

#include <map>

namespace Host
{
namespace
{

using UE::Geometry::FDynamicMesh3;
using UE::Geometry::FDynamicMeshAttributeSet;
using UE::Geometry::FDynamicMeshNormalOverlay;
using UE::Geometry::FDynamicMeshUVOverlay;
using UE::Geometry::FIndex3i;

/** What a corner is made of: ids, -1 for what it lacks. */
struct FCorner
{
	int Vertex = -1, Normal = -1, Tangent = -1, BiTangent = -1, UV = -1;

	bool operator==(const FCorner& Other) const = default;
};

FFloat3 ToFloats(const FVector3f& V)
{
	return {V.X, V.Y, V.Z};
}

/** Gathers the corners of triangles; equal corners become one vertex. */
class FCornerMerger
{
public:
	explicit FCornerMerger(const FDynamicMesh3& InMesh)
		: Mesh(InMesh)
		, FirstOfVertex(size_t(InMesh.MaxVertexID()), -1)
	{
		if (const FDynamicMeshAttributeSet* Attributes = Mesh.Attributes())
		{
			Normals = Attributes->GetNormalLayer(0);
			Tangents = Attributes->GetNormalLayer(1);
			BiTangents = Attributes->GetNormalLayer(2);
			UVs = Attributes->GetUVLayer(0);
		}
		Out.Positions.reserve(FirstOfVertex.size());
		Out.Normals.reserve(FirstOfVertex.size());
		Out.Tangents.reserve(FirstOfVertex.size());
		Out.UVs.reserve(FirstOfVertex.size());
	}

	void AddTriangle(int Triangle, FMeshSection& Section)
	{
		const FIndex3i Vertices = Mesh.GetTriangle(Triangle);
		const FIndex3i N = Normals ? Normals->GetTriangle(Triangle) : FIndex3i::Invalid();
		const FIndex3i T = Tangents ? Tangents->GetTriangle(Triangle) : FIndex3i::Invalid();
		const FIndex3i B = BiTangents ? BiTangents->GetTriangle(Triangle) : FIndex3i::Invalid();
		const FIndex3i UV = UVs ? UVs->GetTriangle(Triangle) : FIndex3i::Invalid();
		for (int Index = 0; Index < 3; ++Index)
		{
			Section.Indices.push_back(VertexOf({Vertices[Index], N[Index], T[Index], B[Index], UV[Index]}));
		}
	}

	FMeshSnapshot Finish() { return std::move(Out); }

private:
	uint32_t VertexOf(const FCorner& Corner)
	{
		int& First = FirstOfVertex[size_t(Corner.Vertex)];
		for (int Index = First; Index >= 0; Index = Next[size_t(Index)])
		{
			if (Corners[size_t(Index)] == Corner)
			{
				return uint32_t(Index);
			}
		}
		const int Made = int(Corners.size());
		Corners.push_back(Corner);
		Next.push_back(First);
		First = Made;
		Append(Corner);
		return uint32_t(Made);
	}

	void Append(const FCorner& Corner)
	{
		const FVector3d Position = Mesh.GetVertex(Corner.Vertex);
		Out.Positions.push_back({float(Position.X), float(Position.Y), float(Position.Z)});
		const FVector3f Normal = Corner.Normal >= 0 ? Normals->GetElement(Corner.Normal) : FVector3f(0.0f, 0.0f, 0.0f);
		const FVector3f Tangent =
			Corner.Tangent >= 0 ? Tangents->GetElement(Corner.Tangent) : FVector3f(0.0f, 0.0f, 0.0f);
		float Sign = 1.0f;
		if (Corner.BiTangent >= 0)
		{
			const FVector3f BiTangent = BiTangents->GetElement(Corner.BiTangent);
			Sign = FVector3f::DotProduct(FVector3f::CrossProduct(Normal, Tangent), BiTangent) < 0.0f ? -1.0f : 1.0f;
		}
		Out.Normals.push_back(ToFloats(Normal));
		Out.Tangents.push_back({Tangent.X, Tangent.Y, Tangent.Z, Sign});
		const FVector2f UV = Corner.UV >= 0 ? UVs->GetElement(Corner.UV) : FVector2f(0.0f, 0.0f);
		Out.UVs.push_back({UV.X, UV.Y});
	}

	const FDynamicMesh3& Mesh;
	const FDynamicMeshNormalOverlay* Normals = nullptr;
	const FDynamicMeshNormalOverlay* Tangents = nullptr;
	const FDynamicMeshNormalOverlay* BiTangents = nullptr;
	const FDynamicMeshUVOverlay* UVs = nullptr;
	std::vector<int> FirstOfVertex; // by mesh vertex: the last corner made of it, -1 for none
	std::vector<int> Next;			// by corner: the corner made before it of the same mesh vertex
	std::vector<FCorner> Corners;
	FMeshSnapshot Out;
};

} // namespace

FMeshSnapshot SnapshotOf(const FDynamicMesh3& Mesh)
{
	const FDynamicMeshAttributeSet* Attributes = Mesh.Attributes();
	const auto* MaterialIds = Attributes ? Attributes->GetMaterialID() : nullptr;
	FCornerMerger Merger(Mesh);
	std::map<int32_t, FMeshSection> Sections;
	for (int Triangle : Mesh.TriangleIndicesItr())
	{
		const int32_t Slot = MaterialIds ? MaterialIds->GetValue(Triangle) : 0;
		FMeshSection& Section = Sections[Slot];
		Section.MaterialIndex = Slot;
		Merger.AddTriangle(Triangle, Section);
	}
	FMeshSnapshot Snapshot = Merger.Finish();
	for (auto& [Slot, Section] : Sections)
	{
		Snapshot.Sections.push_back(std::move(Section));
	}
	return Snapshot;
}

} // namespace Host
