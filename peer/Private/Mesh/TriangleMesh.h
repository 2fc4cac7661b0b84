// SPDX-License-Identifier: MIT
/** One vertex pool with triangles, while it is being made. */
#pragma once

#include <cstdint>
#include <vector>

#include "Math/Box.h"

namespace Zef::Peer
{

struct FTriangleMesh
{
	std::vector<FVec3> Positions;
	std::vector<FVec3> Normals;			  // [Positions.size()], unit
	std::vector<FVec3> Tangents;		  // [Positions.size()] once computed
	std::vector<FVec2> UVs;				  // [Positions.size()] once given
	std::vector<std::uint32_t> Triangles; // three per triangle, fronts as FrontDirection says

	std::uint32_t Add(const FVec3& Position, const FVec3& Normal = {}, const FVec2& UV = {});
	void AddTriangle(std::uint32_t A, std::uint32_t B, std::uint32_t C);
	/** A, B, C, D around the front; split along the shorter diagonal. */
	void AddQuad(std::uint32_t A, std::uint32_t B, std::uint32_t C, std::uint32_t D);
	void Append(const FTriangleMesh& Other);

	FBox Bounds() const;
};

/** Unit normals as the mean of the triangles around a vertex, weighted by area. */
void ComputeNormals(FTriangleMesh& Mesh);

/**
 * The same, but vertices at one place (within a hundredth of a millimetre) share their normal, so that the seam of a
 * texture does not show in the light.
 */
void ComputeNormalsAcrossSeams(FTriangleMesh& Mesh);

/** Unit tangents along growing U, square to the normals; some direction square to the normal where U stands still. */
void ComputeTangents(FTriangleMesh& Mesh);

/** Gives every triangle vertices of its own, equal to those that it shared. */
void SeparateTriangles(FTriangleMesh& Mesh);

/** Turns every triangle round whose front looks away from the normals of its corners. */
void FaceTowardsNormals(FTriangleMesh& Mesh);

} // namespace Zef::Peer
