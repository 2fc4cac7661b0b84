// SPDX-License-Identifier: MIT
#include "Rivals/Rivals.h"

#include <OpenMesh/Core/System/config.h>
#include <OpenMesh/Core/Mesh/TriMesh_ArrayKernelT.hh>

namespace Bench
{

namespace
{

struct FRivalMesh : IRivalMesh
{
	OpenMesh::TriMesh_ArrayKernelT<> Mesh;

	std::size_t Vertices() const override { return Mesh.n_vertices(); }
	std::size_t Edges() const override { return Mesh.n_edges(); }
	std::size_t Faces() const override { return Mesh.n_faces(); }
};

} // namespace

std::unique_ptr<IRivalMesh> BuildOpenMesh(std::size_t Vertices, std::span<const std::int32_t> Indices)
{
	auto Built = std::make_unique<FRivalMesh>();
	auto& Mesh = Built->Mesh;
	const std::size_t Triangles = Indices.size() / 3;
	Mesh.reserve(Vertices, Triangles * 3 / 2 + Vertices / 64, Triangles);
	const OpenMesh::TriMesh_ArrayKernelT<>::Point Origin(0, 0, 0);
	for (std::size_t Vertex = 0; Vertex < Vertices; ++Vertex)
	{
		Mesh.add_vertex(Origin);
	}
	for (std::size_t First = 0; First + 2 < Indices.size(); First += 3)
	{
		Mesh.add_face(OpenMesh::VertexHandle(Indices[First]), OpenMesh::VertexHandle(Indices[First + 1]),
			OpenMesh::VertexHandle(Indices[First + 2]));
	}
	return Built;
}

std::string OpenMeshVersion()
{
	constexpr unsigned Version = OM_GET_VER << 16 | OM_GET_MAJ << 8 | OM_GET_MIN;
	return "OpenMesh " + std::to_string(Version >> 16) + "." + std::to_string(Version >> 8 & 255);
}

} // namespace Bench
