// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "SharedSample.h"
#include "Zef/Peer/SkinnedSequence.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

namespace
{

const FProjectObject& Avatar()
{
	return SampleObject(EObjectType::Avatar);
}

float Distance(const FVec3& A, const FVec3& B)
{
	return std::hypot(A.X - B.X, A.Y - B.Y, A.Z - B.Z);
}

/** The longest way that a vertex goes between two frames. */
float LongestWay(const FMeshSequenceFrame& From, const FMeshSequenceFrame& To)
{
	float Longest = 0;
	for (std::size_t V = 0; V < From.Positions.size(); ++V)
	{
		Longest = std::max(Longest, Distance(From.Positions[V], To.Positions[V]));
	}
	return Longest;
}

const std::vector<FMeshSequenceFrame>& WalkingSkin()
{
	static const std::vector<FMeshSequenceFrame> Frames = MakeSkinnedSequence(Avatar().Mesh, Avatar().JointSequence);
	return Frames;
}

} // namespace

TEST(SampleAvatar, IsAsTallAsAnAdultAndStandsOnTheFloor)
{
	float Lowest = 1e9f, Highest = -1e9f;
	for (const FSurface& Surface : Avatar().Mesh.Surfaces)
	{
		for (const FVec3& P : Surface.Positions)
		{
			Lowest = std::min(Lowest, P.Z);
			Highest = std::max(Highest, P.Z);
		}
	}
	EXPECT_NEAR(Highest, 175, 3);
	EXPECT_NEAR(Lowest, 0.9f, 0.6f); // the soles of her shoes lift her
}

TEST(SampleAvatar, HasTheUsualJointsParentsFirst)
{
	const std::vector<FJoint>& Joints = Avatar().Mesh.Joints;
	EXPECT_GE(Joints.size(), 50u);

	std::set<std::string> Names;
	for (std::size_t J = 0; J < Joints.size(); ++J)
	{
		EXPECT_LT(Joints[J].ParentIndex, static_cast<std::int32_t>(J));
		EXPECT_EQ(Joints[J].ParentIndex < 0, J == 0);
		EXPECT_TRUE(Names.insert(Joints[J].Name).second) << Joints[J].Name;
	}
	for (const char* Name :
		{"root", "pelvis", "spine_01", "spine_05", "neck_01", "head", "eye_l", "clavicle_r", "upperarm_l", "lowerarm_r",
			"hand_l", "thumb_01_l", "index_03_r", "pinky_02_l", "thigh_r", "calf_l", "foot_r", "ball_l"})
	{
		EXPECT_TRUE(Names.contains(Name)) << Name;
	}
}

TEST(SampleAvatar, HasWeightsThatAddUpToOneSomeOfMoreThanTwelveJoints)
{
	const FSurfaceMesh& Mesh = Avatar().Mesh;
	const FInfluences& Influences = Mesh.VertexInfluences;
	ASSERT_EQ(Influences.VertexCount(), CountObject(Mesh).Vertices);

	std::size_t Bad = 0, Many = 0;
	for (std::size_t V = 0; V < Influences.VertexCount(); ++V)
	{
		double Sum = 0;
		std::set<std::int32_t> Bones;
		for (std::uint32_t W = Influences.FirstWeight[V]; W < Influences.FirstWeight[V + 1]; ++W)
		{
			const FBoneWeight& Weight = Influences.Weights[W];
			Sum += Weight.Weight;
			const bool bKnown =
				Weight.BoneIndex >= 0 && Weight.BoneIndex < static_cast<std::int32_t>(Mesh.Joints.size());
			Bad += bKnown && Weight.Weight > 0 && Bones.insert(Weight.BoneIndex).second ? 0 : 1;
		}
		Bad += std::fabs(Sum - 1) < 1e-5 ? 0 : 1;
		Many += Bones.size() > 12 ? 1 : 0;
	}
	EXPECT_EQ(Bad, 0u);
	EXPECT_GT(Many, 100u);
}

TEST(SampleWalk, HasSixtyFramesOfAllJointsAtThirtyPerSecond)
{
	const std::vector<FJointSequenceFrame>& Frames = Avatar().JointSequence.Frames;
	ASSERT_EQ(Frames.size(), 60u);
	for (std::size_t F = 0; F < Frames.size(); ++F)
	{
		EXPECT_DOUBLE_EQ(Frames[F].Time, static_cast<double>(F) / 30);
		ASSERT_EQ(Frames[F].Joints.size(), Avatar().Mesh.Joints.size());
		for (std::size_t J = 0; J < Frames[F].Joints.size(); ++J)
		{
			EXPECT_EQ(Frames[F].Joints[J].Name, Avatar().Mesh.Joints[J].Name);
			EXPECT_EQ(Frames[F].Joints[J].ParentIndex, Avatar().Mesh.Joints[J].ParentIndex);
		}
	}
}

TEST(SampleWalk, StartsOverWithoutAJump)
{
	float Longest = 0;
	for (std::size_t F = 0; F + 1 < WalkingSkin().size(); ++F)
	{
		Longest = std::max(Longest, LongestWay(WalkingSkin()[F], WalkingSkin()[F + 1]));
	}
	EXPECT_LE(LongestWay(WalkingSkin().back(), WalkingSkin().front()), Longest * 1.05f);
	EXPECT_GT(Longest, 2); // she does walk
	EXPECT_LT(Longest, 20);
}

TEST(SampleWalk, KeepsTheFeetOnTheFloorAndNeverFarBelow)
{
	for (const FMeshSequenceFrame& Frame : WalkingSkin())
	{
		float Lowest = 1e9f;
		for (const FVec3& P : Frame.Positions)
		{
			Lowest = std::min(Lowest, P.Z);
		}
		EXPECT_GT(Lowest, -0.7f) << Frame.Time;
		EXPECT_LT(Lowest, 2.5f) << Frame.Time;
	}
}

TEST(SampleWalk, SwingsArmsAgainstLegs)
{
	const auto ForwardOf = [](const char* Name, std::size_t Frame)
	{
		// The place of a joint along x, from its chain of transforms: rotations matter, so by a vertex near it.
		const std::vector<FJoint>& Joints = Avatar().Mesh.Joints;
		const auto Joint = static_cast<std::int32_t>(
			std::find_if(Joints.begin(), Joints.end(), [&](const FJoint& J) { return J.Name == Name; }) -
			Joints.begin());
		const FInfluences& Influences = Avatar().Mesh.VertexInfluences;
		double Sum = 0, Weights = 0;
		for (std::size_t V = 0; V < Influences.VertexCount(); ++V)
		{
			for (std::uint32_t W = Influences.FirstWeight[V]; W < Influences.FirstWeight[V + 1]; ++W)
			{
				if (Influences.Weights[W].BoneIndex == Joint)
				{
					Sum += double(Influences.Weights[W].Weight) * WalkingSkin()[Frame].Positions[V].X;
					Weights += Influences.Weights[W].Weight;
				}
			}
		}
		return Sum / Weights;
	};
	// Heel strike of the right foot at frame 0, of the left one half a stride later.
	EXPECT_GT(ForwardOf("foot_r", 0), ForwardOf("foot_l", 0) + 30);
	EXPECT_GT(ForwardOf("hand_l", 0), ForwardOf("hand_r", 0) + 15);
	EXPECT_GT(ForwardOf("foot_l", 15), ForwardOf("foot_r", 15) + 30);
	EXPECT_GT(ForwardOf("hand_r", 15), ForwardOf("hand_l", 15) + 15);
}
