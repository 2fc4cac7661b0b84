// SPDX-License-Identifier: MIT
/** Small meshes to pack. */
#pragma once

#include <string>

#include "Zef/Records.h"

namespace PeerTest
{

/**
 * A square in the plane z = 0 whose two triangles share no vertex:
 *
 *   1---3 5     vertex 3 equals 1's neighbour 5 and 2 equals 4
 *   | \ |
 *   0   2 4     triangles 0 2 1 and 4 5 3
 */
inline Zef::FSurface SplitSquare(const std::string& Name, float Side, std::int32_t MaterialKey)
{
	Zef::FSurface Surface;
	Surface.Name = Name;
	Surface.Positions = {{0, 0, 0}, {0, Side, 0}, {Side, 0, 0}, {0, Side, 0}, {Side, 0, 0}, {Side, Side, 0}};
	Surface.Normals.assign(6, {0, 0, 1});
	Surface.Tangents.assign(6, {1, 0, 0});
	Surface.UVs = {{0, 0}, {0, 1}, {1, 0}, {0, 1}, {1, 0}, {1, 1}};
	Surface.Sections = {{MaterialKey, {0, 2, 1, 4, 5, 3}}};
	return Surface;
}

inline std::pair<std::int32_t, Zef::FMaterial> NamedMaterial(std::int32_t Key, const std::string& Name)
{
	Zef::FMaterial Material;
	Material.Id = Key;
	Material.Name = Name;
	return {Key, Material};
}

/** Gives every vertex of the mesh one influence on joint 0. */
inline void HangOnRoot(Zef::FSurfaceMesh& Mesh, std::size_t VertexCount)
{
	Mesh.Joints = {{"root", -1, {}}, {"child", 0, {}}};
	Mesh.VertexInfluences.FirstWeight.clear();
	for (std::uint32_t V = 0; V <= VertexCount; ++V)
	{
		Mesh.VertexInfluences.FirstWeight.push_back(V);
	}
	Mesh.VertexInfluences.Weights.assign(VertexCount, {0, 1.0f});
}

} // namespace PeerTest
