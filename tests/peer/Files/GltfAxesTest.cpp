// SPDX-License-Identifier: MIT
#include "FilesFixture.h"
#include "Zef/Peer/Winding.h"

using namespace Zef;
using namespace Zef::Peer;

using GltfAxes = FModelFiles;

namespace
{

/** A triangle (0, 0, 0), (1, 0, 0), (0, 1, 0) that looks along Z, under a node with these properties. */
std::string Triangle(const std::string& Node)
{
	return R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[{"mesh":0)" + Node +
		   R"(}],"meshes":[{"primitives":[{"attributes":{"POSITION":0,"TEXCOORD_0":1}}]}],
		"accessors":[{"bufferView":0,"componentType":5126,"count":3,"type":"VEC3","min":[0,0,0],"max":[1,1,0]},
			{"bufferView":1,"componentType":5126,"count":3,"type":"VEC2"}],
		"bufferViews":[{"buffer":0,"byteLength":36},{"buffer":0,"byteOffset":36,"byteLength":24}],
		"buffers":[{"byteLength":60,"uri":"data:application/octet-stream;base64,)"
		   "AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAAAAAAAAAAgD8AAIA/AACAPwAAAAAAAAAA"
		   R"("}]})";
}

} // namespace

TEST_F(GltfAxes, BecomeTheEnginesAndFrontsStayFronts)
{
	const FLoadResult Result = LoadObject(EObjectType::Prop, {Write("triangle.gltf", Triangle(""))});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	const FSurface& Surface = Result.Object->Mesh.Surfaces.at(0);
	EXPECT_EQ(Surface.Positions, (std::vector<FVec3>{{0, 0, 0}, {0, -100, 0}, {0, 0, 100}}));
	EXPECT_EQ(Surface.Sections.at(0).Indices, (std::vector<std::int32_t>{0, 1, 2}));
	// It looked along Z, so it looks along X now.
	const FVec3 Front = FrontDirection(Surface.Positions[0], Surface.Positions[1], Surface.Positions[2]);
	EXPECT_GT(Front.X, 0);
	EXPECT_NEAR(Surface.Normals[0].X, 1, 1e-6f);
}

TEST_F(GltfAxes, KeepVRunningDown)
{
	const FLoadResult Result = LoadObject(EObjectType::Prop, {Write("triangle.gltf", Triangle(""))});

	ASSERT_TRUE(Result.Object);
	EXPECT_EQ(Result.Object->Mesh.Surfaces.at(0).UVs, (std::vector<FVec2>{{0, 1}, {1, 1}, {0, 0}}));
}

TEST_F(GltfAxes, TurnTheTrianglesOfAMirroredNode)
{
	const FLoadResult Result = LoadObject(EObjectType::Prop, {Write("mirror.gltf", Triangle(R"(,"scale":[-1,1,1])"))});

	ASSERT_TRUE(Result.Object);
	const FSurface& Surface = Result.Object->Mesh.Surfaces.at(0);
	EXPECT_EQ(Surface.Positions, (std::vector<FVec3>{{0, 0, 0}, {0, 100, 0}, {0, 0, 100}}));
	EXPECT_EQ(Surface.Sections.at(0).Indices, (std::vector<std::int32_t>{0, 2, 1}));
}

TEST_F(GltfAxes, AreLeftHandedForAnObjFileToo)
{
	const FLoadResult Result = LoadObject(EObjectType::Prop,
		{Write("triangle.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0 0\nvt 1 0\nvt 0 1\nf 1/1 2/2 3/3\n")});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	const FSurface& Surface = Result.Object->Mesh.Surfaces.at(0);
	EXPECT_EQ(Surface.Positions, (std::vector<FVec3>{{0, 0, 0}, {0, -100, 0}, {0, 0, 100}}));
	EXPECT_EQ(Surface.UVs, (std::vector<FVec2>{{0, 1}, {1, 1}, {0, 0}}));
	EXPECT_EQ(Surface.Sections.at(0).Indices, (std::vector<std::int32_t>{0, 1, 2}));
}

TEST_F(GltfAxes, OfSeveralFilesGoIntoOneObjectWithKeysOfTheirOwn)
{
	const std::string File = Write("triangle.gltf", Triangle(""));
	const FLoadResult Result = LoadObject(EObjectType::Prop, {File, File});

	ASSERT_TRUE(Result.Object);
	const FSurfaceMesh& Mesh = Result.Object->Mesh;
	ASSERT_EQ(Mesh.Surfaces.size(), 2u);
	EXPECT_EQ(Mesh.Surfaces[1].VertexOffset, 3);
	ASSERT_EQ(Mesh.Materials.size(), 2u);
	EXPECT_EQ(Mesh.Materials[0].first, 400000);
	EXPECT_EQ(Mesh.Materials[1].first, 400001);
	EXPECT_EQ(Mesh.Surfaces[1].Sections.at(0).MaterialIndex, 400001);
}
