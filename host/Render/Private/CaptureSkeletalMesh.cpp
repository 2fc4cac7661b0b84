// SPDX-License-Identifier: MIT
#include "CaptureMesh.h"

#include "Rendering/SkeletalMeshLODRenderData.h"

namespace Host
{

FMeshSnapshot SnapshotOf(const FSkeletalMeshLODRenderData& Level)
{
	FMeshSnapshot Snapshot;
	const FPositionVertexBuffer& Positions = Level.StaticVertexBuffers.PositionVertexBuffer;
	const FStaticMeshVertexBuffer& Rest = Level.StaticVertexBuffers.StaticMeshVertexBuffer;
	const uint32 Count = Positions.GetNumVertices();
	const bool bTangents = Rest.GetNumVertices() == Count;
	const bool bUVs = bTangents && Rest.GetNumTexCoords() > 0;
	Snapshot.Positions.reserve(Count);
	for (uint32 Vertex = 0; Vertex < Count; ++Vertex)
	{
		const FVector3f& Position = Positions.VertexPosition(Vertex);
		Snapshot.Positions.push_back({Position.X, Position.Y, Position.Z});
		if (bTangents)
		{
			const FVector4f Normal = Rest.VertexTangentZ(Vertex);
			const FVector4f Tangent = Rest.VertexTangentX(Vertex);
			Snapshot.Normals.push_back({Normal.X, Normal.Y, Normal.Z});
			Snapshot.Tangents.push_back({Tangent.X, Tangent.Y, Tangent.Z, Normal.W < 0.0f ? -1.0f : 1.0f});
		}
		if (bUVs)
		{
			const FVector2f UV = Rest.GetVertexUV(Vertex, 0);
			Snapshot.UVs.push_back({UV.X, UV.Y});
		}
	}
	TArray<uint32> Indices;
	Level.MultiSizeIndexContainer.GetIndexBuffer(Indices);
	for (const FSkelMeshRenderSection& From : Level.RenderSections)
	{
		const uint64 End = uint64(From.BaseIndex) + uint64(From.NumTriangles) * 3;
		if (From.bDisabled || End > uint64(Indices.Num()))
		{
			continue;
		}
		FMeshSection Section;
		Section.MaterialIndex = From.MaterialIndex;
		Section.Indices.assign(Indices.GetData() + From.BaseIndex, Indices.GetData() + End);
		Snapshot.Sections.push_back(std::move(Section));
	}
	return Snapshot;
}

} // namespace Host
