// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "Squares.h"
#include "Zef/Peer/Packing.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

using FIndices = std::vector<std::int32_t>;
using FOld = std::vector<std::uint32_t>;

TEST(WeldVertices, MergesWhatIsEqualInEveryAttributeAndKeepsTheFirst)
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 0)};

	const FKeptVertices Kept = WeldVertices(Mesh);

	EXPECT_EQ(Kept.Old, (FOld{0, 1, 2, 5}));
	const FSurface& Surface = Mesh.Surfaces[0];
	EXPECT_EQ(Surface.Positions, (std::vector<FVec3>{{0, 0, 0}, {0, 1, 0}, {1, 0, 0}, {1, 1, 0}}));
	EXPECT_EQ(Surface.UVs, (std::vector<FVec2>{{0, 0}, {0, 1}, {1, 0}, {1, 1}}));
	EXPECT_EQ(Surface.Normals.size(), 4u);
	EXPECT_EQ(Surface.Tangents.size(), 4u);
	EXPECT_EQ(Surface.Sections[0].Indices, (FIndices{0, 2, 1, 2, 3, 1}));
}

TEST(WeldVertices, KeepsVerticesThatDifferInOneAttributeOnly)
{
	for (int Attribute = 0; Attribute < 4; ++Attribute)
	{
		FSurfaceMesh Mesh;
		Mesh.Surfaces = {SplitSquare("a", 1, 0)};
		FSurface& Surface = Mesh.Surfaces[0];
		const float Next = std::nextafter(1.0f, 2.0f);
		switch (Attribute)
		{
			case 0:
				Surface.Positions[4].X = Next;
				break;
			case 1:
				Surface.Normals[4].Z = Next;
				break;
			case 2:
				Surface.Tangents[4].X = Next;
				break;
			case 3:
				Surface.UVs[4].X = Next;
				break;
		}
		EXPECT_EQ(WeldVertices(Mesh).Old, (FOld{0, 1, 2, 4, 5})) << "attribute " << Attribute;
		EXPECT_EQ(Mesh.Surfaces[0].Sections[0].Indices, (FIndices{0, 2, 1, 3, 4, 1})) << "attribute " << Attribute;
	}
}

TEST(WeldVertices, LooksAtInfluencesAndPacksThem)
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 0)};
	HangOnRoot(Mesh, 6);
	Mesh.VertexInfluences.Weights[4] = {1, 1.0f};

	EXPECT_EQ(WeldVertices(Mesh).Old, (FOld{0, 1, 2, 4, 5}));
	EXPECT_EQ(Mesh.VertexInfluences.FirstWeight, (std::vector<std::uint32_t>{0, 1, 2, 3, 4, 5}));
	EXPECT_EQ(Mesh.VertexInfluences.Weights, (std::vector<FBoneWeight>{{0, 1}, {0, 1}, {0, 1}, {1, 1}, {0, 1}}));
}

TEST(WeldVertices, TakesAnotherNumberOfInfluencesForADifference)
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 0)};
	HangOnRoot(Mesh, 6);
	// Vertex 4 has a second one.
	Mesh.VertexInfluences.FirstWeight = {0, 1, 2, 3, 4, 6, 7};
	Mesh.VertexInfluences.Weights = {{0, 1}, {0, 1}, {0, 1}, {0, 1}, {0, 1}, {1, 0}, {0, 1}};

	EXPECT_EQ(WeldVertices(Mesh).Old, (FOld{0, 1, 2, 4, 5}));
	EXPECT_EQ(Mesh.VertexInfluences.FirstWeight, (std::vector<std::uint32_t>{0, 1, 2, 3, 5, 6}));
}

TEST(WeldVertices, MovesTheOffsetsOfLaterSurfacesAndMergesNothingAcrossThem)
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 0), SplitSquare("b", 1, 0)};
	Mesh.Surfaces[1].VertexOffset = 6;

	EXPECT_EQ(WeldVertices(Mesh).Old, (FOld{0, 1, 2, 5, 6, 7, 8, 11}));
	EXPECT_EQ(Mesh.Surfaces[1].VertexOffset, 4);
	EXPECT_EQ(Mesh.Surfaces[1].Sections[0].Indices, (FIndices{0, 2, 1, 2, 3, 1}));
}

TEST(WeldVertices, HoldsTheTwoZerosForEqualAndNotANumberForItself)
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 0)};
	Mesh.Surfaces[0].Positions[4].Y = -0.0f;
	Mesh.Surfaces[0].UVs[1].X = std::numeric_limits<float>::quiet_NaN();
	Mesh.Surfaces[0].UVs[3].X = std::numeric_limits<float>::quiet_NaN();

	EXPECT_EQ(WeldVertices(Mesh).Old, (FOld{0, 1, 2, 5}));
}

TEST(WeldVertices, LeavesATriangleWhoseCornersFellTogether)
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 0)};
	Mesh.Surfaces[0].Sections[0].Indices = {2, 4, 0};

	WeldVertices(Mesh);

	EXPECT_EQ(Mesh.Surfaces[0].Sections[0].Indices, (FIndices{2, 2, 0}));
}

TEST(WeldVertices, WorksWithoutTextureCoordinatesAndWithoutVertices)
{
	FSurfaceMesh Mesh;
	Mesh.Surfaces = {SplitSquare("a", 1, 0), FSurface()};
	Mesh.Surfaces[0].UVs.clear();

	EXPECT_EQ(WeldVertices(Mesh).Old, (FOld{0, 1, 2, 5}));
	EXPECT_EQ(Mesh.Surfaces[1].VertexOffset, 4);
	EXPECT_TRUE(Mesh.Surfaces[0].UVs.empty());
}

TEST(PackFrames, LeavesTheKeptVerticesInEveryFrame)
{
	const std::vector<FVec3> Six{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}, {5, 0, 0}};
	std::vector<FMeshSequenceFrame> Frames{{Six, Six, Six, 0.5}};

	PackFrames(Frames, {{0, 2, 5}});

	const std::vector<FVec3> Three{{0, 0, 0}, {2, 0, 0}, {5, 0, 0}};
	EXPECT_EQ(Frames, (std::vector<FMeshSequenceFrame>{{Three, Three, Three, 0.5}}));
}

TEST(PackFrames, KeepsEverythingWhenNothingWasPacked)
{
	std::vector<FMeshSequenceFrame> Frames{{{{1, 2, 3}}, {{0, 0, 1}}, {{1, 0, 0}}, 0}};
	const std::vector<FMeshSequenceFrame> Before = Frames;

	PackFrames(Frames, {});

	EXPECT_EQ(Frames, Before);
}
