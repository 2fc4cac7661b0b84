// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "SharedSample.h"
#include "Zef/Check.h"
#include "Zef/Peer/Packing.h"

using namespace Zef;
using namespace Zef::Peer;
using namespace PeerTest;

TEST(SampleOverTheLink, KeepsTheRulesOfEveryMesh)
{
	for (const FProjectObject& Object : Sample().Objects)
	{
		const FLinkFault Fault = CheckMesh(Object.Mesh, EIndexBase::Surface);
		EXPECT_FALSE(Fault) << ObjectTypeName(Object.Type) << ": " << ToString(Fault);
	}
}

TEST(SampleOverTheLink, KeepsThemWhenPacked)
{
	for (const FProjectObject& Object : Sample().Objects)
	{
		FSurfaceMesh Mesh = Object.Mesh;
		Pack(Mesh, Object.Type, {true, true});
		const FLinkFault Fault = CheckMesh(Mesh, EIndexBase::Surface);
		EXPECT_FALSE(Fault) << ObjectTypeName(Object.Type) << ": " << ToString(Fault);
		EXPECT_EQ(CountObject(Mesh).Triangles, CountObject(Object.Mesh).Triangles) << ObjectTypeName(Object.Type);
	}
}

TEST(SampleOverTheLink, HasAPieceInTheDressThatWeldingMakesSmaller)
{
	const auto VerticesOfBinding = [](const FSurfaceMesh& Mesh)
	{
		for (const FSurface& Surface : Mesh.Surfaces)
		{
			if (Surface.Name == "Dress/Binding")
			{
				return Surface.Positions.size();
			}
		}
		return std::size_t(0);
	};
	FSurfaceMesh Welded = SampleObject(EObjectType::Garment).Mesh;
	const std::size_t Before = VerticesOfBinding(Welded);
	WeldVertices(Welded);

	// Every triangle of it is sent by itself; about two share a vertex of a tube.
	EXPECT_LT(VerticesOfBinding(Welded), Before / 4);
	EXPECT_GT(VerticesOfBinding(Welded), Before / 7);
}

TEST(SampleOverTheLink, KeepsTheRulesOfAnimations)
{
	const FProjectObject& Avatar = SampleObject(EObjectType::Avatar);
	const FLinkFault Walk = CheckJointSequence(Zef::Pack(Avatar.JointSequence), Avatar.Mesh.Joints.size());
	EXPECT_FALSE(Walk) << ToString(Walk);

	const std::size_t Vertices = CountObject(SampleObject(EObjectType::Garment).Mesh).Vertices;
	for (std::uint32_t F = 0; F < SampleClothSequence().size(); ++F)
	{
		const FLinkFault Fault = CheckSequenceFrame(SampleClothSequence()[F], F, Vertices);
		EXPECT_FALSE(Fault) << ToString(Fault);
	}
}

TEST(SampleOverTheLink, GivesTheUnifiedGarmentItsCloth)
{
	FSurfaceMesh Garment = SampleObject(EObjectType::Garment).Mesh;
	UnifyMaterials(Garment);

	ASSERT_EQ(Garment.Materials.size(), 1u);
	EXPECT_FALSE(Garment.Materials[0].second.bSubstance);
	for (const FSurface& Surface : Garment.Surfaces)
	{
		EXPECT_EQ(Surface.SurfaceMode, 0) << Surface.Name;
		EXPECT_EQ(Surface.Sections.size(), 1u) << Surface.Name;
	}
}
