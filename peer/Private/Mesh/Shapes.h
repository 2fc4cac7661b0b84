// SPDX-License-Identifier: MIT
/** Meshes of simple shapes, with normals, texture coordinates and fronts outside. Lengths in cm. */
#pragma once

#include <functional>
#include <vector>

#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

/**
 * A surface over 0..1 by 0..1: u grows along a row, v from row to row. Where u runs right and v down on the front, as a
 * picture does, textures are not mirrored. Normals are those of the triangles around a vertex.
 */
FTriangleMesh Sheet(int Columns, int Rows, const std::function<FVec3(float U, float V)>& Place);

/** A ball or, with three radii, an egg; poles up and down. */
FTriangleMesh Ball(const FVec3& Center, const FVec3& Radii, int Columns, int Rows);

/** One point of an outline that is turned about the z axis. */
struct FOutlinePoint
{
	float Radius;
	float Height;
};

/**
 * An outline from top to bottom turned about the vertical through Center; points at one place in a row make an edge.
 * V runs over the outline's length. Ends that do not reach the axis stay open.
 */
FTriangleMesh Lathe(const FVec3& Center, const std::vector<FOutlinePoint>& Outline, int Columns);

/** A smooth curve through the points, as many more of them as asked for between each two. */
std::vector<FVec3> Smoothed(const std::vector<FVec3>& Points, int StepsBetween);

/**
 * A pipe along points, round, with a radius at each; ends are closed by caps of their own edge. U runs along.
 * Closed: the last point is joined to the first.
 */
FTriangleMesh Tube(const std::vector<FVec3>& Points, const std::vector<float>& Radii, int Sides, bool bClosed = false);

/** The mirror image in y = 0; texture coordinates stay, so their hand changes. */
FTriangleMesh Mirrored(const FTriangleMesh& Mesh);

} // namespace Zef::Peer
