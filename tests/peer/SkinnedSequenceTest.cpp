// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "Squares.h"
#include "Zef/Peer/SkinnedSequence.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

namespace
{

constexpr float HalfRoot = 0.70710678f;
constexpr float Rounding = 1e-5f;

void ExpectNear(const FVec3& Actual, const FVec3& Expected)
{
	EXPECT_NEAR(Actual.X, Expected.X, Rounding);
	EXPECT_NEAR(Actual.Y, Expected.Y, Rounding);
	EXPECT_NEAR(Actual.Z, Expected.Z, Rounding);
}

/** One vertex at (2, 0, 0), on a child joint that stands at (1, 0, 0). */
FSurfaceMesh OneVertex()
{
	FSurfaceMesh Mesh;
	FSurface Surface;
	Surface.Positions = {{2, 0, 0}};
	Surface.Normals = {{0, 1, 0}};
	Surface.Tangents = {{1, 0, 0}};
	Mesh.Surfaces = {Surface};
	Mesh.Joints = {{"root", -1, {}}, {"child", 0, {{0, 0, 0, 1}, {1, 0, 0}, {1, 1, 1}}}};
	Mesh.VertexInfluences.FirstWeight = {0, 1};
	Mesh.VertexInfluences.Weights = {{1, 1.0f}};
	return Mesh;
}

FJointSequence OneFrame(const std::vector<FJoint>& Joints)
{
	return {{{Joints, 0.25}}};
}

const FTransform QuarterTurnAtOne{{0, 0, HalfRoot, HalfRoot}, {1, 0, 0}, {1, 1, 1}};

} // namespace

TEST(SkinnedSequence, TurnsAVertexAboutItsJoint)
{
	const auto Frames = MakeSkinnedSequence(OneVertex(), OneFrame({{"child", 0, QuarterTurnAtOne}}));

	ASSERT_EQ(Frames.size(), 1u);
	EXPECT_DOUBLE_EQ(Frames[0].Time, 0.25);
	ExpectNear(Frames[0].Positions[0], {1, 1, 0});
	ExpectNear(Frames[0].Normals[0], {-1, 0, 0});
	ExpectNear(Frames[0].Tangents[0], {0, 1, 0});
}

TEST(SkinnedSequence, LeavesTheReferencePoseWhereItIs)
{
	const FSurfaceMesh Mesh = OneVertex();
	const auto Frames = MakeSkinnedSequence(Mesh, OneFrame(Mesh.Joints));

	ExpectNear(Frames[0].Positions[0], {2, 0, 0});
}

TEST(SkinnedSequence, CarriesAJointThatTheFrameDoesNotNameWithItsParent)
{
	const auto Frames =
		MakeSkinnedSequence(OneVertex(), OneFrame({{"root", -1, {{0, 0, HalfRoot, HalfRoot}, {0, 0, 5}, {1, 1, 1}}}}));

	ExpectNear(Frames[0].Positions[0], {0, 2, 5});
}

TEST(SkinnedSequence, TakesTheWeightedMeanOfTheJoints)
{
	FSurfaceMesh Mesh = OneVertex();
	Mesh.VertexInfluences.FirstWeight = {0, 2};
	Mesh.VertexInfluences.Weights = {{0, 0.25f}, {1, 0.75f}};

	const auto Frames = MakeSkinnedSequence(Mesh, OneFrame({{"child", 0, QuarterTurnAtOne}}));

	ExpectNear(Frames[0].Positions[0], {1.25f, 0.75f, 0});
}

TEST(SkinnedSequence, AppliesScaleBeforeRotation)
{
	const FTransform TwiceAsLong{{0, 0, HalfRoot, HalfRoot}, {1, 0, 0}, {2, 1, 1}};
	const auto Frames = MakeSkinnedSequence(OneVertex(), OneFrame({{"child", 0, TwiceAsLong}}));

	ExpectNear(Frames[0].Positions[0], {1, 2, 0});
}

TEST(SkinnedSequence, KeepsAVertexWithoutInfluences)
{
	FSurfaceMesh Mesh = OneVertex();
	Mesh.VertexInfluences.FirstWeight = {0, 0};
	Mesh.VertexInfluences.Weights.clear();

	const auto Frames = MakeSkinnedSequence(Mesh, OneFrame({{"child", 0, QuarterTurnAtOne}}));

	ExpectNear(Frames[0].Positions[0], {2, 0, 0});
}

TEST(SkinnedSequence, IsEmptyForAMeshWithoutJointsOrInfluences)
{
	FSurfaceMesh Rigid = OneVertex(), Bare = OneVertex();
	Rigid.Joints.clear();
	Bare.VertexInfluences = {};

	EXPECT_TRUE(MakeSkinnedSequence(Rigid, OneFrame({{"child", 0, QuarterTurnAtOne}})).empty());
	EXPECT_TRUE(MakeSkinnedSequence(Bare, OneFrame({{"child", 0, QuarterTurnAtOne}})).empty());
}
