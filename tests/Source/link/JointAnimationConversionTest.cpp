// SPDX-License-Identifier: MIT
#include "ZEFRuntimeUtils.h"
#include "Zef/Records.h"

#include <gtest/gtest.h>

namespace
{
FTransform3f Bent()
{
	return FTransform3f(FQuat4f(0.5f, -0.5f, 0.5f, 0.5f), FVector3f(1, 2, 3), FVector3f(4, 5, 6));
}

FZEFJoint MakeJoint(const TCHAR* Name, int32 Parent, const FTransform3f& Transform)
{
	FZEFJoint Joint;
	Joint.Name = Name;
	Joint.ParentIndex = Parent;
	Joint.Transform = Transform;
	return Joint;
}

FZEFJointAnimation SampleAnimation()
{
	FZEFJointAnimation Animation;
	FZEFSurface& Surface = Animation.Mesh.Surfaces.AddDefaulted_GetRef();
	Surface.Name = TEXT("0");
	Surface.SurfaceType = 5;
	Surface.SurfaceMode = 1;
	Surface.VertexOffset = 12;
	Surface.Positions = {FVector3f(1, 2, 3), FVector3f(4, 5, 6)};
	Surface.Normals = {FVector3f(0, 0, 1), FVector3f(0, 1, 0)};
	Surface.Tangents = {FVector3f(1, 0, 0), FVector3f(1, 0, 0)};
	Surface.UVs = {FVector2f(0.25f, 0.5f), FVector2f(0.75f, 1)};
	FZEFSection& Section = Surface.Sections.AddDefaulted_GetRef();
	Section.MaterialIndex = 65535;
	Section.Indices = {12, 13, 12};
	Animation.Mesh.Joints = {MakeJoint(TEXT("Root"), -1, FTransform3f()), MakeJoint(TEXT("H\u00e4nd"), 0, Bent())};
	FZEFVertexInfluence First;
	First.Influences = {{0, 0.25f}, {1, 0.75f}};
	Animation.Mesh.VertexInfluences = {First, FZEFVertexInfluence()};
	FZEFJointSequenceFrame Frame;
	Frame.Joints = {MakeJoint(TEXT("H\u00e4nd_Export"), 0, Bent())};
	Frame.Time = 1001.0 / 30000.0;
	Animation.Sequence.Frames = {Frame};
	return Animation;
}

TEST(ConvertZEFJointAnimationToJointAnimation, CopiesEveryField)
{
	ZefTandemCore::JointAnimation Converted;
	ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(SampleAnimation(), Converted);

	ASSERT_TRUE(Converted.Record);
	const Zef::FTransform ExpectedBent{{0.5f, -0.5f, 0.5f, 0.5f}, {1, 2, 3}, {4, 5, 6}};
	Zef::FJointAnimation Expected;
	Expected.Mesh.Surfaces = {{"0", 5, 1, 12, {{1, 2, 3}, {4, 5, 6}}, {{0, 0, 1}, {0, 1, 0}}, {{1, 0, 0}, {1, 0, 0}},
		{{0.25f, 0.5f}, {0.75f, 1}}, {{65535, {12, 13, 12}}}}};
	Expected.Mesh.Joints = {{"Root", -1, {}}, {"H\xc3\xa4nd", 0, ExpectedBent}};
	Expected.Mesh.VertexInfluences = {{0, 2, 2}, {{0, 0.25f}, {1, 0.75f}}};
	Expected.Sequence.Frames = {{{{"H\xc3\xa4nd_Export", 0, ExpectedBent}}, 1001.0 / 30000.0}};
	EXPECT_TRUE(*Converted.Record == Expected);
}

TEST(ConvertZEFJointAnimationToJointAnimation, KeepsTheOrderOfMaps)
{
	FZEFJointAnimation Animation;
	Animation.Mesh.Materials.Add(9).Name = TEXT("Nine");
	Animation.Mesh.Materials.Add(2).Name = TEXT("Two");
	Animation.Mesh.Materials.Add(5).Name = TEXT("Five");
	FZEFTexture& Texture = Animation.Mesh.Textures.Add(3);
	Texture.Width = 1;
	Texture.Height = 1;
	Texture.Pixels = {1, 2, 3, 4};

	ZefTandemCore::JointAnimation Converted;
	ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(Animation, Converted);

	const auto& Materials = Converted.Record->Mesh.Materials;
	ASSERT_EQ(Materials.size(), 3u);
	EXPECT_EQ(Materials[0].second.Name, "Nine");
	EXPECT_EQ(Materials[1].second.Name, "Two");
	EXPECT_EQ(Materials[2].second.Name, "Five");
	EXPECT_EQ(Converted.Record->Mesh.Textures[0].first, 3);
	EXPECT_EQ(Converted.Record->Mesh.Textures[0].second.Pixels, (std::vector<std::uint8_t>{1, 2, 3, 4}));
}

TEST(ConvertZEFJointAnimationToJointAnimation, LeavesAnEarlierResultToItsOtherHolders)
{
	ZefTandemCore::JointAnimation Converted;
	ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(SampleAnimation(), Converted);
	const ZefTandemCore::JointAnimation Copy = Converted;
	ZEFRuntimeUtils::ConvertZEFJointAnimationToJointAnimation(FZEFJointAnimation(), Converted);
	EXPECT_EQ(Copy.Record->Mesh.Surfaces.size(), 1u);
	EXPECT_TRUE(Converted.Record->Mesh.Surfaces.empty());
}
} // namespace
