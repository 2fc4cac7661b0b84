// SPDX-License-Identifier: MIT
#include "DynamicMesh/DynamicMesh3.h"
#include "DynamicMesh/DynamicMeshAttributeSet.h"
#include "Support/Engine.h"
#include "Support/Require.h"
#include "Utils/ZEFTandemEditorUtils.h"

using UE::Geometry::FDynamicMesh3;
using UE::Geometry::FIndex3i;

namespace
{
void Convert(const FZEFSurfaceMesh& SurfaceMesh)
{
	FZEFDynamicMeshData Data;
	ZEFEditorUtils::ZEFSurfaceMeshToDynamicMeshData(SurfaceMesh, TEXT("DynamicMesh"), &Data);

	int32 Vertices = 0;
	int32 Triangles = 0;
	for (const FZEFSurface& Surface : SurfaceMesh.Surfaces)
	{
		Vertices += Surface.Positions.Num();
		for (const FZEFSection& Section : Surface.Sections)
		{
			Triangles += Section.Indices.Num() / 3;
		}
	}
	const FDynamicMesh3& Mesh = *Data.DynamicMesh;
	REQUIRE(Mesh.VertexCount() == Vertices);
	REQUIRE(Mesh.TriangleCount() <= Triangles);
	REQUIRE(Data.Materials.Num() == SurfaceMesh.Materials.Num());
	REQUIRE(Data.Textures.Num() == SurfaceMesh.Textures.Num());
	for (int32 Layer = 0; Layer < 3; ++Layer)
	{
		REQUIRE(Mesh.Attributes()->GetNormalLayer(Layer)->ElementCount() == Vertices);
	}
	for (int32 Triangle = 0; Triangle < Mesh.MaxTriangleID(); ++Triangle)
	{
		const FIndex3i Corners = Mesh.GetTriangle(Triangle);
		REQUIRE(Mesh.IsVertex(Corners.A) && Mesh.IsVertex(Corners.B) && Mesh.IsVertex(Corners.C));
		REQUIRE(Corners.A != Corners.B && Corners.B != Corners.C && Corners.C != Corners.A);
		const int32 Material = Mesh.Attributes()->GetMaterialID()->GetValue(Triangle);
		REQUIRE(Material >= -1 && Material < Data.Materials.Num());
	}
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Bytes, std::size_t Size)
{
	Fuzz::ConvertRecords(Bytes, Size, &Convert);
	return 0;
}
