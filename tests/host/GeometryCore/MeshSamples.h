// SPDX-License-Identifier: MIT
/** Small meshes for tests. */
#pragma once

#include "DynamicMesh/DynamicMesh3.h"

#include <gtest/gtest.h>
#include <ostream>
#include <vector>

namespace UE::Geometry
{

inline void PrintTo(const FIndex3i& Triple, std::ostream* Out)
{
	*Out << '(' << Triple.A << ", " << Triple.B << ", " << Triple.C << ')';
}

inline void PrintTo(const FIndex2i& Pair, std::ostream* Out)
{
	*Out << '(' << Pair.A << ", " << Pair.B << ')';
}

} // namespace UE::Geometry

/** Vertices at (0, 0, 0), (1, 0, 0) and so on, and the triangles, all of which the mesh must take. */
inline UE::Geometry::FDynamicMesh3 MeshWith(int NumVertices, const std::vector<UE::Geometry::FIndex3i>& Triangles)
{
	UE::Geometry::FDynamicMesh3 Mesh;
	for (int VertexID = 0; VertexID < NumVertices; ++VertexID)
	{
		Mesh.AppendVertex(FVector3d(VertexID, 0, 0));
	}
	for (const UE::Geometry::FIndex3i& Triangle : Triangles)
	{
		EXPECT_GE(Mesh.AppendTriangle(Triangle), 0);
	}
	return Mesh;
}

/** Side times Side squares of two triangles each, row by row. */
inline UE::Geometry::FDynamicMesh3 Grid(int Side)
{
	UE::Geometry::FDynamicMesh3 Mesh;
	for (int Y = 0; Y <= Side; ++Y)
	{
		for (int X = 0; X <= Side; ++X)
		{
			Mesh.AppendVertex(FVector3d(X, Y, 0));
		}
	}
	for (int Y = 0; Y < Side; ++Y)
	{
		for (int X = 0; X < Side; ++X)
		{
			const int First = Y * (Side + 1) + X;
			const int Above = First + Side + 1;
			Mesh.AppendTriangle(First, First + 1, Above);
			Mesh.AppendTriangle(First + 1, Above + 1, Above);
		}
	}
	return Mesh;
}

template <typename RangeType>
std::vector<int> IdsOf(const RangeType& Range)
{
	std::vector<int> Ids;
	for (const int Id : Range)
	{
		Ids.push_back(Id);
	}
	return Ids;
}
