// SPDX-License-Identifier: MIT
#include "FilesFixture.h"
#include "Zef/Peer/JointAnimationStore.h"

using namespace Zef;
using namespace Zef::Peer;

namespace
{

class AvatarFiles : public FModelFiles
{
protected:
	/** A file with a triangle on these joints that wears its weight on the last of them. */
	std::string WriteFigure(const std::string& Folder_, std::vector<FJoint> Joints, float Height, int NumFrames)
	{
		FJointAnimation Figure;
		FSurface& Surface = Figure.Mesh.Surfaces.emplace_back();
		Surface.Positions = {{0, 0, Height}, {10, 0, Height}, {0, 0, Height + 20}};
		Surface.Normals = {{0, 1, 0}, {0, 1, 0}, {0, 1, 0}};
		Surface.Tangents = {{1, 0, 0}, {1, 0, 0}, {1, 0, 0}};
		Surface.UVs = {{0, 0}, {1, 0}, {0, 1}};
		Surface.Sections = {{0, {0, 1, 2}}};
		const auto Last = static_cast<std::int32_t>(Joints.size()) - 1;
		Figure.Mesh.VertexInfluences.FirstWeight = {0, 1, 2, 3};
		Figure.Mesh.VertexInfluences.Weights = {{Last, 1}, {Last, 1}, {Last, 1}};
		for (int F = 0; F < NumFrames; ++F)
		{
			Figure.Sequence.Frames.push_back({{Joints.back()}, F / 30.0});
		}
		Figure.Mesh.Joints = std::move(Joints);
		const FStoreResult Stored = MakeGltfJointAnimationStore(Folder / Folder_)
										->Store({EObjectType::Avatar, EAnimationKind::JointAnimation}, Figure);
		EXPECT_TRUE(Stored.Succeeded()) << Stored.Error;
		return Stored.File;
	}
};

FJoint At(const char* Name, std::int32_t Parent, float Z)
{
	return {Name, Parent, {{0, 0, 0, 1}, {0, 0, Z}, {1, 1, 1}}};
}

} // namespace

TEST_F(AvatarFiles, ShareTheJointsOfOneNameAndAppendTheOthersBelowTheirs)
{
	const std::string Body = WriteFigure("body", {At("Hip", -1, 100), At("Arm", 0, 40)}, 140, 2);
	const std::string Boot = WriteFigure("boot", {At("Hip", -1, 150), At("Leg", 0, -30)}, 120, 5);
	const FLoadResult Result = LoadObject(EObjectType::Avatar, {Body, Boot});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	const FSurfaceMesh& Mesh = Result.Object->Mesh;
	ASSERT_EQ(Mesh.Joints.size(), 3u);
	EXPECT_EQ(Mesh.Joints[2].Name, "Leg");
	EXPECT_EQ(Mesh.Joints[2].ParentIndex, 0);
	ASSERT_EQ(Mesh.VertexInfluences.VertexCount(), 6u);
	EXPECT_EQ(Mesh.VertexInfluences.Weights.at(0).BoneIndex, 1);
	EXPECT_EQ(Mesh.VertexInfluences.Weights.at(3).BoneIndex, 2);
	ASSERT_EQ(Mesh.Surfaces.size(), 2u);
	EXPECT_EQ(Mesh.Surfaces[1].VertexOffset, 3);
}

TEST_F(AvatarFiles, BringTheVerticesOfTheSecondToWhereItsJointsStandInTheFirst)
{
	const std::string Body = WriteFigure("body", {At("Hip", -1, 100), At("Arm", 0, 40)}, 140, 2);
	const std::string Boot = WriteFigure("boot", {At("Hip", -1, 150), At("Leg", 0, -30)}, 120, 5);
	const FLoadResult Result = LoadObject(EObjectType::Avatar, {Body, Boot});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	// The hip of the second stands 50 cm above that of the first.
	EXPECT_NEAR(Result.Object->Mesh.Surfaces.at(0).Positions.at(0).Z, 140, 1e-3f);
	EXPECT_NEAR(Result.Object->Mesh.Surfaces.at(1).Positions.at(0).Z, 70, 1e-3f);
}

TEST_F(AvatarFiles, KeepTheLongerOfTwoClipsWithAnEntryForEveryJoint)
{
	const std::string Body = WriteFigure("body", {At("Hip", -1, 100), At("Arm", 0, 40)}, 140, 2);
	const std::string Boot = WriteFigure("boot", {At("Hip", -1, 100), At("Leg", 0, -30)}, 70, 5);
	const FLoadResult Result = LoadObject(EObjectType::Avatar, {Body, Boot});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	ASSERT_EQ(Result.Object->JointSequence.Frames.size(), 5u);
	ASSERT_EQ(Result.Object->JointSequence.Frames[4].Joints.size(), 3u);
	EXPECT_EQ(Result.Object->JointSequence.Frames[4].Joints[1].Name, "Arm");
	EXPECT_NEAR(Result.Object->JointSequence.Frames[4].Joints[1].Transform.Translation.Z, 40, 1e-3f);
	EXPECT_NEAR(Result.Object->JointSequence.Frames[4].Joints[2].Transform.Translation.Z, -30, 1e-3f);
}

TEST_F(AvatarFiles, HangWhatHasNoJointsAtTheRoot)
{
	const std::string Body = WriteFigure("body", {At("Hip", -1, 100), At("Arm", 0, 40)}, 140, 2);
	const std::string Hat = Write("hat.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
	const FLoadResult Result = LoadObject(EObjectType::Avatar, {Body, Hat});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	const FInfluences& Influences = Result.Object->Mesh.VertexInfluences;
	ASSERT_EQ(Influences.VertexCount(), 6u);
	EXPECT_EQ(Influences.Weights.at(3).BoneIndex, 0);
	EXPECT_EQ(Influences.Weights.at(3).Weight, 1.0f);
}
