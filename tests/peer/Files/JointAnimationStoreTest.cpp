// SPDX-License-Identifier: MIT
#include "FilesFixture.h"
#include "Zef/Peer/JointAnimationStore.h"

using namespace Zef;
using namespace Zef::Peer;

using JointAnimationStore = FModelFiles;

namespace
{

/** A triangle on two joints; the second turns a quarter about Z within a tenth of a second. */
FJointAnimation Waving()
{
	FJointAnimation Made;
	FSurface& Surface = Made.Mesh.Surfaces.emplace_back();
	Surface.Positions = {{0, 0, 0}, {10, 0, 0}, {0, 0, 20}};
	Surface.Normals = {{0, 1, 0}, {0, 1, 0}, {0, 1, 0}};
	Surface.Tangents = {{1, 0, 0}, {1, 0, 0}, {1, 0, 0}};
	Surface.UVs = {{0, 0}, {1, 0}, {0, 1}};
	Surface.Sections = {{0, {0, 1, 2}}};
	Made.Mesh.Joints = {{"Hip", -1, {}}, {"Arm", 0, {{0, 0, 0, 1}, {0, 5, 10}, {1, 1, 1}}}};
	Made.Mesh.VertexInfluences.FirstWeight = {0, 1, 3, 4};
	Made.Mesh.VertexInfluences.Weights = {{0, 1}, {0, 0.25f}, {1, 0.75f}, {1, 1}};
	for (int F = 0; F < 4; ++F)
	{
		FJoint Arm = Made.Mesh.Joints[1];
		Arm.Transform.Rotation = F < 3 ? FVec4{0, 0, 0, 1} : FVec4{0, 0, 0.70710678f, 0.70710678f};
		Made.Sequence.Frames.push_back({{Arm}, F / 30.0});
	}
	return Made;
}

} // namespace

TEST_F(JointAnimationStore, WritesWhatReadsBackTheSame)
{
	const FJointAnimation Sent = Waving();
	const FStoreResult Stored = MakeGltfJointAnimationStore(Folder / "saved")
									->Store({EObjectType::Avatar, EAnimationKind::JointAnimation}, Sent);
	ASSERT_TRUE(Stored.Succeeded()) << Stored.Error;

	const FLoadResult Result = LoadObject(EObjectType::Avatar, {Stored.File});

	ASSERT_TRUE(Result.Object) << (Result.Errors.empty() ? "" : Result.Errors[0]);
	constexpr float Rounding = 1e-4f; // cm; through metres and back in 32 bits
	const FSurfaceMesh& Mesh = Result.Object->Mesh;
	for (std::size_t V = 0; V < 3; ++V)
	{
		EXPECT_NEAR(Mesh.Surfaces.at(0).Positions.at(V).X, Sent.Mesh.Surfaces[0].Positions[V].X, Rounding);
		EXPECT_NEAR(Mesh.Surfaces.at(0).Positions.at(V).Z, Sent.Mesh.Surfaces[0].Positions[V].Z, Rounding);
	}
	EXPECT_EQ(Mesh.Surfaces[0].Sections.at(0).Indices, (std::vector<std::int32_t>{0, 1, 2}));
	ASSERT_EQ(Mesh.Joints.size(), 2u);
	EXPECT_EQ(Mesh.Joints[1].Name, "Arm");
	EXPECT_NEAR(Mesh.Joints[1].Transform.Translation.Y, 5, Rounding);
	EXPECT_NEAR(Mesh.Joints[1].Transform.Translation.Z, 10, Rounding);
	EXPECT_EQ(Mesh.VertexInfluences.Weights, Sent.Mesh.VertexInfluences.Weights);
	ASSERT_EQ(Result.Object->JointSequence.Frames.size(), 4u);
	const FVec4 Turn = Result.Object->JointSequence.Frames[3].Joints.at(1).Transform.Rotation;
	EXPECT_NEAR(Turn.Z, 0.70710678f, Rounding);
	EXPECT_NEAR(Turn.W, 0.70710678f, Rounding);
}

TEST_F(JointAnimationStore, NeverReplacesAFileAndLeavesNothingBeside)
{
	const auto Store = MakeGltfJointAnimationStore(Folder.GetPath());
	const FObjectTypeInfo Info{EObjectType::Garment, EAnimationKind::JointAnimation};

	EXPECT_EQ(Store->Store(Info, Waving()).File.filename(), "garment-001.glb");
	EXPECT_EQ(Store->Store(Info, Waving()).File.filename(), "garment-002.glb");
	EXPECT_EQ(Folder.Entries(), (std::vector<std::string>{"garment-001.glb", "garment-002.glb"}));
}

TEST_F(JointAnimationStore, RefusesAMeshWithoutJoints)
{
	const FStoreResult Stored =
		MakeGltfJointAnimationStore(Folder.GetPath())->Store({EObjectType::Avatar, EAnimationKind::JointAnimation}, {});

	EXPECT_FALSE(Stored.Succeeded());
	EXPECT_TRUE(Folder.Entries().empty());
}
