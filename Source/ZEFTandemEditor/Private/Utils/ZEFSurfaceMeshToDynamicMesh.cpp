// SPDX-License-Identifier: MIT
#include "Utils/ZEFTandemEditorUtils.h"

#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "UObject/Package.h"
#include "Utils/ZEFFallbackMaterial.h"
#include "Utils/ZEFMeshMaterials.h"

namespace ZEFEditorUtils
{

using UE::Geometry::FDynamicMesh3;
using UE::Geometry::FDynamicMeshAttributeSet;
using UE::Geometry::FDynamicMeshMaterialAttribute;
using UE::Geometry::FDynamicMeshNormalOverlay;
using UE::Geometry::FDynamicMeshUVOverlay;
using UE::Geometry::FIndex3i;
using UE::Geometry::FVertexInfo;

namespace
{

/** The attribute layers that the conversion fills. */
struct FMeshLayers
{
	explicit FMeshLayers(FDynamicMeshAttributeSet& Attributes)
		: Normals(Attributes.GetNormalLayer(0))
		, Tangents(Attributes.GetNormalLayer(1))
		, Bitangents(Attributes.GetNormalLayer(2))
		, UVs(Attributes.GetUVLayer(0))
		, MaterialIds(Attributes.GetMaterialID())
	{
	}

	FDynamicMeshNormalOverlay* Normals;
	FDynamicMeshNormalOverlay* Tangents;
	FDynamicMeshNormalOverlay* Bitangents;
	FDynamicMeshUVOverlay* UVs;
	FDynamicMeshMaterialAttribute* MaterialIds;
};

/** Every overlay element is appended with its vertex, so that its id is the vertex's. */
void AppendVertices(const FZEFSurface& Surface, FDynamicMesh3& Mesh, const FMeshLayers& Layers)
{
	const int32 NumVertices = Surface.Positions.Num();
	const bool bHasUVs = !Surface.UVs.IsEmpty();
	for (int32 Vertex = 0; Vertex < NumVertices; ++Vertex)
	{
		Mesh.AppendVertex(FVertexInfo(FVector3d(Surface.Positions[Vertex])));
		const FVector3f& Normal = Surface.Normals[Vertex];
		const FVector3f& Tangent = Surface.Tangents[Vertex];
		Layers.Normals->AppendElement(Normal);
		Layers.Tangents->AppendElement(Tangent);
		Layers.Bitangents->AppendElement((Normal ^ Tangent).GetSafeNormal());
		if (bHasUVs)
		{
			Layers.UVs->AppendElement(Surface.UVs[Vertex]);
		}
	}
}

/** Appends the triangles of one section; those that the mesh refuses are dropped. */
void AppendTriangles(
	const FZEFSection& Section, int32 VertexOffset, int32 MaterialSlot, FDynamicMesh3& Mesh, const FMeshLayers& Layers)
{
	const int32 NumTriangles = Section.Indices.Num() / 3;
	for (int32 Triangle = 0; Triangle < NumTriangles; ++Triangle)
	{
		const FIndex3i Corners(Section.Indices[3 * Triangle] + VertexOffset,
			Section.Indices[3 * Triangle + 1] + VertexOffset, Section.Indices[3 * Triangle + 2] + VertexOffset);
		const int32 TriangleId = Mesh.AppendTriangle(Corners, 0);
		if (TriangleId < 0)
		{
			continue;
		}
		Layers.Normals->SetTriangle(TriangleId, Corners);
		Layers.Tangents->SetTriangle(TriangleId, Corners);
		Layers.Bitangents->SetTriangle(TriangleId, Corners);
		Layers.UVs->SetTriangle(TriangleId, Corners);
		Layers.MaterialIds->SetValue(TriangleId, MaterialSlot);
	}
}

} // namespace

void ZEFSurfaceMeshToDynamicMeshData(
	const FZEFSurfaceMesh& SurfaceMesh, const FString& Name, FZEFDynamicMeshData* OutData)
{
	if (OutData == nullptr)
	{
		return;
	}
	DuplicateDefaultMaterial(GetTransientPackage(), FName(TEXT("TempMaterial")));

	OutData->Materials.Empty();
	PrepareMaterialsAndTextures(SurfaceMesh, Name, EUVTransformCopy::Copy, OutData->Textures, OutData->Materials);

	TSharedPtr<FDynamicMesh3> Mesh = MakeShared<FDynamicMesh3>();
	Mesh->Clear();
	Mesh->EnableAttributes();
	Mesh->Attributes()->EnableTangents();
	Mesh->Attributes()->EnableMaterialID();
	const FMeshLayers Layers(*Mesh->Attributes());

	const TArray<int32> SlotKeys = GetMaterialSlotKeys(SurfaceMesh);
	for (const FZEFSurface& Surface : SurfaceMesh.Surfaces)
	{
		AppendVertices(Surface, *Mesh, Layers);
		for (const FZEFSection& Section : Surface.Sections)
		{
			// One look-up a section: all of its triangles share the key.
			AppendTriangles(Section, Surface.VertexOffset, SlotKeys.Find(Section.MaterialIndex), *Mesh, Layers);
		}
	}

	OutData->Name = Name;
	OutData->DynamicMesh = Mesh;
}

} // namespace ZEFEditorUtils
