// SPDX-License-Identifier: MIT
/** Turns a solid into triangles, finer where asked. */
#pragma once

#include <functional>

#include "Implicit/Field.h"
#include "Mesh/TriangleMesh.h"

namespace Zef::Peer
{

struct FPolygonizeOptions
{
	/** Edge of the smallest cell, cm. */
	float FinestCell = 0.25f;
	/**
	 * Wanted edge of the cells that reach into the ball of a centre and a radius, cm: the smallest that any part of the
	 * ball wants. Rounded down to the finest times a power of two. Between regions of different size the triangles fit
	 * together without a crack.
	 */
	std::function<float(const FVec3& Center, float Radius)> CellSize;
};

/**
 * The surface of the solid by dual contouring over an octree: one vertex in each cell that the surface passes, put on
 * the surface, with the field's direction as normal. Vertices come in a fixed order. No texture coordinates.
 */
FTriangleMesh Polygonize(const IField& Field, const FPolygonizeOptions& Options);

} // namespace Zef::Peer
