// SPDX-License-Identifier: MIT
#include "Rivals/Rivals.h"

#include <CGAL/Simple_cartesian.h>
#include <CGAL/Surface_mesh.h>
#include <CGAL/version.h>

namespace Bench
{

namespace
{

using FMesh = CGAL::Surface_mesh<CGAL::Simple_cartesian<double>::Point_3>;

struct FRivalMesh : IRivalMesh
{
	FMesh Mesh;

	std::size_t Vertices() const override { return Mesh.number_of_vertices(); }
	std::size_t Edges() const override { return Mesh.number_of_edges(); }
	std::size_t Faces() const override { return Mesh.number_of_faces(); }
};

} // namespace

std::unique_ptr<IRivalMesh> BuildCgal(std::size_t Vertices, std::span<const std::int32_t> Indices)
{
	auto Built = std::make_unique<FRivalMesh>();
	FMesh& Mesh = Built->Mesh;
	const std::size_t Triangles = Indices.size() / 3;
	const auto Id = [&Indices](std::size_t Corner)
	{ return FMesh::Vertex_index(static_cast<unsigned>(Indices[Corner])); };
	Mesh.reserve(static_cast<unsigned>(Vertices), static_cast<unsigned>(Triangles * 3 / 2 + Vertices / 64),
		static_cast<unsigned>(Triangles));
	for (std::size_t Vertex = 0; Vertex < Vertices; ++Vertex)
	{
		Mesh.add_vertex();
	}
	for (std::size_t First = 0; First + 2 < Indices.size(); First += 3)
	{
		Mesh.add_face(Id(First), Id(First + 1), Id(First + 2));
	}
	return Built;
}

std::string CgalVersion()
{
	return std::string("CGAL ") + CGAL_STR(CGAL_VERSION);
}

} // namespace Bench
